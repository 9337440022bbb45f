// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What becomes of a value that is being typed when the slider, the page, the settings or the panel change
// meanwhile.

#include "tests/panel/value_field.h"

#include <QSignalBlocker>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

TEST_F(ValueField, TakesNothingThatNobodyTyped)
{
    for (const bool isLeft : {true, false}) {
        QTest::keyClick(panel.slider(0), Qt::Key_F2);
        {
            const QSignalBlocker unseen(panel.slider(0));
            panel.slider(0)->setValue(2);
        }
        isLeft ? panel.slider(1)->setFocus(Qt::TabFocusReason) : press(Qt::Key_Return);
        EXPECT_EQ(openField(panel), nullptr);
        EXPECT_EQ(panel.slider(0)->value(), 2);
        panel.slider(0)->setFocus();
        slide(panel.slider(0), 0);
    }
}

TEST_F(ValueField, TakesWhatAssistiveTechnologyPutsThere)
{
    QTest::keyClick(panel.slider(0), Qt::Key_F2);
    openField(panel)->setText(QStringLiteral("150"));
    press(Qt::Key_Return);
    EXPECT_EQ(panel.slider(0)->value(), 5);
}

TEST_F(ValueField, GivesWayToTheSliderThatIsMoved)
{
    QTest::keyClick(panel.slider(0), Qt::Key_F2);
    turnWheel(panel.slider(0), 1);
    const int turned = panel.slider(0)->value();
    EXPECT_NE(turned, 0);
    EXPECT_EQ(openField(panel), nullptr);
    QTest::keyClick(panel.slider(0), Qt::Key_7);
    type("0");
    slide(panel.slider(1), 3);
    EXPECT_NE(openField(panel), nullptr) << "another slider's field stays";
    slide(panel.slider(0), 8);
    EXPECT_EQ(openField(panel), nullptr);
    EXPECT_EQ(handedOver(panel).at("vornBrightness"), "40");
}

TEST_F(ValueField, GivesWayToSettingsThatAreRestored)
{
    for (const char *text : {"", "70"}) {
        panel.host->mark("vornBrightness", "0");
        panel.panel->restoreValuesAndReturnError(nullptr);
        QTest::keyClick(panel.slider(0), Qt::Key_F2);
        type(text);
        panel.host->mark("vornBrightness", "25");
        panel.panel->restoreValuesAndReturnError(nullptr);
        EXPECT_EQ(openField(panel), nullptr) << text;
        EXPECT_EQ(handedOver(panel).at("vornBrightness"), "25") << text;
        EXPECT_EQ(panel.sliderText(0)->text(), QStringLiteral("150%")) << text;
    }
}

TEST_F(ValueField, DoesNotStayOnAPageThatIsLeft)
{
    QTest::keyClick(panel.slider(0), Qt::Key_1);
    type("50");
    panel.slider(1)->setFocus(Qt::ActiveWindowFocusReason); // after which the field stays
    ASSERT_NE(openField(panel), nullptr);
    panel.showPage(1);
    EXPECT_EQ(openField(panel), nullptr);
    EXPECT_EQ(panel.slider(0)->value(), 5);
    for (const bool hasFocus : {true, false}) {
        panel.showPage(0);
        panel.slider(0)->setFocus();
        QTest::keyClick(panel.slider(0), Qt::Key_5);
        type("00");
        if (!hasFocus) {
            panel.slider(1)->setFocus(Qt::TabFocusReason);
        }
        ASSERT_NE(openField(panel), nullptr);
        closeTip();
        panel.showPage(1);
        EXPECT_EQ(openField(panel), nullptr);
        EXPECT_EQ(panel.slider(0)->value(), 5);
        EXPECT_FALSE(QToolTip::isVisible()) << "on a page where nothing is typed";
    }
}

TEST_F(ValueField, TakesTheValueWhenTheSettingsAreSaved)
{
    QTest::keyClick(panel.slider(0), Qt::Key_1);
    type("50");
    closeTip();
    EXPECT_EQ(handedOver(panel).at("vornBrightness"), "25");
    EXPECT_EQ(openField(panel), nullptr);
    EXPECT_FALSE(QToolTip::isVisible());
}

TEST_F(ValueField, IsTakenBeforeTheSavingBegins)
{
    QTest::keyClick(panel.slider(0), Qt::Key_1);
    type("50");
    log.clear();
    handedOver(panel);
    const Lines lines = log.lines();
    const auto starting = [&lines](const char *start) {
        return std::find_if(lines.begin(), lines.end(),
                            [start](const std::string &line) { return line.starts_with(start); });
    };
    ASSERT_NE(starting("LOG scrollCallback"), lines.end());
    EXPECT_LT(starting("LOG scrollCallback"), starting("BEGIN "));
}

TEST_F(ValueField, SaysSoWhenTheSettingsAreSavedWithoutIt)
{
    QTest::keyClick(panel.slider(0), Qt::Key_5);
    type("00");
    closeTip();
    EXPECT_EQ(handedOver(panel).at("vornBrightness"), "0");
    EXPECT_EQ(openField(panel), nullptr);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Enter a value from 50% to 200%."));
    closeTip();
    QTest::keyClick(panel.slider(0), Qt::Key_F2);
    handedOver(panel);
    EXPECT_FALSE(QToolTip::isVisible()) << "nothing was typed";
}

TEST_F(ValueField, EndsWithThePanel)
{
    QTest::keyClick(panel.slider(0), Qt::Key_1);
    type("50");
    const QPointer<QLineEdit> field = openField(panel);
    panel.plugIn.reset();
    panel.panels.reset();
    EXPECT_TRUE(field.isNull());
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 0);
}

TEST_F(ValueField, MayGoWithAViewThatTheHostDeletes)
{
    QTest::keyClick(panel.slider(0), Qt::Key_1);
    type("50");
    const QPointer<QLineEdit> field = openField(panel);
    delete panel.panel->contentView();
    EXPECT_TRUE(field.isNull());
    EXPECT_EQ(log.countStarting("LOG scrollCallback"), 0);
    EXPECT_EQ(handedOver(panel).at("vornBrightness"), "0");
}

} // namespace
} // namespace tessarin::test
