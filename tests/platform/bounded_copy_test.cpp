// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/bounded_copy.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tessarin {
namespace {

TEST(BoundedCopy, CopiesAndTerminatesATextThatFits)
{
    std::array<char, 6> buffer{'#', '#', '#', '#', '#', '#'};
    copyBounded(buffer, "abc");
    EXPECT_EQ(std::string(buffer.data(), buffer.size()), std::string("abc\0##", 6)) << "the rest is left alone";
    copyBounded(buffer, "12345");
    EXPECT_EQ(std::string(buffer.data(), buffer.size()), std::string("12345\0", 6)) << "exactly full";
}

TEST(BoundedCopy, CutsToTheSizeLessOne)
{
    std::array<char, 6> buffer{};
    copyBounded(buffer, "123456");
    EXPECT_EQ(std::string(buffer.data(), buffer.size()), std::string("12345\0", 6));
    copyBounded(buffer, std::string(1000, 'x'));
    EXPECT_STREQ(buffer.data(), "xxxxx");
}

TEST(BoundedCopy, CutsAtTheByte)
{
    std::array<char, 3> buffer{};
    copyBounded(buffer, "a\xC3\xA4z");
    EXPECT_STREQ(buffer.data(), "a\xC3");
}

TEST(BoundedCopy, OfAnEmptyTextEmptiesTheBuffer)
{
    std::array<char, 3> buffer{'a', 'b', 'c'};
    copyBounded(buffer, "");
    EXPECT_STREQ(buffer.data(), "");
    EXPECT_EQ(buffer[1], 'b');
    copyBounded(buffer, {});
    EXPECT_STREQ(buffer.data(), "");
}

TEST(BoundedCopy, NeverWritesBeyondTheBuffer)
{
    std::array<char, 4> memory{'#', '#', '#', '#'};
    copyBounded(std::span<char>(memory).first(0), "abc");
    EXPECT_EQ(std::string(memory.data(), memory.size()), "####") << "no room, not even for the end";
    copyBounded(std::span<char>(memory).first(1), "abc");
    EXPECT_EQ(std::string(memory.data(), memory.size()), std::string("\0###", 4)) << "room for the end alone";
    copyBounded(std::span<char>(memory).first(3), "abc");
    EXPECT_EQ(std::string(memory.data(), memory.size()), std::string("ab\0#", 4));
}

} // namespace
} // namespace tessarin
