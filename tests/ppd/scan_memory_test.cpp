// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// How much memory the strings of the choice lists take, and what happens when there is none. The program replaces
// the operator that they are allocated with, so it holds no other tests.

#include "ppd/keyword_scanner.h"
#include "ppd/popup_choices.h"
#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

#include <cstring>
#include <new>
#include <optional>

namespace {

bool noMemory = false;
std::optional<std::size_t> lastSize;

} // namespace

void *operator new[](std::size_t size, const std::nothrow_t &) noexcept
{
    lastSize = size;
    if (noMemory) {
        return nullptr;
    }
    try {
        return ::operator new[](size);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

namespace tessarin::test {
namespace {

std::size_t bytesFor(const std::string &ppdPath)
{
    RecordingHost host(ppdPath);
    const TestContext context(host);
    lastSize.reset();
    getPPDComboOptions(context);
    return lastSize.value_or(999999);
}

std::size_t bytesFor(const OptionText &option)
{
    const TextFile file(ppdText({option}));
    return bytesFor(file.path());
}

TEST(ScanMemory, HoldsKeyAndTextOfEveryChoiceWithTheirEnds)
{
    EXPECT_EQ(bytesFor(OptionText{"vornDithering", "", {"A/text"}}), 1U + 4U + 2U);
    EXPECT_EQ(bytesFor(OptionText{"vornDithering", "", {"A/text", "Diffusion"}}), 7U + 9U + 9U + 2U);
    EXPECT_EQ(bytesFor(OptionText{"vornDithering", "", {"Plain0/a", "1001/b", "Custom1/c"}}),
              (6U + 1U + 2U) + (4U + 1U + 2U) + (7U + 1U + 2U));
}

TEST(ScanMemory, HoldsTwoBytesForAMarkAndSixteenForASeparator)
{
    EXPECT_EQ(bytesFor(OptionText{"vornMediaType", "", {"Plain0/a"}}), 6U + 1U + 2U + 2U);
    EXPECT_EQ(bytesFor(OptionText{"vornMediaType", "", {"Custom1/a"}}), 16U + 7U + 1U + 2U);
    EXPECT_EQ(bytesFor(OptionText{"vornMediaType", "", {"Custom10/a", "Custom20/b"}}),
              (16U + 8U + 1U + 2U + 2U) + (8U + 1U + 2U));
    EXPECT_EQ(bytesFor(OptionText{"vornColorspace", "", {"10/a", "1000/b", "1001/c"}}),
              (2U + 1U + 2U) + (16U + 4U + 1U + 2U) + (4U + 1U + 2U));
}

TEST(ScanMemory, HoldsOnlyTheChoicesThatAreNotCutOff)
{
    // Keys "M001x", texts "Text 1" to "Text 9", then "Text 10" and on.
    constexpr std::size_t nine = 9U * (5U + 6U + 2U);
    EXPECT_EQ(bytesFor(OptionText{"vornMediaType", "", numberedChoices(81, "M")}), nine + 72U * (5U + 7U + 2U));
    EXPECT_EQ(bytesFor(OptionText{"vornMediaType", "", numberedChoices(82, "M")}), nine + 70U * (5U + 7U + 2U));
}

TEST(ScanMemory, IsTheSumOfAllRows)
{
    constexpr std::size_t cartridges = 23 + 23;
    constexpr std::size_t media = (19 + 2) + 19 + (16 + 25 + 2);
    constexpr std::size_t resolutions = 15 + 17;
    constexpr std::size_t intents = 23 + 13;
    constexpr std::size_t colorModes = 15 + 14 + 16;
    constexpr std::size_t ditherings = 26 + 26;
    constexpr std::size_t colorSpaces = 7 + (16 + 26);
    constexpr std::size_t cmykSpaces = 24 + (16 + 27);
    EXPECT_EQ(bytesFor(ppdFixture("minimal")),
              cartridges + media + resolutions + intents + colorModes + ditherings + colorSpaces + cmykSpaces);
    EXPECT_EQ(bytesFor(ppdFixture("foreign")), 0U);
    EXPECT_EQ(bytesFor(std::string()), 0U) << "without a PPD";
}

TEST(ScanMemory, HoldsKeyAndTextOneBehindTheOtherUpToItsEnd)
{
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host);
    lastSize.reset();
    getPPDComboOptions(context);
    const char *next = context->ppdScanBuffer.get();
    for (int row = 0; row < 8; ++row) {
        const ChoiceRow &places = context.table().choiceLists.at(static_cast<std::size_t>(row));
        for (std::size_t slot = 1; places.at(slot) != nullptr; ++slot) {
            if (slot % 2 == 0 && places.at(slot) == places.at(slot - 1)) {
                continue; // both of a separator's slots point to one copy
            }
            ASSERT_EQ(places.at(slot), next) << row << " " << slot;
            next += std::strlen(next) + 1;
        }
    }
    EXPECT_EQ(static_cast<std::size_t>(next - context->ppdScanBuffer.get()), lastSize.value_or(0));
}

TEST(ScanMemory, WhenItCannotBeHadTheListsStayEmptyAndTheScanGoesOn)
{
    RecordingHost host(ppdFixture("constraint-oddities"));
    const TestContext context(host);
    const CapturedLog log;
    noMemory = true;
    ParsePPDFile(ppdFixture("constraint-oddities").c_str(), context);
    noMemory = false;
    for (int row = 0; row < 15; ++row) {
        EXPECT_EQ(pairsOf(context.table(), row), Pairs{}) << row;
    }
    EXPECT_EQ(groupsOf(context.table()), Groups{}) << "constraints of empty lists are dropped";
    EXPECT_EQ(context->ppdScanBuffer, nullptr);
    EXPECT_EQ(log.countStarting("LOG getComboPPDFeature for "), 8) << "only counted";
    EXPECT_EQ(log.lines().back(), "LOG End PPD-Scan\n");
}

TEST(ScanMemory, OnAnOldHostIsTenThousandBytes)
{
    const TestContext context;
    context->onTiger = 1;
    lastSize.reset();
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    EXPECT_EQ(lastSize, 10000U);
}

TEST(ScanMemory, WhenItCannotBeHadOnAnOldHostTheScanEndsSilently)
{
    const TestContext context;
    context->onTiger = 1;
    context.table().constraints.fill(7);
    fillRow(context.table(), 1, {{"stale", "stale"}});
    const CapturedLog log;
    noMemory = true;
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    noMemory = false;
    EXPECT_EQ(log.lines(), logged({"ParsePPD\n"}));
    EXPECT_EQ(pairsOf(context.table(), 1), Pairs{});
    EXPECT_EQ(groupsOf(context.table()), Groups{});
    EXPECT_EQ(context->ppdScanBuffer, nullptr);
}

} // namespace
} // namespace tessarin::test
