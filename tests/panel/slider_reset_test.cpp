// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A slider goes back to the printer's default as if it had been dragged there: by double click, key and menu.

#include "controls/typed_value.h"
#include "tests/panel/setting_test_support.h"

#include <QMenu>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr int kReferenceLight = 2; // whose default is not the middle

class SliderReset : public testing::Test {
protected:
    SliderReset() : panel(samplePPD())
    {
        panel.showPage(0);
        slide(panel.slider(0), 4);
        log.clear();
    }

    /// The lines that a movement of a slider logs.
    Lines draggedLines(int number, int position)
    {
        log.clear();
        slide(panel.slider(number), position);
        return log.lines();
    }

    /// As the window system tells of it: press, release, press, release.
    void doubleClick(QWidget *view)
    {
        QTest::mouseDClick(panel.window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           view->mapTo(&panel.window, view->rect().center()));
    }

    StableAddresses addresses;
    AlertRecorder alerts;
    CapturedLog log;
    ShownPanel panel;
};

TEST_F(SliderReset, ByADoubleClickIsADragToTheDefault)
{
    doubleClick(panel.slider(0));
    EXPECT_EQ(panel.slider(0)->value(), 0);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("100%"));
    EXPECT_FALSE(panel.slider(0)->isSliderDown());
    EXPECT_NE(log.lines().back(), "LOG MOUSE UP\n") << "the second release belongs to the double click";
    EXPECT_TRUE(panel.host->changes.empty()) << "handed over when the settings are saved, as all sliders are";
    EXPECT_EQ(handedOver(panel).at("vornBrightness"), "0");
}

TEST_F(SliderReset, ByAKeyIsADragToTheDefault)
{
    for (const auto key : {Qt::Key_Delete, Qt::Key_Backspace}) {
        slide(panel.slider(0), -7);
        log.clear();
        QTest::keyClick(panel.slider(0), key);
        EXPECT_EQ(panel.slider(0)->value(), 0);
        const Lines byKey = log.lines();
        slide(panel.slider(0), -7);
        EXPECT_EQ(byKey, draggedLines(0, 0));
        EXPECT_EQ(handedOver(panel).at("vornBrightness"), "0");
    }
}

TEST_F(SliderReset, TakesThePrintersDefaultNotTheMiddleNorTheMarkedChoice)
{
    panel.host->mark("vornRefLight", "50");
    panel.panel->restoreValuesAndReturnError(nullptr);
    panel.showPage(1);
    EXPECT_EQ(panel.slider(kReferenceLight)->value(), 0);
    QTest::keyClick(panel.slider(kReferenceLight), Qt::Key_Delete);
    EXPECT_EQ(panel.sliderText(kReferenceLight)->text(), QStringLiteral("D65"));
    EXPECT_EQ(handedOver(panel).at("vornRefLight"), "65");
}

TEST_F(SliderReset, LeavesALaterClickAlone)
{
    QSlider *slider = panel.slider(0);
    doubleClick(slider);
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, slider->rect().center());
    EXPECT_TRUE(slider->isSliderDown());
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, slider->rect().center());
    EXPECT_FALSE(slider->isSliderDown());
    // A release that is lost, as when a window comes between, takes no other one with it.
    QMouseEvent lost(QEvent::MouseButtonDblClick, slider->rect().center(),
                     slider->mapToGlobal(slider->rect().center()), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &lost);
    QTest::mouseClick(slider, Qt::LeftButton, Qt::NoModifier, slider->rect().center());
    EXPECT_FALSE(slider->isSliderDown());
}

TEST_F(SliderReset, IsOfferedInTheMenuWithTheDefault)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), panel.slider(0)->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(panel.slider(0), &event);
    auto *menu = panel.slider(0)->findChild<QMenu *>();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    EXPECT_EQ(menu->actions().at(0)->text(), QStringLiteral("Reset to default (100%)"));
    menu->actions().at(0)->trigger();
    EXPECT_EQ(panel.slider(0)->value(), 0);
    menu->actions().at(1)->trigger();
    EXPECT_NE(openField(panel), nullptr);
}

TEST_F(SliderReset, LeavesASliderAloneThatIsDisabledWhileTheMenuIsOpen)
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), panel.slider(0)->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(panel.slider(0), &event);
    auto *menu = panel.slider(0)->findChild<QMenu *>();
    ASSERT_NE(menu, nullptr);
    panel.slider(0)->setEnabled(false);
    for (QAction *action : menu->actions()) {
        action->trigger();
    }
    EXPECT_EQ(panel.slider(0)->value(), 4);
    EXPECT_FALSE(panel.slider(0)->isEnabled());
    EXPECT_EQ(openField(panel), nullptr);
}

TEST_F(SliderReset, LeavesADisabledSliderAlone)
{
    panel.slider(0)->setEnabled(false);
    QTest::mouseDClick(panel.slider(0), Qt::LeftButton);
    QTest::keyClick(panel.slider(0), Qt::Key_Delete);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), panel.slider(0)->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(panel.slider(0), &event);
    EXPECT_EQ(panel.slider(0)->value(), 4);
    EXPECT_EQ(panel.slider(0)->findChild<QMenu *>(), nullptr);
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 0);
}

TEST_F(SliderReset, LeavesOtherButtonsAndKeysToTheSlider)
{
    QTest::mouseDClick(panel.slider(0), Qt::RightButton);
    QTest::keyClick(panel.slider(0), Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(panel.slider(0)->value(), 4);
}

TEST(SliderDefault, IsThatOfTheOption)
{
    PanelSession session;
    for (int number = 0; number < 20; ++number) {
        EXPECT_EQ(defaultPosition(*session.context(), number), number == kReferenceLight ? 3 : 0) << number;
    }
}

TEST(SliderDefault, IsNothingWithoutTheOption)
{
    ShownPanel panel(ppdFixture("missing-reflight"));
    EXPECT_EQ(defaultPosition(*panel.context(), kReferenceLight), std::nullopt);
    panel.showPage(1);
    slide(panel.slider(kReferenceLight), 5);
    QTest::keyClick(panel.slider(kReferenceLight), Qt::Key_Delete);
    EXPECT_EQ(panel.slider(kReferenceLight)->value(), 5);
}

} // namespace
} // namespace tessarin::test
