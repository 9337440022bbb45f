// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Which constraint lines of a PPD are kept, and as what.

#include "ppd/keyword_scanner.h"
#include "tests/ppd/ppd_test_support.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

/// Scans texts for constraints between: cartridges A, B, C; media types M1, M2, (separator), Custom3; resolutions
/// R1, R2; color spaces 1, (separator), 1001. The other pop-ups have no choices.
class ConstraintScan : public testing::Test {
protected:
    ConstraintScan()
        : file_(ppdText({{"vornCartridgeType", "A", {"A/a", "B/b", "C/c"}},
                         {"vornMediaType", "M1", {"M1/a", "M2/b", "Custom3/c"}},
                         {"vornResolution", "R1", {"R1/a", "R2/b"}},
                         {"vornColorspace", "1", {"1/a", "1001/b"}}})),
          host_(file_.path()), context(host_)
    {}

    Groups scan(std::string_view text)
    {
        const TextFile file(text);
        ParsePPDFile(file.path().c_str(), context);
        return groupsOf(context.table());
    }

private:
    TextFile file_;
    RecordingHost host_;

protected:
    TestContext context;
};

TEST_F(ConstraintScan, KeepsRowsAndChoiceIndices)
{
    const std::vector<std::pair<const char *, Group>> table{
        {"*UIConstraints: *vornCartridgeType A *vornMediaType M1\n", {0, 0, 1, 0}},
        {"*UIConstraints: *vornCartridgeType B *vornMediaType M2\n", {0, 1, 1, 1}},
        {"*UIConstraints: *vornCartridgeType C *vornMediaType Custom3\n", {0, 2, 1, 3}},
        {"*UIConstraints: *vornCartridgeType A *vornMediaType ---separator---\n", {0, 0, 1, 2}},
        {"*UIConstraints: *vornCartridgeType A *vornResolution R2\n", {0, 0, 2, 1}},
        {"*UIConstraints: *vornMediaType M2 *vornResolution R1\n", {1, 1, 2, 0}},
        {"*UIConstraints: *vornMediaType M1 *vornColorspace 1001\n", {1, 0, 6, 2}},
        {"*UIConstraints: *vornResolution R2 *vornColorspace 1\n", {2, 1, 6, 0}},
    };
    for (const auto &[line, expected] : table) {
        EXPECT_EQ(scan(line), Groups{expected}) << line;
    }
}

TEST_F(ConstraintScan, TakesTheKeywordAnywhereInALine)
{
    for (const char *line : {"*% *UIConstraints: *vornCartridgeType A *vornMediaType M1\n",
                             "  *UIConstraints: *vornCartridgeType A *vornMediaType M1\n",
                             "**UIConstraints: *vornCartridgeType A *vornMediaType M1\n",
                             "*Text: \"*UIConstraints:*vornCartridgeType A *vornMediaType M1\"\n"}) {
        Groups expected{{0, 0, 1, 0}};
        if (std::string_view(line).find('"') != std::string_view::npos) {
            expected = {{0, 0, 1, 4}}; // the last word is 'M1"', an unknown choice
        }
        EXPECT_EQ(scan(line), expected) << line;
    }
}

TEST_F(ConstraintScan, TakesOnlyTheKeywordItself)
{
    for (const char *line :
         {"*NonUIConstraints: *vornCartridgeType A *vornMediaType M1\n",
          "UIConstraints: *vornCartridgeType A *vornMediaType M1\n",
          "*UIConstraints *vornCartridgeType A *vornMediaType M1\n",
          "*UIConstraint: *vornCartridgeType A *vornMediaType M1\n",
          "*uiconstraints: *vornCartridgeType A *vornMediaType M1\n",
          "*UIConstraints : *vornCartridgeType A *vornMediaType M1\n", "*UIConstraints:\n", "\n"}) {
        EXPECT_EQ(scan(line), Groups{}) << line;
    }
}

TEST_F(ConstraintScan, TakesTheFirstKeywordOfALine)
{
    EXPECT_EQ(scan("*UIConstraints: *vornCartridgeType A *vornMediaType M1 *UIConstraints: *vornCartridgeType B "
                   "*vornMediaType M2\n"),
              (Groups{{0, 0, 1, 0}}));
}

TEST_F(ConstraintScan, NeedsFourWords)
{
    for (const char *line : {"*UIConstraints: *vornCartridgeType *vornMediaType\n",
                             "*UIConstraints: *vornCartridgeType A *vornMediaType\n",
                             "*UIConstraints: *vornCartridgeType *vornMediaType M1\n",
                             "*UIConstraints: *vornCartridgeType A *vornMediaType  \t\n",
                             "*UIConstraints: *vornCartridgeType A\n*vornMediaType M1\n"}) {
        EXPECT_EQ(scan(line), Groups{}) << line;
    }
}

TEST_F(ConstraintScan, IgnoresWordsBehindTheFourth)
{
    EXPECT_EQ(scan("*UIConstraints: *vornCartridgeType B *vornMediaType M1 *vornResolution R1 \"\"\n"),
              (Groups{{0, 1, 1, 0}}));
}

TEST_F(ConstraintScan, SeparatesWordsByAnyWhiteSpace)
{
    for (const char *line : {"*UIConstraints:*vornCartridgeType B *vornMediaType M1\n",
                             "*UIConstraints: \t *vornCartridgeType\tB\v*vornMediaType   M1\n",
                             "*UIConstraints: *vornCartridgeType B *vornMediaType M1\r\n",
                             "*UIConstraints: *vornCartridgeType B *vornMediaType M1"}) {
        EXPECT_EQ(scan(line), (Groups{{0, 1, 1, 0}})) << line;
    }
}

TEST_F(ConstraintScan, DropsTheLineThatNamesTheLaterOptionFirst)
{
    EXPECT_EQ(scan("*UIConstraints: *vornMediaType M1 *vornCartridgeType B\n"), Groups{});
    EXPECT_EQ(scan("*UIConstraints: *vornMediaType M1 *vornCartridgeType B\n"
                   "*UIConstraints: *vornCartridgeType B *vornMediaType M1\n"),
              (Groups{{0, 1, 1, 0}}));
}

TEST_F(ConstraintScan, DropsALineWithinOneOption)
{
    EXPECT_EQ(scan("*UIConstraints: *vornMediaType M1 *vornMediaType M2\n"), Groups{});
}

TEST_F(ConstraintScan, DropsUnknownOptions)
{
    for (const char *line : {"*UIConstraints: *vornUnknown A *vornMediaType M1\n",
                             "*UIConstraints: *vornCartridgeType A *vornUnknown M1\n",
                             "*UIConstraints: *PageSize A4 *vornMediaType M1\n",
                             "*UIConstraints: *vornMediaType M1 *vornBrightness 0\n",
                             "*UIConstraints: vornCartridgeType A *vornMediaType M1\n",
                             "*UIConstraints: *vornCartridgeType A vornMediaType M1\n",
                             "*UIConstraints: *VornCartridgeType A *vornMediaType M1\n"}) {
        EXPECT_EQ(scan(line), Groups{}) << line;
    }
}

TEST_F(ConstraintScan, KeepsAnUnknownChoiceAsThePlaceBehindTheLast)
{
    EXPECT_EQ(scan("*UIConstraints: *vornCartridgeType X *vornMediaType M1\n"), (Groups{{0, 3, 1, 0}}));
    EXPECT_EQ(scan("*UIConstraints: *vornCartridgeType A *vornMediaType Velvet\n"), (Groups{{0, 0, 1, 4}}));
    EXPECT_EQ(scan("*UIConstraints: *vornCartridgeType a *vornMediaType m1\n"), (Groups{{0, 3, 1, 4}}));
}

TEST_F(ConstraintScan, DropsChoicesOfAnOptionWithoutChoices)
{
    EXPECT_EQ(scan("*UIConstraints: *vornMediaType M1 *vornCMYKspace 10\n"), Groups{});
    EXPECT_EQ(scan("*UIConstraints: *vornIntent Proof6 *vornColorspace 1\n"), Groups{});
}

TEST_F(ConstraintScan, KeepsEqualLinesAsOftenAsTheyCome)
{
    const std::string line = "*UIConstraints: *vornCartridgeType A *vornMediaType M1\n";
    EXPECT_EQ(scan(line + line), (Groups{{0, 0, 1, 0}, {0, 0, 1, 0}}));
}

TEST_F(ConstraintScan, DropsThe51stStorableConstraintAndAllAfterIt)
{
    const std::string line = "*UIConstraints: *vornCartridgeType A *vornMediaType M1\n";
    const std::string other = "*UIConstraints: *vornCartridgeType B *vornMediaType M2\n";
    std::string text;
    for (int n = 0; n < 49; ++n) {
        text += line;
    }
    EXPECT_EQ(scan(text).size(), 49U);
    EXPECT_EQ(context.table().constraints[196], -1);
    EXPECT_EQ(scan(text + other).size(), 50U);
    EXPECT_EQ(context.table().constraints[200], -1);
    const Groups groups = scan(text + other + line + line);
    EXPECT_EQ(groups.size(), 50U);
    EXPECT_EQ(groups.back(), (Group{0, 1, 1, 1})) << "the 50th is kept as it is";
    EXPECT_EQ(context.table().constraints[200], -1);
}

TEST_F(ConstraintScan, GivesPlacesToUnknownChoicesButNotToDroppedLines)
{
    std::string text;
    for (int n = 0; n < 49; ++n) {
        text += "*UIConstraints: *vornMediaType M1 *vornCartridgeType A\n" // mirror line: takes no place
                "*UIConstraints: *vornUnknown A *vornMediaType M1\n"       // nor does an unknown option
                "*UIConstraints: *vornCartridgeType A *vornMediaType Velvet\n";
    }
    const Groups groups = scan(text + "*UIConstraints: *vornCartridgeType A *vornMediaType M1\n"
                                      "*UIConstraints: *vornCartridgeType A *vornMediaType M2\n");
    ASSERT_EQ(groups.size(), 50U);
    EXPECT_EQ(groups[48], (Group{0, 0, 1, 4}));
    EXPECT_EQ(groups[49], (Group{0, 0, 1, 0}));
}

TEST_F(ConstraintScan, WritesOneEndMarkAtTheEndOfTheFile)
{
    context.table().constraints.fill(7);
    EXPECT_EQ(scan("*UIConstraints: *vornCartridgeType A *vornMediaType M1\n"
                   "*UIConstraints: *vornCartridgeType B *vornMediaType M1\n"),
              (Groups{{0, 0, 1, 0}, {0, 1, 1, 0}}));
    EXPECT_EQ(context.table().constraints[8], -1);
    EXPECT_TRUE(std::all_of(context.table().constraints.begin() + 9, context.table().constraints.end(),
                            [](int slot) { return slot == 7; }));
}

TEST_F(ConstraintScan, ReadsLongLinesInPiecesOf255Characters)
{
    const std::string constraint = "*UIConstraints: *vornCartridgeType A *vornMediaType M2\n";
    const std::vector<std::pair<std::size_t, Groups>> table{
        {0, {{0, 0, 1, 1}}},
        {200, {{0, 0, 1, 1}}},     // the second piece is the line's end
        {201, {{0, 0, 1, 1}}},     // the piece ends with the last letter
        {202, {{0, 0, 1, 4}}},     // "M" is an unknown choice, and "2" is no constraint
        {203, {}},                 // only three words in the first piece
        {240, {}},                 // the keyword alone
        {254, {}},                 // the keyword is cut behind its star
        {255, {{0, 0, 1, 1}}},     // the second piece begins with the keyword
        {2 * 255, {{0, 0, 1, 1}}}, // so does the third
        {10000, {{0, 0, 1, 1}}},   // 10000 = 39 * 255 + 55
    };
    for (const auto &[before, expected] : table) {
        EXPECT_EQ(scan(std::string(before, 'x') + constraint), expected) << before;
    }
}

TEST_F(ConstraintScan, OfALineOf255And256CharactersSeesTheSame)
{
    const std::string constraint = "*UIConstraints: *vornCartridgeType A *vornMediaType M2";
    for (const std::size_t length : {254U, 255U, 256U, 257U}) {
        EXPECT_EQ(scan(constraint + std::string(length - constraint.size(), ' ') + "\n" + constraint + "\n"),
                  (Groups{{0, 0, 1, 1}, {0, 0, 1, 1}}))
            << length;
    }
}

TEST_F(ConstraintScan, SurvivesAnyBytes)
{
    std::string text;
    for (int n = 0; n < 20000; ++n) {
        text += static_cast<char>((n * 131 + n / 256) & 0xFF);
    }
    EXPECT_EQ(scan(text), Groups{});
    EXPECT_EQ(scan(text + "\n*UIConstraints: *vornCartridgeType A *vornMediaType M2\n"), (Groups{{0, 0, 1, 1}}));
    EXPECT_EQ(scan("*UIConstraints: %s %n%n %s %d\n*UIConstraints: *vornCartridgeType %n *vornMediaType %s\n"),
              (Groups{{0, 3, 1, 4}}));
}

} // namespace
} // namespace tessarin::test
