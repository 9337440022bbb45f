// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The table of ink channels and the order in which the rows show them.

#include "ink/channel_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tessarin::test {
namespace {

struct ExpectedChannel {
    const char *code;
    const char *name;
    int red;
    int green;
    int blue;
};

constexpr std::array<ExpectedChannel, 20> kExpectedChannels{{
    {"K", "Black", 0, 0, 0},
    {"KP", "Photo Black", 0, 0, 0},
    {"K3", "Grey", 100, 100, 100},
    {"K4", "bright Grey", 150, 150, 150},
    {"Y", "Yellow", 255, 255, 0},
    {"M", "Magenta", 255, 0, 255},
    {"C", "Cyan", 0, 255, 255},
    {"M2", "bright Mag.", 255, 150, 255},
    {"C2", "bright Cyan", 160, 255, 255},
    {"Y2", "br. Yellow", 255, 255, 100},
    {"R", "Red", 255, 0, 0},
    {"G", "Green", 0, 255, 0},
    {"B", "Blue", 0, 0, 255},
    {"O", "Optimizer", 150, 150, 150},
    {"OR", "Orange", 255, 128, 0},
    {"O", "Violet", 255, 0, 128},
    {"KR", "PG Black", 0, 0, 0},
    {"KM", "Matte Black", 0, 0, 0},
    {"KG", "Photo Black", 0, 0, 0},
    {"K2", "dark Grey", 50, 50, 50},
}};

TEST(ChannelTable, HasTwentyChannels)
{
    ASSERT_EQ(inklevels.size(), 21U);
    for (std::size_t channel = 0; channel < 20; ++channel) {
        SCOPED_TRACE(channel);
        const InkChannel &row = inklevels.at(channel);
        const ExpectedChannel &expected = kExpectedChannels.at(channel);
        EXPECT_STREQ(row.code, expected.code);
        EXPECT_STREQ(row.name, expected.name);
        EXPECT_EQ(row.red, expected.red);
        EXPECT_EQ(row.green, expected.green);
        EXPECT_EQ(row.blue, expected.blue);
    }
}

TEST(ChannelTable, EndsWithABlankRowWithoutCode)
{
    const InkChannel &row = inklevels.at(20);
    EXPECT_EQ(row.code, nullptr);
    EXPECT_STREQ(row.name, " ");
    EXPECT_EQ(row.red, 0);
    EXPECT_EQ(row.green, 0);
    EXPECT_EQ(row.blue, 0);
}

TEST(ChannelTable, ShowsBlacksFirstAndTheEndRowLast)
{
    EXPECT_THAT(colorOrder,
                testing::ElementsAre(0, 1, 16, 17, 18, 2, 3, 19, 4, 9, 5, 7, 6, 8, 10, 11, 12, 13, 14, 15, 20));
}

TEST(ChannelTable, FindsTheFirstChannelOfACode)
{
    for (int channel = 0; channel < 20; ++channel) {
        const char *code = kExpectedChannels.at(static_cast<std::size_t>(channel)).code;
        EXPECT_EQ(findInkChannel(code), channel == 15 ? 13 : channel) << code;
    }
}

TEST(ChannelTable, FindsNoChannelOfAnotherCode)
{
    for (const char *code : {"", " ", "=", "k", "Kx", "K ", " K", "K1", "KPX", "OO", "V", "P", "4"}) {
        EXPECT_EQ(findInkChannel(code), -1) << "'" << code << "'";
    }
}

} // namespace
} // namespace tessarin::test
