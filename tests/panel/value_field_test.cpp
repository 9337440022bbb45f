// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The field for a value: how it opens, what Return, Escape and leaving it do, and that nothing else meets it.

#include "platform/view_tags.h"
#include "tests/panel/value_field.h"

#include <QShortcut>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

TEST_F(ValueField, OpensWithTheDigitsThatArePressed)
{
    EXPECT_EQ(openField(panel), nullptr);
    QTest::keyClick(panel.slider(0), Qt::Key_1);
    ASSERT_NE(openField(panel), nullptr);
    type("40");
    EXPECT_EQ(openField(panel)->text(), QStringLiteral("140"));
    EXPECT_EQ(panel.slider(0)->value(), 0);
    EXPECT_TRUE(log.lines().empty()) << "nothing is changed before Return";
    press(Qt::Key_Return);
    EXPECT_EQ(openField(panel), nullptr);
    EXPECT_EQ(panel.slider(0)->value(), 4);
    EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("140%"));
    EXPECT_TRUE(panel.slider(0)->hasFocus());
    const Lines byTyping = log.lines();
    slide(panel.slider(0), 0);
    log.clear();
    slide(panel.slider(0), 4);
    EXPECT_EQ(byTyping, log.lines());
    EXPECT_EQ(handedOver(panel).at("vornBrightness"), "20");
}

TEST_F(ValueField, OpensOverTheValueWithItSelected)
{
    QTest::keyClick(panel.slider(0), Qt::Key_F2);
    ASSERT_NE(openField(panel), nullptr);
    EXPECT_EQ(openField(panel)->selectedText(), QStringLiteral("100%"));
    EXPECT_TRUE(openField(panel)->geometry().intersects(panel.sliderText(0)->geometry()));
    EXPECT_EQ(openField(panel)->accessibleName(), QStringLiteral("Brightness"));
    type("95 %");
    press(Qt::Key_Enter);
    EXPECT_EQ(panel.slider(0)->value(), -1);
}

TEST_F(ValueField, OpensByADoubleClickOnTheValueText)
{
    QTest::mouseDClick(panel.sliderText(1), Qt::LeftButton);
    ASSERT_NE(openField(panel), nullptr);
    type("50");
    press(Qt::Key_Return);
    EXPECT_EQ(panel.slider(1)->value(), -10);
    EXPECT_EQ(panel.slider(0)->value(), 0);
}

TEST_F(ValueField, LeavesTheOtherMouseButtonsToTheValueText)
{
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseDClick(panel.sliderText(1), button);
        EXPECT_EQ(openField(panel), nullptr) << button;
    }
}

TEST_F(ValueField, TakesASign)
{
    panel.showPage(1);
    panel.slider(5)->setFocus();
    QTest::keyClick(panel.slider(5), Qt::Key_Minus);
    type("25");
    press(Qt::Key_Return);
    EXPECT_EQ(panel.sliderText(5)->text(), QStringLiteral("-25"));
}

TEST_F(ValueField, LeavesTheValueOnEscape)
{
    bool left = false;
    QShortcut shortcut(QKeySequence(Qt::Key_Escape), &panel.window, [&left] { left = true; });
    QTest::keyClick(panel.slider(0), Qt::Key_1);
    type("50");
    press(Qt::Key_Escape);
    EXPECT_EQ(openField(panel), nullptr);
    EXPECT_EQ(panel.slider(0)->value(), 0);
    EXPECT_TRUE(panel.slider(0)->hasFocus());
    EXPECT_TRUE(log.lines().empty());
    EXPECT_FALSE(left) << "the dialog's Escape is another one";
    QTest::keyClick(panel.slider(0), Qt::Key_Escape);
    EXPECT_TRUE(left);
}

TEST_F(ValueField, RefusesAValueInSightAndKeepsWhatWasTyped)
{
    for (const char *text : {"500", "abc", ""}) {
        QTest::keyClick(panel.slider(0), Qt::Key_F2);
        const QColor ground = openField(panel)->palette().color(QPalette::Base);
        press(Qt::Key_Delete);
        type(text);
        closeTip();
        press(Qt::Key_Return);
        ASSERT_NE(openField(panel), nullptr) << text;
        EXPECT_EQ(openField(panel)->text(), QString::fromUtf8(text));
        EXPECT_NE(openField(panel)->palette().color(QPalette::Base), ground);
        EXPECT_TRUE(QToolTip::isVisible());
        EXPECT_EQ(QToolTip::text(), QStringLiteral("Enter a value from 50% to 200%."));
        EXPECT_EQ(panel.slider(0)->value(), 0);
        type("9");
        EXPECT_EQ(openField(panel)->palette().color(QPalette::Base), ground) << "until it is typed again";
        press(Qt::Key_Escape);
    }
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(handedOver(panel).at("vornBrightness"), "0");
}

TEST_F(ValueField, TakesTheValueWhenItIsLeft)
{
    QTest::keyClick(panel.slider(0), Qt::Key_7);
    type("0");
    panel.slider(1)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(openField(panel), nullptr);
    EXPECT_EQ(panel.slider(0)->value(), -6);
    EXPECT_TRUE(panel.slider(1)->hasFocus());
}

TEST_F(ValueField, StaysWhenItIsLeftWithAValueThatIsRefused)
{
    QTest::keyClick(panel.slider(0), Qt::Key_7);
    const QColor ground = openField(panel)->palette().color(QPalette::Base);
    panel.slider(1)->setFocus(Qt::TabFocusReason);
    ASSERT_NE(openField(panel), nullptr);
    EXPECT_EQ(openField(panel)->text(), QStringLiteral("7"));
    EXPECT_NE(openField(panel)->palette().color(QPalette::Base), ground);
    EXPECT_EQ(panel.slider(0)->value(), 0);
    openField(panel)->setFocus();
    openField(panel)->end(false);
    type("0");
    press(Qt::Key_Return);
    EXPECT_EQ(panel.slider(0)->value(), -6);
    QTest::keyClick(panel.slider(0), Qt::Key_7);
    EXPECT_EQ(handedOver(panel).at("vornBrightness"), "-30");
    EXPECT_EQ(openField(panel), nullptr) << "what is refused does not stand beside settings that are saved";
}

TEST_F(ValueField, IsNotOpenedForADisabledSlider)
{
    panel.slider(0)->setEnabled(false);
    QTest::keyClick(panel.slider(0), Qt::Key_1);
    QTest::mouseDClick(panel.sliderText(0), Qt::LeftButton);
    EXPECT_EQ(openField(panel), nullptr);
}

TEST_F(ValueField, IsFoundByNoTagAndGoneWhenClosed)
{
    QWidget *page = panel.slider(0)->parentWidget();
    const auto controls = page->findChildren<QWidget *>();
    QTest::keyClick(panel.slider(0), Qt::Key_F2);
    EXPECT_EQ(page->children().last(), openField(panel)) << "behind all that look-ups come past";
    EXPECT_EQ(tagOf(openField(panel)), -1);
    panel.open(); // the host asks for the view again
    ASSERT_NE(openField(panel), nullptr);
    EXPECT_EQ(openField(panel)->text(), QStringLiteral("100%"));
    press(Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(page->findChildren<QWidget *>(), controls);
}

} // namespace
} // namespace tessarin::test
