// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Which position a typed value is.

#include "controls/control_tables.h"
#include "controls/typed_value.h"
#include "tests/support/panel_session.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr int kBrightness = 0;
constexpr int kReferenceLight = 2;
constexpr int kGreyToneA = 5;
constexpr int kIntensity = 11;

std::optional<int> typed(int row, const char *text)
{
    return typedPosition(row, QString::fromUtf8(text));
}

TEST(TypedValue, IsEveryValueThatASliderShows)
{
    const PanelSession session; // makes the format strings
    for (int row = 0; row < 20; ++row) {
        const ScrollRow &slider = Scrolls[static_cast<std::size_t>(row)];
        for (int position = slider.minimum; position <= slider.maximum; ++position) {
            EXPECT_EQ(typedPosition(row, valueText(row, position)), position) << row;
        }
    }
}

TEST(TypedValue, MayHaveItsUnitOrNot)
{
    for (const char *text : {"95", "95%", "95 %", " 95  % ", "+95", "095", "９５％"}) {
        EXPECT_EQ(typed(kBrightness, text), -1) << text;
    }
    for (const char *text : {"65", "D65", "d65", "D 65"}) {
        EXPECT_EQ(typed(kReferenceLight, text), 3) << text;
    }
    for (const char *text : {"-5", "\u22125"}) {
        EXPECT_EQ(typed(kGreyToneA, text), -1) << text;
    }
    EXPECT_EQ(typed(kGreyToneA, "5"), 1);
}

TEST(TypedValue, BetweenTwoStepsIsTheNearestTheLargerOfTwo)
{
    EXPECT_EQ(typed(kBrightness, "104"), 0);
    EXPECT_EQ(typed(kBrightness, "105"), 1);
    EXPECT_EQ(typed(kBrightness, "92"), -2);
    EXPECT_EQ(typed(kBrightness, "93"), -1);
    EXPECT_EQ(typed(kIntensity, "14"), -1);
    EXPECT_EQ(typed(kIntensity, "15"), -2);
}

TEST(TypedValue, OutOfRangeIsNone)
{
    EXPECT_EQ(typed(kBrightness, "50"), -10);
    EXPECT_EQ(typed(kBrightness, "49"), std::nullopt);
    EXPECT_EQ(typed(kBrightness, "200"), 10);
    EXPECT_EQ(typed(kBrightness, "201"), std::nullopt);
    EXPECT_EQ(typed(kIntensity, "80"), -8);
    EXPECT_EQ(typed(kIntensity, "81"), std::nullopt);
    EXPECT_EQ(typed(kIntensity, "-1"), std::nullopt);
    EXPECT_EQ(typed(kReferenceLight, "49"), std::nullopt);
}

TEST(TypedValue, ThatIsNoNumberIsNone)
{
    for (const char *text :
         {"", "%", "abc", "9 5", "95 %%", "95x", "D95", "1e2", "95.5", "99999999999", "--5", "+"}) {
        EXPECT_EQ(typed(kBrightness, text), std::nullopt) << text;
    }
    EXPECT_EQ(typed(kReferenceLight, "65%"), std::nullopt);
    EXPECT_EQ(typed(kGreyToneA, "5%"), std::nullopt);
}

} // namespace
} // namespace tessarin::test
