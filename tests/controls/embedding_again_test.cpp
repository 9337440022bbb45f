// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What happens when the host asks for the view a second time: the pages are embedded again, over what a person has
// changed meanwhile.

#include "controls/availability.h"
#include "platform/view_tags.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class EmbeddingAgain : public testing::Test {
protected:
    EmbeddingAgain() : session(ppdFixture("media-modes")) { session.open(); }

    void again()
    {
        log.clear();
        session.open();
    }

    Interpreter interpreter{true, false};
    AlertRecorder alerts;
    CapturedLog log;
    PanelSession session;
};

TEST_F(EmbeddingAgain, LeavesTheSlidersAsTheyAre)
{
    std::vector<QSlider *> sliders;
    std::vector<QString> texts;
    for (int number = 0; number < 20; ++number) {
        slide(session.slider(number), session.slider(number)->minimum() + 1);
        session.slider(number)->setEnabled(number % 2 == 0);
        sliders.push_back(session.slider(number));
        texts.push_back(session.sliderText(number)->text());
    }
    again();
    for (int number = 0; number < 20; ++number) {
        const auto place = static_cast<std::size_t>(number);
        ASSERT_EQ(session.slider(number), sliders[place]) << number;
        EXPECT_EQ(sliders[place]->value(), sliders[place]->minimum() + 1);
        EXPECT_EQ(session.sliderText(number)->text(), texts[place]);
        EXPECT_EQ(tagOf(session.sliderText(number)), number);
    }
    EXPECT_TRUE(isOn(session.slider(4))) << "untouched by the media mode";
    EXPECT_FALSE(isOn(session.slider(11)));
    EXPECT_EQ(log.countStarting("LOG SCROLL-TEXT-Ref"), 0);
    EXPECT_EQ(session.context()->controls.controlsInt, 20);

    session.host->changes.clear();
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_NE(
        std::find(session.host->changes.begin(), session.host->changes.end(), Change("vornBrightness", "-45")),
        session.host->changes.end())
        << "the job still gets what a person set";
}

TEST_F(EmbeddingAgain, KeepsThePanes)
{
    const QWidget *cyan = session.context()->controls.cyanPane;
    const QWidget *magenta = session.context()->controls.magentaPane;
    again();
    EXPECT_EQ(session.context()->controls.cyanPane, cyan);
    EXPECT_EQ(session.context()->controls.magentaPane, magenta);
}

TEST_F(EmbeddingAgain, LosesChoicesThatNothingHadStored)
{
    choose(session.popup(5), 2); // Dithering
    choose(session.popup(6), 3); // Color Space
    choose(session.popup(7), 3); // CMYK-Colorspace
    again();
    EXPECT_EQ(session.popup(5)->currentIndex(), 0);
    EXPECT_EQ(session.popup(6)->currentIndex(), 0);
    EXPECT_EQ(session.popup(7)->currentIndex(), 0);
}

TEST_F(EmbeddingAgain, KeepsChoicesThatTheEventStored)
{
    choose(session.popup(0), 2);
    choose(session.popup(1), 9);
    choose(session.popup(2), 2);
    again();
    EXPECT_EQ(session.popup(0)->currentIndex(), 1);
    EXPECT_EQ(session.popup(1)->currentIndex(), 8);
    EXPECT_EQ(session.popup(2)->currentIndex(), 1);
}

TEST_F(EmbeddingAgain, KeepsIntentAndColorModeSinceTheCheckTakesThemFromThePopUps)
{
    choose(session.popup(3), 4);
    session.popup(4)->setCurrentIndex(4); // a choice whose event never came
    again();
    EXPECT_EQ(session.settings().popupSelections[3], 4);
    EXPECT_EQ(session.settings().popupSelections[4], 5);
    EXPECT_EQ(session.popup(3)->currentIndex(), 3);
    EXPECT_EQ(session.popup(4)->currentIndex(), 4);
    EXPECT_TRUE(isShown(session.popup(7))) << "the colour space that goes with CMYK";
}

TEST_F(EmbeddingAgain, ShowsHiddenEntriesAgain)
{
    choose(session.popup(3), 4); // needs mode 6
    choose(session.popup(1), 4); // mode 3
    EXPECT_EQ(hiddenOf(*session.popup(3)), (std::vector<bool>{false, false, true, true, false}));
    EXPECT_EQ(session.settings().popupSelections[3], 2);
    again();
    EXPECT_EQ(hiddenOf(*session.popup(3)), std::vector<bool>(5, false)) << "the items are new";
    EXPECT_EQ(session.popup(3)->currentIndex(), 1) << "the selection has moved";
}

TEST_F(EmbeddingAgain, PutsTheCheckBoxesBack)
{
    for (const int id : {4705, 4707}) {
        session.checkBox(id)->click();
        EXPECT_TRUE(session.checkBox(id)->isChecked());
    }
    session.checkBox(4706)->click();
    EXPECT_FALSE(session.checkBox(4706)->isChecked());
    EXPECT_TRUE(isOn(session.slider(16)));
    again();
    EXPECT_FALSE(session.checkBox(4705)->isChecked());
    EXPECT_FALSE(session.checkBox(4707)->isChecked());
    EXPECT_TRUE(session.checkBox(4706)->isChecked());
    EXPECT_FALSE(isOn(session.slider(16))) << "with the state of the settings";
}

TEST_F(EmbeddingAgain, LetsThePaneDriftInThePhotoMode)
{
    QWidget *cyan = session.context()->controls.cyanPane;
    QWidget *magenta = session.context()->controls.magentaPane;
    const int top = cyan->y();
    cyan->move(20, top);
    magenta->move(220, top);
    again();
    choose(session.popup(1), 6); // mode 5
    EXPECT_EQ(cyan->x(), 120);
    for (const int drifted : {170, 195, 207}) {
        again();
        EXPECT_EQ(cyan->x(), drifted);
        EXPECT_EQ(cyan->y(), top);
    }
    choose(session.popup(1), 7); // mode 6
    EXPECT_EQ(cyan->x(), 195) << "where it was measured last, not where it began";
}

TEST_F(EmbeddingAgain, LeavesTheLastTabAllowedInModeTwo)
{
    choose(session.popup(1), 3);
    EXPECT_EQ(tabIdentifiers(session), (std::vector<std::string>{"On", "On", "Off", "Off", "Off", "Off"}));
    again();
    EXPECT_EQ(tabIdentifiers(session), (std::vector<std::string>{"On", "On", "Off", "Off", "Off", "On"}));
    choose(session.popup(1), 3);
    EXPECT_EQ(tabIdentifiers(session), (std::vector<std::string>{"On", "On", "Off", "Off", "Off", "Off"}));
    EXPECT_EQ(alerts.shown.size(), 2U) << "one for each choice, none for the view";
}

TEST_F(EmbeddingAgain, TellsTheHostNothing)
{
    session.host->changes.clear();
    again();
    EXPECT_TRUE(session.host->changes.empty());
    EXPECT_EQ(log.countStarting("LOG Handle event"), 0);
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 0);
}

} // namespace
} // namespace tessarin::test
