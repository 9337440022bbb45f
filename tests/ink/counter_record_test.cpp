// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The record of one line of the counter text.

#include "ink/counter_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace tessarin::test {
namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kGreatest = std::numeric_limits<std::int32_t>::max();

struct RecordCase {
    std::string line;
    bool total;
    std::size_t channel;
    std::int32_t value;
};

void expectRecords(const std::vector<RecordCase> &cases)
{
    for (const RecordCase &c : cases) {
        SCOPED_TRACE(c.line);
        const std::optional<InkRecord> record = parseInkRecord(c.line);
        if (!record) {
            ADD_FAILURE() << "no record";
            continue;
        }
        EXPECT_EQ(record->total, c.total);
        EXPECT_EQ(record->channel, c.channel);
        EXPECT_EQ(record->value, c.value);
    }
}

void expectNone(const std::vector<std::string> &lines)
{
    for (const std::string &line : lines) {
        EXPECT_FALSE(parseInkRecord(line).has_value()) << line;
    }
}

TEST(InkRecords, AreOfTheLastJobOrOfAllJobs)
{
    expectRecords({{"LastInk_M=12", false, 5, 12}, {"TotalInk_M=900", true, 5, 900}});
}

TEST(InkRecords, HaveOneOfTheTablesCodes)
{
    expectRecords({{"LastInk_K=1", false, 0, 1},
                   {"LastInk_KP=2", false, 1, 2},
                   {"LastInk_K3=3", false, 2, 3},
                   {"LastInk_K4=4", false, 3, 4},
                   {"LastInk_Y=5", false, 4, 5},
                   {"LastInk_M=6", false, 5, 6},
                   {"LastInk_C=7", false, 6, 7},
                   {"LastInk_M2=8", false, 7, 8},
                   {"LastInk_C2=9", false, 8, 9},
                   {"LastInk_Y2=10", false, 9, 10},
                   {"LastInk_R=11", false, 10, 11},
                   {"LastInk_G=12", false, 11, 12},
                   {"LastInk_B=13", false, 12, 13},
                   {"LastInk_O=14", false, 13, 14},
                   {"LastInk_OR=15", false, 14, 15},
                   {"LastInk_KR=17", false, 16, 17},
                   {"LastInk_KM=18", false, 17, 18},
                   {"LastInk_KG=19", false, 18, 19},
                   {"LastInk_K2=20", false, 19, 20}});
}

TEST(InkRecords, OfTheSharedCodeGoToOptimizer)
{
    expectRecords({{"TotalInk_O=70", true, 13, 70}, {"LastInk_O =70", false, 13, 70}});
}

TEST(InkRecords, TakeTwoCharactersAsCode)
{
    expectRecords({{"TotalInk_Y2=120", true, 9, 120},
                   {"TotalInk_KPX=5", true, 1, 5},
                   {"TotalInk_KP =5", true, 1, 5},
                   {"TotalInk_C2=10", true, 8, 10}});
    expectNone({"LastInk_Kx=40", "LastInk_K\t=40", "LastInk_K", "LastInk_k=40", "LastInk_ K=40", "LastInk_KX=1"});
}

TEST(InkRecords, TakeOneCharacterBeforeABlankOrAnEqualsSign)
{
    expectRecords({{"LastInk_K=40", false, 0, 40},
                   {"LastInk_K =40", false, 0, 40},
                   {"TotalInk_C =10", true, 6, 10},
                   {"TotalInk_C=10", true, 6, 10},
                   {"LastInk_K 77=5", false, 0, 5}});
    expectNone({"LastInk_=40", "LastInk_==40", "LastInk_ =40", "LastInk_", "LastInk_ "});
}

TEST(InkRecords, StandAnywhereInTheLine)
{
    expectRecords({{"job 12, page 3: LastInk_M=7 ml", false, 5, 7},
                   {"x=1 TotalInk_C=2", true, 6, 2},
                   {"LastTotalInk_C=3", true, 6, 3},
                   {"  LastInk_Y=4\r\n", false, 4, 4}});
}

TEST(InkRecords, OfAllJobsWinOnALineWithBothKeywords)
{
    expectRecords({{"TotalInk_C=7 LastInk_M=5", true, 6, 7}, {"LastInk_M=5 TotalInk_C=7", true, 6, 7}});
    expectNone({"LastInk_M=5 TotalInk_XX=7", "LastInk_M=5 TotalInk_C", "LastInk_M=5 TotalInk_C=x",
                "LastInk_M=5 TotalInk_"});
}

TEST(InkRecords, TakeTheFirstOfAKeyword)
{
    expectRecords({{"LastInk_M=5 LastInk_C=7", false, 5, 5}});
    expectNone({"LastInk_XX=5 LastInk_C=7", "TotalInk_TotalInk_C=7"});
}

TEST(InkRecords, HaveTheirValueBehindTheFirstEqualsSign)
{
    expectRecords({{"LastInk_KPaused = 6=7", false, 1, 6},
                   {"a=9 LastInk_M=5=6", false, 5, 5},
                   {"LastInk_M level=5", false, 5, 5}});
    expectNone({"LastInk_M==5", "LastInk_M5", "a=9 LastInk_M"});
}

TEST(InkRecords, HaveADecimalValue)
{
    expectRecords({{"LastInk_M=+4", false, 5, 4},
                   {"LastInk_Y=-3", false, 4, -3},
                   {"LastInk_M=   12", false, 5, 12},
                   {"LastInk_M=\t12", false, 5, 12},
                   {"LastInk_M=12abc", false, 5, 12},
                   {"LastInk_M=12.9", false, 5, 12},
                   {"LastInk_M=0x10", false, 5, 0},
                   {"LastInk_M=007", false, 5, 7},
                   {"LastInk_M=-0", false, 5, 0}});
    expectNone({"LastInk_M=", "LastInk_M= ", "LastInk_M=\r\n", "LastInk_M=abc", "LastInk_M=-", "LastInk_M=- 3",
                "LastInk_M=+-3", "LastInk_M=.5"});
}

TEST(InkRecords, KeepValuesWithin32Bits)
{
    expectRecords({{"TotalInk_M=2147483647", true, 5, kGreatest},
                   {"TotalInk_M=2147483648", true, 5, kGreatest},
                   {"TotalInk_M=4294967297", true, 5, kGreatest},
                   {"TotalInk_M=99999999999999999999999999", true, 5, kGreatest},
                   {"TotalInk_M=-2147483648", true, 5, kLeast},
                   {"TotalInk_M=-2147483649", true, 5, kLeast},
                   {"TotalInk_M=-99999999999999999999999999", true, 5, kLeast}});
}

TEST(InkRecords, NeedAKeyword)
{
    expectNone(
        {"", "\n", "Ink_M=5", "Total_M=5", "totalink_M=5", "LASTINK_M=5", "Last Ink_M=5", "LastInkM=5", "M=5"});
}

} // namespace
} // namespace tessarin::test
