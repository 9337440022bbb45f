// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Mouse, keyboard, wheel, typing and assistive technology on the panel in a window: what they raise, and what they
// cannot reach.

#include "platform/view_tags.h"
#include "tests/controls/controls_test_support.h"

#include <QAccessible>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <set>

namespace tessarin::test {
namespace {

/// The panel in a window, with the media modes to choose from.
class RealInput : public testing::Test {
protected:
    RealInput() : panel(ppdFixture("media-modes"))
    {
        panel.host->changes.clear();
        log.clear();
    }

    QWidget *tagged(int id) { return viewWithTag(&panel.window, id); }

    CapturedLog log;
    AlertRecorder alerts;
    ShownPanel panel;
};

TEST_F(RealInput, OfTheMouseOnAPopUpIsOneEvent)
{
    clickItem(panel.popup(1), 5);
    EXPECT_EQ(panel.host->changes, (Changes{{"vornMediaType", "M4"}}));
    EXPECT_EQ(panel.settings().popupSelections[1], 5);
    EXPECT_EQ(log.count("LOG Handle event #4501\n"), 1);
}

TEST_F(RealInput, OfTheKeyboardOnAPopUpIsOneEventForEachStep)
{
    QTest::keyClick(panel.popup(1), Qt::Key_Down);
    QTest::keyClick(panel.popup(1), Qt::Key_End);
    QTest::keyClick(panel.popup(1), Qt::Key_Home);
    EXPECT_EQ(panel.host->changes,
              (Changes{{"vornMediaType", "M7"}, {"vornMediaType", "NoDigit"}, {"vornMediaType", "M0"}}));
}

TEST_F(RealInput, OfTypingOnAPopUpIsAnEvent)
{
    QTest::keyClick(panel.popup(2), Qt::Key_1);
    EXPECT_EQ(panel.settings().popupSelections[2], 2);
    EXPECT_EQ(panel.host->changes, (Changes{{"vornResolution", "1200dpi"}}));
}

TEST_F(RealInput, OfTheWheelOnAPopUpIsAnEvent)
{
    turnWheel(panel.popup(2), -1);
    EXPECT_EQ(panel.host->changes, (Changes{{"vornResolution", "1200dpi"}}));
}

TEST_F(RealInput, ThatTheHostRefusesIsPutBack)
{
    panel.host->refusedKeys = {"vornMediaType", "vornResolution"};
    clickItem(panel.popup(1), 3);
    EXPECT_EQ(panel.popup(1)->currentIndex(), 6);
    EXPECT_EQ(panel.popup(1)->currentText(), QStringLiteral("Media Mode 6"));
    QTest::keyClick(panel.popup(1), Qt::Key_Down);
    EXPECT_EQ(panel.popup(1)->currentIndex(), 6);
    turnWheel(panel.popup(2), -1);
    EXPECT_EQ(panel.popup(2)->currentIndex(), 0);
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(log.countStarting("LOG Handle event"), 3) << "putting back raises none";
}

TEST_F(RealInput, CannotReachModesThatAreHidden)
{
    panel.showPage(1);
    choose(panel.popup(1), 3); // leaves RGB (3) and CMYKproof (6)
    QComboBox *modes = panel.popup(4);
    std::set<int> reached;
    for (const auto key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_PageDown,
                           Qt::Key_PageUp, Qt::Key_G, Qt::Key_C, Qt::Key_R}) {
        QTest::keyClick(modes, key);
        reached.insert(modes->currentIndex() + 1);
    }
    for (int notch = 0; notch < 4; ++notch) {
        turnWheel(modes, notch < 2 ? -1 : 1);
        reached.insert(modes->currentIndex() + 1);
    }
    EXPECT_EQ(reached, (std::set<int>{3, 6}));
}

TEST_F(RealInput, CannotReachADisabledPopUpOrSlider)
{
    choose(panel.popup(1), 3);
    log.clear();
    QTest::keyClick(panel.popup(2), Qt::Key_Down);
    turnWheel(panel.popup(2), -1);
    QTest::mouseClick(panel.popup(2), Qt::LeftButton);
    QTest::keyClick(panel.slider(0), Qt::Key_Right);
    turnWheel(panel.slider(0), 1);
    QTest::mouseClick(panel.slider(0), Qt::LeftButton, Qt::NoModifier, QPoint(2, panel.slider(0)->height() / 2));
    EXPECT_EQ(panel.popup(2)->currentIndex(), 0);
    EXPECT_EQ(panel.slider(0)->value(), 0);
    EXPECT_EQ(log.countStarting("LOG Handle event"), 0);
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 0);
}

TEST_F(RealInput, OnASliderShowsItsValue)
{
    QTest::keyClick(panel.slider(0), Qt::Key_Right);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("110%"));
    QTest::keyClick(panel.slider(0), Qt::Key_Home);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("50%"));
    QTest::keyClick(panel.slider(0), Qt::Key_End);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("200%"));
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 3);
    turnWheel(panel.slider(0), -1);
    EXPECT_LT(panel.slider(0)->value(), 10);
    EXPECT_EQ(panel.sliderText(0)->text(), QString::number(100 + panel.slider(0)->value() * 10) + QLatin1Char('%'));
    EXPECT_TRUE(panel.host->changes.empty());
}

TEST_F(RealInput, OnASliderShowsItsValueWhileItIsDragged)
{
    QSlider *slider = panel.slider(1);
    slide(slider, 1); // so that it tells of every movement
    slide(slider, 0);
    log.clear();
    const QPoint centre = slider->rect().center();
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, centre);
    QTest::mouseMove(slider, centre + QPoint(slider->width() / 4, 0));
    QMouseEvent drag(QEvent::MouseMove, centre + QPoint(slider->width() / 4, 0),
                     slider->mapToGlobal(centre + QPoint(slider->width() / 4, 0)), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &drag);
    EXPECT_GT(slider->value(), 0);
    EXPECT_NE(panel.sliderText(1)->text(), QStringLiteral("100%"));
    EXPECT_GE(log.countStarting("LOG scrollCallback"), 1);
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, centre + QPoint(slider->width() / 4, 0));
}

TEST_F(RealInput, OnAButtonIsOneEvent)
{
    panel.showPage(3);
    auto *reload = qobject_cast<QAbstractButton *>(tagged(4003));
    ASSERT_NE(reload, nullptr);
    QTest::mouseClick(reload, Qt::LeftButton);
    EXPECT_EQ(log.count("LOG buttonCallback: id=4003\n"), 1);
    QTest::keyClick(reload, Qt::Key_Space);
    EXPECT_EQ(log.count("LOG Handle event #4003\n"), 2);
}

TEST_F(RealInput, OnACheckBoxIsOneEvent)
{
    panel.showPage(2);
    QTest::keyClick(panel.checkBox(4707), Qt::Key_Space);
    EXPECT_TRUE(panel.checkBox(4707)->isChecked());
    EXPECT_EQ(log.count("LOG Handle event #4707\n"), 1);
    EXPECT_TRUE(isOn(panel.slider(16)));
    QTest::keyClick(panel.checkBox(4707), Qt::Key_Space);
    EXPECT_FALSE(isOn(panel.slider(19)));
}

TEST_F(RealInput, OfAssistiveTechnologyOnACheckBoxIsAnEvent)
{
    panel.showPage(2);
    QAccessibleInterface *box = QAccessible::queryAccessibleInterface(panel.checkBox(4707));
    ASSERT_NE(box, nullptr);
    QAccessibleActionInterface *actions = box->actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(actions->actionNames().value(0));
    EXPECT_TRUE(panel.checkBox(4707)->isChecked());
    EXPECT_EQ(log.count("LOG Handle event #4707\n"), 1);
    EXPECT_TRUE(isOn(panel.slider(16)));
}

TEST_F(RealInput, OfAssistiveTechnologyOnAButtonIsAnEvent)
{
    panel.showPage(3);
    QAccessibleInterface *button = QAccessible::queryAccessibleInterface(tagged(4003));
    ASSERT_NE(button, nullptr);
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([this] { return log.contains("LOG Handle event #4003\n"); }, 2000));
}

TEST_F(RealInput, OfAssistiveTechnologyOnASliderShowsItsValue)
{
    QAccessibleInterface *slider = QAccessible::queryAccessibleInterface(panel.slider(0));
    ASSERT_NE(slider, nullptr);
    slider->valueInterface()->setCurrentValue(130);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("130%"));
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 1);
}

TEST_F(RealInput, OnTheGroundOfThePanelIsLogged)
{
    QWidget *content = panel.panel->contentView();
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), content->mapToGlobal(QPointF(1, 1)),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(content, &release);
    EXPECT_EQ(log.lines(), logged({"MOUSE UP\n"}));
}

TEST_F(RealInput, CannotEnterATabThatIsOff)
{
    auto *tabs = qobject_cast<QTabWidget *>(panel.context()->controls.tabView.data());
    choose(panel.popup(1), 3);
    for (const int position : {2, 3, 4, 5}) {
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                          tabs->tabBar()->tabRect(position).center());
        EXPECT_EQ(tabs->currentIndex(), 0) << position;
    }
    QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier, tabs->tabBar()->tabRect(1).center());
    EXPECT_EQ(tabs->currentIndex(), 1);
    QTest::keyClick(tabs->tabBar(), Qt::Key_Right);
    EXPECT_EQ(tabs->currentIndex(), 1);
    QTest::keyClick(tabs->tabBar(), Qt::Key_End);
    EXPECT_EQ(tabs->currentIndex(), 1);
    QTest::keyClick(tabs, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 0) << "round to the first";
    turnWheel(tabs->tabBar(), -3);
    EXPECT_EQ(tabs->currentIndex(), 1);
    tabs->setCurrentIndex(4);
    EXPECT_EQ(tabs->currentIndex(), 1);
    choose(panel.popup(1), 7);
    QTest::keyClick(tabs->tabBar(), Qt::Key_Right);
    EXPECT_EQ(tabs->currentIndex(), 2) << "allowed again";
}

TEST_F(RealInput, IsNotWhatThePanelItselfWrites)
{
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (int row = 0; row < 8; ++row) {
        spies.push_back(std::make_unique<QSignalSpy>(panel.popup(row), &QComboBox::activated));
        spies.push_back(std::make_unique<QSignalSpy>(panel.popup(row), &QComboBox::currentIndexChanged));
    }
    for (int number = 0; number < 20; ++number) {
        spies.push_back(std::make_unique<QSignalSpy>(panel.slider(number), &QSlider::valueChanged));
    }
    for (const int id : {4705, 4706, 4707}) {
        spies.push_back(std::make_unique<QSignalSpy>(panel.checkBox(id), &QCheckBox::toggled));
        spies.push_back(std::make_unique<QSignalSpy>(panel.checkBox(id), &QCheckBox::clicked));
    }
    panel.host->mark("vornMediaType", "M2");
    panel.host->mark("vornBrightness", "50");
    panel.host->mark("vornDithering", "Ordered");
    panel.host->mark("vornNoPrint", "1");
    panel.panel->restoreValuesAndReturnError(nullptr);
    panel.panel->PPDOptionKeyValueDidChange(QStringLiteral("vornResolution"), QStringLiteral("1200dpi"));
    panel.open();
    panel.panel->saveValuesAndReturnError(nullptr);
    for (const auto &spy : spies) {
        EXPECT_EQ(spy->count(), 0) << spy->signal().toStdString();
    }
    EXPECT_EQ(panel.popup(2)->currentIndex(), 1);
    EXPECT_EQ(panel.slider(0)->value(), 10);
    EXPECT_TRUE(panel.checkBox(4705)->isChecked());
    EXPECT_EQ(log.countStarting("LOG Handle event"), 0);
}

} // namespace
} // namespace tessarin::test
