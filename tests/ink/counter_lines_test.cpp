// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The line reader: the same text from a file and from memory.

#include "ink/counter_text.h"
#include "platform/files.h"
#include "tests/ppd/ppd_test_support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace tessarin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Lines linesFromFile(std::string_view text)
{
    const TextFile source(text);
    const FileHandle file = openForReading(source.path().c_str());
    std::array<char, 256> buffer{};
    Lines lines;
    while (char *line = myGets(buffer.data(), 256, file.get(), nullptr, nullptr)) {
        EXPECT_EQ(line, buffer.data());
        lines.emplace_back(line);
    }
    return lines;
}

Lines linesFromMemory(std::string_view text)
{
    const char *cursor = text.data();
    std::size_t remaining = text.size();
    std::array<char, 256> buffer{};
    Lines lines;
    while (char *line = myGets(buffer.data(), 256, nullptr, &cursor, &remaining)) {
        EXPECT_EQ(line, buffer.data());
        EXPECT_EQ(cursor + remaining, text.data() + text.size());
        lines.emplace_back(line);
        if (lines.size() > text.size()) {
            ADD_FAILURE() << "the reader makes no progress";
            break;
        }
    }
    return lines;
}

std::string filled(std::size_t count)
{
    return std::string(count, 'x');
}

TEST(LinesFromAFile, KeepTheirLineEnds)
{
    EXPECT_THAT(linesFromFile("a\nbb\n"), ElementsAre("a\n", "bb\n"));
    EXPECT_THAT(linesFromFile("a\r\nbb\r\n"), ElementsAre("a\r\n", "bb\r\n"));
    EXPECT_THAT(linesFromFile("a\rbb\r"), ElementsAre("a\r", "bb\r"));
    EXPECT_THAT(linesFromFile("a\nb\rc\r\nd"), ElementsAre("a\n", "b\r", "c\r\n", "d"));
}

TEST(LinesFromAFile, MayEndWithoutALineEnd)
{
    EXPECT_THAT(linesFromFile("a\nbb"), ElementsAre("a\n", "bb"));
    EXPECT_THAT(linesFromFile("a\r"), ElementsAre("a\r"));
}

TEST(LinesFromAFile, MayBeEmpty)
{
    EXPECT_THAT(linesFromFile("\n\na\n"), ElementsAre("\n", "\n", "a\n"));
    EXPECT_THAT(linesFromFile("\r\r\n\n"), ElementsAre("\r", "\r\n", "\n"));
}

TEST(LinesFromAFile, AreNoneOfAnEmptyFile)
{
    EXPECT_THAT(linesFromFile(""), IsEmpty());
}

TEST(LinesFromAFile, ComeInPiecesOf255Characters)
{
    EXPECT_THAT(linesFromFile(filled(254) + "\ny\n"), ElementsAre(filled(254) + "\n", "y\n"));
    EXPECT_THAT(linesFromFile(filled(255) + "\ny\n"), ElementsAre(filled(255), "\n", "y\n"));
    EXPECT_THAT(linesFromFile(filled(256) + "\ny\n"), ElementsAre(filled(255), "x\n", "y\n"));
    EXPECT_THAT(linesFromFile(filled(300)), ElementsAre(filled(255), filled(45)));
    EXPECT_THAT(linesFromFile(filled(600) + "\n"), ElementsAre(filled(255), filled(255), filled(90) + "\n"));
}

TEST(LinesFromAFile, MayHaveTheirLineEndCutByThePieceBorder)
{
    EXPECT_THAT(linesFromFile(filled(253) + "\r\ny"), ElementsAre(filled(253) + "\r\n", "y"));
    EXPECT_THAT(linesFromFile(filled(254) + "\r\ny"), ElementsAre(filled(254) + "\r", "\n", "y"));
    EXPECT_THAT(linesFromFile(filled(254) + "\ry"), ElementsAre(filled(254) + "\r", "y"));
    EXPECT_THAT(linesFromFile(filled(255) + "\ry"), ElementsAre(filled(255), "\r", "y"));
}

TEST(LinesFromAFile, AreReadPastANul)
{
    EXPECT_THAT(linesFromFile(std::string_view("ab\0cd\nef\n", 9)), ElementsAre("ab", "ef\n"));
}

TEST(LinesFromAFile, LeaveTheMemoryArgumentsAlone)
{
    const TextFile source("a\n");
    const FileHandle file = openForReading(source.path().c_str());
    constexpr char memory[] = "memory";
    const char *cursor = memory;
    std::size_t remaining = 6;
    std::array<char, 256> buffer{};
    EXPECT_STREQ(myGets(buffer.data(), 256, file.get(), &cursor, &remaining), "a\n");
    EXPECT_EQ(myGets(buffer.data(), 256, file.get(), &cursor, &remaining), nullptr);
    EXPECT_EQ(cursor, static_cast<const char *>(memory));
    EXPECT_EQ(remaining, 6U);
}

TEST(LinesFromMemory, CarryNoLineEnds)
{
    EXPECT_THAT(linesFromMemory("a\nbb\n"), ElementsAre("a", "bb"));
    EXPECT_THAT(linesFromMemory("a\r\nbb\rc"), ElementsAre("a", "bb", "c"));
}

TEST(LinesFromMemory, HaveAnyRunOfLineEndsBetweenThem)
{
    EXPECT_THAT(linesFromMemory("a\r\n\r\nb\n\n\n\rc\r\r"), ElementsAre("a", "b", "c"));
}

TEST(LinesFromMemory, BeginWithOneEmptyLineWhereLineEndsComeFirst)
{
    EXPECT_THAT(linesFromMemory("\r\n\r\na\n"), ElementsAre("", "a"));
    EXPECT_THAT(linesFromMemory("\n"), ElementsAre(""));
}

TEST(LinesFromMemory, AreNoneOfAnEmptyBlock)
{
    EXPECT_THAT(linesFromMemory(""), IsEmpty());
}

TEST(LinesFromMemory, StopAtTheStatedLength)
{
    const std::string_view text = "ab\ncdXX\nYY";
    EXPECT_THAT(linesFromMemory(text.substr(0, 5)), ElementsAre("ab", "cd"));
    EXPECT_THAT(linesFromMemory(text.substr(0, 3)), ElementsAre("ab"));
}

TEST(LinesFromMemory, ComeInPiecesOf255Characters)
{
    EXPECT_THAT(linesFromMemory(filled(255)), ElementsAre(filled(255)));
    EXPECT_THAT(linesFromMemory(filled(256)), ElementsAre(filled(255), "x"));
    EXPECT_THAT(linesFromMemory(filled(300) + "\n"), ElementsAre(filled(255), filled(45)));
}

TEST(LinesFromMemory, SkipALineEndRightBehindAFullPiece)
{
    EXPECT_THAT(linesFromMemory(filled(255) + "\ny"), ElementsAre(filled(255), "y"));
    EXPECT_THAT(linesFromMemory(filled(255) + "\r\n\r\ny"), ElementsAre(filled(255), "y"));
}

TEST(LinesFromMemory, EndAtANulWhichIsSkipped)
{
    EXPECT_THAT(linesFromMemory(std::string_view("a\0b\n", 4)), ElementsAre("a", "b"));
    EXPECT_THAT(linesFromMemory(std::string_view("a\0\r\n\nb", 6)), ElementsAre("a", "b"));
    EXPECT_THAT(linesFromMemory(std::string_view("a\0", 2)), ElementsAre("a"));
}

TEST(LinesFromMemory, GoOnBehindManyNuls)
{
    Lines lines = linesFromMemory(std::string(500, '\0') + "a\n");
    std::erase(lines, "");
    EXPECT_THAT(lines, ElementsAre("a"));
}

TEST(LinesFromMemory, FillABufferOfAnotherSize)
{
    const char *cursor = "abcdef\ngh";
    std::size_t remaining = 9;
    std::array<char, 4> buffer{};
    EXPECT_STREQ(myGets(buffer.data(), 4, nullptr, &cursor, &remaining), "abc");
    EXPECT_STREQ(myGets(buffer.data(), 4, nullptr, &cursor, &remaining), "def");
    EXPECT_STREQ(myGets(buffer.data(), 4, nullptr, &cursor, &remaining), "gh");
    EXPECT_EQ(remaining, 0U);
    EXPECT_EQ(myGets(buffer.data(), 4, nullptr, &cursor, &remaining), nullptr);
}

} // namespace
} // namespace tessarin::test
