// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel's action methods, and which controls call them.

#include "platform/tab_view.h"
#include "platform/view_tags.h"
#include "tests/controls/controls_test_support.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class PanelActions : public testing::Test {
protected:
    PanelActions() : session(ppdFixture("minimal"), "nobody-has-this-printer")
    {
        view = session.open();
        session.host->changes.clear();
        log.clear();
    }

    QWidget *tagged(int id) const { return viewWithTag(view, id); }

    CapturedLog log;
    AlertRecorder alerts;
    PanelSession session;
    QWidget *view = nullptr;
};

TEST_F(PanelActions, OfAPopUpHandTheSendersTagToTheDispatch)
{
    for (const auto &[id, result] : std::vector<std::pair<int, int>>{
             {4501, 0}, {4502, 0}, {4507, 0}, {4505, 0}, {4503, -111}, {4504, -111}, {4506, -111}, {4508, -111}}) {
        log.clear();
        EXPECT_EQ(session.panel->popupChanged(tagged(id)), result) << id;
        ASSERT_FALSE(log.lines().empty());
        EXPECT_EQ(log.lines()[0], "LOG Handle event #" + std::to_string(id) + "\n") << "nothing logged before";
    }
}

TEST_F(PanelActions, OfAButtonLogBeforeTheDispatch)
{
    for (const auto &[id, result] :
         std::vector<std::pair<int, int>>{{4003, 0}, {4705, -111}, {4706, -111}, {4707, 0}}) {
        log.clear();
        EXPECT_EQ(session.panel->buttonCallback(tagged(id)), result) << id;
        ASSERT_GE(log.lines().size(), 2U);
        EXPECT_EQ(log.lines()[0], "LOG buttonCallback: id=" + std::to_string(id) + "\n");
        EXPECT_EQ(log.lines()[1], "LOG Handle event #" + std::to_string(id) + "\n");
    }
}

TEST_F(PanelActions, OfASliderShowItsValueAndStoreNothing)
{
    const StableAddresses stable;
    const PanelSettings before = session.settings();
    session.slider(0)->setTracking(false);
    slide(session.slider(0), 4);
    EXPECT_EQ(session.sliderText(0)->text(), QStringLiteral("140%"));
    EXPECT_EQ(session.settings().sliderValues, before.sliderValues);
    EXPECT_TRUE(session.host->changes.empty());
    EXPECT_TRUE(session.slider(0)->hasTracking()) << "it tells of every movement from now on";
    Lines expected = logged({"scrollCallback: id=0\n"});
    for (const std::string &line : logged(slideMessages(0, "min=-10.000000 max=10.000000\n", 4))) {
        expected.push_back(line);
    }
    expected.emplace_back("LOG (64-bit) Mac OS X 10.5 or later");
    EXPECT_EQ(log.lines(), expected);
}

TEST_F(PanelActions, OfASliderLogItsTagWhichIsItsTextsHandle)
{
    const auto handle = static_cast<std::int32_t>(handleOf(session.sliderText(3)));
    slide(session.slider(3), 2);
    EXPECT_EQ(log.lines()[0], "LOG scrollCallback: id=" + std::to_string(handle) + "\n");
    EXPECT_EQ(log.countStarting("LOG Handle event"), 0) << "sliders have no event";
}

TEST_F(PanelActions, OfADisabledSliderEnableIt)
{
    session.slider(16)->setEnabled(false);
    session.panel->scrollCallback(session.slider(16));
    EXPECT_TRUE(isOn(session.slider(16)));
}

TEST_F(PanelActions, OfTheMouseOnlyLog)
{
    const PanelSettings before = session.settings();
    session.panel->mouseUp();
    EXPECT_EQ(log.lines(), logged({"MOUSE UP\n"}));
    EXPECT_EQ(session.settings().popupSelections, before.popupSelections);
    EXPECT_TRUE(session.host->changes.empty());
}

TEST_F(PanelActions, ForTabsGoByTheIdentifier)
{
    TabView tabs;
    for (int i = 0; i < 5; ++i) {
        tabs.addTab(new QWidget, QString::number(i));
    }
    tabs.setIdentifier(0, QStringLiteral("On"));
    tabs.setIdentifier(1, QStringLiteral("Off"));
    tabs.setIdentifier(2, QStringLiteral("on"));
    tabs.setIdentifier(3, QString());
    const auto allows = [this, &tabs](int position) {
        return session.panel->tabViewShouldSelectTabViewItem(&tabs, position);
    };
    EXPECT_TRUE(allows(0));
    EXPECT_FALSE(allows(1));
    EXPECT_FALSE(allows(2)) << "not quite";
    EXPECT_FALSE(allows(3));
    EXPECT_FALSE(allows(4)) << "none";
    EXPECT_FALSE(allows(5)) << "no tab";
    EXPECT_FALSE(allows(-1));
    EXPECT_FALSE(session.panel->tabViewShouldSelectTabViewItem(nullptr, 0));
    tabs.tabBar()->setTabData(0, 1);
    EXPECT_FALSE(allows(0)) << "the identifier must be a string";
}

TEST_F(PanelActions, ForMenuItemsGoByTheTagsSign)
{
    for (const int tag : {0, 1, 123, 2147483647}) {
        EXPECT_TRUE(PasswordPDE::validateMenuItem(tag)) << tag;
    }
    for (const int tag : {-1, -123, -2147483647}) {
        EXPECT_FALSE(PasswordPDE::validateMenuItem(tag)) << tag;
    }
}

TEST_F(PanelActions, AreCalledOnceByEachControl)
{
    for (const int id : {4501, 4502, 4507, 4505, 4503, 4504, 4506, 4508}) {
        log.clear();
        auto *popup = qobject_cast<QComboBox *>(tagged(id));
        Q_EMIT popup->activated(popup->currentIndex());
        EXPECT_EQ(log.countStarting("LOG Handle event #"), 1) << id;
        EXPECT_TRUE(log.contains("LOG Handle event #" + std::to_string(id) + "\n"));
    }
    for (const int id : {4003, 4705, 4706, 4707}) {
        auto *button = qobject_cast<QAbstractButton *>(tagged(id));
        button->setEnabled(true);
        log.clear();
        button->click();
        EXPECT_EQ(log.countStarting("LOG buttonCallback: id="), 1) << id;
        EXPECT_TRUE(log.contains("LOG Handle event #" + std::to_string(id) + "\n"));
    }
    for (int number = 0; number < 20; ++number) {
        log.clear();
        QSlider *slider = session.slider(number);
        slide(slider, slider->value() == slider->minimum() ? slider->minimum() + 1 : slider->minimum());
        EXPECT_EQ(log.countStarting("LOG scrollCallback: id="), 1) << number;
        EXPECT_TRUE(log.contains("LOG SetScrollValue - CtrlRef = " + std::to_string(number) + "\n"));
    }
}

TEST_F(PanelActions, AreStillCalledOnceAfterASecondView)
{
    session.open();
    log.clear();
    choose(session.popup(2), 2);
    session.checkBox(4707)->click();
    slide(session.slider(0), 3);
    EXPECT_EQ(log.count("LOG Handle event #4502\n"), 1);
    EXPECT_EQ(log.count("LOG Handle event #4707\n"), 1);
    EXPECT_EQ(log.countStarting("LOG scrollCallback: id="), 1);
}

TEST_F(PanelActions, RememberTheResultOfTheLastEvent)
{
    choose(session.popup(2), 2);
    EXPECT_EQ(session.panel->lastEventResult(), 0);
    choose(session.popup(5), 2);
    EXPECT_EQ(session.panel->lastEventResult(), -111);
    session.checkBox(4707)->click();
    EXPECT_EQ(session.panel->lastEventResult(), 0);
    session.checkBox(4705)->click();
    EXPECT_EQ(session.panel->lastEventResult(), -111);
}

TEST_F(PanelActions, AreCutOffWithThePanel)
{
    QPointer<QWidget> kept = view;
    QWidget window;
    view->setParent(&window);
    QComboBox *popup = session.popup(2);
    QSlider *slider = session.slider(0);
    session.plugIn.reset();
    session.panels.reset();
    session.panel = nullptr;
    log.clear();
    ASSERT_FALSE(kept.isNull()) << "its window owns it now";
    Q_EMIT popup->activated(0);
    slider->setValue(5);
    EXPECT_TRUE(log.lines().empty());
}

} // namespace
} // namespace tessarin::test
