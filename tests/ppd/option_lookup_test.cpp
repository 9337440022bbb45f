// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/option_access.h"

#include "tests/ppd/ppd_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

TEST(FindPPDKey, GivesTheRowOfEachKeywordWithItsStar)
{
    EXPECT_EQ(findppdkey("*vornCartridgeType"), 0);
    EXPECT_EQ(findppdkey("*vornMediaType"), 1);
    EXPECT_EQ(findppdkey("*vornResolution"), 2);
    EXPECT_EQ(findppdkey("*vornIntent"), 3);
    EXPECT_EQ(findppdkey("*vornColorModel"), 4);
    EXPECT_EQ(findppdkey("*vornDithering"), 5);
    EXPECT_EQ(findppdkey("*vornColorspace"), 6);
    EXPECT_EQ(findppdkey("*vornCMYKspace"), 7);
}

TEST(FindPPDKey, NeedsTheWholeKeywordInItsCaseAndTheStar)
{
    for (const char *keyword : {"vornMediaType", "**vornMediaType", "*vornmediatype", "*VORNMEDIATYPE",
                                "*vornMedia", "*vornMediaTypes", "*vornMediaType ", " *vornMediaType"}) {
        EXPECT_EQ(findppdkey(keyword), -1) << keyword;
    }
}

TEST(FindPPDKey, DoesNotKnowSlidersCheckBoxesAndTheEndRow)
{
    for (const char *keyword :
         {"*vornBrightness", "*vornColorM", "*vornNoPrint", "*ColorModel", "*PageSize", "*", ""}) {
        EXPECT_EQ(findppdkey(keyword), -1) << keyword;
    }
    EXPECT_EQ(findppdkey(nullptr), -1);
}

TEST(FindPPDItem, GivesThePairIndexOfAKnownChoice)
{
    PPDOptionTable table;
    fillRow(table, 1, {{"A", "a"}, {"B", "b"}, {"C", "c"}});
    EXPECT_EQ(findppditem(table, 1, "A"), 0);
    EXPECT_EQ(findppditem(table, 1, "B"), 1);
    EXPECT_EQ(findppditem(table, 1, "C"), 2);
}

TEST(FindPPDItem, GivesTheCountForAnUnknownChoiceOfAListWithChoices)
{
    PPDOptionTable table;
    fillRow(table, 0, {{"A", "a"}});
    fillRow(table, 1, {{"A", "a"}, {"B", "b"}, {"C", "c"}});
    EXPECT_EQ(findppditem(table, 0, "A"), 0);
    EXPECT_EQ(findppditem(table, 0, "B"), 1);
    EXPECT_EQ(findppditem(table, 1, "D"), 3);
    EXPECT_EQ(findppditem(table, 1, "a"), 3) << "neither another case nor the display text is a key";
    EXPECT_EQ(findppditem(table, 1, ""), 3);
    EXPECT_EQ(findppditem(table, 1, "AB"), 3);
}

TEST(FindPPDItem, GivesMinusOneForAnEmptyListWhateverTheChoice)
{
    const PPDOptionTable table;
    EXPECT_EQ(findppditem(table, 0, "A"), -1);
    EXPECT_EQ(findppditem(table, 0, ""), -1);
    EXPECT_EQ(findppditem(table, 14, "A"), -1);
}

TEST(FindPPDItem, CountsSeparatorsAndTakesTheFirstOfEqualKeys)
{
    PPDOptionTable table;
    fillRow(table, 1,
            {{"A", "a"}, {"---separator---", "---separator---"}, {"Custom1", "c"}, {"A", "again"}, {"", "no key"}});
    EXPECT_EQ(findppditem(table, 1, "A"), 0);
    EXPECT_EQ(findppditem(table, 1, "---separator---"), 1);
    EXPECT_EQ(findppditem(table, 1, "Custom1"), 2);
    EXPECT_EQ(findppditem(table, 1, ""), 4);
    EXPECT_EQ(findppditem(table, 1, "again"), 5);
}

TEST(FindPPDItem, GivesEightyTwoForAnUnknownChoiceOfAFullRow)
{
    PPDOptionTable table;
    while (appendPair(table, 1, "key", "text")) {
    }
    EXPECT_EQ(findppditem(table, 1, "other"), 82);
}

TEST(FindPPDSelection, GivesThePairIndex)
{
    PPDOptionTable table;
    fillRow(table, 2, {{"A", "a"}, {"B", "b"}, {"C", "c"}});
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 2), "A"), 0U);
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 2), "B"), 1U);
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 2), "C"), 2U);
}

TEST(FindPPDSelection, GivesTheFirstEntryForWhatTheListDoesNotHave)
{
    PPDOptionTable table;
    fillRow(table, 2, {{"A", "a"}, {"B", "b"}, {"C", "c"}});
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 2), "D"), 0U);
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 2), "b"), 0U);
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 2), ""), 0U);
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 2), nullptr), 0U);
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 3), "A"), 0U);
    EXPECT_EQ(myFindPPDSelection(choiceList(table, 3), nullptr), 0U);
    EXPECT_EQ(myFindPPDSelection({}, "A"), 0U);
}

TEST(WithoutStar, StripsOneLeadingStarAndNoMore)
{
    EXPECT_STREQ(withoutStar("*vornMediaType"), "vornMediaType");
    EXPECT_STREQ(withoutStar("**vornMediaType"), "*vornMediaType");
    EXPECT_STREQ(withoutStar("vornMediaType"), "vornMediaType");
    EXPECT_STREQ(withoutStar("vorn*MediaType"), "vorn*MediaType");
    EXPECT_STREQ(withoutStar("*"), "");
    EXPECT_STREQ(withoutStar(""), "");
    EXPECT_EQ(withoutStar(nullptr), nullptr);
}

} // namespace
} // namespace tessarin::test
