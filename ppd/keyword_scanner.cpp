// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/keyword_scanner.h"

#include "controls/control_tables.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "plugin/log.h"
#include "ppd/constraints.h"
#include "ppd/open_ui_blocks.h"
#include "ppd/option_access.h"
#include "ppd/option_table.h"
#include "ppd/popup_choices.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>

namespace tessarin {

namespace {

std::uint8_t lowByte(std::int32_t value)
{
    return static_cast<std::uint8_t>(static_cast<std::uint32_t>(value) & 0xFFU);
}

/// The integer of an option's current choice; 0 when it is missing or no number.
std::int32_t currentValue(PanelContext *context, const char *keyword)
{
    std::int32_t value = 0;
    getPPDOptionSelectionValue(context, keyword, &value, nullptr, 0);
    return value;
}

} // namespace

void ParsePPDFile(const char *path, PanelContext *context)
{
    _VERBOSE("ParsePPD\n");
    PPDOptionTable &table = *context->ppdOptions;
    clearChoiceLists(table);
    clearConstraints(table); // before anything can fail
    std::optional<OpenUIBlockReader> blocks;
    if (context->onTiger != 0) {
        blocks.emplace(*context);
        if (!blocks->isReady()) {
            return;
        }
    } else {
        getPPDComboOptions(context);
    }
    const FileHandle file = openForReading(path);
    if (!file) {
        _VERBOSE("PPD-File not found - error = %.299s\n", std::strerror(errno));
        return;
    }
    _VERBOSE("Start PPD-Scan\n");
    ConstraintCollector constraints(table);
    std::array<char, kScanLineSize> line{};
    while (std::fgets(line.data(), static_cast<int>(line.size()), file.get()) != nullptr) {
        if (!blocks || !blocks->takeBlock(line.data(), file.get())) {
            constraints.takeLine(line.data());
        }
    }
    constraints.finish();
    _VERBOSE("End PPD-Scan\n");
}

int getPPDOptionSelections(PanelContext *context)
{
    getPPDComboSelections(context);
    _VERBOSE("*** create BORDERLESS list***\n");
    for (std::size_t row = 0; row < kSliderCount; ++row) {
        ScrollRow &slider = Scrolls[row];
        _VERBOSE("GetPPDOption for feature: %S\n", "test");
        _VERBOSE("GetPPDOption for feature: %S\n", slider.keyword);
        slider.ppdDefault = currentValue(context, slider.keyword);
        context->settings.sliderValues[static_cast<std::size_t>(slider.number)] =
            clampToInt32(positionOfPPDValue(slider, slider.ppdDefault));
    }
    for (std::size_t row = 0; row < kCheckBoxCount; ++row) {
        checkboxes[row].value = currentValue(context, checkboxes[row].keyword);
    }
    context->settings.checkBoxStates[0] = lowByte(checkboxes[0].value);
    context->settings.checkBoxStates[1] = checkboxes[2].value == 0 ? 1 : 0;
    context->settings.checkBoxStates[2] = lowByte(checkboxes[1].value);
    return 0;
}

} // namespace tessarin
