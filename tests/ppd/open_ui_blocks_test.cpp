// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Which lines of an option's block make which pairs and defaults.

#include "ppd/open_ui_blocks.h"

#include "tests/ppd/old_host_scan.h"

namespace tessarin::test {
namespace {

using OpenUIBlocks = OldHostScan;

TEST_F(OpenUIBlocks, FillListsAndDefaultsOfAllTables)
{
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    const std::vector<Pairs> lists{
        {{"PhotoBlack", "Photo Black"}, {"MatteBlack", "Matte Black"}},
        {{"Plain0", "Plain Paper *"}, {"Photo6", "Photo Paper"}, kSeparatorPair, {"Custom10", "Custom Paper 10 *"}},
        {{"600dpi", "600 dpi"}, {"1200dpi", "1200 dpi"}},
        {{"Perceptual0", "Perceptual"}, {"Proof6", "Proof"}},
        {{"Gray", "Grayscale"}, {"RGB", "RGB Color"}, {"CMYK", "CMYK Color"}},
        {{"Diffusion", "Error Diffusion"}, {"Ordered", "Ordered Screening"}},
        {{"1", "sRGB"}, kSeparatorPair, {"1001", "Custom RGB Profile 1"}},
        {{"10", "Offset, Coated Paper"}, kSeparatorPair, {"1001", "Custom CMYK Profile 1"}},
    };
    const std::array<int, 8> defaults{1, 2, 1, 1, 2, 1, 1, 1};
    for (std::size_t row = 0; row < 8; ++row) {
        EXPECT_EQ(pairsOf(context.table(), static_cast<int>(row)), lists[row]) << row;
        EXPECT_EQ(pops[row].defaultIndex, defaults[row]) << row;
    }
    for (std::size_t number = 0; number < 20; ++number) {
        EXPECT_EQ(Scrolls[number].ppdDefault, number == 2 ? 65 : 0) << number;
    }
    EXPECT_EQ(checkboxes[0].value, 0);
    EXPECT_EQ(checkboxes[1].value, 0);
    EXPECT_EQ(checkboxes[2].value, 0);
    EXPECT_EQ(pops[8].defaultIndex, 77) << "the end row";
    EXPECT_EQ(Scrolls[20].ppdDefault, 77);
}

TEST_F(OpenUIBlocks, SplitAChoiceAtItsSlash)
{
    EXPECT_EQ(
        scanMedia({"Plain/Plain Paper: \"\"", "Photo: \"\"", "A/: \"\"", "/B: \"\"", "C/D/E: \"\"", ": \"\""}),
        (Pairs{{"Plain", "Plain Paper"}, {"Photo", "Photo"}, {"A", ""}, {"", "B"}, {"C", "D/E"}, {"", ""}}));
}

TEST_F(OpenUIBlocks, TakeASlashBeforeTheColonOnly)
{
    EXPECT_EQ(scanMedia({"Photo: \"/path/to/code\"", "A/B: \"C/D: E\"", "X:Y/Z: \"\""}),
              (Pairs{{"Photo", "Photo"}, {"A", "B"}, {"X", "X"}}));
}

TEST_F(OpenUIBlocks, SkipSpacesBehindTheKeywordAndNoOthers)
{
    EXPECT_EQ(scanMedia({"   A/Three: \"\"", "B /Trailing : \"\"", "C D/With Blank: \"\""}),
              (Pairs{{"A", "Three"}, {"B ", "Trailing "}, {"C D", "With Blank"}}));
    EXPECT_EQ(scanBlock(1, "vornMediaType", "*vornMediaTypeE/Without: \"\"\n"), (Pairs{{"E", "Without"}}));
}

TEST_F(OpenUIBlocks, IgnoreLinesWithoutAColon)
{
    EXPECT_EQ(scanMedia({"A/B \"\"", "C", "D/E: \"\""}), (Pairs{{"D", "E"}}));
}

TEST_F(OpenUIBlocks, TakeAChoiceWhoseKeywordBeginsWithinFiveCharacters)
{
    EXPECT_EQ(scanBlock(1, "vornMediaType",
                        "*vornMediaType A: \"\"\n"
                        " *vornMediaType B: \"\"\n"
                        "    *vornMediaType C: \"\"\n"
                        "     *vornMediaType D: \"\"\n"
                        "      *vornMediaType E: \"\"\n"
                        "*%%%*vornMediaType F: \"\"\n"
                        "*%%%%*vornMediaType G: \"\"\n"),
              (Pairs{{"A", "A"}, {"B", "B"}, {"C", "C"}, {"F", "F"}}));
}

TEST_F(OpenUIBlocks, TakeOnlyChoicesOfTheirOwnKeyword)
{
    EXPECT_EQ(scanBlock(1, "vornMediaType",
                        "*OrderDependency: 102 AnySetup *vornMediaType\n"
                        "*vornResolution R1: \"\"\n"
                        "vornMediaType A: \"\"\n"
                        "*vornmediatype B: \"\"\n"
                        "*vornMediaTyp C: \"\"\n"
                        "*vornMediaType D: \"\"\n"
                        "*OpenUI *vornResolution: PickOne\n"
                        "*% a remark: with a colon\n"),
              (Pairs{{"D", "D"}}));
    EXPECT_EQ(pairsOf(context.table(), 2), Pairs{}) << "a block does not begin within another";
}

TEST_F(OpenUIBlocks, MarkEveryMediaTypeThatEndsInZeroAlsoBehindTheSeparator)
{
    EXPECT_EQ(scanMedia({"Plain0/Plain: \"\"", "Photo/Photo: \"\"", "Custom1/One: \"\"", "Custom20/Twenty: \"\"",
                         "Last0: \"\""}),
              (Pairs{{"Plain0", "Plain *"},
                     {"Photo", "Photo"},
                     kSeparatorPair,
                     {"Custom1", "One"},
                     {"Custom20", "Twenty *"},
                     {"Last0", "Last0 *"}}));
}

TEST_F(OpenUIBlocks, SeparateMediaTypesBeforeTheFirstCustomOne)
{
    EXPECT_EQ(scanMedia({"custom1: \"\"", "Custo2: \"\"", "Custom: \"\"", "Customs3: \"\""}),
              (Pairs{{"custom1", "custom1"},
                     {"Custo2", "Custo2"},
                     kSeparatorPair,
                     {"Custom", "Custom"},
                     {"Customs3", "Customs3"}}));
}

TEST_F(OpenUIBlocks, SeparateColorSpacesFromOneThousandOn)
{
    const Pairs expected{{"1", "a"},     {"999", "b"},   {"x1000", "c"}, {"-1000", "d"},
                         kSeparatorPair, {"1000x", "e"}, {"2000", "f"}};
    for (const auto &[row, keyword] :
         std::vector<std::pair<int, std::string>>{{6, "vornColorspace"}, {7, "vornCMYKspace"}}) {
        std::string lines;
        for (const char *choice : {"1/a", "999/b", "x1000/c", "-1000/d", "1000x/e", "2000/f"}) {
            lines += "*" + keyword + " " + choice + ": \"\"\n";
        }
        EXPECT_EQ(scanBlock(row, keyword, lines), expected) << row;
    }
}

TEST_F(OpenUIBlocks, OfOtherRowsAreNeitherMarkedNorSeparated)
{
    const std::vector<std::pair<int, std::string>> rows{{0, "vornCartridgeType"},
                                                        {2, "vornResolution"},
                                                        {3, "vornIntent"},
                                                        {4, "vornColorModel"},
                                                        {5, "vornDithering"}};
    for (const auto &[row, keyword] : rows) {
        std::string lines;
        for (const char *choice : {"Plain0/a", "Custom10/b", "1001/c"}) {
            lines += "*" + keyword + " " + choice + ": \"\"\n";
        }
        EXPECT_EQ(scanBlock(row, keyword, lines), (Pairs{{"Plain0", "a"}, {"Custom10", "b"}, {"1001", "c"}}))
            << row;
    }
}

TEST_F(OpenUIBlocks, HoldTwoCopiesOfASeparator)
{
    scanMedia({"Custom1/One: \"\""});
    const ChoiceRow &places = context.table().choiceLists[1];
    ASSERT_NE(places[2], nullptr);
    EXPECT_NE(places[1], places[2]);
    EXPECT_STREQ(places[1], "---separator---");
    EXPECT_STREQ(places[2], "---separator---");
}

TEST_F(OpenUIBlocks, OfOneOptionAddUpAndSeparateOncePerBlock)
{
    scan(
        block("vornMediaType", "*DefaultvornMediaType: A\n*vornMediaType A: \"\"\n*vornMediaType Custom1: \"\"\n") +
        block("vornMediaType",
              "*DefaultvornMediaType: Custom2\n*vornMediaType B: \"\"\n*vornMediaType Custom2: \"\"\n"));
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"A", "A"},
                                                  kSeparatorPair,
                                                  {"Custom1", "Custom1"},
                                                  {"B", "B"},
                                                  kSeparatorPair,
                                                  {"Custom2", "Custom2"}}));
    EXPECT_EQ(pops[1].defaultIndex, 6);
}

TEST_F(OpenUIBlocks, SetTheDefaultToThePairNumberWithSeparators)
{
    scan(block("vornMediaType", "*DefaultvornMediaType: Custom2\n*vornMediaType A: \"\"\n"
                                "*vornMediaType Custom1: \"\"\n*vornMediaType Custom2: \"\"\n"));
    EXPECT_EQ(pops[1].defaultIndex, 4);
    EXPECT_EQ(pops[0].defaultIndex, 77) << "a row without a block keeps its default";
}

TEST_F(OpenUIBlocks, SetTheDefaultToOneUnlessAChoiceIsNamedBefore)
{
    for (const char *lines : {"*vornMediaType A: \"\"\n*vornMediaType B: \"\"\n",
                              "*DefaultvornMediaType: X\n*vornMediaType A: \"\"\n*vornMediaType B: \"\"\n",
                              "*DefaultvornMediaType: b\n*vornMediaType A: \"\"\n*vornMediaType B: \"\"\n",
                              "*vornMediaType A: \"\"\n*vornMediaType B: \"\"\n*DefaultvornMediaType: B\n",
                              "*DefaultvornResolution: B\n*vornMediaType A: \"\"\n*vornMediaType B: \"\"\n", ""}) {
        pops[1].defaultIndex = 77;
        scan(block("vornMediaType", lines));
        EXPECT_EQ(pops[1].defaultIndex, 1) << lines;
    }
}

TEST_F(OpenUIBlocks, TakeTheLastOfSeveralDefaults)
{
    scan(block("vornMediaType", "*DefaultvornMediaType: A\n*DefaultvornMediaType: B\n"
                                "*vornMediaType A: \"\"\n*vornMediaType B: \"\"\n"));
    EXPECT_EQ(pops[1].defaultIndex, 2);
}

TEST_F(OpenUIBlocks, ReadADefaultFromItsColumnWhereverTheKeywordStands)
{
    const std::string choices = "*vornMediaType A: \"\"\n*vornMediaType B: \"\"\n";
    const std::vector<std::pair<const char *, int>> table{
        {"*DefaultvornMediaType: B\n", 2},
        {"*DefaultvornMediaType:B\n", 2},
        {"*DefaultvornMediaType:\t  B more\n", 2},
        {"*DefaultvornMediaType B\n", 2},
        {" *DefaultvornMediaType: B\n", 1},  // reads ":"
        {"  *DefaultvornMediaType: B\n", 1}, // reads "e:"
        {"1234567890123456789012B *DefaultvornMediaType: A\n",
         2}, // the word at the column, not the one behind the colon
    };
    for (const auto &[line, expected] : table) {
        scan(block("vornMediaType", line + choices));
        EXPECT_EQ(pops[1].defaultIndex, expected) << line;
    }
}

TEST_F(OpenUIBlocks, TestADefaultLineForAChoiceToo)
{
    // Column 22 of this line is the text of the choice, which names its own key.
    scan(block("vornMediaType", "*vornMediaType A: \"\"\n"
                                "*vornMediaType Gloss7/Gloss7 *DefaultvornMediaType: \"\"\n"));
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"A", "A"}, {"Gloss7", "Gloss7 *DefaultvornMediaType"}}));
    EXPECT_EQ(pops[1].defaultIndex, 2);
}

TEST_F(OpenUIBlocks, OfIntegersReadTheDefaultOnly)
{
    scan(block("vornBrightness",
               "*vornBrightness 10/Ten: \"\"\n*DefaultvornBrightness: -15\n*vornBrightness 20: \"\"\n") +
         block("vornRefLight", "*DefaultvornRefLight: 80\n") + block("vornColorY", "*DefaultvornColorY:+5\n") +
         block("vornNoPrint", "*DefaultvornNoPrint: 1\n") +
         block("vornColorGamma", "*DefaultvornColorGamma: 256\n") +
         block("vornPSInterpreter", "*DefaultvornPSInterpreter: -1\n"));
    EXPECT_EQ(Scrolls[0].ppdDefault, -15);
    EXPECT_EQ(Scrolls[1].ppdDefault, 77);
    EXPECT_EQ(Scrolls[2].ppdDefault, 80);
    EXPECT_EQ(Scrolls[19].ppdDefault, 5);
    EXPECT_EQ(checkboxes[0].value, 1);
    EXPECT_EQ(checkboxes[1].value, 256);
    EXPECT_EQ(checkboxes[2].value, -1);
    for (int row = 0; row < 15; ++row) {
        EXPECT_EQ(pairsOf(context.table(), row), Pairs{}) << row;
    }
}

TEST_F(OpenUIBlocks, OfIntegersReadThemFromTheirColumn)
{
    const std::vector<std::pair<const char *, int>> table{
        {"*DefaultvornBrightness: 25\n", 25},
        {"*DefaultvornBrightness:25dpi\n", 25},
        {"*DefaultvornBrightness 25\n", 25},
        {"*DefaultvornBrightness: 25\n*DefaultvornBrightness: 30\n", 30},
        {"*DefaultvornBrightness: 25\n*DefaultvornBrightness: Auto\n", 25},
        {"*DefaultvornBrightness: Auto\n", 77},
        {"*DefaultvornBrightness\n", 77},
        {" *DefaultvornBrightness: 25\n", 77},  // reads ": 25"
        {"  *DefaultvornBrightness: 25\n", 77}, // reads "s: 25"
        {"12345678901234567890123 7 *DefaultvornBrightness: 25\n", 7},
        {"*DefaultvornBrightness: 99999999999\n", 2147483647},
        {"*DefaultvornBrightness: -99999999999\n", -2147483647 - 1},
    };
    for (const auto &[line, expected] : table) {
        Scrolls[0].ppdDefault = 77;
        scan(block("vornBrightness", line));
        EXPECT_EQ(Scrolls[0].ppdDefault, expected) << line;
    }
}

TEST_F(OpenUIBlocks, ConvertIsoLatin1ToUtf8)
{
    ParsePPDFile(ppdFixture("latin1-texts").c_str(), context);
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"Plain0", "Papier uni \xC3\xA0 \xC3\xA9t\xC3\xA9 *"},
                                                  {"Photo6", "B\xC3\xBCtten 310 g-m\xC2\xB2"},
                                                  kSeparatorPair,
                                                  {"Custom10", "Gr\xC3\xB6\xC3\x9F"
                                                               "e <C4D6DC> 10 *"}}));
    EXPECT_EQ(scanMedia({"\x80\xBF/\xC0\xFF: \"\""}), (Pairs{{"\xC2\x80\xC2\xBF", "\xC3\x80\xC3\xBF"}}));
}

} // namespace
} // namespace tessarin::test
