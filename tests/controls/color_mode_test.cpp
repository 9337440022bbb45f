// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What follows the colour mode: the pop-up of its colour spaces, and the hint for the host's preview.

#include "controls/control_tables.h"
#include "controls/sliders.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class InputMode : public testing::Test {
protected:
    InputMode()
    {
        record->controls.popupControls[kPopColorspace] = &rgb;
        record->controls.popupControls[kPopCMYKspace] = &cmyk;
    }

    void show(int selection)
    {
        log.clear();
        record->settings.popupSelections[4] = selection;
        ShowCurrentInputMode(record);
    }

    int stored() { return record->settings.popupSelections[4]; }

    Record record;
    PopUpButton rgb;
    PopUpButton cmyk;
    CapturedLog log;
};

TEST_F(InputMode, ShowsTheColorSpacesThatGoWithTheMode)
{
    record.setChoices(
        4, {{"RGB", "a"}, {"CMYK", "b"}, {"CMYKproof", "c"}, {"cmyk", "d"}, {"CMY", "e"}, {"xCMYK", "f"}});
    const std::vector<std::pair<const char *, bool>> modes{{"RGB", false},  {"CMYK", true}, {"CMYKproof", true},
                                                           {"cmyk", false}, {"CMY", false}, {"xCMYK", false}};
    for (int n = 1; n <= 6; ++n) {
        const auto &[key, isCMYK] = modes[static_cast<std::size_t>(n) - 1];
        show(n);
        EXPECT_EQ(isShown(&cmyk), isCMYK) << key;
        EXPECT_EQ(isShown(&rgb), !isCMYK) << key;
        EXPECT_EQ(log.lines(),
                  logged({"colmode=" + std::to_string(n) + "\n", std::string("colmodename=") + key + "\n",
                          std::string(isCMYK ? "CMYK" : "RGB") + "-Mode - " + key + "\n"}));
        EXPECT_EQ(stored(), n);
    }
}

TEST_F(InputMode, CorrectsASelectionBeyondTheListToItsLastPair)
{
    record.setChoices(4, {{"RGB", "a"}, {"Gray", "b"}, {"CMYK", "c"}});
    for (const int beyond : {4, 5, 123}) {
        show(beyond);
        EXPECT_EQ(stored(), 3) << beyond;
        EXPECT_TRUE(isShown(&cmyk));
        EXPECT_TRUE(log.contains("LOG colmode=3\n"));
    }
}

TEST_F(InputMode, KeepsZeroAndOne)
{
    record.setChoices(4, {{"CMYK", "a"}});
    show(0);
    EXPECT_EQ(stored(), 0);
    EXPECT_TRUE(isShown(&rgb)) << "no mode is no CMYK mode";
    EXPECT_EQ(log.lines(), logged({"colmode=0\n", "colmodename=(null)\n", "RGB-Mode - (null)\n"}));
    show(1);
    EXPECT_EQ(stored(), 1);
    EXPECT_TRUE(isShown(&cmyk));
    show(-3);
    EXPECT_EQ(stored(), -3);
}

TEST_F(InputMode, StepsDownToOneInAnEmptyList)
{
    show(5);
    EXPECT_EQ(stored(), 1);
    EXPECT_EQ(log.lines(), logged({"colmode=1\n", "colmodename=(null)\n", "RGB-Mode - (null)\n"}));
    EXPECT_TRUE(isShown(&rgb));
    EXPECT_FALSE(isShown(&cmyk));
}

TEST_F(InputMode, NeedsNoPopUps)
{
    record->controls.popupControls.fill(nullptr);
    record.setChoices(4, {{"CMYK", "a"}});
    show(1);
    EXPECT_TRUE(log.contains("LOG CMYK-Mode - CMYK\n"));
}

TEST_F(InputMode, SurvivesAPercentSignInAKey)
{
    record.setChoices(4, {{"CMYK%n%s%d", "a"}});
    show(1);
    // The text is used as a format once more: "%s" then stands for an object, and none is there.
    EXPECT_EQ(log.lines(), logged({"colmode=1\n", "colmodename=CMYK%n%@%d\n", "CMYK-Mode - CMYK%n%@%d\n"}));
    EXPECT_TRUE(isShown(&cmyk));
}

TEST_F(InputMode, CutsALongKeyToTheTextBufferOfTheLog)
{
    const std::string key = "CMYK" + std::string(200, 'k');
    record.setChoices(4, {{key, "a"}});
    show(1);
    EXPECT_EQ(log.lines()[1], "LOG " + ("colmodename=" + key).substr(0, 127));
    EXPECT_TRUE(isShown(&cmyk));
}

TEST(PreviewColor, IsToldByTheStandardOption)
{
    RecordingHost host(ppdFixture("minimal"));
    Record record;
    record->callbackObject = &host;
    SetPreviewColor(record, true);
    SetPreviewColor(record, false);
    EXPECT_EQ(host.changes, (Changes{{"ColorModel", "RGB"}, {"ColorModel", "Gray"}}));
}

TEST(PreviewColor, NeedsAHost)
{
    const Record record;
    SetPreviewColor(record, true);
}

TEST(PreviewColor, MayBeRefused)
{
    RecordingHost host(ppdFixture("minimal"));
    host.refusedKeys = {"ColorModel"};
    Record record;
    record->callbackObject = &host;
    SetPreviewColor(record, false);
    EXPECT_EQ(host.changes, (Changes{{"ColorModel", "Gray"}}));
}

} // namespace
} // namespace tessarin::test
