// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Numbers, bar levels and sums of the ink rows.

#include "ink/level_display.h"
#include "tests/ink/ink_rows.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tessarin::test {
namespace {

constexpr std::int32_t kGreatest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

class InkValues : public InkDisplay {
protected:
    /// The row of a last-job counter beside a hidden channel with another.
    void setLast(std::int32_t counter, std::int32_t hiddenCounter = 0)
    {
        clearChannels();
        showChannel(6, counter);
        context_->settings.inkLast[0] = hiddenCounter;
        SetInkValues(context_);
    }
    void setTotal(std::int32_t counter)
    {
        clearChannels();
        showChannel(6, 0, counter);
        SetInkValues(context_);
    }
    void setAll(std::int32_t lastCounter, std::int32_t totalCounter)
    {
        for (std::size_t channel = 0; channel < 20; ++channel) {
            showChannel(channel, lastCounter, totalCounter);
        }
        SetInkValues(context_);
    }
};

TEST_F(InkValues, OfTheLastJobAreHundredths)
{
    struct Case {
        std::int32_t counter;
        const char *text;
        const char *sum;
    };
    for (const Case &c : std::vector<Case>{{0, "0", "0"},
                                           {49, "0", "0"},
                                           {50, "1", "1"},
                                           {149, "1", "1"},
                                           {150, "2", "2"},
                                           {12345, "123", "123"},
                                           {12350, "124", "124"},
                                           {-3, "0", "0"},
                                           {-149, "0", "0"},
                                           {-150, " ", " "},
                                           {-151, " ", " "}}) {
        setLast(c.counter);
        EXPECT_EQ(last_.values[0]->text(), c.text) << c.counter;
        EXPECT_EQ(last_.sum->text(), c.sum) << c.counter;
    }
}

TEST_F(InkValues, OfTheLastJobAreComparedWithTheLargest)
{
    struct Case {
        std::int32_t counter;
        std::int32_t largest;
        int level;
    };
    for (const Case &c : std::vector<Case>{{500, 1000, 50},
                                           {999, 1000, 99},
                                           {1000, 1000, 100},
                                           {9, 1000, 0},
                                           {10, 1000, 1},
                                           {1, 1, 100},
                                           {0, 0, 0},
                                           {0, -50, 0},
                                           {30, 1000, 3},
                                           {1000, 30, 100}}) {
        setLast(c.counter, c.largest);
        EXPECT_EQ(last_.bars[0]->level(), c.level) << c.counter << " of " << c.largest;
        EXPECT_TRUE(isShown(last_, 0));
    }
}

// Small negative counters stay visible beside a large one.
TEST_F(InkValues, OfTheLastJobHideARowOnlyWhereTheLevelIsNegative)
{
    struct Case {
        std::int32_t counter;
        std::int32_t largest;
        int level;
        bool shown;
    };
    for (const Case &c : std::vector<Case>{{-3, 1, -300, false},
                                           {-3, 300, -1, false},
                                           {-3, 301, 0, true},
                                           {-3, 1000, 0, true},
                                           {-1, 0, -100, false},
                                           {-150, 20000, 0, true}}) {
        setLast(c.counter, c.largest);
        EXPECT_EQ(last_.bars[0]->level(), c.level) << c.counter << " of " << c.largest;
        EXPECT_EQ(isShown(last_, 0), c.shown) << c.counter << " of " << c.largest;
    }
}

TEST_F(InkValues, HideAChannelWithANegativeCounter)
{
    showChannel(4, -3, -15005);
    showChannel(6, 100, 10000);
    SetInkValues(context_);
    EXPECT_FALSE(isShown(last_, 0));
    EXPECT_FALSE(isShown(total_, 0));
    EXPECT_TRUE(isShown(last_, 1));
    EXPECT_TRUE(isShown(total_, 1));
}

TEST_F(InkValues, OfAllJobsAreThousandths)
{
    struct Case {
        std::int32_t counter;
        int level;
        const char *text;
        const char *sum;
    };
    for (const Case &c : std::vector<Case>{{0, 0, "0", "0"},
                                           {499, 0, "1", "0"},
                                           {4994, 0, "5", "5"},
                                           {4995, 1, "5", "5"},
                                           {9999, 1, "10", "10"},
                                           {12345, 1, "12", "12"},
                                           {12494, 1, "12", "12"},
                                           {12495, 1, "13", "12"},
                                           {12500, 1, "13", "13"},
                                           {14994, 1, "15", "15"},
                                           {14995, 2, "15", "15"},
                                           {1'000'000, 100, "1000", "1000"},
                                           {1'004'994, 100, "1005", "1005"},
                                           {1'004'995, 101, "1005", "1005"},
                                           {-4, 0, "0", "0"},
                                           {-15004, 0, " ", " "}}) {
        setTotal(c.counter);
        EXPECT_EQ(total_.bars[0]->level(), c.level) << c.counter;
        EXPECT_EQ(total_.values[0]->text(), c.text) << c.counter;
        EXPECT_EQ(total_.sum->text(), c.sum) << c.counter;
        EXPECT_TRUE(isShown(total_, 0)) << c.counter;
    }
}

TEST_F(InkValues, OfAllJobsHideARowFromMinus15005Down)
{
    for (const auto &[counter, level] : {std::pair{-15005, -1}, {-25000, -1}, {-25005, -2}, {-1'000'000, -99}}) {
        setTotal(counter);
        EXPECT_EQ(total_.bars[0]->level(), level) << counter;
        EXPECT_FALSE(isShown(total_, 0)) << counter;
    }
    setTotal(-1);
    EXPECT_TRUE(isShown(total_, 0));
}

// Without a channel, a row stands for -2000.
TEST_F(InkValues, MakeUnusedRowsOfTheLastJobVisibleBesideAVeryLargeCounter)
{
    setLast(200'000);
    EXPECT_EQ(last_.bars[1]->level(), -1);
    EXPECT_FALSE(isShown(last_, 1));
    setLast(200'001);
    for (std::size_t k = 1; k < 12; ++k) {
        EXPECT_TRUE(isShown(last_, k));
        EXPECT_EQ(row(last_, k), (Row{" ", " ", 0}));
        EXPECT_FALSE(isShown(total_, k));
    }
}

TEST_F(InkValues, SumUpAllChannelsHiddenOnesToo)
{
    for (std::size_t channel = 0; channel < 20; ++channel) {
        context_->settings.inkLast[channel] = 100;
        context_->settings.inkTotal[channel] = 1000;
    }
    context_->settings.inkLast[20] = 77'000;
    context_->settings.inkTotal[20] = 77'000;
    context_->settings.inkSeen[6] = 1;
    SetInkValues(context_);
    EXPECT_EQ(last_.sum->text(), "20");
    EXPECT_EQ(total_.sum->text(), "20");
    EXPECT_EQ(last_.bars[0]->level(), 100);
}

TEST_F(InkValues, SumUpBeforeTheyRound)
{
    for (const std::size_t channel : {4U, 5U, 6U, 8U}) {
        showChannel(channel, 30, 300);
    }
    SetInkValues(context_);
    EXPECT_EQ(row(last_, 0).value, "0");
    EXPECT_EQ(last_.sum->text(), "1");
    EXPECT_EQ(row(total_, 0).value, "0");
    EXPECT_EQ(total_.sum->text(), "1");
}

TEST_F(InkValues, AreScaledByAHiddenPlainBlack)
{
    context_->settings.inkLast[0] = 1000;
    showChannel(1, 30);
    SetInkValues(context_);
    EXPECT_EQ(row(last_, 0), (Row{"Photo Black", "0", 3}));
    EXPECT_EQ(last_.sum->text(), "10");
}

TEST_F(InkValues, SumUpToABlankBelowZero)
{
    showChannel(4, -1000, -100'000);
    showChannel(6, 100, 10'000);
    SetInkValues(context_);
    EXPECT_EQ(last_.sum->text(), " ");
    EXPECT_EQ(total_.sum->text(), " ");
}

TEST_F(InkValues, AreExactForTheGreatestCounters)
{
    setAll(kGreatest, kGreatest);
    EXPECT_EQ(row(last_, 0), (Row{"Black", "21474836", 100}));
    EXPECT_EQ(row(total_, 0), (Row{"Black", "2147484", 214'748}));
    EXPECT_EQ(last_.sum->text(), "429496729");
    EXPECT_EQ(total_.sum->text(), "42949673");
}

TEST_F(InkValues, AreExactWhereAProductPasses32Bits)
{
    setLast(10'737'418, 21'474'837);
    EXPECT_EQ(last_.bars[0]->level(), 49); // a little less than half
    setLast(21'474'837);
    EXPECT_EQ(last_.bars[0]->level(), 100);
    setLast(kGreatest - 1, kGreatest);
    EXPECT_EQ(last_.bars[0]->level(), 99);
}

TEST_F(InkValues, AreHiddenForTheLeastCounters)
{
    setAll(kLeast, kLeast);
    EXPECT_TRUE(shownRows(last_).empty());
    EXPECT_TRUE(shownRows(total_).empty());
    EXPECT_EQ(last_.bars[0]->level(), kLeast);
    EXPECT_EQ(total_.bars[0]->level(), -214'747); // (-214748364 + 500) / 1000
    EXPECT_EQ(last_.sum->text(), " ");
    EXPECT_EQ(total_.sum->text(), " ");
}

} // namespace
} // namespace tessarin::test
