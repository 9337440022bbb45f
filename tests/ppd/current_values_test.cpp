// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Slider positions and check-box states read from the parsed PPD.

#include "ppd/keyword_scanner.h"

#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

const std::array<const char *, 20> kSliderKeywords{
    "vornBrightness", "vornContrast",  "vornRefLight",  "vornGamut",     "vornShadows",
    "vornGreyToneA",  "vornGreyToneB", "vornUCR",       "vornBrightC",   "vornBrightM",
    "vornTAC",        "vornIntensity", "vornInklimitK", "vornInklimitC", "vornInklimitM",
    "vornInklimitY",  "vornColorK",    "vornColorC",    "vornColorM",    "vornColorY"};

/// A context whose values were read from a PPD.
class ReadValues {
public:
    explicit ReadValues(const std::string &ppdPath) : host(ppdPath), context(host)
    {
        context->settings.sliderValues.fill(77);
        context->settings.checkBoxStates.fill(77);
        result = getPPDOptionSelections(context);
    }

    RecordingHost host;
    TestContext context;
    int result = -1;
};

/// Reads a PPD that has only these options, each with this one choice.
struct OneValue {
    OneValue(const std::string &keyword, const std::string &value)
        : file(ppdText({{keyword, value, {value + "/Shown"}}})), values(file.path())
    {}
    TextFile file;
    ReadValues values;
};

TEST(CurrentValues, OfTheFixtureAreItsDefaults)
{
    const ReadValues values(ppdFixture("minimal"));
    EXPECT_EQ(values.result, 0);
    for (std::size_t number = 0; number < 20; ++number) {
        const bool isRefLight = number == 2;
        EXPECT_EQ(values.context->settings.sliderValues[number], isRefLight ? 3 : 0) << number;
        EXPECT_EQ(Scrolls[number].ppdDefault, isRefLight ? 65 : 0) << number;
    }
    EXPECT_EQ(values.context->settings.sliderValues[20], 77) << "no slider has this number";
    EXPECT_EQ(values.context->settings.checkBoxStates, (std::array<std::uint8_t, 4>{0, 1, 0, 77}));
    EXPECT_EQ(values.context->settings.popupSelections[1], 1) << "read with the rest; no list was built";
}

TEST(CurrentValues, FollowMarkedChoices)
{
    ReadValues values(ppdFixture("minimal"));
    values.host.mark("vornBrightness", "-50");
    values.host.mark("vornGamut", "50");
    values.host.mark("vornRefLight", "80");
    values.host.mark("vornIntensity", "-40");
    values.host.mark("vornNoPrint", "1");
    values.host.mark("vornColorGamma", "1");
    values.host.mark("vornPSInterpreter", "1");
    getPPDOptionSelections(values.context);
    const auto &positions = values.context->settings.sliderValues;
    EXPECT_EQ(positions[0], -10);
    EXPECT_EQ(positions[3], 5);
    EXPECT_EQ(positions[2], 6);
    EXPECT_EQ(positions[11], -4);
    EXPECT_EQ(values.context->settings.checkBoxStates[0], 1);
    EXPECT_EQ(values.context->settings.checkBoxStates[1], 0);
    EXPECT_EQ(values.context->settings.checkBoxStates[2], 1);
    EXPECT_EQ(checkboxes[0].value, 1);
    EXPECT_EQ(checkboxes[1].value, 1);
    EXPECT_EQ(checkboxes[2].value, 1);
}

TEST(CurrentValues, LogSelectionsThenFortySliderLinesAndNoneForCheckBoxes)
{
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host);
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    const CapturedLog log;
    getPPDOptionSelections(context);
    Lines expected{"getComboPPDSelection for vornCartridgeType\n",
                   "current selection is #1\n",
                   "getComboPPDSelection for vornMediaType\n",
                   "current selection is #2\n",
                   "getComboPPDSelection for vornResolution\n",
                   "current selection is #1\n",
                   "getComboPPDSelection for vornIntent\n",
                   "current selection is #1\n",
                   "getComboPPDSelection for vornColorModel\n",
                   "current selection is #2\n",
                   "getComboPPDSelection for vornDithering\n",
                   "current selection is #1\n",
                   "getComboPPDSelection for vornColorspace\n",
                   "current selection is #1\n",
                   "getComboPPDSelection for vornCMYKspace\n",
                   "current selection is #1\n",
                   "*** create BORDERLESS list***\n"};
    for (const char *keyword : kSliderKeywords) {
        expected.emplace_back("GetPPDOption for feature: test\n");
        expected.push_back(std::string("GetPPDOption for feature: ") + keyword + "\n");
    }
    EXPECT_EQ(log.lines(), logged(expected));
    EXPECT_EQ(log.countStarting("LOG GetPPDOption for feature: "), 40);
}

TEST(CurrentValues, OfAMissingOptionAreZeroNotTheCompiledDefault)
{
    const SharedTables tables;
    Scrolls[2].ppdDefault = 3;
    const ReadValues values(ppdFixture("missing-reflight"));
    EXPECT_EQ(Scrolls[2].ppdDefault, 0);
    EXPECT_EQ(values.context->settings.sliderValues[2], -10);
    EXPECT_EQ(values.context->settings.checkBoxStates[1], 1) << "the interpreter option is missing too";
}

TEST(CurrentValues, WithoutAParsedPPDAreZeroAndGhostscriptIsOn)
{
    const ReadValues values((std::string()));
    for (std::size_t number = 0; number < 20; ++number) {
        EXPECT_EQ(values.context->settings.sliderValues[number], number == 2 ? -10 : 0) << number;
    }
    EXPECT_EQ(values.context->settings.checkBoxStates, (std::array<std::uint8_t, 4>{0, 1, 0, 77}));
}

TEST(CurrentValues, DivideTowardZeroAndAreNotLimitedToTheSlider)
{
    struct Row {
        const char *keyword;
        std::size_t number;
        const char *value;
        int position;
    };
    const std::vector<Row> table{
        {"vornBrightness", 0, "-53", -10},
        {"vornBrightness", 0, "53", 10},
        {"vornBrightness", 0, "-4", 0},
        {"vornBrightness", 0, "4", 0},
        {"vornBrightness", 0, "60", 12},
        {"vornBrightness", 0, "-1000", -200},
        {"vornContrast", 1, "7", 1},
        {"vornRefLight", 2, "49", 0},
        {"vornRefLight", 2, "45", -1},
        {"vornRefLight", 2, "0", -10},
        {"vornRefLight", 2, "64", 2},
        {"vornRefLight", 2, "5000", 990},
        {"vornGamut", 3, "-59", -5},
        {"vornShadows", 4, "30percent", 3},
        {"vornShadows", 4, "20.7", 2},
        {"vornUCR", 7, "2147483647", 214748364},
        {"vornUCR", 7, "-2147483648", -214748364},
        {"vornUCR", 7, "2147483648", 214748364},
        {"vornTAC", 10, "99999999999", 214748364},
        {"vornRefLight", 2, "-2147483648", -429496739},
        {"vornRefLight", 2, "-99999999999", -429496739},
        {"vornRefLight", 2, "2147483647", 429496719},
        {"vornIntensity", 11, "40", 4},
        {"vornInklimitK", 12, "010", 1},
        {"vornInklimitK", 12, "0x10", 0},
        {"vornInklimitK", 12, "+10", 1},
        {"vornContrast", 1, "Auto", 0},
        {"vornRefLight", 2, "Auto", -10},
    };
    for (const Row &row : table) {
        const OneValue one(row.keyword, row.value);
        EXPECT_EQ(one.values.context->settings.sliderValues[row.number], row.position)
            << row.keyword << " " << row.value;
    }
}

TEST(CurrentValues, StoreThePPDValueOfEachSlider)
{
    const OneValue one("vornGreyToneB", "-53");
    EXPECT_EQ(Scrolls[6].ppdDefault, -53);
    EXPECT_EQ(Scrolls[5].ppdDefault, 0);
}

TEST(CurrentValues, GoToTheNumberOfTheRowNotToItsPlace)
{
    const SharedTables tables;
    std::swap(Scrolls[0].number, Scrolls[19].number);
    RecordingHost host(ppdFixture("minimal"));
    host.mark("vornBrightness", "50");
    const TestContext context(host);
    getPPDOptionSelections(context);
    EXPECT_EQ(context->settings.sliderValues[19], 10);
    EXPECT_EQ(context->settings.sliderValues[0], 0);
}

TEST(CurrentValues, OfCheckBoxesAreTheirLowByte)
{
    const std::vector<std::pair<const char *, int>> table{{"0", 0},   {"1", 1},    {"2", 2},           {"255", 255},
                                                          {"256", 0}, {"258", 2},  {"-1", 255},        {"Auto", 0},
                                                          {"1x", 1},  {"-256", 0}, {"2147483647", 255}};
    for (const auto &[value, state] : table) {
        const OneValue noPrint("vornNoPrint", value);
        EXPECT_EQ(noPrint.values.context->settings.checkBoxStates[0], state) << value;
        EXPECT_EQ(noPrint.values.context->settings.checkBoxStates[2], 0) << value;
        const OneValue gamma("vornColorGamma", value);
        EXPECT_EQ(gamma.values.context->settings.checkBoxStates[2], state) << value;
        EXPECT_EQ(gamma.values.context->settings.checkBoxStates[0], 0) << value;
    }
}

TEST(CurrentValues, OfTheInterpreterAreInverted)
{
    const std::vector<std::pair<const char *, int>> table{{"0", 1},   {"1", 0},    {"2", 0}, {"-1", 0},
                                                          {"256", 0}, {"True", 1}, {"00", 1}};
    for (const auto &[value, state] : table) {
        const OneValue one("vornPSInterpreter", value);
        EXPECT_EQ(one.values.context->settings.checkBoxStates[1], state) << value;
    }
}

TEST(CurrentValues, OfCheckBoxesAreStoredInTheirTable)
{
    const OneValue noPrint("vornNoPrint", "258");
    EXPECT_EQ(checkboxes[0].value, 258);
    EXPECT_EQ(checkboxes[1].value, 0);
    const OneValue gamma("vornColorGamma", "-1");
    EXPECT_EQ(checkboxes[0].value, 0);
    EXPECT_EQ(checkboxes[1].value, -1);
    const OneValue interpreter("vornPSInterpreter", "99999999999");
    EXPECT_EQ(checkboxes[2].value, 2147483647);
}

TEST(CurrentValues, OfTheOddValuesFixture)
{
    const ReadValues values(ppdFixture("odd-values"));
    const auto &positions = values.context->settings.sliderValues;
    EXPECT_EQ(positions[0], 12);
    EXPECT_EQ(positions[1], 0);
    EXPECT_EQ(positions[2], 0);
    EXPECT_EQ(positions[3], 5);
    EXPECT_EQ(positions[4], 3);
    EXPECT_EQ(positions[7], -214748364);
    EXPECT_EQ(positions[10], 214748364);
    EXPECT_EQ(positions[11], 4);
    EXPECT_EQ(positions[12], 1);
    EXPECT_EQ(values.context->settings.checkBoxStates, (std::array<std::uint8_t, 4>{0, 1, 255, 77}));
}

TEST(CurrentValues, OfADefaultThatNamesNoChoiceAreZero)
{
    const ReadValues values(ppdFixture("unknown-default"));
    EXPECT_EQ(values.context->settings.sliderValues[1], 0);
    EXPECT_EQ(values.context->settings.checkBoxStates[2], 0);
    const ReadValues noDefault(ppdFixture("no-default"));
    EXPECT_EQ(noDefault.context->settings.sliderValues[0], 0);
    EXPECT_EQ(noDefault.context->settings.sliderValues[2], -10);
}

TEST(CurrentValues, ReplaceThoseOfAnotherPrinterInTheSharedTables)
{
    const OneValue first("vornBrightness", "25");
    EXPECT_EQ(Scrolls[0].ppdDefault, 25);
    const OneValue second("vornContrast", "-25");
    EXPECT_EQ(Scrolls[0].ppdDefault, 0);
    EXPECT_EQ(Scrolls[1].ppdDefault, -25);
    EXPECT_EQ(first.values.context->settings.sliderValues[0], 5) << "a panel's own settings stay";
}

TEST(CurrentValues, LeaveTheDefaultIndexAlone)
{
    const SharedTables tables;
    for (PopRow &row : pops) {
        row.defaultIndex = 42;
    }
    const ReadValues values(ppdFixture("minimal"));
    EXPECT_TRUE(std::all_of(pops.begin(), pops.end(), [](const PopRow &row) { return row.defaultIndex == 42; }));
}

} // namespace
} // namespace tessarin::test
