// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/supported_options.h"

#include "tests/plugin/plugin_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

std::vector<std::string> supportedKeys()
{
    std::vector<std::string> keys;
    const std::shared_ptr<const QStringList> supported = MyGetSupportedOptions();
    for (const QString &key : *supported) {
        keys.push_back(key.toStdString());
    }
    return keys;
}

TEST(SupportedOptions, AreTheKeysOfPopUpsSlidersAndCheckBoxesInTableOrder)
{
    EXPECT_EQ(supportedKeys(),
              (std::vector<std::string>{"vornCartridgeType", "vornMediaType",  "vornResolution",   "vornIntent",
                                        "vornColorModel",    "vornDithering",  "vornColorspace",   "vornCMYKspace",
                                        "vornBrightness",    "vornContrast",   "vornRefLight",     "vornGamut",
                                        "vornShadows",       "vornGreyToneA",  "vornGreyToneB",    "vornUCR",
                                        "vornBrightC",       "vornBrightM",    "vornTAC",          "vornIntensity",
                                        "vornInklimitK",     "vornInklimitC",  "vornInklimitM",    "vornInklimitY",
                                        "vornColorK",        "vornColorC",     "vornColorM",       "vornColorY",
                                        "vornNoPrint",       "vornColorGamma", "vornPSInterpreter"}));
}

TEST(SupportedOptions, AreToldInFourSteps)
{
    const CapturedLog log;
    MyGetSupportedOptions();
    EXPECT_EQ(log.lines(), (Lines{"LOG Create suppOptKeys 1\n", "LOG Create suppOptKeys 2\n",
                                  "LOG Create suppOptKeys3\n", "LOG Create suppOptKeys 4\n"}));
}

TEST(SupportedOptions, AreANewArrayEachTimeWithRoomForFifty)
{
    const auto first = MyGetSupportedOptions();
    const auto second = MyGetSupportedOptions();
    EXPECT_NE(first, second);
    EXPECT_EQ(*first, *second);
    EXPECT_GE(first->capacity(), 50);
}

TEST(SupportedOptions, OfEachTableEndAtTheFirstRowWithoutAKeyword)
{
    const SharedTables tables;
    pops.at(2).keyword = nullptr;
    Scrolls.at(3).keyword = nullptr;
    checkboxes.at(1).keyword = nullptr;
    EXPECT_EQ(supportedKeys(), (std::vector<std::string>{"vornCartridgeType", "vornMediaType", "vornBrightness",
                                                         "vornContrast", "vornRefLight", "vornNoPrint"}));
}

TEST(SupportedOptions, OfTheSlidersDoNotEndAtANegativeNumber)
{
    const SharedTables tables;
    Scrolls.at(3).number = -1;
    EXPECT_EQ(supportedKeys().size(), 31U);
}

TEST(SupportedOptions, DoNotDependOnThePPD)
{
    const auto panel = makePanel(std::make_shared<RecordingHost>());
    EXPECT_EQ(*panel->supportedPPDOptionKeys(), *MyGetSupportedOptions());
}

} // namespace
} // namespace tessarin::test
