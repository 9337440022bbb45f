// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Extra data written, stored in a PPD and read back.

#include "ink/extra_data.h"
#include "tests/ink/ink_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

/// A counter text of at least `size` bytes.
std::string counterText(std::size_t size)
{
    std::string text;
    for (int k = 0; text.size() < size; ++k) {
        text += "LastInk_C2=" + std::to_string(k * 7919 % 100003) + "\n";
    }
    return text;
}

TEST(ExtraDataReader, ReadsASmallText)
{
    const std::string text = "LastInk_K=30\nTotalInk_K=5000\n";
    EXPECT_EQ(roundTrip(text), text);
    EXPECT_EQ(roundTrip("x"), "x");
}

TEST(ExtraDataReader, ReadsAnEmptyBlockAsAnEmptyBuffer)
{
    EXPECT_EQ(roundTrip(""), "");
}

TEST(ExtraDataReader, ReadsTextThatCompresses)
{
    const std::string text = counterText(100'000);
    EXPECT_EQ(roundTrip(text), text);
}

TEST(ExtraDataReader, ReadsIncompressibleBlocks)
{
    for (const std::size_t size : {4096U, 65536U}) {
        const std::string block = randomBytes(size);
        EXPECT_EQ(roundTrip(block), block);
    }
}

TEST(ExtraDataReader, ReadsStreamsAroundFullChunks)
{
    for (const std::size_t chunks : {1U, 2U, 3U, 4U, 10U, 16U}) {
        for (const std::size_t size : {158 * chunks - 1, 158 * chunks, 158 * chunks + 1}) {
            const std::string block = bytesWithStreamOf(size);
            EXPECT_EQ(roundTrip(block), block) << size;
        }
    }
}

TEST(ExtraDataReader, ReadsBlocksAroundEverySizeOfItsBuffer)
{
    for (const std::size_t room : {256U, 512U, 1024U, 2048U, 4096U, 6144U, 8192U}) {
        for (const std::size_t size : {room - 1, room + 0, room + 1}) {
            const std::string text = counterText(size).substr(0, size);
            EXPECT_EQ(roundTrip(text), text) << size;
            const std::string bytes = randomBytes(size);
            EXPECT_EQ(roundTrip(bytes), bytes) << size;
        }
    }
}

TEST(ExtraDataReader, EndsATextOf300BytesWithANul)
{
    const std::string text = counterText(300).substr(0, 300);
    const TextFile file(ppdTextWithBlock(text));
    const PPDHandle ppd = openPPD(file.path().c_str());
    std::size_t length = 0;
    const ExtraData data(ppdxReadData(ppd.get(), "EXData", &length));
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(length, 300U);
    EXPECT_EQ(data.get()[300], '\0');
    EXPECT_STREQ(data.get(), text.c_str());
}

TEST(ExtraDataReader, KeepsNulsInsideTheBlock)
{
    const std::string block("a\0b\0\0c\n\0", 8);
    EXPECT_EQ(roundTrip(block), block);
}

TEST(ExtraDataReader, NeedsNoPlaceForTheLength)
{
    const TextFile file(ppdTextWithBlock("some text"));
    const PPDHandle ppd = openPPD(file.path().c_str());
    const ExtraData data(ppdxReadData(ppd.get(), "EXData", nullptr));
    EXPECT_STREQ(data.get(), "some text");
}

TEST(ExtraDataReader, GivesNothingWithoutTheFirstAttribute)
{
    EXPECT_EQ(readEntries({}), std::nullopt);
    EXPECT_EQ(readEntries({{"EXData0001", "eN"}, {"EXData", "eN"}, {"EXData000", "eN"}}), std::nullopt);
}

TEST(ExtraDataReader, GivesNothingWithoutPPDOrName)
{
    std::size_t length = 99;
    EXPECT_EQ(ppdxReadData(nullptr, "EXData", &length), nullptr);
    EXPECT_EQ(length, 0U);
    const TextFile file(ppdTextWithBlock("some text"));
    const PPDHandle ppd = openPPD(file.path().c_str());
    length = 99;
    EXPECT_EQ(ppdxReadData(ppd.get(), nullptr, &length), nullptr);
    EXPECT_EQ(length, 0U);
    EXPECT_EQ(ppdxReadData(nullptr, nullptr, nullptr), nullptr);
}

TEST(ExtraDataReader, TellsNamesApart)
{
    const Entries entries = storedEntries(writtenBlock("one", "One") + writtenBlock("two", "Two"));
    EXPECT_EQ(readEntries(entries, "One"), "one");
    EXPECT_EQ(readEntries(entries, "Two"), "two");
    EXPECT_EQ(readEntries(entries, "Three"), std::nullopt);
}

// A longer name would give lines of more than 255 characters, which no PPD may have.
TEST(ExtraDataReader, ReadsNamesOf35Characters)
{
    const std::string name(35, 'N');
    const std::string block = randomBytes(1000);
    EXPECT_EQ(readEntries(storedEntries(writtenBlock(block, name.c_str())), name.c_str()), block);
}

TEST(ExtraDataReader, ReadsChunksOfAnySize)
{
    const std::string block = randomBytes(1000);
    for (const std::size_t size : {1U, 2U, 3U, 100U, 157U}) {
        EXPECT_EQ(readEntries(chunkedEntries(zlibStream(block), size)), block) << size;
    }
}

TEST(ExtraDataReader, ReadsAFullChunkWithItsPaddingToo)
{
    const std::string block = bytesWithStreamOf(158 * 3);
    Entries entries = storedEntries(writtenBlock(block));
    for (std::size_t k = 0; k < 3; ++k) {
        entries[k].value += "=";
    }
    EXPECT_EQ(readEntries(entries), block);
}

TEST(ExtraDataReader, ReadsValuesWithAndWithoutQuotes)
{
    const std::string block = bytesWithStreamOf(158 * 2);
    std::string unquoted = ppdTextWith({});
    for (const Entry &entry : storedEntries(writtenBlock(block))) {
        unquoted += "*" + entry.name + ": " + entry.value + "\n";
    }
    const TextFile file(unquoted);
    const PPDHandle ppd = openPPD(file.path().c_str());
    ASSERT_NE(ppd, nullptr);
    std::size_t length = 0;
    const ExtraData data(ppdxReadData(ppd.get(), "EXData", &length));
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(std::string(data.get(), length), block);
}

TEST(ExtraDataReader, DoesNotMindTheOrderOfTheAttributes)
{
    const std::string block = randomBytes(3000);
    Entries entries = storedEntries(writtenBlock(block));
    std::reverse(entries.begin(), entries.end());
    EXPECT_EQ(readEntries(entries), block);
}

TEST(ExtraDataReader, NeedsNoTerminator)
{
    const std::string block = randomBytes(1000);
    Entries entries = storedEntries(writtenBlock(block));
    entries.pop_back();
    EXPECT_EQ(readEntries(entries), block);
}

TEST(ExtraDataReader, SaysNothingOfAGoodBlock)
{
    EXPECT_EQ(standardErrorOf([] { readEntries(storedEntries(writtenBlock(randomBytes(1000)))); }), "");
    EXPECT_EQ(standardErrorOf([] { readEntries(storedEntries(writtenBlock(std::string(1000, 'x')))); }), "");
}

} // namespace
} // namespace tessarin::test
