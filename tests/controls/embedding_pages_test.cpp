// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the embedding of single pages does beside finding the controls: the cartridge rule, the interpreter's check
// box, the other check boxes, the ink rows and the panes of the bright inks.

#include "controls/control_layer.h"
#include "controls/embedding.h"
#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "tests/controls/controls_test_support.h"

#include <QDir>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class CartridgeRule : public testing::Test {
protected:
    CartridgeRule() : before(rawInterface()) {}

    QRect frameBefore(int id) { return viewWithTag(before.get(), id)->geometry(); }
    static bool captionIsShown(const PanelSession &session)
    {
        return isShown(viewWithTag(session.context()->controls.tabView, 3556));
    }

    std::unique_ptr<QWidget> before;
    CapturedLog log;
};

TEST_F(CartridgeRule, HidesASingleCartridgeAndWidensTheDithering)
{
    for (const char *ppd : {"one-cartridge", "no-cartridge"}) {
        SCOPED_TRACE(ppd);
        log.clear();
        PanelSession session(ppdFixture(ppd));
        session.open();
        EXPECT_FALSE(isShown(session.popup(0)));
        EXPECT_FALSE(captionIsShown(session));
        const QRect dithering = frameBefore(4506);
        const QRect media = frameBefore(4501);
        EXPECT_EQ(session.popup(1)->geometry(), media);
        EXPECT_EQ(
            session.popup(5)->geometry(),
            QRect(dithering.x(), dithering.y(), media.x() + media.width() - dithering.x(), dithering.height()));
        EXPECT_GT(session.popup(5)->width(), dithering.width());
        EXPECT_EQ(session.popup(0)->count(), std::string(ppd) == "one-cartridge" ? 1 : 0) << "it is filled";
    }
}

TEST_F(CartridgeRule, LogsTheBoundsItWorksWith)
{
    PanelSession session(ppdFixture("one-cartridge"));
    session.open();
    const auto bounds = [this](int id) {
        const QRect frame = frameBefore(id);
        return std::to_string(frame.x()) + "," + std::to_string(frame.y()) + "-" +
               std::to_string(frame.x() + frame.width() - 1) + "," +
               std::to_string(frame.y() - frame.height() + 1) + "\n";
    };
    const Lines lines = section(log, "LOG HIDE CARTRIDGE POPUP\n", "LOG -- check contraints --\n");
    EXPECT_EQ(lines, logged({"HIDE CARTRIDGE POPUP\n", "\nCONTROL BOUNDS Mediatype: " + bounds(4501),
                             "\nCONTROL BOUNDS Dithering: " + bounds(4506)}));
    EXPECT_EQ(log.count("LOG -- check contraints --\n"), 2) << "the checks run all the same";
    EXPECT_EQ(log.countStarting("LOG checkAvailabilityforMenus"), 2);
}

TEST_F(CartridgeRule, LeavesTwoCartridgesAlone)
{
    PanelSession session(ppdFixture("minimal"));
    session.open();
    EXPECT_TRUE(isShown(session.popup(0)));
    EXPECT_TRUE(captionIsShown(session));
    EXPECT_EQ(session.popup(5)->geometry(), frameBefore(4506));
    EXPECT_FALSE(log.contains("LOG HIDE CARTRIDGE POPUP\n"));
    EXPECT_EQ(log.count("LOG -- check contraints --\n"), 2);
}

TEST_F(CartridgeRule, IsNeverUndone)
{
    PanelSession session(ppdFixture("one-cartridge"));
    session.open();
    const QRect dithering = session.popup(5)->geometry();
    session.open();
    session.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_FALSE(isShown(session.popup(0)));
    EXPECT_FALSE(captionIsShown(session));
    EXPECT_EQ(session.popup(5)->geometry(), dithering);
}

TEST_F(CartridgeRule, NeedsNoCaption)
{
    const PanelSession session(ppdFixture("one-cartridge"));
    QWidget page;
    auto *cartridge = new PopUpButton(&page);
    setTagOf(cartridge, 4507);
    MyEmbedCustomControls(1, session.context(), 0, &page);
    EXPECT_FALSE(isShown(cartridge));
    EXPECT_TRUE(log.contains("LOG \nCONTROL BOUNDS Mediatype: 0,0-0,0\n"));
    EXPECT_TRUE(log.contains("LOG \nCONTROL BOUNDS Dithering: 0,0-0,0\n"));
}

struct ProbeCase {
    bool first, second;
    int flag;
};

class InterpreterProbe : public testing::TestWithParam<ProbeCase> {};

TEST_P(InterpreterProbe, DecidesOverTheCheckBox)
{
    const ProbeCase &c = GetParam();
    const Interpreter interpreter(c.first, c.second);
    for (const bool wanted : {true, false}) {
        CapturedLog log;
        PanelSession session(ppdFixture("minimal"));
        session.host->mark("vornPSInterpreter", wanted ? "0" : "1");
        session.panel->restoreValuesAndReturnError(nullptr);
        session.open();
        const auto *box = session.checkBox(4706);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(session.settings().checkBoxStates[1], wanted ? 1 : 0) << "0 in the PPD is on";
        EXPECT_EQ(session.context()->optionFlagD, c.flag);
        EXPECT_EQ(isOn(box), c.flag == 1);
        EXPECT_EQ(box->isChecked(), wanted && c.flag == 1);
        EXPECT_EQ(log.count("LOG no Ghostscript available\n"), c.flag == 1 ? 0 : 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Places, InterpreterProbe,
                         testing::Values(ProbeCase{false, false, 0}, ProbeCase{true, false, 1},
                                         ProbeCase{false, true, 1}, ProbeCase{true, true, 1}));

TEST(InterpreterProbePlaces, AreTheTwoOfTheInstallation)
{
    EXPECT_STREQ(ghostscriptPaths[0], "/Library/Printers/Tessarin/gs/bin/gs");
    EXPECT_STREQ(ghostscriptPaths[1], "/usr/local/bin/gs");
}

TEST(InterpreterProbePlaces, MayBeAnythingThatOpens)
{
    const Interpreter interpreter(false, false);
    const std::string folder = QDir::tempPath().toStdString();
    ghostscriptPaths[1] = folder.c_str();
    PanelSession session(ppdFixture("minimal"));
    session.open();
    EXPECT_EQ(session.context()->optionFlagD, 1);
}

TEST(InterpreterProbePlaces, AreLookedAtOnTheGeneralPageOnly)
{
    const Interpreter interpreter(true, false);
    const PanelSession session(ppdFixture("minimal"));
    QWidget page;
    for (const int mask : {2, 4, 8, 16, 32, 0}) {
        session.context()->optionFlagD = 7;
        MyEmbedCustomControls(mask, session.context(), 0, &page);
        EXPECT_EQ(session.context()->optionFlagD, 7) << mask;
    }
    MyEmbedCustomControls(1, session.context(), 0, &page);
    EXPECT_EQ(session.context()->optionFlagD, 1);
}

TEST(InterpreterProbePlaces, TickTheBoxLaterButDoNotEnableItAgain)
{
    Interpreter interpreter(false, false);
    PanelSession session(ppdFixture("minimal"));
    session.open();
    EXPECT_FALSE(session.checkBox(4706)->isChecked());
    interpreter.install(1);
    session.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_FALSE(session.checkBox(4706)->isChecked()) << "a restore does not probe";
    session.open();
    EXPECT_TRUE(session.checkBox(4706)->isChecked());
    EXPECT_FALSE(isOn(session.checkBox(4706)));
}

TEST(EmbeddedCheckBoxes, ShowTheirPrintersStates)
{
    const Interpreter interpreter(true, false);
    for (const bool on : {false, true}) {
        PanelSession session(ppdFixture("minimal"));
        session.host->mark("vornNoPrint", on ? "1" : "0");
        session.host->mark("vornColorGamma", on ? "1" : "0");
        session.panel->restoreValuesAndReturnError(nullptr);
        session.open();
        EXPECT_EQ(session.checkBox(4705)->isChecked(), on);
        EXPECT_EQ(session.checkBox(4707)->isChecked(), on);
        for (const int number : {16, 17, 18, 19}) {
            EXPECT_EQ(isOn(session.slider(number)), on) << number;
        }
        EXPECT_EQ(session.context()->controls.noPrintCheckBox, session.checkBox(4705));
        EXPECT_EQ(session.context()->controls.psInterpreterCheckBox, session.checkBox(4706));
        EXPECT_EQ(session.context()->controls.colorGammaCheckBox, session.checkBox(4707));
    }
}

TEST(EmbeddedCheckBoxes, OfTheCorrectionIsSetWithTheInkUsagePage)
{
    const PanelSession session(ppdFixture("minimal"));
    session.settings().checkBoxStates[2] = 1;
    const auto raw = rawInterface();
    auto *tabs = raw->findChild<TabView *>();
    MyEmbedCustomControls(4, session.context(), 0, tabs->widget(2));
    auto *box = qobject_cast<QCheckBox *>(session.context()->controls.colorGammaCheckBox);
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(box->isChecked());
    session.slider(16)->setEnabled(false);
    CapturedLog log;
    MyEmbedCustomControls(16, session.context(), 0, tabs->widget(4));
    EXPECT_TRUE(box->isChecked());
    EXPECT_TRUE(isOn(session.slider(16)));
    EXPECT_TRUE(log.contains("LOG colors enabled\n"));
}

TEST(EmbeddedCheckBoxes, OfTheCorrectionMayBeMissing)
{
    const PanelSession session(ppdFixture("minimal"));
    CapturedLog log;
    QWidget page;
    MyEmbedCustomControls(16, session.context(), 0, &page);
    EXPECT_EQ(log.countStarting("LOG colors"), 0);
}

TEST(EmbeddedInkRows, LogEachNameThatIsMissing)
{
    const PanelSession session(ppdFixture("minimal"));
    CapturedLog log;
    QWidget page;
    MyEmbedCustomControls(8, session.context(), 0, &page);
    for (int position = 1; position <= 12; ++position) {
        EXPECT_EQ(log.count("LOG Embed: Namecontrol #" + std::to_string(position) + " not found!****++++\n"), 2)
            << position;
    }
    EXPECT_EQ(log.countStarting("LOG Embed: Namecontrol #"), 24) << "the sums have no name";
    EXPECT_EQ(log.countStarting("LOG Control missing!"), 24);
}

TEST(EmbeddedInkRows, LogOnlyTheNamesOfTheBoxThatMissesThem)
{
    const PanelSession session(ppdFixture("minimal"));
    QWidget page;
    for (int id = 3211; id <= 3222; ++id) {
        setTagOf(new QLabel(&page), id);
    }
    setTagOf(new QLabel(&page), 3199); // the last total name
    CapturedLog log;
    MyEmbedCustomControls(8, session.context(), 0, &page);
    for (int position = 1; position <= 12; ++position) {
        EXPECT_EQ(log.count("LOG Embed: Namecontrol #" + std::to_string(position) + " not found!****++++\n"),
                  position == 12 ? 0 : 1)
            << position;
    }
}

TEST(EmbeddedInkRows, AreMeasuredAnewEveryTime)
{
    PanelSession session(ppdFixture("minimal"));
    session.open();
    PanelContext *context = session.context();
    const int height = context->inkRowHeight;
    context->inkFirstLine = 1000;
    context->inkLastLine = 1001;
    context->inkRowHeight = 1002;
    QWidget *page = context->tabObjects[3];
    const int first = context->controls.lastInkNames[0]->y();
    const int last = context->controls.lastInkNames[11]->y();
    MyEmbedCustomControls(8, context, 0, page);
    EXPECT_EQ(context->inkFirstLine, first);
    EXPECT_EQ(context->inkLastLine, last);
    EXPECT_EQ(context->inkRowHeight, height);
}

/// A page of the ink usage with the views that are asked for.
class InkUsagePage : public testing::Test {
protected:
    InkUsagePage() : session(ppdFixture("media-modes")) {}

    QWidget *addPane(int x)
    {
        auto *pane = new QWidget(&page);
        pane->setGeometry(x, 40, 180, 60);
        return pane;
    }

    PanelSession session;
    QWidget page;
};

TEST_F(InkUsagePage, MeasuresThePanesEveryTime)
{
    PanelContext *context = session.context();
    context->controls.cyanPane = addPane(20);
    context->controls.magentaPane = addPane(221);
    MyEmbedCustomControls(16, context, 0, &page);
    EXPECT_EQ(context->availabilityInt1, 20);
    EXPECT_EQ(context->availabilityInt2, 100) << "half the way, cut";
    context->controls.cyanPane->move(30, 40);
    context->controls.magentaPane->move(25, 40);
    MyEmbedCustomControls(16, context, 0, &page);
    EXPECT_EQ(context->availabilityInt1, 30);
    EXPECT_EQ(context->availabilityInt2, -2) << "toward zero";
}

TEST_F(InkUsagePage, KeepsTheHalfWayWithoutAMagentaPane)
{
    PanelContext *context = session.context();
    context->availabilityInt2 = 55;
    context->controls.cyanPane = addPane(20);
    MyEmbedCustomControls(16, context, 0, &page);
    EXPECT_EQ(context->availabilityInt1, 20);
    EXPECT_EQ(context->availabilityInt2, 55);
    context->controls.cyanPane = nullptr;
    context->controls.magentaPane = addPane(220);
    context->availabilityInt1 = 44;
    MyEmbedCustomControls(16, context, 0, &page);
    EXPECT_EQ(context->availabilityInt1, 44) << "both stay without a cyan pane";
    EXPECT_EQ(context->availabilityInt2, 55);
}

TEST_F(InkUsagePage, ForgetsViewsThatAreNotThereAnyMore)
{
    PanelContext *context = session.context();
    for (const int id : {1935, 1901, 3577}) {
        setTagOf(new QLabel(&page), id);
    }
    MyEmbedCustomControls(16, context, 0, &page);
    EXPECT_FALSE(context->controls.brightUsageLabel.isNull());
    QWidget empty;
    MyEmbedCustomControls(16, context, 0, &empty);
    EXPECT_TRUE(context->controls.brightUsageLabel.isNull());
    EXPECT_TRUE(context->controls.brightCyanIcon.isNull());
    EXPECT_TRUE(context->controls.photoControl.isNull());
}

TEST_F(InkUsagePage, AppliesTheMediaModeWithoutAWarning)
{
    AlertRecorder alerts;
    session.host->mark("vornMediaType", "M2");
    session.panel->restoreValuesAndReturnError(nullptr);
    session.open();
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_FALSE(isOn(session.slider(0)));
    EXPECT_FALSE(isOn(session.popup(5)));
    EXPECT_EQ(tabIdentifiers(session), (std::vector<std::string>{"On", "On", "Off", "Off", "Off", "On"}))
        << "the last page is set up after it";
}

TEST_F(InkUsagePage, AppliesThePhotoMode)
{
    session.host->mark("vornMediaType", "M5");
    session.panel->restoreValuesAndReturnError(nullptr);
    session.open();
    const PanelContext *context = session.context();
    EXPECT_EQ(context->controls.cyanPane->x(), context->availabilityInt1 + context->availabilityInt2);
    EXPECT_FALSE(isShown(context->controls.magentaPane));
    EXPECT_TRUE(isShown(context->controls.photoControl));
}

} // namespace
} // namespace tessarin::test
