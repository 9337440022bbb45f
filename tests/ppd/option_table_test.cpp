// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/option_table.h"

#include "tests/ppd/ppd_test_support.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessarin::test {
namespace {

TEST(OptionTable, LaysPairsFromSlotOneOn)
{
    PPDOptionTable table;
    ASSERT_TRUE(appendPair(table, 3, "A", "Text of A"));
    ASSERT_TRUE(appendPair(table, 3, "B", "Text of B"));
    const ChoiceRow &places = table.choiceLists[3];
    EXPECT_EQ(places[0], nullptr);
    EXPECT_STREQ(places[1], "A");
    EXPECT_STREQ(places[2], "Text of A");
    EXPECT_STREQ(places[3], "B");
    EXPECT_STREQ(places[4], "Text of B");
    EXPECT_EQ(places[5], nullptr);
    EXPECT_EQ(pairCount(choiceList(table, 3)), 2);
    EXPECT_EQ(pairCount(choiceList(table, 2)), 0);
    EXPECT_EQ(pairCount(choiceList(table, 4)), 0);
}

TEST(OptionTable, NumbersPairsFromOne)
{
    PPDOptionTable table;
    fillRow(table, 0, {{"A", "a"}, {"B", "b"}, {"C", "c"}});
    const ChoiceList list = choiceList(table, 0);
    EXPECT_STREQ(pairKey(list, 1), "A");
    EXPECT_STREQ(pairText(list, 1), "a");
    EXPECT_STREQ(pairKey(list, 3), "C");
    EXPECT_STREQ(pairText(list, 3), "c");
}

TEST(OptionTable, HasNoPairForANumberOutsideTheList)
{
    PPDOptionTable table;
    fillRow(table, 0, {{"A", "a"}, {"B", "b"}, {"C", "c"}});
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int greatest = std::numeric_limits<int>::max();
    for (const int number : {0, -1, 4, 82, 83, 123, least, greatest}) {
        EXPECT_EQ(pairKey(choiceList(table, 0), number), nullptr) << number;
        EXPECT_EQ(pairText(choiceList(table, 0), number), nullptr) << number;
        EXPECT_EQ(pairKey(choiceList(table, 1), number), nullptr) << number;
    }
}

TEST(OptionTable, RowHoldsEightyTwoPairsAndTheNullKey)
{
    PPDOptionTable table;
    for (int n = 1; n <= 82; ++n) {
        ASSERT_TRUE(appendPair(table, 1, "key", "text")) << n;
    }
    EXPECT_FALSE(appendPair(table, 1, "one", "too many"));
    EXPECT_EQ(pairCount(choiceList(table, 1)), 82);
    EXPECT_STREQ(table.choiceLists[1][164], "text");
    EXPECT_EQ(table.choiceLists[1][165], nullptr);
    EXPECT_EQ(pairCount(choiceList(table, 2)), 0);
}

TEST(OptionTable, RowsOutsideTheTableAreEmptyAndTakeNothing)
{
    PPDOptionTable table;
    for (const int row : {-1, 15, 1000}) {
        EXPECT_TRUE(choiceList(table, row).empty()) << row;
        EXPECT_FALSE(appendPair(table, row, "key", "text")) << row;
    }
    EXPECT_TRUE(appendPair(table, 14, "key", "text"));
}

TEST(OptionTable, ClearingEmptiesEverySlotOfAllFifteenRows)
{
    PPDOptionTable table;
    for (ChoiceRow &row : table.choiceLists) {
        row.fill("stale");
    }
    clearChoiceLists(table);
    for (const ChoiceRow &row : table.choiceLists) {
        for (const char *slot : row) {
            ASSERT_EQ(slot, nullptr);
        }
    }
    EXPECT_EQ(table.choiceLists.size(), 15U);
}

TEST(OptionTable, ConstraintWalkEndsAtANegativeFirstRow)
{
    PPDOptionTable table;
    setGroups(table, {{0, 1, 2, 3}, {1, 0, 2, 0}});
    ConstraintGroup group{};
    ASSERT_TRUE(constraintAt(table, 0, group));
    EXPECT_EQ(group.firstRow, 0);
    EXPECT_EQ(group.firstChoice, 1);
    EXPECT_EQ(group.secondRow, 2);
    EXPECT_EQ(group.secondChoice, 3);
    ASSERT_TRUE(constraintAt(table, 1, group));
    EXPECT_EQ(group.firstRow, 1);
    EXPECT_FALSE(constraintAt(table, 2, group));
}

TEST(OptionTable, ConstraintWalkEndsAfterFiftyPlacesWithoutAnEndMark)
{
    const PPDOptionTable table; // as made: zeros read as groups
    ConstraintGroup group{};
    EXPECT_TRUE(constraintAt(table, 0, group));
    EXPECT_TRUE(constraintAt(table, 49, group));
    EXPECT_FALSE(constraintAt(table, 50, group));
    EXPECT_FALSE(constraintAt(table, 1000, group));
    EXPECT_EQ(table.constraints.size(), 201U);
}

} // namespace
} // namespace tessarin::test
