// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the scanner's blocks begin and end, and what fits into rows and the block of strings.

#include "ppd/open_ui_blocks.h"

#include "tests/ppd/old_host_scan.h"

#include <algorithm>
#include <cstring>

namespace tessarin::test {
namespace {

constexpr std::size_t kBlockSize = 10000;

class OpenUILimits : public OldHostScan {
protected:
    /// Choice lines with keys and texts of these lengths, 1 or more.
    static std::string choiceLines(const std::string &keyword, int count, std::size_t keySize, std::size_t textSize)
    {
        std::string lines;
        for (int n = 0; n < count; ++n) {
            lines +=
                "*" + keyword + " " + std::string(keySize, 'k') + "/" + std::string(textSize, 't') + ": \"\"\n";
        }
        return lines;
    }

    std::size_t pairsIn(int row) const { return pairsOf(context.table(), row).size(); }

    /// How many bytes of the block of strings are still as they were made.
    std::size_t unusedBytes() const
    {
        const char *end = context->ppdScanBuffer.get() + kBlockSize;
        const char *unused = end;
        while (unused != context->ppdScanBuffer.get() && unused[-1] == '\x40') {
            --unused;
        }
        return static_cast<std::size_t>(end - unused);
    }
};

using OpenUIMatching = OpenUILimits;

TEST_F(OpenUIMatching, TestsPopUpsBeforeSliders)
{
    // The slider's keyword vornColorM is the beginning of this pop-up's.
    scan(block("vornColorModel",
               "*DefaultvornColorModel: RGB\n*DefaultvornColorM: 5\n*vornColorModel RGB/Colors: \"\"\n"));
    EXPECT_EQ(pairsOf(context.table(), 4), (Pairs{{"RGB", "Colors"}}));
    EXPECT_EQ(Scrolls[18].ppdDefault, 77);
}

TEST_F(OpenUIMatching, TestsSlidersBeforeCheckBoxes)
{
    scan("*OpenUI *vornColorGamma/With vornColorK: PickOne\n*DefaultvornColorGamma: 1\n*DefaultvornColorK: 5\n"
         "*CloseUI: *vornColorGamma\n");
    EXPECT_EQ(Scrolls[16].ppdDefault, 5);
    EXPECT_EQ(checkboxes[1].value, 77);
}

TEST_F(OpenUIMatching, TestsEachTableInItsOrder)
{
    scan("*OpenUI *vornMediaType/As *vornCartridgeType: PickOne\n*vornMediaType A: \"\"\n*vornCartridgeType B: "
         "\"\"\n"
         "*CloseUI: *vornMediaType\n"
         "*OpenUI *vornContrast/vornBrightness: PickOne\n*DefaultvornContrast: 1\n*DefaultvornBrightness: "
         "2\n*CloseUI\n"
         "*OpenUI *vornPSInterpreter/vornNoPrint: PickOne\n*DefaultvornPSInterpreter: 3\n*DefaultvornNoPrint: "
         "4\n*CloseUI\n");
    EXPECT_EQ(pairsOf(context.table(), 0), (Pairs{{"B", "B"}}));
    EXPECT_EQ(pairsOf(context.table(), 1), Pairs{});
    EXPECT_EQ(Scrolls[0].ppdDefault, 2);
    EXPECT_EQ(Scrolls[1].ppdDefault, 77);
    EXPECT_EQ(checkboxes[0].value, 4);
    EXPECT_EQ(checkboxes[2].value, 77);
}

TEST_F(OpenUIMatching, NeedsTheStarForPopUpsOnly)
{
    scan("*OpenUI vornMediaType: PickOne\n*vornMediaType A: \"\"\n*CloseUI\n"
         "*OpenUI vornBrightness: PickOne\n*DefaultvornBrightness: 5\n*CloseUI\n");
    EXPECT_EQ(pairsIn(1), 0U);
    EXPECT_EQ(Scrolls[0].ppdDefault, 5);
}

TEST_F(OpenUIMatching, FindsTheOpeningAnywhereInALineInItsCase)
{
    for (const auto &[line, pairs] :
         std::vector<std::pair<std::string, std::size_t>>{{"*OpenUI *vornMediaType\n", 1},
                                                          {"*% *OpenUI *vornMediaType\n", 1},
                                                          {"*vornMediaType *OpenUI\n", 1},
                                                          {"*OpenUIMore *vornMediaType\n", 1},
                                                          {"*openui *vornMediaType\n", 0},
                                                          {"*JCLOpenUI *vornMediaType\n", 0},
                                                          {"OpenUI *vornMediaType\n", 0},
                                                          {"*OpenUI *vornmediatype\n", 0}}) {
        scan(line + "*vornMediaType A: \"\"\n*CloseUI\n");
        EXPECT_EQ(pairsIn(1), pairs) << line;
    }
}

TEST_F(OpenUIMatching, EndsABlockWithTheFirstClosingLineOrTheFile)
{
    scan("*OpenUI *vornMediaType\n*vornMediaType A: \"\"\n*vornMediaType B/*CloseUI: \"\"\n*vornMediaType C: "
         "\"\"\n");
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"A", "A"}})) << "the closing line is no choice";
    scan("*OpenUI *vornMediaType\n*vornMediaType A: \"\"\n*closeui\n*vornMediaType B: \"\"");
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"A", "A"}, {"B", "B"}}));
    scan("*OpenUI *vornBrightness\n*DefaultvornBrightness: 5");
    EXPECT_EQ(Scrolls[0].ppdDefault, 5);
    EXPECT_EQ(groupsOf(context.table()), Groups{}) << "the end mark is written all the same";
}

TEST_F(OpenUIMatching, TestsNoConstraintsOnOpeningClosingAndInnerLines)
{
    const std::string lists =
        block("vornCartridgeType", "*vornCartridgeType A: \"\"\n*vornCartridgeType B: \"\"\n") +
        block("vornMediaType", "*vornMediaType M: \"\"\n");
    const std::string constraint = "*UIConstraints: *vornCartridgeType A *vornMediaType M\n";
    const std::vector<std::pair<std::string, Groups>> table{
        {lists + constraint, {{0, 0, 1, 0}}},
        {constraint + lists, {}}, // no list has been read yet
        {lists + "*OpenUI *vornResolution " + constraint + "*CloseUI\n", {}},
        {lists + "*OpenUI *vornResolution\n" + constraint + "*CloseUI\n", {}},
        {lists + "*OpenUI *vornBrightness\n" + constraint + "*CloseUI\n", {}},
        {lists + "*OpenUI *vornResolution\n*CloseUI " + constraint, {}},
        {lists + "*OpenUI *vornResolution\n*CloseUI\n" + constraint, {{0, 0, 1, 0}}},
    };
    for (const auto &[text, expected] : table) {
        scan(text);
        EXPECT_EQ(groupsOf(context.table()), expected) << text;
    }
}

TEST_F(OpenUIMatching, LeavesABlockOfAnotherOptionAtItsFirstLine)
{
    const std::string lists = block("vornCartridgeType", "*vornCartridgeType A: \"\"\n") +
                              block("vornResolution", "*vornResolution R: \"\"\n");
    const std::string constraint = "*UIConstraints: *vornCartridgeType A *vornResolution R\n";
    scan(lists + "*OpenUI *PageSize " + constraint);
    EXPECT_EQ(groupsOf(context.table()), Groups{}) << "the opening line itself is not tested";
    scan(lists + "*OpenUI *PageSize\n" + constraint + "*CloseUI: *PageSize\n");
    EXPECT_EQ(groupsOf(context.table()), (Groups{{0, 0, 2, 0}}));
    scan("*OpenUI *PageSize\n*OpenUI *vornMediaType\n*vornMediaType A: \"\"\n*CloseUI\n*CloseUI\n");
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"A", "A"}}));
}

TEST_F(OpenUILimits, StringBlockIsFilledWithOneByte)
{
    scan("");
    ASSERT_NE(context->ppdScanBuffer, nullptr);
    EXPECT_EQ(unusedBytes(), kBlockSize);
    scanMedia({"Key0/Text: \"\""});
    EXPECT_EQ(unusedBytes(), kBlockSize - sizeof("Key0") - sizeof("Text *"));
    EXPECT_EQ(std::memcmp(context->ppdScanBuffer.get(), "Key0\0Text *\0@@", 14), 0);
}

TEST_F(OpenUILimits, StringsAreCutTo127Bytes)
{
    const std::string key(200, 'k');
    const std::string text(150, 't');
    EXPECT_EQ(scanMedia({key + "/T: \"\"", "K/" + text + ": \"\""}),
              (Pairs{{std::string(127, 'k'), "T"}, {"K", std::string(127, 't')}}));
    EXPECT_EQ(scanMedia({std::string(127, 'k') + "/T: \"\"", std::string(126, 'k') + "/T: \"\""}),
              (Pairs{{std::string(127, 'k'), "T"}, {std::string(126, 'k'), "T"}}));
}

TEST_F(OpenUILimits, StringsAreCutBetweenLetters)
{
    std::string expected;
    for (int n = 0; n < 63; ++n) {
        expected += "\xC3\xA4"; // two bytes; a 64th would need 128
    }
    EXPECT_EQ(scanMedia({"K/" + std::string(100, '\xE4') + ": \"\""}), (Pairs{{"K", expected}}));
    EXPECT_EQ(scanMedia({"K/t" + std::string(100, '\xE4') + ": \"\""}), (Pairs{{"K", "t" + expected}}));
}

TEST_F(OpenUILimits, MarkComesBehindACutText)
{
    EXPECT_EQ(scanMedia({"K0/" + std::string(150, 't') + ": \"\""}), (Pairs{{"K0", std::string(127, 't') + " *"}}));
}

TEST_F(OpenUILimits, RowTakes82PairsAndIgnoresTheRest)
{
    scan(block("vornCartridgeType", choiceLines("vornCartridgeType", 100, 3, 3)) +
         block("vornMediaType", choiceLines("vornMediaType", 2, 3, 3)));
    EXPECT_EQ(pairsIn(0), 82U);
    EXPECT_EQ(context.table().choiceLists[0][165], nullptr);
    EXPECT_EQ(pairsIn(1), 2U) << "the next row is filled as ever";
    EXPECT_EQ(unusedBytes(), kBlockSize - 84 * 8);
}

TEST_F(OpenUILimits, SeparatorTakesAPlaceInARow)
{
    scan(block("vornMediaType", choiceLines("vornMediaType", 80, 3, 3) +
                                    "*vornMediaType Custom1/One: \"\"\n*vornMediaType Custom2/Two: \"\"\n"));
    const Pairs pairs = pairsOf(context.table(), 1);
    ASSERT_EQ(pairs.size(), 82U);
    EXPECT_EQ(pairs[80], kSeparatorPair);
    EXPECT_EQ(pairs[81].first, "Custom1");
}

TEST_F(OpenUILimits, DefaultBeyondAFullRowIsNotFound)
{
    scan(block("vornCartridgeType", "*DefaultvornCartridgeType: Last\n" +
                                        choiceLines("vornCartridgeType", 82, 3, 3) +
                                        "*vornCartridgeType Last: \"\"\n"));
    EXPECT_EQ(pops[0].defaultIndex, 1);
}

TEST_F(OpenUILimits, StringBlockIsFilledToItsLastByte)
{
    // 100 bytes for each pair: 80 and 20 pairs are all that fits.
    scan(block("vornCartridgeType", choiceLines("vornCartridgeType", 80, 49, 49)) +
         block("vornResolution", choiceLines("vornResolution", 30, 49, 49)) +
         block("vornIntent", choiceLines("vornIntent", 1, 1, 1)));
    EXPECT_EQ(pairsIn(0), 80U);
    EXPECT_EQ(pairsIn(2), 20U);
    EXPECT_EQ(pairsIn(3), 0U);
    EXPECT_EQ(context->ppdScanBuffer.get()[kBlockSize - 1], '\0');
}

TEST_F(OpenUILimits, PairThatDoesNotFitWholeIsNotAddedAtAll)
{
    scan(block("vornCartridgeType", choiceLines("vornCartridgeType", 80, 49, 49)) +
         block("vornResolution",
               choiceLines("vornResolution", 19, 49, 49) + choiceLines("vornResolution", 5, 49, 50)));
    EXPECT_EQ(pairsIn(2), 19U);
    EXPECT_EQ(unusedBytes(), 100U) << "nor its key alone";
}

TEST_F(OpenUILimits, MarkAndSeparatorCountAgainstTheStringBlock)
{
    const std::string most = block("vornCartridgeType", choiceLines("vornCartridgeType", 80, 49, 49)) +
                             block("vornResolution", choiceLines("vornResolution", 19, 49, 49));
    scan(most + block("vornMediaType", "*vornMediaType " + std::string(48, 'k') + "0/" + std::string(47, 't') +
                                           ": \"\"\n")); // 50 + 47 + 2 + 1
    EXPECT_EQ(pairsIn(1), 1U);
    EXPECT_EQ(context->ppdScanBuffer.get()[kBlockSize - 1], '\0');
    scan(most + block("vornMediaType",
                      "*vornMediaType " + std::string(48, 'k') + "0/" + std::string(48, 't') + ": \"\"\n"));
    EXPECT_EQ(pairsIn(1), 0U);
    scan(most + block("vornMediaType", "*vornMediaType Custom" + std::string(29, 'c') + "/" + std::string(31, 't') +
                                           ": \"\"\n")); // 16 + 16 + 36 + 32
    EXPECT_EQ(pairsIn(1), 2U);
    EXPECT_EQ(context->ppdScanBuffer.get()[kBlockSize - 1], '\0');
}

TEST_F(OpenUILimits, EachScanGetsABlockOfItsOwn)
{
    scanMedia({"A/First: \"\""});
    scanMedia({"B/Second: \"\""});
    EXPECT_STREQ(context->ppdScanBuffer.get(), "B");
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"B", "Second"}}));
}

TEST_F(OpenUILimits, LongLinesOfABlockComeInPieces)
{
    // The second piece begins with the keyword, so it is a choice line of its own.
    const std::string first = "*vornMediaType A/Text: \"" + std::string(255 - 24, 'x');
    ASSERT_EQ(first.size(), 255U);
    scan(block("vornMediaType", first + "*vornMediaType B/Piece: \"\"\n"));
    EXPECT_EQ(pairsOf(context.table(), 1), (Pairs{{"A", "Text"}, {"B", "Piece"}}));
}

} // namespace
} // namespace tessarin::test
