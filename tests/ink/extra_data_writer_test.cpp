// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Extra data as the writer puts it out: chunks, attribute names and "PPD:" lines.

#include "ink/extra_data.h"
#include "tests/ink/ink_test_support.h"

#include <QByteArray>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include <cups/http.h>

namespace tessarin::test {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

std::vector<std::size_t> lineLengths(const std::string &output)
{
    std::vector<std::size_t> lengths;
    for (const std::string &line : linesOf(output)) {
        lengths.push_back(line.size());
    }
    return lengths;
}

Lines namesOf(const Entries &entries)
{
    Lines names;
    for (const Entry &entry : entries) {
        names.push_back(entry.name);
    }
    return names;
}

TEST(ExtraDataWriter, WritesTheTerminatorAloneForAnEmptyBlock)
{
    EXPECT_EQ(standardErrorOf([] { ppdxWriteData("EXData", "x", 0); }), "PPD: EXData0000=\"\"\n");
    EXPECT_EQ(standardErrorOf([] { ppdxWriteData("EXData", nullptr, 0); }), "PPD: EXData0000=\"\"\n");
}

TEST(ExtraDataWriter, WritesNothingWithoutNameOrData)
{
    EXPECT_EQ(standardErrorOf([] { ppdxWriteData(nullptr, "x", 1); }), "");
    EXPECT_EQ(standardErrorOf([] { ppdxWriteData(nullptr, nullptr, 0); }), "");
    EXPECT_EQ(standardErrorOf([] { ppdxWriteData("EXData", nullptr, 1); }), "");
}

TEST(ExtraDataWriter, WritesASmallBlockAsOneLine)
{
    const std::string text = "LastInk_K=30\nTotalInk_K=5000\n";
    const std::string stream = zlibStream(text);
    const QByteArray encoded = QByteArray::fromStdString(stream).toBase64();
    EXPECT_EQ(writtenBlock(text), "PPD: EXData0000=" + encoded.toStdString() + " EXData0001=\"\"\n");
}

TEST(ExtraDataWriter, CompressesAtTheHighestLevel)
{
    const Entries entries = storedEntries(writtenBlock("LastInk_K=30\n"));
    const QByteArray stream = QByteArray::fromBase64(QByteArray::fromStdString(entries.at(0).value));
    EXPECT_EQ(stream.first(2), QByteArray("\x78\xDA", 2));
}

TEST(ExtraDataWriter, TakesAnyName)
{
    EXPECT_EQ(writtenBlock("", "Another"), "PPD: Another0000=\"\"\n");
    EXPECT_THAT(writtenBlock("x", "Another"), StartsWith("PPD: Another0000=eN"));
}

TEST(ExtraDataWriter, LeavesThePaddingOfAFullChunkOff)
{
    const std::string block = randomBytes(1000);
    const std::string stream = zlibStream(block);
    const Entries entries = storedEntries(writtenBlock(block));
    ASSERT_EQ(entries.size(), 8U); // 1011 bytes: six full chunks, 63 bytes, the terminator
    for (std::size_t k = 0; k < 6; ++k) {
        const QByteArray chunk = QByteArray::fromStdString(stream.substr(k * 158, 158)).toBase64();
        ASSERT_EQ(chunk.size(), 212);
        EXPECT_TRUE(chunk.endsWith('='));
        EXPECT_EQ(entries[k].value, chunk.first(211).toStdString());
    }
    EXPECT_EQ(entries[6].value, QByteArray::fromStdString(stream.substr(948)).toBase64().toStdString());
}

TEST(ExtraDataWriter, KeepsThePaddingOfAShorterChunk)
{
    for (const auto &[rest, padding] : {std::pair{1U, "=="}, {2U, "="}, {154U, "=="}, {155U, "="}}) {
        const Entries entries = storedEntries(writtenBlock(bytesWithStreamOf(158 + rest)));
        ASSERT_EQ(entries.size(), 3U) << rest;
        EXPECT_EQ(entries[0].value.size(), 211U) << rest;
        EXPECT_EQ(entries[1].value.size(), (rest + 2) / 3 * 4) << rest;
        EXPECT_TRUE(entries[1].value.ends_with(padding)) << rest;
    }
    const Entries entries = storedEntries(writtenBlock(bytesWithStreamOf(158 + 156)));
    EXPECT_EQ(entries.at(1).value.size(), 208U);
    EXPECT_FALSE(entries.at(1).value.ends_with('='));
}

// 157 bytes take 212 characters as well, two of them padding: the room for 211 cuts the last one.
TEST(ExtraDataWriter, KeepsOneOfTwoPaddingCharactersOf157Bytes)
{
    const std::string block = bytesWithStreamOf(157);
    const QByteArray encoded = QByteArray::fromStdString(zlibStream(block)).toBase64();
    ASSERT_TRUE(encoded.endsWith("=="));
    EXPECT_EQ(storedEntries(writtenBlock(block)).at(0).value, encoded.first(211).toStdString());
}

TEST(ExtraDataWriter, WritesAnEmptyEntryBehindAStreamOfFullChunks)
{
    for (const std::size_t chunks : {1U, 2U, 3U, 4U}) {
        const std::string output = writtenBlock(bytesWithStreamOf(158 * chunks));
        const Entries entries = storedEntries(output);
        ASSERT_EQ(entries.size(), chunks + 2);
        for (std::size_t k = 0; k < chunks; ++k) {
            EXPECT_EQ(entries[k].value.size(), 211U);
        }
        const std::string last = "EXData000" + std::to_string(chunks);
        const std::string end = "EXData000" + std::to_string(chunks + 1);
        EXPECT_TRUE(output.ends_with(" " + last + "= " + end + "=\"\"\n")) << output;
    }
}

TEST(ExtraDataWriter, CountsInFourLowerCaseHexadecimalDigits)
{
    const Lines names = namesOf(storedEntries(writtenBlock(randomBytes(158 * 300))));
    ASSERT_GT(names.size(), 300U);
    EXPECT_EQ(names[9], "EXData0009");
    EXPECT_EQ(names[10], "EXData000a");
    EXPECT_EQ(names[15], "EXData000f");
    EXPECT_EQ(names[16], "EXData0010");
    EXPECT_EQ(names[171], "EXData00ab");
    EXPECT_EQ(names[255], "EXData00ff");
    EXPECT_EQ(names[256], "EXData0100");
    for (std::size_t k = 0; k < names.size(); ++k) {
        std::array<char, 32> name{};
        std::snprintf(name.data(), name.size(), "EXData%04zx", k);
        EXPECT_EQ(names[k], name.data());
    }
}

TEST(ExtraDataWriter, PutsFourFullEntriesOnALine)
{
    const std::string output = writtenBlock(bytesWithStreamOf(158 * 9 + 10));
    EXPECT_THAT(lineLengths(output), ElementsAre(896, 896, 4 + 223 + 12 + 16 + 14));
    for (const std::string &line : linesOf(output)) {
        EXPECT_THAT(line, StartsWith("PPD: EXData000"));
    }
}

// Four full entries take 896 characters. A fifth one of b characters of base64 adds 12 + b, the terminator 14; a
// line stays below 1022.
TEST(ExtraDataWriter, EndsALineBeforeItReaches1022Characters)
{
    struct Case {
        std::size_t rest; ///< bytes of the fifth chunk
        std::vector<std::size_t> lengths;
    };
    const std::vector<Case> cases{
        {.rest = 72, .lengths = {896 + 108 + 14}}, // 1018
        {.rest = 73, .lengths = {896 + 112, 4 + 14}},
        {.rest = 84, .lengths = {896 + 124, 4 + 14}}, // 1020: the entry fits, the terminator does not
        {.rest = 85, .lengths = {896, 4 + 128 + 14}},
    };
    for (const Case &c : cases) {
        const std::string output = writtenBlock(bytesWithStreamOf(4 * 158 + c.rest));
        EXPECT_EQ(lineLengths(output), c.lengths) << c.rest;
        EXPECT_TRUE(output.ends_with(" EXData0005=\"\"\n")) << c.rest;
    }
}

// Four chunks take 1012 characters under a name of 35 and 1016 under one of 36: no terminator fits behind them.
TEST(ExtraDataWriter, MovesTheTerminatorToALineOfItsOwn)
{
    const std::string block = bytesWithStreamOf(158 * 4 - 1);
    for (const std::size_t length : {35U, 36U}) {
        const std::string name(length, 'N');
        const std::string output = writtenBlock(block, name.c_str());
        const std::size_t entry = 1 + length + 4 + 1;
        EXPECT_THAT(lineLengths(output), ElementsAre(4 + 4 * (entry + 211), 4 + entry + 2));
        EXPECT_TRUE(output.ends_with("\nPPD: " + name + "0004=\"\"\n"));
    }
}

TEST(ExtraDataWriter, NeverSplitsAnEntry)
{
    const std::string block = randomBytes(20000);
    const Entries entries = storedEntries(writtenBlock(block));
    EXPECT_EQ(entries, chunkedEntries(zlibStream(block)));
}

TEST(ExtraDataWriter, WritesBlocksUpTo16MiB)
{
    const std::string zeros(16'777'217, '\0');
    EXPECT_EQ(standardErrorOf([&] { ppdxWriteData("EXData", zeros.data(), 16'777'217); }), "");
    const std::string output = standardErrorOf([&] { ppdxWriteData("EXData", zeros.data(), 16'777'216); });
    EXPECT_EQ(storedEntries(output), chunkedEntries(zlibStream(std::string_view(zeros).substr(1))));
}

// The format rests on these: a full chunk loses its "=", and reading it back needs a capacity of one more byte.
TEST(ExtraDataWriter, RestsOnTheLibrarysBase64Capacities)
{
    const std::string chunk = randomBytes(158);
    std::array<char, 212> text{};
    httpEncode64_2(text.data(), 212, chunk.data(), 158);
    EXPECT_EQ(std::string_view(text.data()).size(), 211U);
    for (const auto &[capacity, expected] : {std::pair{159, 158}, std::pair{158, 157}}) {
        std::array<char, 200> bytes{};
        int size = capacity;
        EXPECT_NE(httpDecode64_2(bytes.data(), &size, text.data()), nullptr);
        EXPECT_EQ(size, expected);
        EXPECT_EQ(std::string_view(bytes.data(), static_cast<std::size_t>(size)),
                  chunk.substr(0, static_cast<std::size_t>(size)));
    }
}

} // namespace
} // namespace tessarin::test
