// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A new choice of cartridge, media type or resolution: the host's answer, and what follows from it.

#include "controls/control_layer.h"
#include "controls/event_dispatch.h"
#include "controls/popup_filling.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class PopUpChange : public testing::Test {
protected:
    PopUpChange() : session(ppdFixture("media-modes"))
    {
        session.open();
        session.host->changes.clear();
        log.clear();
    }

    std::array<std::int32_t, 12> &selections() { return session.settings().popupSelections; }

    CapturedLog log;
    AlertRecorder alerts;
    PanelSession session;
};

TEST_F(PopUpChange, IsSentAndStored)
{
    struct Case {
        int row, item;
        Change sent;
    };
    for (const Case &c : std::vector<Case>{{0, 2, {"vornCartridgeType", "MatteBlack"}},
                                           {1, 5, {"vornMediaType", "M4"}},
                                           {2, 2, {"vornResolution", "1200dpi"}}}) {
        session.host->changes.clear();
        choose(session.popup(c.row), c.item);
        EXPECT_EQ(session.host->changes, Changes{c.sent});
        EXPECT_EQ(selections()[static_cast<std::size_t>(c.row)], c.item);
        EXPECT_EQ(session.panel->lastEventResult(), 0);
        EXPECT_EQ(session.host->marked(c.sent.first), c.sent.second);
    }
}

TEST_F(PopUpChange, PutsThePopUpBackWhenItIsRefusedAndChangesNothingElse)
{
    struct Case {
        int row, item, before;
        const char *key;
    };
    for (const Case &c : std::vector<Case>{
             {0, 2, 1, "vornCartridgeType"}, {1, 3, 7, "vornMediaType"}, {2, 2, 1, "vornResolution"}}) {
        session.host->refusedKeys = {c.key};
        const PanelSettings before = session.settings();
        const std::vector<std::string> tabs = tabIdentifiers(session);
        session.popup(3)->setCurrentIndex(3); // unstored, and would be hidden by mode 2
        log.clear();
        choose(session.popup(c.row), c.item);
        EXPECT_EQ(session.panel->lastEventResult(), -111);
        EXPECT_EQ(session.popup(c.row)->currentIndex() + 1, c.before);
        EXPECT_EQ(session.settings().popupSelections, before.popupSelections);
        EXPECT_EQ(tabIdentifiers(session), tabs);
        EXPECT_TRUE(isOn(session.slider(0)));
        EXPECT_EQ(session.popup(3)->currentIndex(), 3);
        EXPECT_EQ(log.countStarting("LOG -- check contraints"), 0);
        EXPECT_TRUE(alerts.shown.empty());
    }
}

TEST_F(PopUpChange, ToAnIncompleteProfileDisablesAndWarnsOnce)
{
    choose(session.popup(1), 3);
    EXPECT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(tabIdentifiers(session), (std::vector<std::string>{"On", "On", "Off", "Off", "Off", "Off"}));
    for (const int row : {2, 3, 5, 0, 7, 6}) {
        EXPECT_FALSE(isOn(session.popup(row))) << row;
    }
    for (const int number : {0, 1, 3, 2, 5, 6}) {
        EXPECT_FALSE(isOn(session.slider(number))) << number;
    }
    EXPECT_EQ(hiddenOf(*session.popup(4)), (std::vector<bool>{true, true, false, true, true, false}));
    EXPECT_TRUE(isOn(session.popup(4))) << "RGB and CMYKproof remain to choose from";
}

TEST_F(PopUpChange, ThatLeavesAnIncompleteProfileDoesNotWarn)
{
    choose(session.popup(1), 3);
    alerts.shown.clear();
    session.popup(0)->setEnabled(true); // by another way than a person's
    choose(session.popup(0), 2);
    EXPECT_FALSE(isOn(session.popup(0))) << "the same controls are disabled again";
    choose(session.popup(2), 2);
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(tabIdentifiers(session)[5], "Off");
}

TEST_F(PopUpChange, ToTheSameIncompleteProfileSendsAndWarnsAgain)
{
    choose(session.popup(1), 3);
    choose(session.popup(1), 3);
    EXPECT_EQ(alerts.shown.size(), 2U);
    EXPECT_EQ(session.host->changes, (Changes{{"vornMediaType", "M2"}, {"vornMediaType", "M2"}}));
}

TEST_F(PopUpChange, ShowsItsWarningWhenAllIsDone)
{
    std::int32_t stored = 0;
    std::vector<std::string> tabs;
    alerts.onShow = [&] {
        stored = selections()[1];
        tabs = tabIdentifiers(session);
        session.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QStringLiteral("M6"));
    };
    choose(session.popup(1), 3);
    EXPECT_EQ(stored, 3);
    EXPECT_EQ(tabs[2], "Off");
    EXPECT_EQ(selections()[1], 7) << "what the host said during the warning stands";
    EXPECT_EQ(session.popup(1)->currentIndex(), 6);
}

TEST_F(PopUpChange, CannotBeStoppedByAWarningThatIsNotShown)
{
    alerts.answer = std::nullopt;
    choose(session.popup(1), 3);
    EXPECT_EQ(session.panel->lastEventResult(), 0);
    EXPECT_EQ(selections()[1], 3);
}

TEST_F(PopUpChange, MovesTheColorModeWithoutItsColorSpaceOrPreview)
{
    choose(session.popup(4), 5); // CMYK
    EXPECT_TRUE(isShown(session.popup(7)));
    session.host->changes.clear();
    choose(session.popup(1), 3); // mode 2 leaves RGB and CMYKproof
    EXPECT_EQ(selections()[4], 3) << "RGB is the nearest before it";
    EXPECT_TRUE(isShown(session.popup(7))) << "still the CMYK spaces";
    EXPECT_FALSE(isOn(session.popup(7)));
    EXPECT_EQ(session.host->changes, (Changes{{"vornMediaType", "M2"}}));
    choose(session.popup(4), 3);
    EXPECT_TRUE(isShown(session.popup(6)));
    EXPECT_FALSE(isShown(session.popup(7)));
}

TEST_F(PopUpChange, OutOfAnIncompleteProfileUnhidesButDoesNotBringTheOldChoicesBack)
{
    choose(session.popup(3), 4);
    choose(session.popup(4), 5);
    choose(session.popup(1), 3);
    EXPECT_EQ(selections()[3], 2);
    EXPECT_EQ(selections()[4], 3);
    choose(session.popup(1), 7);
    EXPECT_EQ(hiddenOf(*session.popup(4)), std::vector<bool>(6, false));
    EXPECT_EQ(selections()[3], 2);
    EXPECT_EQ(selections()[4], 3);
    EXPECT_TRUE(isOn(session.popup(5)));
    EXPECT_EQ(tabIdentifiers(session), std::vector<std::string>(6, "On"));
}

TEST_F(PopUpChange, KeepsTheItemsOfIntentAndColorModeButMakesTheOthersNew)
{
    session.popup(1)->setItemText(0, QStringLiteral("marked"));
    session.popup(2)->setItemText(0, QStringLiteral("marked"));
    session.popup(3)->setItemText(0, QStringLiteral("marked"));
    session.popup(4)->setItemText(0, QStringLiteral("marked"));
    choose(session.popup(1), 4);
    EXPECT_NE(session.popup(1)->itemText(0), QStringLiteral("marked"));
    EXPECT_NE(session.popup(2)->itemText(0), QStringLiteral("marked"));
    EXPECT_EQ(session.popup(3)->itemText(0), QStringLiteral("marked"));
    EXPECT_EQ(session.popup(4)->itemText(0), QStringLiteral("marked"));
}

TEST_F(PopUpChange, LeavesTheColorCorrectionAlone)
{
    session.checkBox(4707)->click();
    choose(session.popup(1), 3);
    choose(session.popup(1), 6);
    for (const int number : {16, 17, 18, 19}) {
        EXPECT_TRUE(isOn(session.slider(number))) << number;
    }
    EXPECT_TRUE(session.checkBox(4707)->isChecked());
}

TEST_F(PopUpChange, SurvivesAHostThatEchoesIt)
{
    int echoes = 0;
    session.host->onChange = [&](const Change &change) {
        ++echoes;
        session.panel->PPDOptionKeyValueDidChange(QString::fromStdString(change.first),
                                                  QString::fromStdString(change.second));
    };
    choose(session.popup(1), 5);
    EXPECT_EQ(echoes, 1);
    EXPECT_EQ(selections()[1], 5);
    EXPECT_EQ(session.popup(1)->currentIndex(), 4);
    EXPECT_EQ(log.countStarting("LOG Handle event"), 1) << "the echo raises no event";
}

TEST_F(PopUpChange, TakesInWhatTheHostChangedMeanwhile)
{
    session.host->onChange = [&](const Change &change) {
        if (change.first == "vornMediaType") {
            session.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornCartridgeType"),
                                                      QStringLiteral("MatteBlack"));
        }
    };
    choose(session.popup(1), 5);
    EXPECT_EQ(selections()[0], 2) << "read from the pop-up after the answer";
    EXPECT_EQ(selections()[1], 5);
}

TEST_F(PopUpChange, CatchesUpWithOtherPopUpsThatMovedSilently)
{
    session.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornMediaType"), QStringLiteral("M2"));
    EXPECT_TRUE(isOn(session.slider(0)));
    choose(session.popup(2), 2);
    EXPECT_FALSE(isOn(session.slider(0)));
    EXPECT_TRUE(alerts.shown.empty()) << "it was a change of the resolution";
}

TEST(PopUpChangeWithoutAPreviousSelection, DeselectsWhenItIsRefused)
{
    PanelSession session(ppdFixture("minimal"));
    session.open();
    session.host->refusedKeys = {"vornMediaType"};
    session.settings().popupSelections[1] = 0;
    choose(session.popup(1), 1);
    EXPECT_EQ(session.popup(1)->currentIndex(), -1);
    EXPECT_EQ(session.settings().popupSelections[1], 0);
}

TEST(PopUpChangeWithoutAPreviousSelection, LeavesTheRefusedEntryWhenTheFormerOneIsBeyondTheItems)
{
    PanelSession session(ppdFixture("minimal"));
    session.open();
    session.host->refusedKeys = {"vornMediaType"};
    for (const int beyond : {5, 123}) {
        session.settings().popupSelections[1] = beyond;
        choose(session.popup(1), 1);
        EXPECT_EQ(session.popup(1)->currentIndex(), 0);
        EXPECT_EQ(session.settings().popupSelections[1], beyond);
    }
    session.host->changes.clear();
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_NE(
        std::find(session.host->changes.begin(), session.host->changes.end(), Change("vornMediaType", "Plain0")),
        session.host->changes.end())
        << "a save sends what the pop-up shows";
}

TEST(PopUpChangeWithAMissingPopUp, LosesItsSelection)
{
    for (const int missing : {0, 1, 2}) {
        PanelSession session(ppdFixture("minimal"));
        session.open();
        session.context()->controls.popupControls[static_cast<std::size_t>(missing)] = nullptr;
        const int other = missing == 2 ? 0 : 2;
        choose(session.popup(other), 2);
        EXPECT_EQ(session.panel->lastEventResult(), 0);
        EXPECT_EQ(session.settings().popupSelections[static_cast<std::size_t>(missing)], missing == 1 ? 1 : 0)
            << missing << ": for the media type 0 becomes 1";
    }
}

TEST(PopUpChangeOnAnOldHost, IsAcceptedWithoutAsking)
{
    PanelSession session(ppdFixture("minimal"));
    session.open();
    session.context()->onTiger = 1;
    session.host->changes.clear();
    choose(session.popup(1), 1);
    EXPECT_EQ(session.panel->lastEventResult(), 0);
    EXPECT_EQ(session.settings().popupSelections[1], 1);
    EXPECT_TRUE(session.host->changes.empty());
    session.context()->onTiger = 0;
}

} // namespace
} // namespace tessarin::test
