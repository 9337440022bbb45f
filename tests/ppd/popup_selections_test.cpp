// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The current selections of the pop-ups, read from the parsed PPD.

#include "ppd/popup_choices.h"

#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

using Selections = std::array<int, 8>;

Selections selectionsOf(const TestContext &context)
{
    Selections selections{};
    std::copy_n(context->settings.popupSelections.begin(), selections.size(), selections.begin());
    return selections;
}

/// Lists and selections of a PPD whose defaults are marked.
class ReadSelections {
public:
    explicit ReadSelections(const std::string &ppdPath) : host(ppdPath), context(host)
    {
        getPPDComboOptions(context);
        context->settings.popupSelections.fill(99);
        result = getPPDComboSelections(context);
    }

    RecordingHost host;
    TestContext context;
    int result = -1;
};

TEST(PopUpSelections, AreThePairNumbersOfTheMarkedChoices)
{
    ReadSelections read(ppdFixture("minimal"));
    EXPECT_EQ(read.result, 0);
    EXPECT_EQ(selectionsOf(read.context), (Selections{1, 2, 1, 1, 2, 1, 1, 1}));
    read.host.mark("vornMediaType", "Custom10");
    read.host.mark("vornColorModel", "CMYK");
    read.host.mark("vornColorspace", "1001");
    getPPDComboSelections(read.context);
    EXPECT_EQ(selectionsOf(read.context), (Selections{1, 4, 1, 1, 3, 1, 3, 1})) << "separators count";
}

TEST(PopUpSelections, BeyondTheTableStayAsTheyAre)
{
    const ReadSelections read(ppdFixture("minimal"));
    for (std::size_t row = 8; row < 12; ++row) {
        EXPECT_EQ(read.context->settings.popupSelections[row], 99) << row;
    }
}

TEST(PopUpSelections, AreLoggedRowByRow)
{
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host);
    getPPDComboOptions(context);
    const CapturedLog log;
    getPPDComboSelections(context);
    EXPECT_EQ(log.lines(), logged({"getComboPPDSelection for vornCartridgeType\n", "current selection is #1\n",
                                   "getComboPPDSelection for vornMediaType\n", "current selection is #2\n",
                                   "getComboPPDSelection for vornResolution\n", "current selection is #1\n",
                                   "getComboPPDSelection for vornIntent\n", "current selection is #1\n",
                                   "getComboPPDSelection for vornColorModel\n", "current selection is #2\n",
                                   "getComboPPDSelection for vornDithering\n", "current selection is #1\n",
                                   "getComboPPDSelection for vornColorspace\n", "current selection is #1\n",
                                   "getComboPPDSelection for vornCMYKspace\n", "current selection is #1\n"}));
}

TEST(PopUpSelections, AreTheDefaultsWhereNothingIsMarked)
{
    const PPDHandle ppd = openPPD(ppdFixture("minimal").c_str()); // nothing is marked
    ASSERT_NE(ppd, nullptr);
    const TestContext context;
    context->ppdFile = ppd.get();
    getPPDComboOptions(context);
    ppdMarkOption(ppd.get(), "vornMediaType", "Custom10");
    const CapturedLog log;
    getPPDComboSelections(context);
    EXPECT_EQ(selectionsOf(context), (Selections{1, 4, 1, 1, 2, 1, 1, 1}));
    const Lines firstRows(log.lines().begin(), log.lines().begin() + 8);
    EXPECT_EQ(firstRows, logged({"getComboPPDSelection for vornCartridgeType\n",
                                 "!!! no choice marked - using default value\n", "current selection is #1\n",
                                 "getComboPPDSelection for vornMediaType\n", "current selection is #4\n",
                                 "getComboPPDSelection for vornResolution\n",
                                 "!!! no choice marked - using default value\n", "current selection is #1\n"}));
    EXPECT_EQ(log.count("LOG !!! no choice marked - using default value\n"), 7);
}

TEST(PopUpSelections, AreZeroForAMissingOption)
{
    const CapturedLog log;
    const ReadSelections read(ppdFixture("no-cartridge"));
    EXPECT_EQ(selectionsOf(read.context), (Selections{0, 2, 1, 1, 2, 1, 1, 1}));
    EXPECT_EQ(log.count("LOG !!! no choice marked - using default value\n"), 1);
    EXPECT_EQ(log.count("LOG current selection is #0\n"), 1);
}

TEST(PopUpSelections, AreZeroForADefaultThatNamesNoChoice)
{
    const ReadSelections read(ppdFixture("unknown-default"));
    EXPECT_EQ(selectionsOf(read.context), (Selections{1, 0, 0, 1, 2, 1, 1, 1}));
}

TEST(PopUpSelections, AreZeroWithoutADefault)
{
    const ReadSelections read(ppdFixture("no-default"));
    EXPECT_EQ(selectionsOf(read.context), (Selections{0, 0, 1, 0, 2, 1, 1, 1}));
}

TEST(PopUpSelections, AreZeroWithoutChoices)
{
    const ReadSelections read(ppdFixture("no-choices"));
    EXPECT_EQ(selectionsOf(read.context), (Selections{1, 2, 1, 1, 2, 0, 1, 1}));
}

TEST(PopUpSelections, AreZeroWithoutAParsedPPD)
{
    const CapturedLog log;
    const ReadSelections read((std::string()));
    EXPECT_EQ(selectionsOf(read.context), Selections{});
    EXPECT_EQ(log.count("LOG !!! no choice marked - using default value\n"), 8);
    EXPECT_EQ(log.count("LOG current selection is #0\n"), 8);
}

TEST(PopUpSelections, AreTheFirstEntryForAChoiceThatWasCutOff)
{
    const CapturedLog log;
    const ReadSelections read(ppdFixture("choices-100"));
    ASSERT_EQ(pairsOf(read.context.table(), 1).size(), 79U);
    EXPECT_EQ(read.context->settings.popupSelections[1], 1);
    EXPECT_EQ(log.count("LOG !!! no choice marked - using default value\n"), 0);
}

TEST(PopUpSelections, AreTheFirstEntryForAChoiceOfAnEmptyList)
{
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host); // the lists were not built
    getPPDComboSelections(context);
    EXPECT_EQ(selectionsOf(context), (Selections{1, 1, 1, 1, 1, 1, 1, 1}));
}

TEST(PopUpSelections, MayBeTheSeparatorWhenItComesFirst)
{
    const TextFile file(ppdText({{"vornMediaType", "M090x", {"Custom1/One"}}}));
    RecordingHost host(file.path());
    const TestContext context(host);
    fillRow(context.table(), 1, {{"---separator---", "---separator---"}, {"Custom2", "Two"}});
    host.mark("vornMediaType", "Custom1"); // marked, but not in the list
    getPPDComboSelections(context);
    EXPECT_EQ(context->settings.popupSelections[1], 1);
}

} // namespace
} // namespace tessarin::test
