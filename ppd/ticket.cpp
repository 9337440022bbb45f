// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/ticket.h"

#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "platform/numbers.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"
#include "ppd/option_access.h"
#include "ppd/option_table.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace tessarin {

namespace {

constexpr std::size_t kHostTextSize = 64; // bytes of an option key or choice from the host, terminator included

/// How a check box meets its option: which state it has in the settings, and what is written for on and off.
struct CheckBoxBinding {
    const ControlHandle &control;
    std::size_t state;
    const char *on;
    const char *off;
};

void syncCheckBoxes(PanelContext *context)
{
    const ControlsStruct &controls = context->controls;
    // The interpreter's option counts the other way round: 0 is Ghostscript.
    const std::array<CheckBoxBinding, kCheckBoxCount> bindings{{
        {.control = controls.noPrintCheckBox, .state = 0, .on = "1", .off = "0"},
        {.control = controls.colorGammaCheckBox, .state = 2, .on = "1", .off = "0"},
        {.control = controls.psInterpreterCheckBox, .state = 1, .on = "0", .off = "1"},
    }};
    for (std::size_t row = 0; row < bindings.size(); ++row) {
        const CheckBoxBinding &binding = bindings[row];
        if (binding.control.isNull()) {
            continue;
        }
        const bool on = GetCheckButtonValue(binding.control) == 1;
        context->settings.checkBoxStates[binding.state] = on ? 1 : 0;
        setPPDValue(context, 0, checkboxes[row].keyword, on ? binding.on : binding.off);
        _VERBOSE("Set Checkbox %S to value %d\n", checkboxes[row].keyword,
                 context->settings.checkBoxStates[binding.state]);
    }
}

void syncPopUps(PanelContext *context)
{
    for (int row = 0; pops[static_cast<std::size_t>(row)].keyword != nullptr; ++row) {
        const auto place = static_cast<std::size_t>(row);
        std::int32_t &selection = context->settings.popupSelections[place];
        if (QWidget *control = context->controls.popupControls[place]) {
            selection = GetComboControlValue(control);
        }
        if (selection > 0) {
            setPPDValue(context, 0, keywordWithoutStar(pops[place]),
                        pairKey(choiceList(*context->ppdOptions, row), selection));
        } else {
            _VERBOSE("Value not present!\n");
        }
    }
}

void syncSliders(PanelContext *context)
{
    for (int number = 0; number < static_cast<int>(kSliderCount); ++number) {
        const ScrollRow *row = sliderRow(number);
        if (row == nullptr) {
            continue;
        }
        std::int32_t &position = context->settings.sliderValues[static_cast<std::size_t>(number)];
        if (QWidget *control = context->controls.sliderControls[static_cast<std::size_t>(number)]) {
            position = GetSliderControlValue(control);
        }
        const std::int32_t value = clampToInt32(std::int64_t{position} * row->ppdStep + row->ppdOffset);
        std::array<char, 15> text{};
        std::to_chars(text.data(), text.data() + text.size() - 1, value);
        setPPDValue(context, 0, row->keyword, text.data());
    }
}

} // namespace

int MySyncTicketFromPane(PanelContext *context)
{
    _VERBOSE("--- SYNC TICKET FROM PANE ---\n");
    syncCheckBoxes(context);
    syncPopUps(context);
    syncSliders(context);
    _VERBOSE("Sync - done\n");
    return 0;
}

bool MySaveSettingToTicket(PanelContext *context, int row, int selection)
{
    if (context->onTiger != 0) {
        return true;
    }
    const auto place = static_cast<std::size_t>(row);
    const char *keyword = withoutStar(pops[place].keyword);
    const char *key = pairKey(choiceList(*context->ppdOptions, row), selection);
    if (key == nullptr) {
        _VERBOSE("No PPD Options for feature available\n");
        return false;
    }
    const bool accepted = MySetPPDOption(context, keyword, key);
    if (accepted) {
        context->settings.popupSelections[place] = selection;
    }
    _VERBOSE("##### setting %S to %S : result = %S\n", keyword, key, accepted ? "TRUE" : "FALSE");
    return accepted;
}

void MyPPDOptionHasChanged(PanelContext *context, const StringRef &optionKey, const StringRef &choiceKey)
{
    _VERBOSE("PPDOptionKeyValueDidChange:(%s) ppdChoice:(%s)", optionKey, choiceKey);
    std::array<char, kHostTextSize> option{};
    std::array<char, kHostTextSize> choice{};
    if (!myCFStringGetCString(optionKey, option.data(), option.size(), kEncodingUTF8) ||
        !myCFStringGetCString(choiceKey, choice.data(), choice.size(), kEncodingUTF8)) {
        return;
    }
    for (int row = 0; pops[static_cast<std::size_t>(row)].keyword != nullptr; ++row) {
        const auto place = static_cast<std::size_t>(row);
        const char *keyword = withoutStar(pops[place].keyword);
        if (std::strcmp(keyword, option.data()) != 0) {
            continue;
        }
        const ChoiceList list = choiceList(*context->ppdOptions, row);
        int number = 1;
        while (pairKey(list, number) != nullptr && std::strcmp(pairKey(list, number), choice.data()) != 0) {
            ++number;
        }
        if (const char *key = pairKey(list, number)) {
            SelectComboControlEntryWithTag(context->controls.popupControls[place], number);
            context->settings.popupSelections[place] = number;
            _VERBOSE("### System changed PPDitem '%S' to selection '%S'\n ###", keyword, key);
        }
    }
}

} // namespace tessarin
