// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <string>

namespace tessarin {
namespace {

constexpr std::int32_t kLeast = -2147483647 - 1;
constexpr std::int32_t kGreatest = 2147483647;

TEST(Numbers, ReadsAnIntegerAtTheStartOfAText)
{
    struct Case {
        const char *text;
        std::int32_t number;
    };
    constexpr Case cases[] = {
        {"0", 0},     {"7", 7},     {"-13", -13}, {"+5", 5},          {"1200dpi", 1200}, {"-5x", -5},
        {"007", 7},   {"-0", 0},    {"  42", 42}, {"\t\n\v\f\r9", 9}, {" -8 ", -8},      {"1 2", 1},
        {"12.9", 12}, {"1,000", 1}, {"0x10", 0},  {"3-4", 3},
    };
    for (const Case &entry : cases) {
        EXPECT_EQ(readInteger(entry.text), entry.number) << '"' << entry.text << '"';
    }
}

TEST(Numbers, ReadsNothingWhereThereIsNoDigit)
{
    for (const char *text : {"", " ", "-", "+", "--1", "+-1", "- 1", "x1000", "Auto", ".5",
                             "\xC2\xA0"
                             "5"}) {
        EXPECT_EQ(readInteger(text), std::nullopt) << '"' << text << '"';
    }
}

TEST(Numbers, ReadsNoFurtherThanTheEndOfTheText)
{
    EXPECT_EQ(readInteger(std::string_view("12345").substr(0, 3)), 123);
    EXPECT_EQ(readInteger(std::string_view("-5").substr(0, 1)), std::nullopt);
    EXPECT_EQ(readInteger(std::string_view("1\0002", 3)), 1) << "a zero byte ends the number";
}

TEST(Numbers, GiveTheNearestEndOfTheRangeBeyondThirtyTwoBits)
{
    struct Case {
        const char *text;
        std::int32_t number;
    };
    constexpr Case cases[] = {
        {"2147483647", kGreatest},
        {"2147483648", kGreatest},
        {"-2147483648", kLeast},
        {"-2147483649", kLeast},
        {"4294967296", kGreatest},
        {"9223372036854775808", kGreatest},
        {"-99999999999999999999999999", kLeast},
        {"0000000000000000000000000000000012", 12},
    };
    for (const Case &entry : cases) {
        EXPECT_EQ(readInteger(entry.text), entry.number) << entry.text;
    }
    EXPECT_EQ(readInteger(std::string(100000, '9')), kGreatest);
}

TEST(Numbers, AreLimitedToThirtyTwoBits)
{
    EXPECT_EQ(clampToInt32(0), 0);
    EXPECT_EQ(clampToInt32(2147483647LL), kGreatest);
    EXPECT_EQ(clampToInt32(2147483648LL), kGreatest);
    EXPECT_EQ(clampToInt32(-2147483648LL), kLeast);
    EXPECT_EQ(clampToInt32(-2147483649LL), kLeast);
    EXPECT_EQ(clampToInt32(9223372036854775807LL), kGreatest);
    EXPECT_EQ(clampToInt32(-9223372036854775807LL - 1), kLeast);
}

TEST(Numbers, AreLimitedToSixteenBits)
{
    EXPECT_EQ(clampToInt16(-7), -7);
    EXPECT_EQ(clampToInt16(32767), 32767);
    EXPECT_EQ(clampToInt16(32768), 32767);
    EXPECT_EQ(clampToInt16(-32768), -32768);
    EXPECT_EQ(clampToInt16(-32769), -32768);
    EXPECT_EQ(clampToInt16(9223372036854775807LL), 32767);
}

} // namespace
} // namespace tessarin
