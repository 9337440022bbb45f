// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/constraints.h"

#include "controls/control_tables.h"
#include "controls/popup_filling.h"
#include "plugin/log.h"
#include "ppd/option_access.h"

#include <algorithm>
#include <array>
#include <locale>
#include <sstream>
#include <string>
#include <string_view>

namespace tessarin {

namespace {

constexpr std::string_view kConstraintKeyword = "*UIConstraints:";
constexpr std::int32_t kEndMark = -1;

/// Whether the group forbids the entry with this choice index while the other pop-ups stand as they do.
bool forbids(const ConstraintGroup &group, const PanelSettings &settings, int row, int choice)
{
    return group.secondRow == row && group.secondChoice == choice &&
           static_cast<std::size_t>(group.firstRow) < settings.popupSelections.size() &&
           settings.popupSelections[static_cast<std::size_t>(group.firstRow)] == group.firstChoice + 1;
}

} // namespace

int excludingRow(const PanelContext &context, int row, int choice)
{
    ConstraintGroup group{};
    for (std::size_t place = 0; constraintAt(*context.ppdOptions, place, group); ++place) {
        if (forbids(group, context.settings, row, choice)) {
            return group.firstRow;
        }
    }
    return -1;
}

void ConstraintCollector::takeLine(const char *line)
{
    const std::string_view text(line);
    const std::size_t at = text.find(kConstraintKeyword);
    if (at == std::string_view::npos) {
        return;
    }
    std::istringstream words{std::string(text.substr(at + kConstraintKeyword.size()))};
    words.imbue(std::locale::classic());
    std::string option1;
    std::string choice1;
    std::string option2;
    std::string choice2;
    if (!(words >> option1 >> choice1 >> option2 >> choice2)) {
        return;
    }
    const int row1 = findppdkey(option1.c_str());
    const int row2 = findppdkey(option2.c_str());
    if (row1 < 0 || row2 <= row1) {
        return;
    }
    const int index1 = findppditem(table_, row1, choice1.c_str());
    const int index2 = findppditem(table_, row2, choice2.c_str());
    if (index1 < 0 || index2 < 0 || slot_ + 4 >= table_.constraints.size()) {
        return;
    }
    const std::array<std::int32_t, 4> group{row1, index1, row2, index2};
    std::copy(group.begin(), group.end(), &table_.constraints[slot_]);
    slot_ += group.size();
}

void ConstraintCollector::finish()
{
    table_.constraints[slot_] = kEndMark;
}

void clearConstraints(PPDOptionTable &table)
{
    table.constraints[0] = kEndMark;
}

void checkConstraintsForMenu(PanelContext *context, int row)
{
    const auto place = static_cast<std::size_t>(row);
    _VERBOSE("-- check contraints --\n");
    _VERBOSE("Checking menu for %S\n", pops[place].keyword);
    const ChoiceList list = choiceList(*context->ppdOptions, row);
    const int count = pairCount(list);
    std::array<int, kMostPairs> flags{};
    int selection = context->settings.popupSelections[place];
    int lastEnabled = 0;
    for (int choice = 0; choice < count; ++choice) {
        if (excludingRow(*context, row, choice) < 0) {
            flags[static_cast<std::size_t>(choice)] = 1;
            lastEnabled = choice + 1;
        } else if (selection == choice + 1) {
            selection = choice + 2; // a run of forbidden entries pushes it along
        }
    }
    selection = std::min(selection, lastEnabled);
    FillPopup(context->controls.popupControls[place], list,
              std::span<const int>(flags).first(static_cast<std::size_t>(count)), selection);
    context->settings.popupSelections[place] = selection;
}

} // namespace tessarin
