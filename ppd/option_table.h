// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The PPD option table: per pop-up row a list of choices, and the constraints between them.
//
// A choice list is a run of (key, display text) pairs: slot 1 holds the first key, slot 2 its text, slot 3 the next
// key and so on, up to a null key; slot 0 is not used. A choice index is the 0-based pair index; a selection is the
// 1-based pair number, 0 for none. The strings belong to the context's scan buffer.

#ifndef TESSARIN_PPD_OPTION_TABLE_H
#define TESSARIN_PPD_OPTION_TABLE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tessarin {

inline constexpr std::size_t kChoiceRows = 15; ///< one per `pops` row; those beyond that table stay empty
inline constexpr std::size_t kMostPairs = 82;  ///< 81 choices and a separator
inline constexpr std::size_t kRowSlots = 168;  ///< slot 0, the pairs, the null key, and some to spare
inline constexpr std::size_t kMostConstraints = 50;
inline constexpr std::size_t kConstraintSlots = 4 * kMostConstraints + 1;
static_assert(kRowSlots > 2 * kMostPairs + 1, "the null key after the last pair needs a slot");

/// Key and display text of a separator entry.
inline constexpr char kSeparatorText[] = "---separator---";

/// The slots of one row.
using ChoiceRow = std::array<const char *, kRowSlots>;
/// A choice list from its first key on.
using ChoiceList = std::span<const char *const>;

/// One option must not have a choice together with another's: the entry of the second row is forbidden while the
/// first row shows the first choice.
struct ConstraintGroup {
    std::int32_t firstRow;
    std::int32_t firstChoice; ///< choice index
    std::int32_t secondRow;
    std::int32_t secondChoice; ///< choice index
};

struct PPDOptionTable {
    std::array<ChoiceRow, kChoiceRows> choiceLists{};
    std::array<std::int32_t, kConstraintSlots> constraints{}; ///< groups of four, -1 after the last one
};

/// Empties all choice lists. The strings are not freed here.
void clearChoiceLists(PPDOptionTable &table);

/// The choice list of a `pops` row; an empty one for a row out of range.
ChoiceList choiceList(const PPDOptionTable &table, int row);

/// The number of pairs of a list, separators included.
int pairCount(ChoiceList list);

/// The key of pair number `number` (1-based); null for 0, a negative number, and one beyond the list.
const char *pairKey(ChoiceList list, int number);

/// The display text of pair number `number`; null where pairKey() is.
const char *pairText(ChoiceList list, int number);

/// Appends a pair. False, and nothing changed, when the row is full.
bool appendPair(PPDOptionTable &table, int row, const char *key, const char *text);

/// The constraint group at a 0-based place; false at the end mark and beyond the last place.
bool constraintAt(const PPDOptionTable &table, std::size_t place, ConstraintGroup &group);

} // namespace tessarin

#endif
