// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The value that is shown beside a slider.

#include "controls/sliders.h"

#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "platform/formatter.h"
#include "platform/view_tags.h"
#include "tests/controls/controls_test_support.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

/// What the slider table's row shows at a position; makes the format strings first.
class ShownValue : public testing::Test {
protected:
    static std::string shown(int row, int position)
    {
        return toQString(CreateScrollValueCFString(row, position)).toStdString();
    }

    Record record;
};

struct Shown {
    int row, position;
    const char *text;
};

TEST_F(ShownValue, IsHalvedBelowTheCentreWhereTheTableSaysSo)
{
    for (const Shown &c : std::vector<Shown>{{0, -10, "50%"},
                                             {0, -9, "55%"},
                                             {0, -1, "95%"},
                                             {0, 0, "100%"},
                                             {0, 1, "110%"},
                                             {0, 10, "200%"},
                                             {3, -5, "50%"},
                                             {3, -4, "60%"},
                                             {3, -1, "90%"},
                                             {3, 5, "200%"},
                                             {7, -5, "0%"},
                                             {7, -1, "40%"},
                                             {16, -10, "-50%"},
                                             {16, -1, "-5%"}}) {
        EXPECT_EQ(shown(c.row, c.position), c.text) << c.row << " at " << c.position;
    }
}

TEST_F(ShownValue, FallsFromEightyToZeroForTheInkIntensity)
{
    EXPECT_EQ(shown(11, -8), "80%");
    EXPECT_EQ(shown(11, -3), "30%");
    EXPECT_EQ(shown(11, 0), "0%");
    EXPECT_EQ(shown(11, 1), "-5%") << "its halving would begin where no position is";
}

TEST_F(ShownValue, HasSignOrLetterAsTheFormatSays)
{
    EXPECT_EQ(shown(5, 0), "+0");
    EXPECT_EQ(shown(5, 3), "+15");
    EXPECT_EQ(shown(6, -10), "-50");
    EXPECT_EQ(shown(2, 0), "D50");
    EXPECT_EQ(shown(2, 3), "D65");
    EXPECT_EQ(shown(2, -10), "D0") << "of a printer without the option";
    EXPECT_EQ(shown(0, 12), "220%") << "also beyond the slider's range";
}

/// Changes the first row for the length of a scope.
class FirstRow : public ShownValue {
protected:
    ~FirstRow() override { Scrolls[0] = before; }

    ScrollRow before = Scrolls[0];
};

TEST_F(FirstRow, IsHalvedTowardMinusInfinity)
{
    Scrolls[0].shownFactor = 1.0F;
    Scrolls[0].shownBase = 0;
    EXPECT_EQ(shown(0, -5), "-3%");
    EXPECT_EQ(shown(0, -4), "-2%");
    EXPECT_EQ(shown(0, -1), "-1%");
    EXPECT_EQ(shown(0, 5), "5%");
    Scrolls[0].halveNegative = 0;
    EXPECT_EQ(shown(0, -5), "-5%");
    Scrolls[0].halveNegative = 2;
    EXPECT_EQ(shown(0, -5), "-5%") << "only 1 halves";
}

TEST_F(FirstRow, IsCutTowardZeroBeforeItIsHalved)
{
    Scrolls[0].shownFactor = 0.7F;
    Scrolls[0].shownBase = 0;
    EXPECT_EQ(shown(0, 9), "6%");   // 6.3
    EXPECT_EQ(shown(0, -9), "-3%"); // -6.3, -6, -3
    EXPECT_EQ(shown(0, -1), "0%");  // -0.7, 0
    EXPECT_EQ(shown(0, -8), "-3%"); // -5.6, -5, -3
}

TEST_F(FirstRow, IsReckonedInSinglePrecision)
{
    Scrolls[0].shownFactor = 1.0F;
    Scrolls[0].shownBase = 0;
    EXPECT_EQ(shown(0, 16777217), "16777216%");
    Scrolls[0].shownFactor = 10.0F;
    EXPECT_EQ(shown(0, 2147483647), "2147483647%") << "kept in its range";
}

TEST_F(ShownValue, IsAbsentForARowThatIsNotThere)
{
    EXPECT_EQ(CreateScrollValueCFString(-1, 0), nullptr);
    EXPECT_EQ(CreateScrollValueCFString(20, 0), nullptr);
}

class SliderText : public testing::Test {
protected:
    SliderText()
    {
        slider.setRange(-10, 10);
        link(0);
    }

    void link(std::int32_t row)
    {
        SetControlProperty(&text, kControlSignature, kValueTextProperty, sizeof row, &row);
        const qintptr handle = handleOf(&text);
        SetControlProperty(&slider, kControlSignature, kValueTextProperty, sizeof handle, &handle);
    }

    Record record;
    QSlider slider;
    QLabel text;
    CapturedLog log;
    StableAddresses stable;
};

TEST_F(SliderText, ShowsThePositionAndLogsEveryStep)
{
    slider.setValue(-1);
    SetScrollValue(&slider);
    EXPECT_EQ(text.text(), QStringLiteral("95%"));
    EXPECT_EQ(log.lines(), logged({
                               "SetScrollValue\n",
                               "SetScrollValue - CtrlProperty = 0\n",
                               "SetScrollValue - CtrlRef = 0\n",
                               "min=-10.000000 max=10.000000\n",
                               "currentValue = -1\n",
                               "mark1\n",
                               "mark2\n",
                               "mark3\n",
                           }));
}

TEST_F(SliderText, LogsTheTextFieldsHandleCutToANumber)
{
    setStableAddresses(false);
    SetScrollValue(&slider);
    const auto handle = static_cast<std::int32_t>(handleOf(&text));
    EXPECT_TRUE(log.contains("LOG SetScrollValue - CtrlProperty = " + std::to_string(handle) + "\n"));
}

TEST_F(SliderText, FollowsTheRowInTheTextFieldsTag)
{
    link(2);
    slider.setValue(3);
    SetScrollValue(&slider);
    EXPECT_EQ(text.text(), QStringLiteral("D65")) << "whatever slider it is";
    EXPECT_TRUE(log.contains("LOG SetScrollValue - CtrlRef = 2\n"));
}

TEST_F(SliderText, EnablesTheSliderEveryTime)
{
    slider.setEnabled(false);
    SetScrollValue(&slider);
    EXPECT_TRUE(slider.isEnabled());
    slider.setEnabled(false);
    SetScrollValue(&slider);
    EXPECT_TRUE(slider.isEnabled());
}

TEST_F(SliderText, IsWrittenNowhereWithoutATextField)
{
    const qintptr none = 0;
    SetControlProperty(&slider, kControlSignature, kValueTextProperty, sizeof none, &none);
    slider.setEnabled(false);
    SetScrollValue(&slider);
    EXPECT_TRUE(slider.isEnabled());
    EXPECT_EQ(text.text(), QString());
    EXPECT_EQ(log.lines(), logged(slideMessages(0, "min=-10.000000 max=10.000000\n", 0)));
}

TEST_F(SliderText, TakesASlidersIdForNoTextField)
{
    setTagOf(&slider, 4101); // moved before its page was set up
    SetScrollValue(&slider);
    EXPECT_EQ(text.text(), QString());
    EXPECT_TRUE(log.contains("LOG mark3\n"));
}

TEST_F(SliderText, NeedsASlider)
{
    SetScrollValue(nullptr);
    SetScrollValue(&text);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(SliderText, RaisesNoEvent)
{
    const QSignalSpy moved(&slider, &QSlider::valueChanged);
    SetScrollValue(&slider);
    EXPECT_EQ(moved.count(), 0);
}

TEST(ValueText, IsTheNumberOrOneBlank)
{
    QLabel field;
    for (const auto &[value, text] : std::vector<std::pair<int, const char *>>{
             {0, "0"}, {12, "12"}, {2147483647, "2147483647"}, {-1, " "}, {-2147483647 - 1, " "}}) {
        setValueText(&field, value);
        EXPECT_EQ(field.text(), QLatin1String(text)) << value;
    }
    setValueText(nullptr, 5);
}

TEST(ControlPosition, IsCorrectedInHeightAlone)
{
    QWidget window;
    auto *label = new QLabel(&window);
    label->setGeometry(40, 200, 90, 16);
    for (const int top : {84, 0, -3, 300}) {
        CorrectControlPosition(label, top);
        EXPECT_EQ(label->geometry(), QRect(40, top, 90, 16));
    }
    CorrectControlPosition(nullptr, 5);
}

TEST(ColorSliders, AreTheFourOfTheCorrection)
{
    PanelSession session(ppdFixture("minimal"));
    session.open();
    CapturedLog log;
    for (int number = 0; number < 20; ++number) {
        session.slider(number)->setEnabled(false);
    }
    enableColControls(session.context(), 1);
    for (int number = 0; number < 20; ++number) {
        EXPECT_EQ(isOn(session.slider(number)), number >= 16) << number;
    }
    for (int number = 0; number < 20; ++number) {
        session.slider(number)->setEnabled(true);
    }
    enableColControls(session.context(), 0);
    for (int number = 0; number < 20; ++number) {
        EXPECT_EQ(isOn(session.slider(number)), number < 16) << number;
    }
    EXPECT_EQ(log.lines(), logged({"colors enabled\n", "colors disabled\n"}));
}

TEST(ColorSliders, AreLoggedWithoutASlider)
{
    const Record record;
    CapturedLog log;
    enableColControls(record, 255);
    enableColControls(record, -1);
    enableColControls(record, 0);
    EXPECT_EQ(log.lines(), logged({"colors enabled\n", "colors enabled\n", "colors disabled\n"}));
}

TEST(OneSlider, IsEnabledAndDisabled)
{
    QSlider slider;
    enableSlider(&slider, false);
    EXPECT_FALSE(slider.isEnabled());
    enableSlider(&slider, true);
    EXPECT_TRUE(slider.isEnabled());
    enableSlider(nullptr, true);
}

} // namespace
} // namespace tessarin::test
