// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/option_table.h"

namespace tessarin {

void clearChoiceLists(PPDOptionTable &table)
{
    for (ChoiceRow &row : table.choiceLists) {
        row.fill(nullptr);
    }
}

ChoiceList choiceList(const PPDOptionTable &table, int row)
{
    if (row < 0 || static_cast<std::size_t>(row) >= kChoiceRows) {
        return {};
    }
    return ChoiceList(table.choiceLists[static_cast<std::size_t>(row)]).subspan(1);
}

int pairCount(ChoiceList list)
{
    int count = 0;
    for (std::size_t slot = 0; slot + 1 < list.size() && list[slot] != nullptr; slot += 2) {
        ++count;
    }
    return count;
}

const char *pairKey(ChoiceList list, int number)
{
    return number >= 1 && number <= pairCount(list) ? list[2 * static_cast<std::size_t>(number) - 2] : nullptr;
}

const char *pairText(ChoiceList list, int number)
{
    return number >= 1 && number <= pairCount(list) ? list[2 * static_cast<std::size_t>(number) - 1] : nullptr;
}

bool appendPair(PPDOptionTable &table, int row, const char *key, const char *text)
{
    const auto count = static_cast<std::size_t>(pairCount(choiceList(table, row)));
    if (row < 0 || static_cast<std::size_t>(row) >= kChoiceRows || count >= kMostPairs) {
        return false;
    }
    ChoiceRow &places = table.choiceLists[static_cast<std::size_t>(row)];
    places[2 * count + 1] = key;
    places[2 * count + 2] = text;
    return true;
}

bool constraintAt(const PPDOptionTable &table, std::size_t place, ConstraintGroup &group)
{
    if (place >= kMostConstraints) {
        return false;
    }
    const std::int32_t *places = &table.constraints[4 * place];
    if (places[0] < 0) {
        return false;
    }
    group = {places[0], places[1], places[2], places[3]};
    return true;
}

} // namespace tessarin
