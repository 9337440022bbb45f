// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the counter text leaves in the record: counters, channels shown and their places.

#include "ink/counter_reader.h"
#include "tests/ink/ink_test_support.h"
#include "tests/support/captured_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using testing::ElementsAre;
using Counters = std::array<std::int32_t, 21>;

class CounterReader : public testing::Test {
protected:
    void parse(std::string_view text)
    {
        const TextFile file(text);
        ParseInkData(file.path().c_str(), context_);
    }
    const PanelSettings &settings() const { return context_->settings; }

    TestContext context_;
};

Counters countersWith(std::initializer_list<std::pair<std::size_t, std::int32_t>> values)
{
    Counters counters{};
    for (const auto &[channel, value] : values) {
        counters.at(channel) = value;
    }
    return counters;
}

TEST_F(CounterReader, StoresValuesAsRead)
{
    parse("TotalInk_M=12345\nLastInk_M=149\nTotalInk_C=1\n");
    EXPECT_EQ(settings().inkTotal, countersWith({{5, 12345}, {6, 1}}));
    EXPECT_EQ(settings().inkLast, countersWith({{5, 149}}));
    EXPECT_EQ(settings().inkSeen, countersWith({{5, 1}, {6, 2}}));
    EXPECT_EQ(settings().inkChannelCount, 2);
}

TEST_F(CounterReader, HidesPlainBlackBesidePhotoBlack)
{
    parse("TotalInk_K=5000\nLastInk_KP=30\n");
    EXPECT_EQ(settings().inkSeen, countersWith({{1, 1}}));
    EXPECT_EQ(settings().inkChannelCount, 1);
    EXPECT_EQ(settings().inkTotal[0], 5000);
    EXPECT_EQ(settings().inkLast[1], 30);
}

TEST_F(CounterReader, HidesPlainBlackBesideAnySpecialBlack)
{
    for (const char *special : {"KP", "KR", "KM", "KG"}) {
        parse(std::string("LastInk_K=7\nTotalInk_K=8\nTotalInk_") + special + "=1\n");
        EXPECT_EQ(settings().inkSeen[0], 0) << special;
        EXPECT_EQ(settings().inkLast[0], 7) << special;
        EXPECT_EQ(settings().inkTotal[0], 8) << special;
        EXPECT_EQ(settings().inkChannelCount, 1) << special;
    }
}

TEST_F(CounterReader, ShowsPlainBlackBesideGreys)
{
    parse("LastInk_K=7\nLastInk_K2=1\nLastInk_K3=1\nLastInk_K4=1\n");
    EXPECT_EQ(settings().inkSeen, countersWith({{0, 1}, {2, 2}, {3, 3}, {19, 4}}));
    EXPECT_EQ(settings().inkChannelCount, 4);
}

TEST_F(CounterReader, HidesPlainBlackWhicheverComesFirst)
{
    parse("LastInk_KG=0\nLastInk_K=7\n");
    EXPECT_EQ(settings().inkSeen, countersWith({{18, 1}}));
}

TEST_F(CounterReader, GivesTheSharedCodeToOptimizer)
{
    parse("TotalInk_O=70\n");
    EXPECT_EQ(settings().inkTotal, countersWith({{13, 70}}));
    EXPECT_EQ(settings().inkSeen, countersWith({{13, 1}}));
}

TEST_F(CounterReader, TellsCodesOfOneAndTwoCharactersApart)
{
    parse("TotalInk_C2=10\nTotalInk_C=11\n");
    EXPECT_EQ(settings().inkTotal, countersWith({{8, 10}, {6, 11}}));
    parse("TotalInk_C =12\n");
    EXPECT_EQ(settings().inkTotal, countersWith({{6, 12}}));
}

TEST_F(CounterReader, StoresNegativeValues)
{
    parse("LastInk_Y=-3\nTotalInk_Y=-15005\n");
    EXPECT_EQ(settings().inkLast, countersWith({{4, -3}}));
    EXPECT_EQ(settings().inkTotal, countersWith({{4, -15005}}));
    EXPECT_EQ(settings().inkSeen, countersWith({{4, 1}}));
}

TEST_F(CounterReader, ShowsAChannelWhoseCounterIsZero)
{
    parse("LastInk_Y=0\n");
    EXPECT_EQ(settings().inkSeen, countersWith({{4, 1}}));
}

TEST_F(CounterReader, TakesTheLaterOfTwoRecords)
{
    parse("LastInk_M=5\nTotalInk_M=50\nLastInk_M=6\nTotalInk_M=60\nLastInk_M=4\n");
    EXPECT_EQ(settings().inkLast, countersWith({{5, 4}}));
    EXPECT_EQ(settings().inkTotal, countersWith({{5, 60}}));
    EXPECT_EQ(settings().inkChannelCount, 1);
}

TEST_F(CounterReader, LimitsValuesTo32Bits)
{
    parse("LastInk_M=99999999999\nTotalInk_M=-99999999999\n");
    EXPECT_EQ(settings().inkLast[5], 2147483647);
    EXPECT_EQ(settings().inkTotal[5], -2147483647 - 1);
}

TEST_F(CounterReader, NumbersChannelsInTableOrder)
{
    parse("LastInk_K2=1\nLastInk_KR=1\nLastInk_C=1\nLastInk_Y=1\n");
    EXPECT_EQ(settings().inkSeen, countersWith({{4, 1}, {6, 2}, {16, 3}, {19, 4}}));
}

TEST_F(CounterReader, TakesEveryCodeOfTheTable)
{
    std::string text;
    int value = 100;
    for (const char *code : {"K", "KP", "K3", "K4", "Y", "M", "C", "M2", "C2", "Y2", "R", "G", "B", "O", "OR", "KR",
                             "KM", "KG", "K2"}) {
        text += std::string("LastInk_") + code + "=" + std::to_string(value) + "\n";
        text += std::string("TotalInk_") + code + "=" + std::to_string(1000 + value) + "\n";
        ++value;
    }
    parse(text);
    EXPECT_THAT(settings().inkLast, ElementsAre(100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112,
                                                113, 114, 0, 115, 116, 117, 118, 0));
    EXPECT_THAT(settings().inkTotal, ElementsAre(1100, 1101, 1102, 1103, 1104, 1105, 1106, 1107, 1108, 1109, 1110,
                                                 1111, 1112, 1113, 1114, 0, 1115, 1116, 1117, 1118, 0));
    EXPECT_THAT(settings().inkSeen,
                ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 0, 15, 16, 17, 18, 0));
    EXPECT_EQ(settings().inkChannelCount, 18);
}

TEST_F(CounterReader, SkipsLinesWithoutARecord)
{
    parse("TotalInk_XX=1\nLastInk_M\nLastInk_M=\nLastInk_M=red\nhello\n\n=5\n");
    EXPECT_EQ(settings().inkLast, Counters{});
    EXPECT_EQ(settings().inkTotal, Counters{});
    EXPECT_EQ(settings().inkSeen, Counters{});
    EXPECT_EQ(settings().inkChannelCount, 0);
}

TEST_F(CounterReader, StartsFromZeroAndLeavesTheSpareEntryAlone)
{
    context_->settings.inkLast.fill(41);
    context_->settings.inkTotal.fill(42);
    context_->settings.inkSeen.fill(43);
    parse("LastInk_M=5\n");
    EXPECT_EQ(settings().inkLast, countersWith({{5, 5}, {20, 41}}));
    EXPECT_EQ(settings().inkTotal, countersWith({{20, 42}}));
    EXPECT_EQ(settings().inkSeen, countersWith({{5, 1}, {20, 43}}));
    EXPECT_EQ(settings().inkChannelCount, 1);
}

TEST_F(CounterReader, ScansThePiecesOfALongLineOneByOne)
{
    const CapturedLog log;
    parse(std::string(256, 'x') + "LastInk_M=1234" + std::string(30, ' ') + "\n");
    EXPECT_EQ(settings().inkLast, countersWith({{5, 1234}}));
    EXPECT_EQ(log.countStarting("LOG Got Line:"), 2);
    EXPECT_EQ(log.indexOf("LOG Got Line:" + std::string(255, 'x') + "\n"), 2);
    EXPECT_EQ(log.indexOf("LOG Got Line:xLastInk_M=1234" + std::string(30, ' ') + "\n\n"), 3);
}

TEST_F(CounterReader, LosesAKeywordCutByThePieceBorder)
{
    parse(std::string(250, 'x') + "LastInk_M=1234\nLastInk_C=1\n");
    EXPECT_EQ(settings().inkLast, countersWith({{6, 1}}));
}

TEST_F(CounterReader, FindsARecordThatEndsAtThePieceBorder)
{
    const std::string record = "LastInk_M=1234";
    parse(std::string(255 - record.size(), 'x') + record + "LastInk_C=9\n");
    EXPECT_EQ(settings().inkLast, countersWith({{5, 1234}, {6, 9}}));
}

TEST_F(CounterReader, TakesOnePieceAsALineWithBothKeywords)
{
    parse("LastInk_M=5 " + std::string(200, 'x') + " TotalInk_M=50 " + std::string(200, 'x') + " LastInk_M=6\n");
    EXPECT_EQ(settings().inkTotal, countersWith({{5, 50}}));
    EXPECT_EQ(settings().inkLast, countersWith({{5, 6}}));
}

TEST_F(CounterReader, TakesAnyLineEnd)
{
    for (const char *end : {"\n", "\r", "\r\n"}) {
        parse(std::string("LastInk_M=5") + end + "LastInk_C=6" + end + end + "TotalInk_Y=7");
        EXPECT_EQ(settings().inkLast, countersWith({{5, 5}, {6, 6}}));
        EXPECT_EQ(settings().inkTotal, countersWith({{4, 7}}));
    }
}

} // namespace
} // namespace tessarin::test
