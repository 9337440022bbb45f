// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/cups_options.h"

#include "tests/host/host_test_support.h"

#include <gtest/gtest.h>

#include <array>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

TEST(CupsOptions, LetsALaterValueReplaceAnEarlierOneWhateverTheCase)
{
    CupsOptions options;
    options.add(u"PageSize"_s, u"A4"_s);
    options.add(u"pagesize"_s, u"A3"_s);
    EXPECT_EQ(options.count(), 1);
    EXPECT_EQ(options.value(u"PageSize"_s), u"A3"_s);
}

TEST(CupsOptions, LeavesOutWhatHasNoName)
{
    CupsOptions options;
    options.add(u""_s, u"A4"_s);
    EXPECT_EQ(options.count(), 0);
}

TEST(CupsOptions, MovesItsList)
{
    CupsOptions options;
    options.add(u"a"_s, u"1"_s);
    CupsOptions moved = std::move(options);
    EXPECT_EQ(moved.count(), 1);
    CupsOptions assigned;
    assigned.add(u"b"_s, u"2"_s);
    assigned = std::move(moved);
    EXPECT_EQ(assigned.value(u"a"_s), u"1"_s);
}

TEST(CupsOptions, TakesOverAnotherList)
{
    CupsOptions base;
    base.add(u"a"_s, u"1"_s);
    base.add(u"b"_s, u"1"_s);
    CupsOptions over;
    over.add(u"b"_s, u"2"_s);
    base.addAll(over);
    EXPECT_EQ(base.count(), 2);
    EXPECT_EQ(base.value(u"b"_s), u"2"_s);
}

TEST(JobOptionsOf, KeepsOptionsAndDropsWhatDescribesTheQueue)
{
    std::array<std::array<char, 32>, 6> names = {{{"device-uri"},
                                                  {"marker-levels"},
                                                  {"printer-info"},
                                                  {"auth-info-required"},
                                                  {"vornMediaType"},
                                                  {"job-sheets"}}};
    std::array<char, 8> value = {"x"};
    std::array<cups_option_t, 6> list = {};
    for (std::size_t i = 0; i < list.size(); ++i) {
        list[i] = {.name = names[i].data(), .value = value.data()};
    }
    const CupsOptions options = jobOptionsOf(static_cast<int>(list.size()), list.data());
    EXPECT_EQ(options.count(), 2);
    EXPECT_TRUE(options.value(u"vornMediaType"_s));
    EXPECT_TRUE(options.value(u"job-sheets"_s));
}

} // namespace
} // namespace tessarin::host
