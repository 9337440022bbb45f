// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Page ranges: what is read, how it is written for the print server, what is refused.

#include "settings/page_ranges.h"

#include "tests/host/host_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

struct ReadCase {
    const char *what;
    QString text;
    std::vector<std::pair<int, int>> ranges;
    QString normal;
};

class PageRangesRead : public testing::TestWithParam<ReadCase> {};

TEST_P(PageRangesRead, GivesRangesAndTheirNormalForm)
{
    const auto read = parsePageRanges(GetParam().text);
    ASSERT_TRUE(read.ok()) << qPrintable(read.reason());
    std::vector<std::pair<int, int>> ranges;
    for (const PageRange &range : read.value()) {
        ranges.emplace_back(range.first, range.last);
    }
    EXPECT_EQ(ranges, GetParam().ranges);
    EXPECT_EQ(normalPageRanges(read.value()), GetParam().normal);
    // The normal form is read as what it was made from.
    const auto again = parsePageRanges(GetParam().normal);
    ASSERT_TRUE(again.ok()) << qPrintable(again.reason());
    EXPECT_EQ(normalPageRanges(again.value()), GetParam().normal);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, PageRangesRead,
    testing::Values(ReadCase{"null", QString(), {}, u""_s}, ReadCase{"empty", u""_s, {}, u""_s},
                    ReadCase{"blanks", u" \t "_s, {}, u""_s}, ReadCase{"page", u"7"_s, {{7, 7}}, u"7"_s},
                    ReadCase{"range", u"2-5"_s, {{2, 5}}, u"2-5"_s}, ReadCase{"same", u"4-4"_s, {{4, 4}}, u"4"_s},
                    ReadCase{"from_start", u"-3"_s, {{1, 3}}, u"1-3"_s},
                    ReadCase{"to_end", u"8-"_s, {{8, 2147483647}}, u"8-2147483647"_s},
                    ReadCase{
                        "several", u"1-3, 5,\t8 - "_s, {{1, 3}, {5, 5}, {8, 2147483647}}, u"1-3,5,8-2147483647"_s},
                    ReadCase{"blanks_everywhere", u"  1 - 3 , 5  "_s, {{1, 3}, {5, 5}}, u"1-3,5"_s},
                    ReadCase{"neighbours", u"1,2,3-4,6"_s, {{1, 1}, {2, 2}, {3, 4}, {6, 6}}, u"1-4,6"_s},
                    ReadCase{"neighbour_to_end", u"1-3,4-"_s, {{1, 3}, {4, 2147483647}}, u"1-2147483647"_s},
                    ReadCase{"leading_zeros", u"007-010"_s, {{7, 10}}, u"7-10"_s},
                    ReadCase{"last_page", u"2147483647"_s, {{2147483647, 2147483647}}, u"2147483647"_s},
                    ReadCase{"up_to_the_last",
                             u"2147483646,2147483647"_s,
                             {{2147483646, 2147483646}, {2147483647, 2147483647}},
                             u"2147483646-2147483647"_s},
                    ReadCase{"no_break_space", u"1-3,\u00a05"_s, {{1, 3}, {5, 5}}, u"1-3,5"_s}),
    [](const testing::TestParamInfo<ReadCase> &tested) { return std::string(tested.param.what); });

struct RefusedCase {
    const char *what;
    QString text;
    QString reason; ///< behind "page ranges: "
};

class PageRangesRefused : public testing::TestWithParam<RefusedCase> {};

TEST_P(PageRangesRefused, SayWhy)
{
    const auto read = parsePageRanges(GetParam().text);
    ASSERT_FALSE(read.ok());
    EXPECT_EQ(read.reason(), u"page ranges: "_s + GetParam().reason);
}

const QString kNoRange = u"is not a page or a range such as 2-5"_s;
const QString kNoPage = u"names a page that cannot be"_s;
const QString kBackwards = u"ends before it begins"_s;
const QString kOrder = u"does not follow the pages before it: a job prints its pages in their order, each once"_s;

INSTANTIATE_TEST_SUITE_P(
    Texts, PageRangesRefused,
    testing::Values(RefusedCase{"word", u"all"_s, u"\"all\" "_s + kNoRange},
                    RefusedCase{"dash", u"-"_s, u"\"-\" "_s + kNoRange},
                    RefusedCase{"two_dashes", u"1--3"_s, u"\"1--3\" "_s + kNoRange},
                    RefusedCase{"three_numbers", u"1-2-3"_s, u"\"1-2-3\" "_s + kNoRange},
                    RefusedCase{"two_numbers", u"1 2"_s, u"\"1 2\" "_s + kNoRange},
                    RefusedCase{"plus", u"+1"_s, u"\"+1\" "_s + kNoRange},
                    RefusedCase{"fraction", u"1.5"_s, u"\"1.5\" "_s + kNoRange},
                    RefusedCase{"semicolon", u"1;2"_s, u"\"1;2\" "_s + kNoRange},
                    RefusedCase{"comma", u","_s, u"\"\" "_s + kNoRange},
                    RefusedCase{"comma_behind", u"1-3,"_s, u"\"\" "_s + kNoRange},
                    RefusedCase{"comma_before", u",1"_s, u"\"\" "_s + kNoRange},
                    RefusedCase{"two_commas", u"1, ,3"_s, u"\"\" "_s + kNoRange},
                    RefusedCase{"placeholder", u"%1"_s, u"\"%1\" "_s + kNoRange},
                    RefusedCase{"other_digits", u"\u0661-\u0663"_s, u"\"\u0661-\u0663\" "_s + kNoRange},
                    RefusedCase{"newline", u"1\n2"_s, u"\"1\n2\" "_s + kNoRange},
                    RefusedCase{"zero", u"0"_s, u"\"0\" "_s + kNoPage},
                    RefusedCase{"from_zero", u"0-3"_s, u"\"0-3\" "_s + kNoPage},
                    RefusedCase{"to_zero", u"-0"_s, u"\"-0\" "_s + kNoPage},
                    RefusedCase{"too_high", u"2147483648"_s, u"\"2147483648\" "_s + kNoPage},
                    RefusedCase{"to_too_high", u"1-99999999999999999999"_s,
                                u"\"1-99999999999999999999\" "_s + kNoPage},
                    RefusedCase{"backwards", u"5 - 2"_s, u"\"5 - 2\" "_s + kBackwards},
                    RefusedCase{"falling", u"5,2"_s, u"\"2\" "_s + kOrder},
                    RefusedCase{"twice", u"3,3"_s, u"\"3\" "_s + kOrder},
                    RefusedCase{"overlapping", u"1-5,4-8"_s, u"\"4-8\" "_s + kOrder},
                    RefusedCase{"inside", u"1-9,-3"_s, u"\"-3\" "_s + kOrder},
                    RefusedCase{"behind_the_end", u"3-,9"_s, u"\"9\" "_s + kOrder}),
    [](const testing::TestParamInfo<RefusedCase> &tested) { return std::string(tested.param.what); });

TEST(PageRanges, AreJudgedAtOnceHoweverLongTheText)
{
    // A search that starts over at every character would not come to an end here.
    for (const QString &filler : {u" "_s, u"1"_s, u"1 "_s, u"- "_s, u","_s}) {
        EXPECT_FALSE(parsePageRanges(u"1"_s + filler.repeated(1'000'000) + u"x"_s).ok()) << qPrintable(filler);
    }
}

TEST(PageRanges, AreWrittenEvenWhenACallerGivesThemUnordered)
{
    EXPECT_EQ(normalPageRanges({}), u""_s);
    EXPECT_EQ(normalPageRanges({{.first = 1, .last = kLastPage}}), u"1-2147483647"_s);
    EXPECT_EQ(normalPageRanges({{.first = 5, .last = 6}, {.first = 1, .last = 2}, {.first = 3, .last = 3}}),
              u"5-6,1-3"_s);
}

TEST(PageRanges, ContainTheirPages)
{
    const std::vector<PageRange> ranges = {{.first = 2, .last = 3}, {.first = 8, .last = kLastPage}};
    const std::vector<std::pair<int, bool>> expected = {{1, false}, {2, true}, {3, true},       {4, false},
                                                        {7, false}, {8, true}, {1000000, true}, {2147483647, true}};
    for (const auto &[page, contained] : expected) {
        EXPECT_EQ(containsPage(ranges, page), contained) << page;
    }
    EXPECT_TRUE(containsPage({}, 1));
    EXPECT_TRUE(containsPage({}, 2147483647));
}

} // namespace
} // namespace tessarin::host
