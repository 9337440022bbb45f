// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Controls, panes and tabs by the media mode, in the real panel.

#include "controls/availability.h"

#include "controls/control_layer.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

#include <set>

namespace tessarin::test {
namespace {

struct Mode {
    int mode;
    std::set<int> slidersOff; ///< of 0..3 and 5..9
    bool oneForAll;           ///< the magenta pane and the bright cyan icon hidden, the photo icon shown
    const char *label;        ///< beside the bright inks
    bool rest;                ///< the six pop-ups on, the tabs 3 to 6 allowed
};

const std::vector<Mode> kModes{
    {0, {7, 8, 9}, false, "Bright Cyan\nUsage:", true},
    {1, {7, 8, 9}, false, "Bright Cyan\nUsage:", true},
    {2, {0, 1, 2, 3, 5, 6, 7, 8, 9}, false, "Bright Cyan\nUsage:", false},
    {3, {7, 8, 9}, false, "Bright Cyan\nUsage:", true},
    {4, {8, 9}, false, "Bright Cyan\nUsage:", true},
    {5, {9}, true, "Bright Inks\nUsage:", true},
    {6, {}, false, "Bright Cyan\nUsage:", true},
    {7, {}, false, "Bright Cyan\nUsage:", true},
    {8, {}, false, "Bright Cyan\nUsage:", true},
    {9, {}, false, "Bright Cyan\nUsage:", true},
    {0, {7, 8, 9}, false, "Bright Cyan\nUsage:", true}, // the media type without a digit, entry 11
};

/// The panel with eleven media types: of the modes 0 to 9 in this order, and one without a digit.
class ControlAvailability : public testing::Test {
protected:
    ControlAvailability() : session(ppdFixture("media-modes"))
    {
        session.open();
        log.clear();
    }

    void check(int media, int eventId = 0)
    {
        session.settings().popupSelections[1] = media;
        checkControlAvailability(session.context(), eventId);
    }

    const ControlsStruct &controls() const { return session.context()->controls; }
    QString label() const { return qobject_cast<QLabel *>(controls().brightUsageLabel)->text(); }

    Interpreter interpreter{false, false};
    CapturedLog log;
    AlertRecorder alerts;
    PanelSession session;
};

TEST_F(ControlAvailability, FollowsTheMediaMode)
{
    const int left = session.context()->availabilityInt1;
    const int half = session.context()->availabilityInt2;
    const int top = controls().cyanPane->y();
    ASSERT_GT(half, 0);
    for (std::size_t i = 0; i < kModes.size(); ++i) {
        const Mode &mode = kModes[i];
        SCOPED_TRACE("media type " + std::to_string(i + 1) + ", mode " + std::to_string(mode.mode));
        check(static_cast<int>(i) + 1);
        for (const int slider : {0, 1, 2, 3, 5, 6, 7, 8, 9}) {
            EXPECT_EQ(isOn(session.slider(slider)), !mode.slidersOff.contains(slider)) << slider;
        }
        EXPECT_EQ(isShown(controls().magentaPane), !mode.oneForAll);
        EXPECT_EQ(isShown(controls().brightCyanIcon), !mode.oneForAll);
        EXPECT_EQ(isShown(controls().photoControl), mode.oneForAll);
        EXPECT_TRUE(isShown(controls().cyanPane));
        EXPECT_EQ(controls().cyanPane->x(), left + (mode.oneForAll ? half : 0));
        EXPECT_EQ(controls().cyanPane->y(), top);
        EXPECT_EQ(label(), QLatin1String(mode.label));
        for (const int row : {0, 2, 3, 5, 6, 7}) {
            EXPECT_EQ(isOn(session.popup(row)), mode.rest) << row;
        }
        const std::string rest = mode.rest ? "On" : "Off";
        EXPECT_EQ(tabIdentifiers(session), (std::vector<std::string>{"On", "On", rest, rest, rest, rest}));
    }
}

TEST_F(ControlAvailability, ReachesTheSameStateFromEveryOther)
{
    for (std::size_t from = 0; from < kModes.size(); ++from) {
        for (std::size_t to = 0; to < kModes.size(); ++to) {
            check(static_cast<int>(from) + 1);
            check(static_cast<int>(to) + 1);
            std::set<int> off;
            for (const int slider : {0, 1, 2, 3, 5, 6, 7, 8, 9}) {
                if (!isOn(session.slider(slider))) {
                    off.insert(slider);
                }
            }
            EXPECT_EQ(off, kModes[to].slidersOff) << from << " to " << to;
            EXPECT_EQ(isShown(controls().photoControl), kModes[to].oneForAll);
            EXPECT_EQ(isOn(session.popup(7)), kModes[to].rest);
        }
    }
}

TEST_F(ControlAvailability, NeverTouchesTheOtherControls)
{
    for (const bool before : {false, true}) {
        for (const int slider : {4, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}) {
            session.slider(slider)->setEnabled(before);
        }
        session.popup(1)->setEnabled(before);
        session.popup(4)->setEnabled(before);
        for (int media = 1; media <= 11; ++media) {
            check(media);
            for (const int slider : {4, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}) {
                EXPECT_EQ(isOn(session.slider(slider)), before) << slider << ", media type " << media;
            }
            EXPECT_EQ(isOn(session.popup(1)), before);
            EXPECT_EQ(isOn(session.popup(4)), before);
        }
    }
}

TEST_F(ControlAvailability, CentresTheSinglePaneBetweenTheTwoPlaces)
{
    const int cyan = controls().cyanPane->x();
    const int magenta = controls().magentaPane->x();
    ASSERT_GT(magenta, cyan);
    ASSERT_EQ(controls().cyanPane->parentWidget(), controls().magentaPane->parentWidget());
    check(6); // mode 5
    EXPECT_EQ(controls().cyanPane->x(), cyan + (magenta - cyan) / 2);
    EXPECT_EQ(controls().magentaPane->x(), magenta) << "hidden where it was";
    check(7);
    EXPECT_EQ(controls().cyanPane->x(), cyan);
}

TEST_F(ControlAvailability, KeepsSizeAndTopOfTheMovedPane)
{
    const QRect before = controls().cyanPane->geometry();
    check(6);
    EXPECT_EQ(controls().cyanPane->size(), before.size());
    EXPECT_EQ(controls().cyanPane->y(), before.y());
}

TEST_F(ControlAvailability, WarnsOnlyOfAMediaEventWithAnIncompleteProfile)
{
    for (int media = 1; media <= 11; ++media) {
        for (const int event : {0, 4502, 4507, 4505, 4501}) {
            alerts.shown.clear();
            check(media, event);
            EXPECT_EQ(alerts.shown.size(), media == 3 && event == 4501 ? 1U : 0U) << media << " " << event;
        }
    }
}

TEST_F(ControlAvailability, WarnsLastOfAll)
{
    bool done = false;
    alerts.onShow = [this, &done] {
        done = !isOn(session.slider(0)) && !isOn(session.popup(6)) && tabIdentifiers(session)[5] == "Off";
    };
    check(3, 4501);
    EXPECT_TRUE(done);
}

TEST_F(ControlAvailability, LogsNothingAndTellsTheHostNothing)
{
    session.host->changes.clear();
    for (int media = 1; media <= 11; ++media) {
        check(media, 4501);
    }
    EXPECT_TRUE(log.lines().empty());
    EXPECT_TRUE(session.host->changes.empty());
}

TEST_F(ControlAvailability, ChangesNoSettings)
{
    check(1);
    const PanelSettings before = session.settings();
    checkControlAvailability(session.context(), 4501);
    EXPECT_EQ(session.settings().popupSelections, before.popupSelections);
    EXPECT_EQ(session.settings().sliderValues, before.sliderValues);
    EXPECT_EQ(session.settings().checkBoxStates, before.checkBoxStates);
}

TEST_F(ControlAvailability, TakesASelectionThatNamesNoPairForModeZero)
{
    for (const int selection : {0, 12, 123, -4}) {
        check(7);
        check(selection);
        EXPECT_FALSE(isOn(session.slider(7))) << selection;
        EXPECT_TRUE(isOn(session.slider(2)));
        EXPECT_EQ(session.settings().popupSelections[1], selection) << "here 0 stays 0";
    }
}

TEST_F(ControlAvailability, KeepsATabInFrontThatIsNoMoreAllowed)
{
    auto *tabs = qobject_cast<QTabWidget *>(controls().tabView.data());
    tabs->setCurrentIndex(3);
    check(3);
    EXPECT_EQ(tabs->currentIndex(), 3);
    EXPECT_TRUE(tabs->widget(3)->isEnabled());
    tabs->setCurrentIndex(1);
    tabs->setCurrentIndex(3);
    EXPECT_EQ(tabs->currentIndex(), 1) << "selecting it again is refused";
}

TEST(ControlAvailabilityWithoutControls, DoesNothing)
{
    AlertRecorder alerts;
    Record record;
    record.setChoices(1, {{"M2", "Two"}, {"M5", "Five"}});
    for (const int media : {0, 1, 2}) {
        record->settings.popupSelections[1] = media;
        checkControlAvailability(record, 4501);
    }
    EXPECT_EQ(alerts.shown.size(), 1U) << "the warning needs none";
}

TEST(ControlAvailabilityLists, NameThePopUpsAndSlidersOfAnIncompleteProfile)
{
    EXPECT_EQ(disablepopups, (std::array<int, 7>{2, 3, 5, 0, 7, 6, -1}));
    EXPECT_EQ(disablesliders, (std::array<int, 7>{0, 1, 3, 2, 5, 6, -1}));
}

TEST(ControlAvailabilityInGerman, TranslatesTheLabelOfTheBrightInks)
{
    PanelSession session(ppdFixture("media-modes"), "sample", buildBundle(QStringLiteral("de")));
    session.open();
    auto *label = qobject_cast<QLabel *>(session.context()->controls.brightUsageLabel);
    session.settings().popupSelections[1] = 6;
    checkControlAvailability(session.context(), 0);
    const QString inks = label->text();
    session.settings().popupSelections[1] = 7;
    checkControlAvailability(session.context(), 0);
    EXPECT_NE(inks, QStringLiteral("Bright Inks\nUsage:"));
    EXPECT_NE(label->text(), QStringLiteral("Bright Cyan\nUsage:"));
    EXPECT_NE(label->text(), inks);
}

} // namespace
} // namespace tessarin::test
