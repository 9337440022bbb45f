// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading and setting of controls and views through the control layer, and what an empty handle or one of the wrong
// kind gives.

#include "controls/control_layer.h"
#include "ink/level_box.h"
#include "platform/tab_view.h"
#include "tests/controls/controls_test_support.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

bool sameRect(const ControlRect &rect, int top, int left, int bottom, int right)
{
    return rect.top == top && rect.left == left && rect.bottom == bottom && rect.right == right;
}

TEST(ControlSlider, TakesRangeAndPositionWithoutAnEvent)
{
    QSlider slider;
    const QSignalSpy moved(&slider, &QSlider::valueChanged);
    EXPECT_EQ(SetSliderMinimum(&slider, -8), 0);
    EXPECT_EQ(SetSliderMaximum(&slider, 0), 0);
    EXPECT_EQ(SetSliderControlValue(&slider, -3), 0);
    EXPECT_EQ(slider.minimum(), -8);
    EXPECT_EQ(slider.maximum(), 0);
    EXPECT_EQ(GetSliderControlValue(&slider), -3);
    EXPECT_EQ(moved.count(), 0);
    slider.setValue(-4);
    EXPECT_EQ(moved.count(), 1) << "a movement that is not the layer's still tells";
}

TEST(ControlSlider, KeepsItsPositionInTheRange)
{
    QSlider slider;
    SetSliderMinimum(&slider, 0);
    SetSliderMaximum(&slider, 6);
    SetSliderControlValue(&slider, -10);
    EXPECT_EQ(GetSliderControlValue(&slider), 0);
    SetSliderControlValue(&slider, 12);
    EXPECT_EQ(GetSliderControlValue(&slider), 6);
}

TEST(ControlCheckBox, IsOnForEveryValueButZeroWithoutAnEvent)
{
    QCheckBox box;
    const QSignalSpy toggled(&box, &QCheckBox::toggled);
    const QSignalSpy clicked(&box, &QCheckBox::clicked);
    for (const int value : {1, 2, 255, -1}) {
        box.setCheckState(Qt::Unchecked);
        EXPECT_EQ(SetCheckButtonValue(&box, value), 0);
        EXPECT_EQ(GetCheckButtonValue(&box), 1) << value;
    }
    EXPECT_EQ(SetCheckButtonValue(&box, 0), 0);
    EXPECT_EQ(GetCheckButtonValue(&box), 0);
    EXPECT_EQ(clicked.count(), 0);
    EXPECT_EQ(toggled.count(), 3) << "the test's own clearing alone";
}

TEST(ControlCheckBox, ReadsAMixedStateAsOff)
{
    QCheckBox box;
    box.setTristate(true);
    box.setCheckState(Qt::PartiallyChecked);
    EXPECT_EQ(GetCheckButtonValue(&box), 0);
    box.setCheckState(Qt::Checked);
    EXPECT_EQ(GetCheckButtonValue(&box), 1);
}

TEST(ControlVisibility, GoesForEveryView)
{
    QWidget window;
    auto *label = new QLabel(&window);
    auto *pane = new QWidget(&window);
    auto *bar = new LevelBox(&window);
    for (QWidget *view : {static_cast<QWidget *>(label), pane, static_cast<QWidget *>(bar)}) {
        EXPECT_EQ(SetControlVisibility(view, false), 0);
        EXPECT_TRUE(view->isHidden());
        EXPECT_EQ(SetControlVisibility(view, true), 0);
        EXPECT_FALSE(view->isHidden());
    }
    EXPECT_EQ(SetControlVisibility(nullptr, true), 0);
}

TEST(ControlEnabling, GoesForControlsOnly)
{
    QWidget window;
    auto *slider = new QSlider(&window);
    EXPECT_EQ(DisableControl(slider), 0);
    EXPECT_FALSE(slider->isEnabled());
    EXPECT_EQ(EnableControl(slider), 0);
    EXPECT_TRUE(slider->isEnabled());

    auto *pane = new QWidget(&window);
    auto *tabs = new TabView(&window);
    auto *bar = new LevelBox(&window);
    auto *group = new QGroupBox(&window);
    for (QWidget *view :
         {pane, static_cast<QWidget *>(tabs), static_cast<QWidget *>(bar), static_cast<QWidget *>(group)}) {
        DisableControl(view);
        EXPECT_TRUE(view->isEnabled()) << view->metaObject()->className();
    }
    EXPECT_EQ(DisableControl(nullptr), 0);
    EXPECT_EQ(EnableControl(nullptr), 0);
}

TEST(ControlBounds, AreTheFrameByTheRectanglesRule)
{
    QWidget window;
    auto *view = new QWidget(&window);
    view->setGeometry(30, 200, 90, 16);
    ControlRect bounds;
    EXPECT_EQ(GetControlBounds(view, &bounds), 0);
    EXPECT_TRUE(sameRect(bounds, 200, 30, 185, 119)) << bounds.bottom << " " << bounds.right;
}

TEST(ControlBounds, RoundTripEveryFrame)
{
    QWidget window;
    auto *view = new QWidget(&window);
    for (const QRect frame :
         {QRect(30, 200, 90, 16), QRect(0, 0, 1, 1), QRect(-5, -7, 20, 30), QRect(5, 3, 7, 99)}) {
        view->setGeometry(frame);
        ControlRect bounds;
        GetControlBounds(view, &bounds);
        view->setGeometry(1, 1, 1, 1);
        EXPECT_EQ(SetControlBounds(view, bounds), 0);
        EXPECT_EQ(view->geometry(), frame);
    }
}

TEST(ControlBounds, AreZeroForAnEmptyHandle)
{
    ControlRect bounds{.top = 1, .left = 2, .bottom = 3, .right = 4};
    EXPECT_EQ(GetControlBounds(nullptr, &bounds), 0);
    EXPECT_TRUE(sameRect(bounds, 0, 0, 0, 0));
    EXPECT_EQ(SetControlBounds(nullptr, bounds), 0);
}

TEST(ControlBounds, KeepTheSizeWhenAViewIsMoved)
{
    QWidget window;
    auto *view = new QWidget(&window);
    view->setGeometry(30, 200, 90, 16);
    EXPECT_EQ(MoveControl(view, -4, 55), 0);
    EXPECT_EQ(view->geometry(), QRect(-4, 55, 90, 16));
    EXPECT_EQ(MoveControl(nullptr, 1, 1), 0);
}

TEST(ControlText, IsShownAsItStands)
{
    QLabel label;
    QLineEdit line;
    const QString text = QStringLiteral("<b>50&amp;%</b> & 3\nBl\u00e4u");
    const QSignalSpy edited(&line, &QLineEdit::textChanged);
    EXPECT_EQ(SetTextControl(&label, makeString(text)), 0);
    EXPECT_EQ(label.text(), text);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    SetTextControl(&line, makeString(QStringLiteral("50%")));
    EXPECT_EQ(line.text(), QStringLiteral("50%"));
    EXPECT_EQ(edited.count(), 0);
}

TEST(ControlText, IsEmptyForAnAbsentString)
{
    QLabel label(QStringLiteral("former"));
    EXPECT_EQ(SetTextControl(&label, nullptr), 0);
    EXPECT_EQ(label.text(), QString());
}

TEST(ControlText, GoesToTextFieldsOnly)
{
    QPushButton button(QStringLiteral("Reload"));
    EXPECT_EQ(SetTextControl(&button, makeString(QStringLiteral("new"))), 0);
    EXPECT_EQ(button.text(), QStringLiteral("Reload"));
    EXPECT_EQ(SetTextControl(nullptr, makeString(QStringLiteral("new"))), 0);
}

TEST(ControlTabs, AreMarkedByPositionFromOne)
{
    TabView tabs;
    for (int i = 0; i < 3; ++i) {
        tabs.addTab(new QWidget, QString::number(i));
    }
    EXPECT_EQ(SetTabEnabled(&tabs, 1, true), 0);
    EXPECT_EQ(SetTabEnabled(&tabs, 3, false), 0);
    EXPECT_EQ(tabs.identifier(0), QStringLiteral("On"));
    EXPECT_TRUE(tabs.identifier(1).isNull());
    EXPECT_EQ(tabs.identifier(2), QStringLiteral("Off"));
    EXPECT_TRUE(tabs.isTabEnabled(2)) << "only the identifier is written";
    EXPECT_TRUE(tabs.widget(2)->isEnabled());
}

TEST(ControlTabs, IgnoreAnAbsentTab)
{
    TabView tabs;
    tabs.addTab(new QWidget, QStringLiteral("One"));
    for (const int n : {0, -1, 2, 7}) {
        EXPECT_EQ(SetTabEnabled(&tabs, n, false), 0);
    }
    EXPECT_TRUE(tabs.identifier(0).isNull());
    QWidget plain;
    EXPECT_EQ(SetTabEnabled(&plain, 1, true), 0);
    EXPECT_EQ(SetTabEnabled(nullptr, 1, true), 0);
}

TEST(ControlBar, TakesLevelAndColour)
{
    LevelBox bar;
    EXPECT_EQ(SetBarControlValue(&bar, 101), 0);
    EXPECT_EQ(bar.level(), 101);
    SetBarControlValue(&bar, -2000);
    EXPECT_EQ(bar.level(), -2000);
    EXPECT_EQ(SetBarColVal(&bar, 255, 128, 0), 0);
    EXPECT_EQ(bar.color().rgba(), qRgba(255, 128, 0, 255));
    EXPECT_FLOAT_EQ(bar.color().redF(), 1.0F);
    EXPECT_NEAR(bar.color().greenF(), 128.0 / 255.0, 1e-4);
    EXPECT_FLOAT_EQ(bar.color().alphaF(), 1.0F);
    QLabel label;
    EXPECT_EQ(SetBarControlValue(&label, 5), 0);
    EXPECT_EQ(SetBarColVal(nullptr, 1, 2, 3), 0);
}

class PaintCounter : public QWidget {
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent * /*event*/) override { ++paints; }
};

TEST(ControlDrawing, HappensAtOnce)
{
    PaintCounter view;
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    const int before = view.paints;
    EXPECT_EQ(Draw1Control(&view), 0);
    EXPECT_EQ(view.paints, before + 1) << "before any event is handled";
    view.hide();
    EXPECT_EQ(Draw1Control(&view), 0);
    EXPECT_EQ(view.paints, before + 1);
}

TEST(ControlLayer, IgnoresHandlesOfTheWrongKindInSilence)
{
    const CapturedLog log;
    QLabel label(QStringLiteral("text"));
    for (QWidget *view : {static_cast<QWidget *>(&label), static_cast<QWidget *>(nullptr)}) {
        EXPECT_EQ(SetSliderMinimum(view, 1), 0);
        EXPECT_EQ(SetSliderMaximum(view, 1), 0);
        EXPECT_EQ(SetSliderControlValue(view, 1), 0);
        EXPECT_EQ(GetSliderControlValue(view), 0);
        EXPECT_EQ(SetCheckButtonValue(view, 1), 0);
        EXPECT_EQ(GetCheckButtonValue(view), 0);
        EXPECT_EQ(GetComboControlValue(view), 0);
        EXPECT_EQ(SetComboControlValue(view, 1), 0);
        EXPECT_EQ(SelectComboControlEntryWithTag(view, 1), 0);
        EXPECT_EQ(Draw1Control(view), 0);
    }
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(label.text(), QStringLiteral("text"));
}

} // namespace
} // namespace tessarin::test
