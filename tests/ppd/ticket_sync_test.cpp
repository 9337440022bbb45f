// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The whole pane into the job's ticket, with controls made by hand.

#include "ppd/ticket.h"

#include "controls/menu_items.h"
#include "platform/popup_button.h"
#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <QCheckBox>
#include <QLabel>
#include <QSlider>

#include <gtest/gtest.h>

#include <limits>

namespace tessarin::test {
namespace {

using Changes = std::vector<Change>;

struct SliderEnds {
    const char *keyword;
    int minimum;
    const char *valueAtMinimum;
    int maximum;
    const char *valueAtMaximum;
};

const std::array<SliderEnds, 20> kSliders{{
    {"vornBrightness", -10, "-50", 10, "50"}, {"vornContrast", -10, "-50", 10, "50"},
    {"vornRefLight", 0, "50", 6, "80"},       {"vornGamut", -5, "-50", 5, "50"},
    {"vornShadows", -5, "-50", 5, "50"},      {"vornGreyToneA", -10, "-50", 10, "50"},
    {"vornGreyToneB", -10, "-50", 10, "50"},  {"vornUCR", -5, "-50", 5, "50"},
    {"vornBrightC", -5, "-50", 5, "50"},      {"vornBrightM", -5, "-50", 5, "50"},
    {"vornTAC", -5, "-50", 5, "50"},          {"vornIntensity", -8, "-80", 0, "0"},
    {"vornInklimitK", -5, "-50", 5, "50"},    {"vornInklimitC", -5, "-50", 5, "50"},
    {"vornInklimitM", -5, "-50", 5, "50"},    {"vornInklimitY", -5, "-50", 5, "50"},
    {"vornColorK", -10, "-50", 10, "50"},     {"vornColorC", -10, "-50", 10, "50"},
    {"vornColorM", -10, "-50", 10, "50"},     {"vornColorY", -10, "-50", 10, "50"},
}};

/// What the sliders send at position 0.
Changes slidersAtZero()
{
    Changes changes;
    for (const SliderEnds &slider : kSliders) {
        changes.emplace_back(slider.keyword, std::string(slider.keyword) == "vornRefLight" ? "50" : "0");
    }
    return changes;
}

class TicketSync : public testing::Test {
protected:
    TicketSync()
    {
        fillRow(context.table(), 0, {{"CartA", "a"}, {"CartB", "b"}});
        fillRow(context.table(), 1, {{"Plain0", "a"}, {"---separator---", "---separator---"}, {"Custom1", "c"}});
        fillRow(context.table(), 2, {{"R1", "a"}});
        fillRow(context.table(), 3, {{"I1", "a"}});
        fillRow(context.table(), 4, {{"Gray", "a"}, {"RGB", "b"}});
        fillRow(context.table(), 5, {{"D1", "a"}});
        fillRow(context.table(), 6, {{"1", "a"}});
        fillRow(context.table(), 7, {{"10", "a"}});
    }

    /// A sync from scratch: what it sends.
    Changes sync()
    {
        host.changes.clear();
        EXPECT_EQ(MySyncTicketFromPane(context), 0);
        return host.changes;
    }

    /// The changes of a sync before the sliders'.
    Changes syncWithoutSliders()
    {
        Changes changes = sync();
        EXPECT_GE(changes.size(), 20U);
        EXPECT_EQ(Changes(changes.end() - 20, changes.end()), slidersAtZero());
        changes.resize(changes.size() - 20);
        return changes;
    }

    /// Items with these tags in a pop-up.
    static void fill(PopUpButton &popup, std::initializer_list<int> tags)
    {
        for (const int tag : tags) {
            AddMenuItem(&popup, "item", tag);
        }
    }

    std::array<std::int32_t, 12> &selections() { return context->settings.popupSelections; }

    RecordingHost host;
    TestContext context{host};
};

TEST_F(TicketSync, WithoutControlsSendsStoredSelectionsAndPositions)
{
    selections() = {2, 3, 1, 1, 2, 1, 1, 1, 9, 9, 9, 9};
    Changes expected{{"vornCartridgeType", "CartB"}, {"vornMediaType", "Custom1"}, {"vornResolution", "R1"},
                     {"vornIntent", "I1"},           {"vornColorModel", "RGB"},    {"vornDithering", "D1"},
                     {"vornColorspace", "1"},        {"vornCMYKspace", "10"}};
    const Changes sliders = slidersAtZero();
    expected.insert(expected.end(), sliders.begin(), sliders.end());
    EXPECT_EQ(sync(), expected);
    EXPECT_EQ(expected.size(), 28U);
}

TEST_F(TicketSync, LogsEveryStepInOrder)
{
    QCheckBox interpreter;
    interpreter.setChecked(true);
    context->controls.psInterpreterCheckBox = &interpreter;
    PopUpButton media;
    fill(media, {1, 123, 3});
    media.setCurrentIndex(2);
    context->controls.popupControls[1] = &media;
    selections()[0] = 1;
    selections()[4] = 7;
    const CapturedLog log;
    sync();
    Lines expected{"--- SYNC TICKET FROM PANE ---\n",
                   "Setting Object:vornPSInterpreter to Selection:0\n",
                   "Set Checkbox vornPSInterpreter to value 1\n",
                   "Setting Object:vornCartridgeType to Selection:CartA\n",
                   "+++ tag of selected item: 3\n",
                   "Setting Object:vornMediaType to Selection:Custom1\n",
                   "Value not present!\n",
                   "Value not present!\n",
                   "Setting Object:vornColorModel to Selection:(null)\n",
                   "Value not present!\n",
                   "Value not present!\n",
                   "Value not present!\n"};
    for (const SliderEnds &slider : kSliders) {
        const std::string value = std::string(slider.keyword) == "vornRefLight" ? "50" : "0";
        expected.push_back(std::string("Setting Object:") + slider.keyword + " to Selection:" + value + "\n");
    }
    expected.emplace_back("Sync - done\n");
    EXPECT_EQ(log.lines(), logged(expected));
}

TEST_F(TicketSync, SendsCheckBoxesInTheOrderOfTheirTable)
{
    QCheckBox noPrint;
    QCheckBox interpreter;
    QCheckBox gamma;
    context->controls.noPrintCheckBox = &noPrint;
    context->controls.psInterpreterCheckBox = &interpreter;
    context->controls.colorGammaCheckBox = &gamma;
    const CapturedLog log;
    EXPECT_EQ(syncWithoutSliders(),
              (Changes{{"vornNoPrint", "0"}, {"vornColorGamma", "0"}, {"vornPSInterpreter", "1"}}));
    EXPECT_EQ(context->settings.checkBoxStates, (std::array<std::uint8_t, 4>{0, 0, 0, 0}));
    EXPECT_TRUE(log.contains("LOG Set Checkbox vornPSInterpreter to value 0\n"));
    for (QCheckBox *box : {&noPrint, &interpreter, &gamma}) {
        box->setChecked(true);
    }
    EXPECT_EQ(syncWithoutSliders(),
              (Changes{{"vornNoPrint", "1"}, {"vornColorGamma", "1"}, {"vornPSInterpreter", "0"}}));
    EXPECT_EQ(context->settings.checkBoxStates, (std::array<std::uint8_t, 4>{1, 1, 1, 0}));
    EXPECT_TRUE(log.contains("LOG Set Checkbox vornPSInterpreter to value 1\n"));
}

TEST_F(TicketSync, StoresEachCheckBoxInItsOwnState)
{
    QCheckBox box;
    box.setChecked(true);
    const std::vector<std::pair<ControlHandle ControlsStruct::*, std::size_t>> table{
        {&ControlsStruct::noPrintCheckBox, 0},
        {&ControlsStruct::psInterpreterCheckBox, 1},
        {&ControlsStruct::colorGammaCheckBox, 2}};
    for (const auto &[handle, state] : table) {
        context->settings.checkBoxStates.fill(0);
        context->controls.*handle = &box;
        sync();
        std::array<std::uint8_t, 4> expected{};
        expected[state] = 1;
        EXPECT_EQ(context->settings.checkBoxStates, expected) << state;
        context->controls.*handle = nullptr;
    }
}

TEST_F(TicketSync, OfAMissingCheckBoxSendsNothingAndKeepsItsState)
{
    QCheckBox gamma;
    context->controls.colorGammaCheckBox = &gamma;
    context->settings.checkBoxStates = {1, 2, 1, 7};
    const CapturedLog log;
    EXPECT_EQ(syncWithoutSliders(), (Changes{{"vornColorGamma", "0"}}));
    EXPECT_EQ(context->settings.checkBoxStates, (std::array<std::uint8_t, 4>{1, 2, 0, 7}));
    EXPECT_EQ(log.countStarting("LOG Set Checkbox "), 1);
}

TEST_F(TicketSync, TakesAMixedCheckBoxAsOff)
{
    QCheckBox noPrint;
    QCheckBox interpreter;
    for (QCheckBox *box : {&noPrint, &interpreter}) {
        box->setTristate(true);
        box->setCheckState(Qt::PartiallyChecked);
    }
    context->controls.noPrintCheckBox = &noPrint;
    context->controls.psInterpreterCheckBox = &interpreter;
    context->settings.checkBoxStates.fill(1);
    EXPECT_EQ(syncWithoutSliders(), (Changes{{"vornNoPrint", "0"}, {"vornPSInterpreter", "1"}}));
    EXPECT_EQ(context->settings.checkBoxStates, (std::array<std::uint8_t, 4>{0, 0, 1, 1}));
}

TEST_F(TicketSync, SendsDisabledAndHiddenControlsToo)
{
    QCheckBox noPrint;
    noPrint.setChecked(true);
    noPrint.setEnabled(false);
    PopUpButton cartridge;
    fill(cartridge, {1, 2});
    cartridge.setCurrentIndex(1);
    cartridge.hide();
    context->controls.noPrintCheckBox = &noPrint;
    context->controls.popupControls[0] = &cartridge;
    EXPECT_EQ(syncWithoutSliders(), (Changes{{"vornNoPrint", "1"}, {"vornCartridgeType", "CartB"}}));
}

TEST_F(TicketSync, ReadsAPopUpsSelectionAndStoresIt)
{
    struct Row {
        int index;
        int stored;
        Changes sent;
    };
    // A forbidden entry has a negative tag, a separator 123.
    const std::vector<Row> table{
        {0, 1, {{"vornMediaType", "Plain0"}}},  {1, 123, {}}, {2, 3, {{"vornMediaType", "Custom1"}}},
        {3, 3, {{"vornMediaType", "Custom1"}}}, {4, 4, {}},   {-1, 0, {}}};
    PopUpButton media;
    fill(media, {1, 123, 3, -3, 4});
    context->controls.popupControls[1] = &media;
    for (const Row &row : table) {
        selections()[1] = 1;
        media.setCurrentIndex(row.index);
        EXPECT_EQ(syncWithoutSliders(), row.sent) << row.index;
        EXPECT_EQ(selections()[1], row.stored) << row.index;
    }
}

TEST_F(TicketSync, OfAPopUpWithoutItemsSendsNothing)
{
    PopUpButton media;
    context->controls.popupControls[1] = &media;
    selections()[1] = 1;
    const CapturedLog log;
    EXPECT_EQ(syncWithoutSliders(), Changes{});
    EXPECT_EQ(selections()[1], 0);
    EXPECT_EQ(log.count("LOG Value not present!\n"), 8);
}

TEST_F(TicketSync, OfAViewThatIsNoPopUpSendsNothing)
{
    QLabel label;
    context->controls.popupControls[0] = &label;
    selections()[0] = 1;
    EXPECT_EQ(syncWithoutSliders(), Changes{});
    EXPECT_EQ(selections()[0], 0);
}

TEST_F(TicketSync, SendsTheSeparatorOfAStoredSelection)
{
    selections()[1] = 2;
    EXPECT_EQ(syncWithoutSliders(), (Changes{{"vornMediaType", "---separator---"}}));
}

TEST_F(TicketSync, OfASelectionThatNamesNoPairSendsNothing)
{
    constexpr int greatest = std::numeric_limits<int>::max();
    for (const int selection : {4, 83, 123, greatest}) {
        selections()[1] = selection;
        const CapturedLog log;
        EXPECT_EQ(syncWithoutSliders(), Changes{}) << selection;
        EXPECT_EQ(log.count("LOG Setting Object:vornMediaType to Selection:(null)\n"), 1) << selection;
        EXPECT_EQ(log.count("LOG Value not present!\n"), 7) << selection;
        EXPECT_EQ(selections()[1], selection);
    }
    for (const int selection : {0, -1, std::numeric_limits<int>::min()}) {
        selections()[1] = selection;
        const CapturedLog log;
        EXPECT_EQ(syncWithoutSliders(), Changes{}) << selection;
        EXPECT_EQ(log.count("LOG Value not present!\n"), 8) << selection;
    }
}

TEST_F(TicketSync, SendsPositionsAsPPDValues)
{
    for (const bool atMaximum : {false, true}) {
        Changes expected;
        for (std::size_t number = 0; number < kSliders.size(); ++number) {
            const SliderEnds &slider = kSliders[number];
            context->settings.sliderValues[number] = atMaximum ? slider.maximum : slider.minimum;
            expected.emplace_back(slider.keyword, atMaximum ? slider.valueAtMaximum : slider.valueAtMinimum);
        }
        EXPECT_EQ(sync(), expected);
    }
    context->settings.sliderValues[0] = -3;
    context->settings.sliderValues[2] = 2;
    EXPECT_EQ(sync()[0], (Change{"vornBrightness", "-15"}));
    EXPECT_EQ(sync()[2], (Change{"vornRefLight", "60"}));
}

TEST_F(TicketSync, ReadsASlidersPositionAndStoresIt)
{
    QSlider contrast;
    contrast.setRange(-10, 10);
    contrast.setValue(-3);
    QSlider refLight;
    refLight.setRange(0, 6);
    refLight.setValue(-10); // stays at 0
    context->controls.sliderControls[1] = &contrast;
    context->controls.sliderControls[2] = &refLight;
    context->settings.sliderValues[0] = 4;
    context->settings.sliderValues[1] = 5;
    context->settings.sliderValues[2] = -10;
    const Changes changes = sync();
    EXPECT_EQ(changes[0], (Change{"vornBrightness", "20"}));
    EXPECT_EQ(changes[1], (Change{"vornContrast", "-15"}));
    EXPECT_EQ(changes[2], (Change{"vornRefLight", "50"}));
    EXPECT_EQ(context->settings.sliderValues[0], 4);
    EXPECT_EQ(context->settings.sliderValues[1], -3);
    EXPECT_EQ(context->settings.sliderValues[2], 0);
}

TEST_F(TicketSync, SendsPositionsOutsideTheSliderFromTheSettings)
{
    context->settings.sliderValues[0] = 12;
    context->settings.sliderValues[2] = -10;
    context->settings.sliderValues[7] = -214748364;
    const Changes changes = sync();
    EXPECT_EQ(changes[0], (Change{"vornBrightness", "60"}));
    EXPECT_EQ(changes[2], (Change{"vornRefLight", "0"}));
    EXPECT_EQ(changes[7], (Change{"vornUCR", "-2147483640"}));
}

TEST_F(TicketSync, LimitsValuesTo32Bits)
{
    context->settings.sliderValues.fill(std::numeric_limits<std::int32_t>::max());
    for (const Change &change : sync()) {
        EXPECT_EQ(change.second, "2147483647") << change.first;
    }
    context->settings.sliderValues.fill(std::numeric_limits<std::int32_t>::min());
    for (const Change &change : sync()) {
        EXPECT_EQ(change.second, "-2147483648") << change.first;
    }
}

TEST_F(TicketSync, LooksSlidersUpByTheirNumberUpToTheTablesEnd)
{
    std::swap(Scrolls[0].number, Scrolls[1].number);
    context->settings.sliderValues[0] = 1;
    context->settings.sliderValues[1] = 2;
    Changes changes = sync();
    EXPECT_EQ(changes[0], (Change{"vornContrast", "5"}));
    EXPECT_EQ(changes[1], (Change{"vornBrightness", "10"}));
    Scrolls[5].number = 30;
    EXPECT_EQ(sync().size(), 19U) << "number 5 has no row";
    Scrolls[5].number = -1;
    EXPECT_EQ(sync().size(), 5U) << "the table ends there";
}

TEST_F(TicketSync, IgnoresTheHostsAnswers)
{
    selections()[0] = 2;
    host.refusedKeys = {"vornCartridgeType", "vornBrightness"};
    context->settings.sliderValues[0] = 3;
    EXPECT_EQ(sync().size(), 21U);
    EXPECT_EQ(selections()[0], 2);
    EXPECT_EQ(context->settings.sliderValues[0], 3);
}

TEST_F(TicketSync, SendsUnchangedValuesEveryTime)
{
    selections()[0] = 2;
    const Changes first = sync();
    EXPECT_EQ(sync(), first);
}

TEST_F(TicketSync, DoesTheSameOnAnOldHost)
{
    selections()[0] = 2;
    const Changes expected = sync();
    context->onTiger = 1;
    EXPECT_EQ(sync(), expected);
}

TEST_F(TicketSync, WithoutAHostOnlyStoresAndLogs)
{
    context->callbackObject = nullptr;
    QCheckBox noPrint;
    noPrint.setChecked(true);
    context->controls.noPrintCheckBox = &noPrint;
    const CapturedLog log;
    EXPECT_EQ(sync(), Changes{});
    EXPECT_EQ(context->settings.checkBoxStates[0], 1);
    EXPECT_EQ(log.countStarting("LOG Setting Object:"), 21);
}

} // namespace
} // namespace tessarin::test
