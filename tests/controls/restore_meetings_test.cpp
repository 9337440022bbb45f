// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a restore by the host, or an option that the host changed, leaves of the controls' states.

#include "controls/control_layer.h"
#include "plugin/restore.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class HostRestore : public testing::Test {
protected:
    HostRestore() : session(ppdFixture("media-modes"))
    {
        session.open();
        session.panel->willShow();
    }

    void restore()
    {
        log.clear();
        session.panel->restoreValuesAndReturnError(nullptr);
    }

    std::array<std::int32_t, 12> &selections() { return session.settings().popupSelections; }

    Interpreter interpreter{true, false};
    AlertRecorder alerts;
    CapturedLog log;
    PanelSession session;
};

TEST_F(HostRestore, EnablesEverySlider)
{
    choose(session.popup(1), 3); // mode 2
    EXPECT_FALSE(isOn(session.slider(0)));
    EXPECT_FALSE(isOn(session.slider(16)));
    restore();
    for (int number = 0; number < 20; ++number) {
        EXPECT_TRUE(isOn(session.slider(number))) << number;
    }
    EXPECT_FALSE(session.checkBox(4707)->isChecked());
}

TEST_F(HostRestore, LeavesTabsPanesAndPopUpsAsTheLastEventLeftThem)
{
    choose(session.popup(1), 3); // mode 2
    session.host->mark("vornMediaType", "M6");
    restore();
    EXPECT_EQ(selections()[1], 7);
    EXPECT_EQ(tabIdentifiers(session), (std::vector<std::string>{"On", "On", "Off", "Off", "Off", "Off"}));
    for (const int row : {2, 3, 5, 0, 7, 6}) {
        EXPECT_FALSE(isOn(session.popup(row))) << row;
    }
    EXPECT_EQ(hiddenOf(*session.popup(4)), std::vector<bool>(6, false)) << "the menus follow at once";
}

TEST_F(HostRestore, HidesByTheNewMediaTypeWhatTheSlidersDoNotFollow)
{
    session.host->mark("vornMediaType", "M2");
    session.host->mark("vornIntent", "Absolute6");
    session.host->mark("vornColorModel", "CMYK");
    restore();
    EXPECT_EQ(selections()[3], 2);
    EXPECT_EQ(selections()[4], 3);
    EXPECT_EQ(hiddenOf(*session.popup(3)), (std::vector<bool>{false, false, true, true, false}));
    EXPECT_TRUE(isShown(session.popup(6))) << "the colour spaces follow the moved mode";
    EXPECT_EQ(tabIdentifiers(session), std::vector<std::string>(6, "On"));
    EXPECT_TRUE(isOn(session.popup(5)));
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(HostRestore, IsMendedByTheNextEvent)
{
    choose(session.popup(1), 3);
    restore();
    choose(session.popup(1), 3);
    for (const int number : {0, 1, 2, 3, 5, 6, 7, 8, 9}) {
        EXPECT_FALSE(isOn(session.slider(number))) << number;
    }
    EXPECT_TRUE(isOn(session.slider(16))) << "only its own check box mends it";
    session.checkBox(4707)->click();
    session.checkBox(4707)->click();
    EXPECT_FALSE(isOn(session.slider(16)));
}

TEST_F(HostRestore, ThrowsAwayWhatWasNotStoredOrSent)
{
    choose(session.popup(0), 2);
    choose(session.popup(3), 3);
    choose(session.popup(5), 2);
    choose(session.popup(6), 3);
    session.checkBox(4705)->click();
    slide(session.slider(0), 5);
    restore();
    EXPECT_EQ(session.popup(0)->currentIndex(), 1) << "sent with its event, and marked by the host";
    EXPECT_EQ(session.popup(3)->currentIndex(), 0);
    EXPECT_EQ(session.popup(5)->currentIndex(), 0);
    EXPECT_EQ(session.popup(6)->currentIndex(), 0);
    EXPECT_FALSE(session.checkBox(4705)->isChecked());
    EXPECT_EQ(session.slider(0)->value(), 0);
    EXPECT_EQ(session.sliderText(0)->text(), QStringLiteral("100%"));
}

TEST_F(HostRestore, RaisesNoEventAndTellsTheHostNothing)
{
    choose(session.popup(1), 3);
    slide(session.slider(0), 5);
    session.host->changes.clear();
    restore();
    EXPECT_TRUE(session.host->changes.empty());
    EXPECT_EQ(log.countStarting("LOG Handle event"), 0);
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 0);
    EXPECT_EQ(log.countStarting("LOG buttonCallback"), 0);
}

TEST_F(HostRestore, KeepsAnEntryWhenTheStoredOneIsBeyondTheItems)
{
    choose(session.popup(5), 2);
    selections()[5] = 9;
    MyUpdatePaneFromSettings(session.context());
    EXPECT_EQ(session.popup(5)->currentIndex(), 1);
    EXPECT_EQ(selections()[5], 9);
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(session.host->marked("vornDithering"), "Ordered");
    EXPECT_EQ(selections()[5], 2);
}

TEST(PanelWithoutADefault, ShowsTheFirstEntryUntilTheHostRestores)
{
    PanelSession session(ppdFixture("no-default"));
    session.open();
    for (const std::size_t row : {0U, 3U}) {
        EXPECT_EQ(session.settings().popupSelections[row], 0) << row;
        EXPECT_EQ(session.popup(static_cast<int>(row))->currentIndex(), 0);
    }
    session.panel->restoreValuesAndReturnError(nullptr);
    for (const std::size_t row : {0U, 3U}) {
        EXPECT_EQ(session.settings().popupSelections[row], 0) << row;
        EXPECT_EQ(session.popup(static_cast<int>(row))->currentIndex(), -1);
    }
    CapturedLog log;
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(log.count("LOG Value not present!\n"), 2);
    EXPECT_EQ(
        std::count_if(session.host->changes.begin(), session.host->changes.end(),
                      [](const Change &c) { return c.first == "vornCartridgeType" || c.first == "vornIntent"; }),
        0);
}

TEST(PanelWithoutADefault, SendsTheShownEntryWithASaveBeforeThat)
{
    PanelSession session(ppdFixture("no-default"));
    session.open();
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(session.settings().popupSelections[0], 1);
    EXPECT_EQ(session.settings().popupSelections[3], 1);
    EXPECT_EQ(session.host->marked("vornCartridgeType"), "PhotoBlack");
}

TEST(PanelWithoutAnAllowedColorMode, RunsBeyondTheListAndIsCorrectedByTheRestore)
{
    AlertRecorder alerts;
    PanelSession session(ppdFixture("no-rgb-mode2"));
    session.open();
    EXPECT_EQ(session.popup(4)->currentIndex(), 1);
    choose(session.popup(1), 1); // mode 2, and neither RGB nor CMYKproof
    EXPECT_EQ(hiddenOf(*session.popup(4)), (std::vector<bool>{true, true, true}));
    EXPECT_EQ(session.settings().popupSelections[4], 4);
    EXPECT_EQ(session.popup(4)->currentIndex(), 1) << "its hidden entry stays";

    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(session.settings().popupSelections[4], 2) << "a save reads the pop-up";
    EXPECT_EQ(session.host->marked("vornColorModel"), "RGBphoto");

    session.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(session.settings().popupSelections[4], 3) << "beyond the list, then its last pair";
    EXPECT_EQ(session.popup(4)->currentIndex(), 1);
    EXPECT_TRUE(isShown(session.popup(7))) << "which is CMYK";
}

TEST(PanelWithoutAPrintersFile, StandsEmpty)
{
    const Interpreter interpreter(true, false);
    CapturedLog log;
    PanelSession session("");
    session.open();
    EXPECT_EQ(session.settings().popupSelections[1], 1);
    EXPECT_EQ(session.settings().checkBoxStates, (std::array<std::uint8_t, 4>{0, 1, 0, 0}));
    EXPECT_TRUE(session.checkBox(4706)->isChecked());
    EXPECT_EQ(session.settings().sliderValues[2], -10);
    EXPECT_EQ(session.settings().sliderValues[0], 0);
    EXPECT_TRUE(log.contains("LOG got MediaMode: 0 - (null)\n"));
    EXPECT_FALSE(isShown(session.popup(0))) << "no cartridge to choose";
    log.clear();
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(log.count("LOG Value not present!\n"), 8);
    EXPECT_EQ(session.host->changes.size(), 3U + 20U);
}

/// What the host reports that it changed elsewhere.
class HostChange : public HostRestore {
protected:
    void report(const char *option, const char *choice)
    {
        session.host->changes.clear();
        log.clear();
        session.panel->PPDOptionKeyValueDidChange(QString::fromLatin1(option), QString::fromLatin1(choice));
    }
};

TEST_F(HostChange, OfTheMediaTypeMovesThePopUpAlone)
{
    report("vornMediaType", "M2");
    EXPECT_EQ(selections()[1], 3);
    EXPECT_EQ(session.popup(1)->currentIndex(), 2);
    EXPECT_TRUE(isOn(session.slider(0)));
    EXPECT_EQ(tabIdentifiers(session), std::vector<std::string>(6, "On"));
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(log.lines(), logged({"PPDOptionKeyValueDidChange:(vornMediaType) ppdChoice:(M2)",
                                   "SetComboControlValue to #3 of 11\n",
                                   "### System changed PPDitem 'vornMediaType' to selection 'M2'\n ###"}));
    choose(session.popup(2), 2);
    EXPECT_FALSE(isOn(session.slider(0))) << "the next event catches up";
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(HostChange, OfTheColorModeLeavesSpacesAndPreview)
{
    report("vornColorModel", "CMYK");
    EXPECT_EQ(selections()[4], 5);
    EXPECT_EQ(session.popup(4)->currentIndex(), 4);
    EXPECT_FALSE(isShown(session.popup(7)));
    EXPECT_TRUE(session.host->changes.empty());
}

TEST_F(HostChange, OfASliderACheckBoxOrThePreviewIsOnlyLogged)
{
    const PanelSettings before = session.settings();
    for (const char *option : {"vornBrightness", "vornNoPrint", "ColorModel", "*vornMediaType", "PageSize"}) {
        report(option, "1");
        EXPECT_EQ(log.lines(), logged({"PPDOptionKeyValueDidChange:(" + std::string(option) + ") ppdChoice:(1)"}));
        EXPECT_EQ(session.settings().popupSelections, before.popupSelections);
        EXPECT_EQ(session.settings().sliderValues, before.sliderValues);
        EXPECT_EQ(session.settings().checkBoxStates, before.checkBoxStates);
        EXPECT_EQ(session.slider(0)->value(), 0);
    }
}

TEST_F(HostChange, OfAColorSpaceToTheSeparatorIsStoredButNotShown)
{
    report("vornColorspace", "---separator---");
    EXPECT_EQ(selections()[6], 2);
    EXPECT_EQ(session.popup(6)->currentIndex(), 0) << "no item has that number for its tag";
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(selections()[6], 1);
}

TEST(HostChangeToAForbiddenEntry, SelectsItUntilTheNextCheck)
{
    PanelSession session(ppdFixture("separator-after-disabled"));
    session.open();
    session.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QStringLiteral("Gloss7"));
    EXPECT_EQ(session.settings().popupSelections[1], 3);
    EXPECT_EQ(session.popup(1)->currentIndex(), 2) << "disabled, and selected";
    choose(session.popup(2), 2);
    EXPECT_EQ(session.settings().popupSelections[1], 4);
}

TEST(HostChangeBeforeTheView, IsShownWithIt)
{
    PanelSession session(ppdFixture("minimal"));
    session.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornDithering"), QStringLiteral("Ordered"));
    EXPECT_EQ(session.settings().popupSelections[5], 2);
    session.open();
    EXPECT_EQ(session.popup(5)->currentIndex(), 1);
}

TEST(PreviewHint, IsSentByAPersonsChoiceOfTheColorModeAlone)
{
    AlertRecorder alerts;
    PanelSession session(ppdFixture("media-modes"));
    session.open();
    session.panel->willShow();
    session.panel->restoreValuesAndReturnError(nullptr);
    session.panel->saveValuesAndReturnError(nullptr);
    choose(session.popup(1), 3); // may move the colour mode
    session.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornColorModel"), QStringLiteral("Gray"));
    const auto hints = [&session] {
        return std::count_if(session.host->changes.begin(), session.host->changes.end(),
                             [](const Change &change) { return change.first == "ColorModel"; });
    };
    EXPECT_EQ(hints(), 0);
    choose(session.popup(4), 3);
    EXPECT_EQ(hints(), 1);
}

} // namespace
} // namespace tessarin::test
