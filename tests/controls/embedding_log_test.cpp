// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Every line that the embedding of each tab page logs, in order.

#include "tests/controls/controls_test_support.h"

#include "platform/view_tags.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

const std::vector<std::string> kCartridges{"Photo Black", "Matte Black"};
const std::vector<std::string> kMedia{"Plain Paper *", "Photo Paper", "---separator---", "Custom Paper 10 *"};
const std::vector<std::string> kResolutions{"600 dpi", "1200 dpi"};
const std::vector<std::string> kDitherings{"Error Diffusion", "Ordered Screening"};
const std::vector<std::string> kIntents{"Perceptual", "Proof"};
const std::vector<std::string> kColorModes{"Grayscale", "RGB Color", "CMYK Color"};
const std::vector<std::string> kColorSpaces{"sRGB", "---separator---", "Custom RGB Profile 1"};
const std::vector<std::string> kCMYKSpaces{"Offset, Coated Paper", "---separator---", "Custom CMYK Profile 1"};

constexpr char kTen[] = "min=-10.000000 max=10.000000\n";
constexpr char kFive[] = "min=-5.000000 max=5.000000\n";

Lines begin(int mask)
{
    return {"\n!!!MyEmbedControls!!! - idx=" + std::to_string(mask) + " - window=0\n\n"};
}

Lines initPopUps(int mask)
{
    return {"Init popuplists - pageidx = " + std::to_string(mask) + "\n", "---- INIT POPUP ----\n"};
}

Lines popUp(int row, int id, const std::vector<std::string> &texts, int active)
{
    const std::string place = "#" + std::to_string(row);
    return joined({{"--- found " + place + ": controlid=" + std::to_string(id) + "\n",
                    "FillPopUp " + place + " - id = " + std::to_string(id) + "\n"},
                   fillMessages(0, texts, active)});
}

Lines slider(int row, const char *range, int position)
{
    return joined({{"SCROLL-TEXT-Ref = " + std::to_string(row) + "\n"}, slideMessages(row, range, position)});
}

Lines constraintCheck(const char *keyword, const std::vector<std::string> &texts, int active)
{
    return joined({{"-- check contraints --\n", "Checking menu for " + std::string(keyword) + "\n"},
                   fillMessages(static_cast<int>(texts.size()), texts, active)});
}

Lines availabilityWithoutAMenu()
{
    return {"checkAvailabilityforMenus: item=kPOP_MEDIATYPE, selection=2\n", "got MediaMode: 6 - Photo6\n"};
}

/// The rows of an ink box without any channel.
Lines emptyInkBox(int first, int last, int height, int level)
{
    Lines lines{"firstline=" + std::to_string(first) + "\n",
                "lastline=" + std::to_string(last) + "\n",
                "allheight=0\n",
                "height=" + std::to_string(height) + "\n",
                "startline=" + std::to_string((height - first + last) / 2 + first) + "\n",
                "spacing=" + std::to_string(height) + "\n"};
    for (int row = 0; row < 12; ++row) {
        lines = joined({lines,
                        {"Zeile #" + std::to_string(row) + " mit Kanal #20\n", "emptys channel-!_!_!_!!_!_!_!\n",
                         "Set bar to " + std::to_string(level) + "\n",
                         "Set barcounter to " + std::to_string(level) + "\n", "Textstring =  \n"}});
    }
    return lines;
}

class EmbeddingLog : public testing::Test {
protected:
    EmbeddingLog() : session(ppdFixture("minimal"), "nobody-has-this-printer")
    {
        log.clear();
        session.open();
    }

    /// What embedding the page at a position logged.
    Lines page(int position)
    {
        const int mask = 1 << position;
        return section(log, "LOG " + begin(mask)[0],
                       position == 5 ? "END " : "LOG Init Tab #" + std::to_string(position + 1) + " ");
    }

    Interpreter interpreter{false, false};
    StableAddresses stable;
    CapturedLog log;
    PanelSession session;
};

TEST_F(EmbeddingLog, OfTheGeneralPage)
{
    EXPECT_EQ(page(0), logged(joined({begin(1),
                                      initPopUps(1),
                                      popUp(0, 4507, kCartridges, 1),
                                      popUp(1, 4501, kMedia, 2),
                                      popUp(2, 4502, kResolutions, 1),
                                      popUp(5, 4506, kDitherings, 1),
                                      constraintCheck("*vornMediaType", kMedia, 2),
                                      constraintCheck("*vornResolution", kResolutions, 1),
                                      availabilityWithoutAMenu(),
                                      availabilityWithoutAMenu(),
                                      {"no Ghostscript available\n"},
                                      slider(0, kTen, 0),
                                      slider(1, kTen, 0)})));
}

TEST_F(EmbeddingLog, OfTheColorPage)
{
    EXPECT_EQ(page(1), logged(joined({begin(2),
                                      initPopUps(2),
                                      popUp(3, 4504, kIntents, 1),
                                      popUp(4, 4505, kColorModes, 2),
                                      popUp(6, 4503, kColorSpaces, 1),
                                      popUp(7, 4508, kCMYKSpaces, 1),
                                      {"colmode=2\n", "colmodename=RGB\n", "RGB-Mode - RGB\n"},
                                      slider(2, "min=0.000000 max=6.000000\n", 3),
                                      slider(3, kFive, 0),
                                      slider(4, kFive, 0),
                                      slider(5, kTen, 0),
                                      slider(6, kTen, 0)})));
}

TEST_F(EmbeddingLog, OfTheCorrectionPage)
{
    EXPECT_EQ(page(2), logged(joined({begin(4), initPopUps(4), slider(16, kTen, 0), slider(17, kTen, 0),
                                      slider(18, kTen, 0), slider(19, kTen, 0)})));
}

TEST_F(EmbeddingLog, OfTheInkConsumptionPage)
{
    const auto raw = rawInterface(); // the panel's own rows have moved
    const QWidget *firstName = viewWithTag(raw.get(), 3211);
    const int first = firstName->y();
    const int height = firstName->height();
    const int last = viewWithTag(raw.get(), 3222)->y();
    ASSERT_GT(last, first);
    EXPECT_EQ(page(3), logged(joined({begin(8),
                                      {"Inkdata-File not found:/var/log/tessarin/nobody-has-this-printer.ink\n",
                                       "Setting inkChannels\n"},
                                      emptyInkBox(first, last, height, -200000),
                                      emptyInkBox(first, last, height, -1),
                                      initPopUps(8)})));
}

TEST_F(EmbeddingLog, OfTheInkUsagePage)
{
    EXPECT_EQ(page(4), logged(joined(
                           {begin(16),
                            initPopUps(16),
                            slider(7, kFive, 0),
                            slider(8, kFive, 0),
                            slider(9, kFive, 0),
                            slider(10, kFive, 0),
                            {"iconid_brcyan=0xP photo=0xP magentapane=0xP cyanpane=0xP\n", "colors disabled\n"}})));
}

TEST_F(EmbeddingLog, OfTheInkLimitsPage)
{
    EXPECT_EQ(page(5), logged(joined({begin(32), initPopUps(32), slider(11, "min=-8.000000 max=0.000000\n", 0),
                                      slider(12, kFive, 0), slider(13, kFive, 0), slider(14, kFive, 0),
                                      slider(15, kFive, 0)})));
}

TEST_F(EmbeddingLog, GoesThroughThePagesInTheirOrder)
{
    long before = -1;
    for (const int mask : {1, 2, 4, 8, 16, 32}) {
        const long place = log.indexOf("LOG " + begin(mask)[0]);
        EXPECT_GT(place, before) << mask;
        before = place;
        EXPECT_EQ(log.count("LOG " + begin(mask)[0]), 1);
    }
    EXPECT_EQ(log.countStarting("LOG \n!!!MyEmbedControls!!!"), 6);
}

TEST_F(EmbeddingLog, HoldsNoActionOfAPerson)
{
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 0);
    EXPECT_EQ(log.countStarting("LOG buttonCallback"), 0);
    EXPECT_EQ(log.countStarting("LOG Handle event"), 0);
    EXPECT_TRUE(session.host->changes.empty());
}

TEST(EmbeddingLogOfTheSecondTime, MissesTheSlidersAndFiltersTheIntents)
{
    const Interpreter interpreter{true, false};
    const StableAddresses stable;
    CapturedLog log;
    PanelSession session(ppdFixture("minimal"));
    session.open();
    log.clear();
    session.open();
    const Lines availability{"checkAvailabilityforMenus: item=kPOP_MEDIATYPE, selection=2\n",
                             "got MediaMode: 6 - Photo6\n"};
    const auto fill = [](int row, int id, const std::vector<std::string> &texts, int active) {
        return joined({{"--- found #" + std::to_string(row) + ": controlid=" + std::to_string(id) + "\n",
                        "FillPopUp #" + std::to_string(row) + " - id = " + std::to_string(id) + "\n"},
                       fillMessages(static_cast<int>(texts.size()), texts, active)});
    };
    EXPECT_EQ(section(log, "LOG " + begin(1)[0], "LOG Init Tab #1 "),
              logged(joined({begin(1),
                             initPopUps(1),
                             fill(0, 4507, kCartridges, 1),
                             fill(1, 4501, kMedia, 2),
                             fill(2, 4502, kResolutions, 1),
                             fill(5, 4506, kDitherings, 1),
                             constraintCheck("*vornMediaType", kMedia, 2),
                             constraintCheck("*vornResolution", kResolutions, 1),
                             availability,
                             {"+++ tag of selected item: 1\n", "Availabilitycheck - Mediamode = 6\n",
                              "SetComboControlValue to #1 of 2\n"},
                             availability,
                             {"+++ tag of selected item: 2\n", "Availabilitycheck - Mediamode = 6\n",
                              "SetComboControlValue to #2 of 3\n"}})));
    EXPECT_EQ(log.countStarting("LOG SCROLL-TEXT-Ref"), 0);
    EXPECT_EQ(log.countStarting("LOG SetScrollValue"), 0);
    EXPECT_EQ(session.context()->controls.controlsInt, 20);
}

TEST(EmbeddingLogWithAddresses, ShowsTheViewAsANumberAndTheIconsAsPointers)
{
    CapturedLog log;
    PanelSession session(ppdFixture("minimal"));
    session.open();
    const QWidget *page = session.context()->tabObjects[4];
    const auto number = static_cast<std::int32_t>(reinterpret_cast<qintptr>(page));
    EXPECT_TRUE(log.contains("LOG \n!!!MyEmbedControls!!! - idx=16 - window=" + std::to_string(number) + "\n\n"));
    const ControlsStruct &controls = session.context()->controls;
    const auto address = [](const QWidget *view) {
        return QStringLiteral("0x%1").arg(reinterpret_cast<quintptr>(view), 0, 16).toStdString();
    };
    EXPECT_TRUE(log.contains(
        "LOG iconid_brcyan=" + address(controls.brightCyanIcon) + " photo=" + address(controls.photoControl) +
        " magentapane=" + address(controls.magentaPane) + " cyanpane=" + address(controls.cyanPane) + "\n"));
}

} // namespace
} // namespace tessarin::test
