// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Damaged extra data: what could be read is kept, errors go to standard error, and nothing goes on for ever.

#include "ink/extra_data.h"
#include "tests/ink/ink_test_support.h"

#include <gtest/gtest.h>

#include <zlib.h>

namespace tessarin::test {
namespace {

struct Reading {
    std::optional<std::string> block;
    std::string errors;
};

Reading readNoting(const Entries &entries)
{
    Reading reading;
    reading.errors = standardErrorOf([&] { reading.block = readEntries(entries); });
    return reading;
}

/// A block of stored, not compressed, bytes: the first k chunks hold the bytes up to 158 * k less the 7 bytes of
/// the stream's beginning.
class DamagedExtraData : public testing::Test {
protected:
    std::string block_ = bytesWithStreamOf(158 * 5 + 20);
    std::string stream_ = zlibStream(block_);
    Entries entries_ = chunkedEntries(stream_);

    std::string firstChunks(std::size_t count) const { return block_.substr(0, 158 * count - 7); }
};

TEST_F(DamagedExtraData, IsGoodToBeginWith)
{
    const Reading reading = readNoting(entries_);
    EXPECT_EQ(reading.block, block_);
    EXPECT_EQ(reading.errors, "");
}

TEST_F(DamagedExtraData, EndsAtAMissingAttribute)
{
    entries_.erase(entries_.begin() + 2);
    const Reading reading = readNoting(entries_);
    EXPECT_EQ(reading.block, firstChunks(2));
    EXPECT_EQ(reading.errors, "");
}

TEST_F(DamagedExtraData, EndsWhereItIsCutOff)
{
    entries_.resize(4);
    const Reading reading = readNoting(entries_);
    EXPECT_EQ(reading.block, firstChunks(4));
    EXPECT_EQ(reading.errors, "");
}

TEST_F(DamagedExtraData, EndsAtAnEmptyChunk)
{
    entries_[3].value = "";
    const Reading reading = readNoting(entries_);
    EXPECT_EQ(reading.block, firstChunks(3));
    EXPECT_EQ(reading.errors, "");
}

TEST_F(DamagedExtraData, EndsAtAChunkThatIsNoBase64)
{
    for (const char *value : {"!!!!", "=", "====", "-.-.", "*", "  "}) {
        entries_[1].value = value;
        const Reading reading = readNoting(entries_);
        EXPECT_EQ(reading.block, firstChunks(1)) << value;
        EXPECT_EQ(reading.errors, "") << value;
    }
}

TEST_F(DamagedExtraData, IsAnEmptyBufferWhenTheFirstChunkIsNoBase64)
{
    entries_[0].value = "!!!!";
    const Reading reading = readNoting(entries_);
    EXPECT_EQ(reading.block, "");
    EXPECT_EQ(reading.errors, "");
}

TEST_F(DamagedExtraData, IsTheWholeBlockWithAWrongChecksum)
{
    stream_.back() = static_cast<char>(stream_.back() ^ 1);
    const Reading reading = readNoting(chunkedEntries(stream_));
    EXPECT_EQ(reading.block, block_);
    EXPECT_EQ(reading.errors, "ERROR: inflate returned -3 (incorrect data check)\n");
}

TEST_F(DamagedExtraData, IsTheWholeBlockWithoutItsChecksum)
{
    const Reading reading = readNoting(chunkedEntries(std::string_view(stream_).substr(0, stream_.size() - 4)));
    EXPECT_EQ(reading.block, block_);
    EXPECT_EQ(reading.errors, "");
}

TEST_F(DamagedExtraData, IsAnEmptyBufferWhenItIsNoStream)
{
    const Reading reading = readNoting(chunkedEntries("LastInk_K=30\n"));
    EXPECT_EQ(reading.block, "");
    EXPECT_EQ(reading.errors, "ERROR: inflate returned -3 (incorrect header check)\n");
}

TEST_F(DamagedExtraData, IsReadOnChunkByChunkAfterAnError)
{
    const Reading reading = readNoting(chunkedEntries(std::string(158 * 2 + 1, 'x')));
    EXPECT_EQ(reading.block, "");
    const std::string line = "ERROR: inflate returned -3 (incorrect header check)\n";
    EXPECT_EQ(reading.errors, line + line + line);
}

TEST_F(DamagedExtraData, KeepsWhatCameBeforeAnErrorInTheMiddle)
{
    const std::string text(100'000, 'x');
    std::string stream = zlibStream(text) + std::string(400, '\0');
    const std::size_t middle = zlibStream(text).size() / 2;
    stream.replace(middle, 40, std::string(40, '\xFF'));
    const Reading reading = readNoting(chunkedEntries(stream));
    ASSERT_TRUE(reading.block.has_value());
    EXPECT_LT(reading.block->size(), text.size() + 10'000);
    EXPECT_EQ(reading.block->substr(0, 1000), text.substr(0, 1000));
    EXPECT_TRUE(reading.errors.starts_with("ERROR: inflate returned -3 (")) << reading.errors;
}

TEST_F(DamagedExtraData, IsTheBlockWithoutTheBytesBehindTheStream)
{
    for (const std::size_t more : {1U, 100U, 138U, 139U, 1000U}) {
        const Reading reading = readNoting(chunkedEntries(stream_ + std::string(more, 'x')));
        EXPECT_EQ(reading.block, block_) << more;
        EXPECT_EQ(reading.errors, "") << more;
    }
}

TEST_F(DamagedExtraData, IsTheFirstOfTwoStreams)
{
    const Reading reading = readNoting(chunkedEntries(stream_ + stream_));
    EXPECT_EQ(reading.block, block_);
    EXPECT_EQ(reading.errors, "");
}

// Such a stream waits for a dictionary that the format does not know; the reader must not wait for it as well.
TEST_F(DamagedExtraData, IsAnEmptyBufferWhenItAsksForADictionary)
{
    z_stream deflater{};
    ASSERT_EQ(deflateInit(&deflater, 9), Z_OK);
    const std::string dictionary = "LastInk_TotalInk_";
    ASSERT_EQ(deflateSetDictionary(&deflater, reinterpret_cast<const Bytef *>(dictionary.data()),
                                   static_cast<uInt>(dictionary.size())),
              Z_OK);
    std::string text = "LastInk_K=30\n";
    std::string stream(200, '\0');
    deflater.next_in = reinterpret_cast<Bytef *>(text.data());
    deflater.avail_in = static_cast<uInt>(text.size());
    deflater.next_out = reinterpret_cast<Bytef *>(stream.data());
    deflater.avail_out = static_cast<uInt>(stream.size());
    ASSERT_EQ(deflate(&deflater, Z_FINISH), Z_STREAM_END);
    stream.resize(deflater.total_out);
    deflateEnd(&deflater);

    EXPECT_EQ(readNoting(chunkedEntries(stream)).block, "");
    EXPECT_EQ(readNoting(chunkedEntries(stream, 3)).block, "");
}

TEST_F(DamagedExtraData, OfAnyKindEnds)
{
    for (std::size_t at = 0; at < stream_.size(); at += 17) {
        for (const char flip : {'\x01', '\x80', '\xFF'}) {
            std::string damaged = stream_;
            damaged[at] = static_cast<char>(damaged[at] ^ flip);
            const Reading reading = readNoting(chunkedEntries(damaged));
            EXPECT_TRUE(reading.block.has_value()) << at;
        }
    }
}

} // namespace
} // namespace tessarin::test
