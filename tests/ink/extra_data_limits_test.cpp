// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The largest blocks, and those beyond them.

#include "ink/extra_data.h"
#include "tests/ink/ink_test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <limits>

#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessarin::test {
namespace {

constexpr std::size_t kLargestBlock = 16'777'216;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kInstrumented = true;
constexpr double kPatience = 60.0; // an instrumented realloc() copies
#else
constexpr bool kInstrumented = false;
constexpr double kPatience = 1.0;
#endif

/// A stream of many chunks of zeros, read.
std::optional<std::string> readZeros(std::size_t count, const std::string &behind = {})
{
    const Entries entries = chunkedEntries(zlibStream(std::string(count, '\0') + behind));
    std::optional<std::string> block;
    const TextFile file(ppdTextWith(entries));
    const PPDHandle ppd = openPPD(file.path().c_str());
    std::size_t length = 0;
    EXPECT_LT(processorSeconds([&] {
                  const ExtraData data(ppdxReadData(ppd.get(), "EXData", &length));
                  if (data) {
                      block = std::string(data.get(), length);
                      EXPECT_EQ(data.get()[length], '\0');
                  }
              }),
              kPatience);
    return block;
}

bool isAll(const std::string &block, char byte)
{
    return std::all_of(block.begin(), block.end(), [byte](char c) { return c == byte; });
}

TEST(LargeExtraData, Of16MiBReadsBackWhole)
{
    const std::string zeros(kLargestBlock, '\0');
    EXPECT_TRUE(roundTrip(zeros) == zeros);
}

/// Further blocks of the largest size. A sanitizer copies the whole buffer for each 2 KiB by which it grows, which
/// takes minutes; two of these blocks are enough there.
class FurtherLargeExtraData : public testing::Test {
protected:
    void SetUp() override
    {
        if (kInstrumented) {
            GTEST_SKIP() << "a block of this size takes minutes under a sanitizer";
        }
    }
};

TEST_F(FurtherLargeExtraData, Of16MiBIsReadQuickly)
{
    const std::optional<std::string> block = readZeros(kLargestBlock - 1, "x");
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(block->size(), kLargestBlock);
    EXPECT_EQ(block->back(), 'x');
}

TEST_F(FurtherLargeExtraData, OfOneByteMoreIsCutAtTheLimit)
{
    const std::optional<std::string> block = readZeros(kLargestBlock, "x");
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(block->size(), kLargestBlock);
    EXPECT_TRUE(isAll(*block, '\0'));
}

TEST_F(FurtherLargeExtraData, OfManyMegabytesIsCutAtTheLimit)
{
    const std::optional<std::string> block = readZeros(100'000'000);
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(block->size(), kLargestBlock);
    EXPECT_TRUE(isAll(*block, '\0'));
}

TEST(LargeExtraData, BeyondTheLimitIsReadOnWithoutAnError)
{
    const Entries entries = chunkedEntries(zlibStream(std::string(20'000'000, '\0')));
    EXPECT_EQ(standardErrorOf([&] { readEntries(entries); }), "");
}

// From the 65,536th chunk on the counter has five digits.
TEST(LargeExtraData, OfMoreThan65536ChunksReadsBackWhole)
{
    const std::string block = randomBytes(158 * 65'540);
    const Entries entries = storedEntries(writtenBlock(block));
    ASSERT_GT(entries.size(), 65'540U);
    EXPECT_EQ(entries[65'535].name, "EXDataffff");
    EXPECT_EQ(entries[65'536].name, "EXData10000");
    EXPECT_EQ(entries[65'537].name, "EXData10001");
    EXPECT_TRUE(readEntries(entries) == block);
}

/// Leaves this process half a megabyte of memory and no more.
void useUpMemory()
{
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    void *volatile rest = std::malloc(500'000);
    const rlimit limits{.rlim_cur = 0, .rlim_max = RLIM_INFINITY};
    setrlimit(RLIMIT_AS, &limits); // what is there stays, nothing more is given
    for (const std::size_t size : {1'000'000U, 60'000U}) {
        void *volatile taken = nullptr;
        do {
            taken = std::malloc(size);
        } while (taken != nullptr);
    }
    std::free(rest);
}

// In a child with little memory the growing buffer finds no more room on its way.
TEST(LargeExtraData, GivesNothingWhenMemoryRunsOut)
{
    if (kInstrumented) {
        return; // the sanitizer ends the program where no memory is left
    }
    const TextFile file(ppdTextWith(chunkedEntries(zlibStream(std::string(kLargestBlock, '\0')))));
    const PPDHandle ppd = openPPD(file.path().c_str());
    ASSERT_NE(ppd, nullptr);
    const pid_t child = fork();
    if (child == 0) {
        useUpMemory();
        std::size_t length = 99;
        const char *data = ppdxReadData(ppd.get(), "EXData", &length);
        _exit(data != nullptr ? 1 : length != 0 ? 2 : 0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

} // namespace
} // namespace tessarin::test
