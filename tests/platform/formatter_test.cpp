// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/formatter.h"

#include <gtest/gtest.h>

#include <array>

namespace tessarin {
namespace {

template <typename... Arguments>
std::string format(std::string_view text, const Arguments &...arguments)
{
    return formatText(text, std::array<FormatArgument, sizeof...(arguments)>{arguments...});
}

TEST(Formatter, WritesEachConversionLikeTheCLibrary)
{
    EXPECT_EQ(format("%d|%i|%u|%x|%X|%o", -5, 6, 7, 255, 255, 8), "-5|6|7|ff|FF|10");
    EXPECT_EQ(format("%+d|% d|%5d|%-5d|%05d|%.3d", 5, 5, 5, 5, -5, 5), "+5| 5|    5|5    |-0005|005");
    EXPECT_EQ(format("%f|%.2f|%+.1f", -10.0, 2.555, 1.25), "-10.000000|2.56|+1.2");
    EXPECT_EQ(format("%s|%.2s|%5s|%-5s|", "abc", "abc", "ab", "ab"), "abc|ab|   ab|ab   |");
    EXPECT_EQ(format("100%%"), "100%");
}

TEST(Formatter, WritesNullTextsObjectsAndPointers)
{
    const char *none = nullptr;
    const void *nowhere = nullptr;
    EXPECT_EQ(format("%s %@ %p", none, ObjectText{}, nowhere), "(null) (null) 0x0");
    EXPECT_EQ(format("%.100s", none), "(null)");
}

TEST(Formatter, WritesAPointerInLowerCaseHexadecimal)
{
    EXPECT_EQ(format("%p", reinterpret_cast<const void *>(0xAB12)), "0xab12");
}

TEST(Formatter, LeavesConversionsWithoutArgumentAsTheyStand)
{
    EXPECT_EQ(format("%d %s %@ %n %S %", 1), "1 %s %@ %n %S %");
    EXPECT_EQ(format("%n%s"), "%n%s");
    EXPECT_EQ(format("50% of"), "50% of");
}

TEST(Formatter, LeavesAConversionOfAnotherKindAndTakesItsArgument)
{
    EXPECT_EQ(format("%s|%d", 1, 2), "%s|2");
    EXPECT_EQ(format("%d|%s", "text", "next"), "%d|next");
}

TEST(Formatter, LimitsAWidthFromOutside)
{
    EXPECT_EQ(format("%999999999d", 1).size(), 4096U);
}

TEST(Formatter, StableAddressesHideWhatDiffersBetweenBuilds)
{
    setStableAddresses(true);
    EXPECT_EQ(format("%p %p %d", reinterpret_cast<const void *>(0x10), static_cast<const void *>(nullptr),
                     HandleNumber{77}),
              "0xP 0x0 0");
    EXPECT_EQ(describeObject("Thing", reinterpret_cast<const void *>(0x10)).description, "<Thing: 0xP>");
    setStableAddresses(false);
    EXPECT_EQ(format("%d", HandleNumber{77}), "77");
}

} // namespace
} // namespace tessarin
