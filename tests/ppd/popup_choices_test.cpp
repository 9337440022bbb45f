// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The choice lists of the pop-ups, built from the parsed PPD.

#include "ppd/popup_choices.h"

#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

/// A context whose lists were built from a PPD.
class BuiltLists {
public:
    explicit BuiltLists(const std::string &ppdPath) : host(ppdPath), context(host)
    {
        result = getPPDComboOptions(context);
    }
    Pairs row(int number) const { return pairsOf(context.table(), number); }

    RecordingHost host;
    TestContext context;
    int result = -1;
};

Pairs rowOf(int row, const OptionText &option)
{
    const TextFile file(ppdText({option}));
    const BuiltLists lists(file.path());
    EXPECT_NE(lists.context->ppdFile, nullptr);
    return lists.row(row);
}

Pairs mediaOf(const std::vector<std::string> &choices)
{
    return rowOf(1, {"vornMediaType", "", choices});
}

TEST(PopUpChoices, AreTheOptionsChoicesWithTheirTexts)
{
    const BuiltLists lists(ppdFixture("minimal"));
    EXPECT_EQ(lists.result, 0);
    EXPECT_EQ(lists.row(0), (Pairs{{"PhotoBlack", "Photo Black"}, {"MatteBlack", "Matte Black"}}));
    EXPECT_EQ(lists.row(1), (Pairs{{"Plain0", "Plain Paper *"},
                                   {"Photo6", "Photo Paper"},
                                   kSeparatorPair,
                                   {"Custom10", "Custom Paper 10 *"}}));
    EXPECT_EQ(lists.row(2), (Pairs{{"600dpi", "600 dpi"}, {"1200dpi", "1200 dpi"}}));
    EXPECT_EQ(lists.row(3), (Pairs{{"Perceptual0", "Perceptual"}, {"Proof6", "Proof"}}));
    EXPECT_EQ(lists.row(4), (Pairs{{"Gray", "Grayscale"}, {"RGB", "RGB Color"}, {"CMYK", "CMYK Color"}}));
    EXPECT_EQ(lists.row(5), (Pairs{{"Diffusion", "Error Diffusion"}, {"Ordered", "Ordered Screening"}}));
    EXPECT_EQ(lists.row(6), (Pairs{{"1", "sRGB"}, kSeparatorPair, {"1001", "Custom RGB Profile 1"}}));
    EXPECT_EQ(lists.row(7),
              (Pairs{{"10", "Offset, Coated Paper"}, kSeparatorPair, {"1001", "Custom CMYK Profile 1"}}));
    for (int row = 8; row < 15; ++row) {
        EXPECT_EQ(lists.row(row), Pairs{}) << row;
    }
}

TEST(PopUpChoices, AreLoggedInTwoPassesAndSeparatorsInTheSecondOnly)
{
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host);
    const CapturedLog log;
    getPPDComboOptions(context);
    EXPECT_EQ(log.lines(),
              logged({"getPPDComboOptions\n",
                      // counting
                      "getComboPPDFeature for vornCartridgeType\n", "getComboPPDFeature for vornMediaType\n",
                      "getComboPPDFeature for vornResolution\n", "getComboPPDFeature for vornIntent\n",
                      "getComboPPDFeature for vornColorModel\n", "getComboPPDFeature for vornDithering\n",
                      "getComboPPDFeature for vornColorspace\n", "getComboPPDFeature for vornCMYKspace\n",
                      // writing
                      "getComboPPDFeature for vornCartridgeType\n", "getComboPPDFeature for vornMediaType\n",
                      "--- SEPARATOR added ---\n", "getComboPPDFeature for vornResolution\n",
                      "getComboPPDFeature for vornIntent\n", "getComboPPDFeature for vornColorModel\n",
                      "getComboPPDFeature for vornDithering\n", "getComboPPDFeature for vornColorspace\n",
                      "--- SEPARATOR added ---\n", "getComboPPDFeature for vornCMYKspace\n",
                      "--- SEPARATOR added ---\n"}));
}

TEST(PopUpChoices, StayEmptyWithoutAParsedPPD)
{
    const TestContext context;
    const CapturedLog log;
    EXPECT_EQ(getPPDComboOptions(context), 0);
    for (int row = 0; row < 15; ++row) {
        EXPECT_EQ(pairsOf(context.table(), row), Pairs{}) << row;
    }
    EXPECT_EQ(log.lines().size(), 17U) << "one line, and two for each of the eight rows";
    EXPECT_EQ(log.countStarting("LOG getComboPPDFeature for "), 16);
}

TEST(PopUpChoices, StayEmptyForAMissingOptionAndOneWithoutChoices)
{
    EXPECT_EQ(BuiltLists(ppdFixture("no-cartridge")).row(0), Pairs{});
    EXPECT_EQ(BuiltLists(ppdFixture("no-cartridge")).row(1).size(), 4U);
    EXPECT_EQ(BuiltLists(ppdFixture("no-choices")).row(5), Pairs{});
    EXPECT_EQ(BuiltLists(ppdFixture("no-choices")).row(6).size(), 3U);
    const BuiltLists foreign(ppdFixture("foreign"));
    ASSERT_NE(foreign.context->ppdFile, nullptr);
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(foreign.row(row), Pairs{}) << row;
    }
}

TEST(PopUpChoices, AreCutTo79WhenThereAreMoreThan81)
{
    const std::vector<std::pair<int, std::size_t>> table{{1, 1},   {78, 78}, {79, 79}, {80, 80},
                                                         {81, 81}, {82, 79}, {83, 79}, {100, 79}};
    for (const auto &[count, expected] : table) {
        const Pairs pairs = mediaOf(numberedChoices(count, "M"));
        ASSERT_EQ(pairs.size(), expected) << count;
        EXPECT_EQ(pairs.front(), (Pairs::value_type{"M001x", "Text 1"})) << count;
        EXPECT_EQ(pairs.back().second, "Text " + std::to_string(expected)) << count;
    }
}

TEST(PopUpChoices, AreCutInEveryRow)
{
    const std::vector<std::string> keywords{"vornCartridgeType", "vornMediaType",  "vornResolution",
                                            "vornIntent",        "vornColorModel", "vornDithering",
                                            "vornColorspace",    "vornCMYKspace"};
    for (std::size_t row = 0; row < keywords.size(); ++row) {
        EXPECT_EQ(rowOf(static_cast<int>(row), {keywords[row], "", numberedChoices(82, "M")}).size(), 79U) << row;
    }
}

TEST(PopUpChoices, OfTheLargestListsAreCountedByTheFixtures)
{
    EXPECT_EQ(BuiltLists(ppdFixture("choices-80")).row(1).size(), 80U);
    EXPECT_EQ(BuiltLists(ppdFixture("choices-81")).row(1).size(), 81U);
    EXPECT_EQ(BuiltLists(ppdFixture("choices-82")).row(1).size(), 79U);
    EXPECT_EQ(BuiltLists(ppdFixture("choices-100")).row(1).size(), 79U);
}

TEST(PopUpChoices, OfTheLongestListAndItsSeparatorFillARow)
{
    const BuiltLists lists(ppdFixture("choices-81-custom"));
    const Pairs pairs = lists.row(1);
    ASSERT_EQ(pairs.size(), 82U);
    EXPECT_EQ(pairs[78], kSeparatorPair);
    EXPECT_EQ(pairs[81].first, "Custom38");
    EXPECT_EQ(lists.context.table().choiceLists[1][165], nullptr);
}

TEST(PopUpChoices, OfMediaTypesAreMarkedAndSeparated)
{
    EXPECT_EQ(mediaOf({"Plain0/Plain", "Photo/Photo", "Custom1/Custom One", "Custom20/Custom Twenty"}),
              (Pairs{{"Plain0", "Plain *"},
                     {"Photo", "Photo"},
                     kSeparatorPair,
                     {"Custom1", "Custom One"},
                     {"Custom20", "Custom Twenty"}}));
}

TEST(PopUpChoices, OfMediaTypesMarkTheCustomOneThatBringsTheSeparator)
{
    EXPECT_EQ(mediaOf({"Custom10/First", "Custom20/Second", "Plain0/Plain"}),
              (Pairs{kSeparatorPair, {"Custom10", "First *"}, {"Custom20", "Second"}, {"Plain0", "Plain"}}));
}

TEST(PopUpChoices, BeginWithTheSeparatorWhenTheFirstMediaTypeIsCustom)
{
    EXPECT_EQ(BuiltLists(ppdFixture("custom-first")).row(1), (Pairs{kSeparatorPair,
                                                                    {"Custom16", "Custom Paper 16"},
                                                                    {"Custom20", "Custom Paper 20"},
                                                                    {"Plain0", "Plain Paper"},
                                                                    {"Photo6", "Photo Paper"}}));
}

TEST(PopUpChoices, OfMediaTypesCompareSixLettersInTheirCase)
{
    EXPECT_EQ(mediaOf({"custom1/a", "CUSTOM2/b", "Custo3/c", "MyCustom4/d", "Customs/e"}),
              (Pairs{{"custom1", "a"},
                     {"CUSTOM2", "b"},
                     {"Custo3", "c"},
                     {"MyCustom4", "d"},
                     kSeparatorPair,
                     {"Customs", "e"}}));
}

TEST(PopUpChoices, NamedLikeTheLibrarysOwnCustomChoiceBringNoSeparator)
{
    EXPECT_EQ(BuiltLists(ppdFixture("custom-names")).row(1), (Pairs{{"Plain0", "Plain Paper *"},
                                                                    {"Photo6", "Photo Paper"},
                                                                    {"_Custom", "Custom"},
                                                                    {"_Custom.7", "Custom with a Point"},
                                                                    {"custom8", "Custom in Small Letters"},
                                                                    kSeparatorPair,
                                                                    {"Custom16", "Custom Paper 16"}}));
}

TEST(PopUpChoices, OfMediaTypesAreMarkedByTheirLastCharacterOnly)
{
    EXPECT_EQ(mediaOf({"A00/a", "B01/b", "0C/c", "0/d", "E0", "F10/f *"}),
              (Pairs{{"A00", "a *"}, {"B01", "b"}, {"0C", "c"}, {"0", "d *"}, {"E0", "E0 *"}, {"F10", "f * *"}}));
}

TEST(PopUpChoices, OfColorSpacesAreSeparatedAtOneThousand)
{
    const std::vector<std::pair<std::vector<std::string>, Pairs>> table{
        {{"0/a", "1/b", "1001/c", "1002/d"},
         {{"0", "a"}, {"1", "b"}, kSeparatorPair, {"1001", "c"}, {"1002", "d"}}},
        {{"0/a", "1/b", "999/c"}, {{"0", "a"}, {"1", "b"}, {"999", "c"}}},
        {{"999/a", "1000/b", "5/c"}, {{"999", "a"}, kSeparatorPair, {"1000", "b"}, {"5", "c"}}},
        {{"1000x/a"}, {kSeparatorPair, {"1000x", "a"}}},
        {{"+1000/a"}, {kSeparatorPair, {"+1000", "a"}}},
        {{"99999999999/a"}, {kSeparatorPair, {"99999999999", "a"}}},
        {{"x1000/a", "-1000/b", "Custom1/c", "-99999999999/d"},
         {{"x1000", "a"}, {"-1000", "b"}, {"Custom1", "c"}, {"-99999999999", "d"}}},
    };
    for (const auto &[choices, expected] : table) {
        EXPECT_EQ(rowOf(6, {"vornColorspace", "", choices}), expected);
        EXPECT_EQ(rowOf(7, {"vornCMYKspace", "", choices}), expected);
    }
}

TEST(PopUpChoices, OfOtherRowsAreNeitherMarkedNorSeparated)
{
    const std::vector<std::pair<int, std::string>> rows{{0, "vornCartridgeType"},
                                                        {2, "vornResolution"},
                                                        {3, "vornIntent"},
                                                        {4, "vornColorModel"},
                                                        {5, "vornDithering"}};
    for (const auto &[row, keyword] : rows) {
        EXPECT_EQ(rowOf(row, {keyword, "", {"Plain0/a", "Custom10/b", "1001/c"}}),
                  (Pairs{{"Plain0", "a"}, {"Custom10", "b"}, {"1001", "c"}}))
            << row;
    }
    EXPECT_EQ(rowOf(6, {"vornColorspace", "", {"10/a", "20/b"}}), (Pairs{{"10", "a"}, {"20", "b"}}));
    EXPECT_EQ(mediaOf({"1001/a"}), (Pairs{{"1001", "a"}}));
}

TEST(PopUpChoices, WithoutATextShowTheirName)
{
    EXPECT_EQ(rowOf(5, {"vornDithering", "", {"Diffusion", "True", "False"}}),
              (Pairs{{"Diffusion", "Diffusion"}, {"True", "Yes"}, {"False", "No"}}));
}

TEST(PopUpChoices, KeepOddCharactersOfKeysAndTexts)
{
    const BuiltLists lists(ppdFixture("odd-texts"));
    EXPECT_EQ(lists.row(0), (Pairs{{"%s", "%s%s%s%s"}, {"%n", "&%n"}}));
    const Pairs media = lists.row(1);
    ASSERT_EQ(media.size(), 15U);
    EXPECT_EQ(media[1], (Pairs::value_type{"%n%s", "Percent %d %s %n %@"}));
    EXPECT_EQ(media[3], (Pairs::value_type{"A&B6", "&Photo && &Film"}));
    EXPECT_EQ(media[4], (Pairs::value_type{"Bold7", "<b>Bold</b> <img src=x>"}));
    EXPECT_EQ(media[7], (Pairs::value_type{"Sep5", "---separator---"}));
    EXPECT_EQ(media[8], (Pairs::value_type{"---separator---", "Separator by Key"}))
        << "the PPD's own, no separator";
    EXPECT_EQ(media[9], (Pairs::value_type{"*Star6", "Star Key"}));
    const std::string longestKey = std::string(39, 'K') + "6";
    const ppd_choice_t *longest =
        ppdFindChoice(ppdFindOption(lists.context->ppdFile, "vornMediaType"), longestKey.c_str());
    ASSERT_NE(longest, nullptr);
    EXPECT_EQ(media[12], (Pairs::value_type{longestKey, longest->text})) << "as long as the library keeps them";
    EXPECT_EQ(media[13], kSeparatorPair);
    EXPECT_EQ(media[14], (Pairs::value_type{"Custom16", "&Custom %1 %2"}));
}

TEST(PopUpChoices, AreUtf8WhateverTheEncodingOfThePPD)
{
    EXPECT_EQ(BuiltLists(ppdFixture("latin1-texts")).row(1),
              (Pairs{{"Plain0", "Papier uni \xC3\xA0 \xC3\xA9t\xC3\xA9 *"},
                     {"Photo6", "B\xC3\xBCtten 310 g-m\xC2\xB2"},
                     kSeparatorPair,
                     {"Custom10", "Gr\xC3\xB6\xC3\x9F"
                                  "e \xC3\x84\xC3\x96\xC3\x9C 10 *"}}));
    const Pairs utf8 = BuiltLists(ppdFixture("utf8-texts")).row(1);
    ASSERT_EQ(utf8.size(), 5U);
    EXPECT_EQ(utf8[0].second, "Papier uni \xC3\xA0 \xC3\xA9t\xC3\xA9 *");
    EXPECT_EQ(utf8[1].second, "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E Photo");
    EXPECT_EQ(utf8[3].second, "Gr\xC3\xB6\xC3\x9F"
                              "e \xF0\x9F\x96\xA8 10 *");
}

TEST(PopUpChoices, ShareOneCopyOfTheSeparator)
{
    const BuiltLists lists(ppdFixture("minimal"));
    const ChoiceRow &places = lists.context.table().choiceLists[1];
    EXPECT_EQ(places[5], places[6]);
    EXPECT_NE(lists.context.table().choiceLists[6][3], places[5]) << "one copy for each row";
    EXPECT_EQ(lists.context.table().choiceLists[6][3], lists.context.table().choiceLists[6][4]);
}

TEST(PopUpChoices, LeaveTheDefaultsOfTheSharedTablesAlone)
{
    const SharedTables tables;
    for (PopRow &row : pops) {
        row.defaultIndex = 42;
    }
    const BuiltLists lists(ppdFixture("minimal"));
    for (const PopRow &row : pops) {
        EXPECT_EQ(row.defaultIndex, 42);
    }
}

} // namespace
} // namespace tessarin::test
