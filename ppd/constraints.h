// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The constraints between pop-ups: reading them from PPD lines and applying them to a pop-up.

#ifndef TESSARIN_PPD_CONSTRAINTS_H
#define TESSARIN_PPD_CONSTRAINTS_H

#include "plugin/panel_context.h"
#include "ppd/option_table.h"

#include <cstddef>

namespace tessarin {

/// Collects constraint groups from the lines of a PPD file.
class ConstraintCollector {
public:
    explicit ConstraintCollector(PPDOptionTable &table) : table_(table) {}

    /// Takes the constraint that the line holds, if it holds one that is kept: four words, known options, the
    /// second option later in `pops` than the first (the mirror line is not kept), and a place left.
    void takeLine(const char *line);
    /// Writes the end mark behind the last group.
    void finish();

private:
    PPDOptionTable &table_;
    std::size_t slot_ = 0; ///< where the next group or the end mark goes
};

/// Makes the constraint list empty.
void clearConstraints(PPDOptionTable &table);

/// The row of the pop-up whose selection forbids the entry of `row` with this choice index; -1: none does.
int excludingRow(const PanelContext &context, int row, int choice);

/// Finds which entries of a pop-up the selections of earlier pop-ups forbid, moves the row's selection off them,
/// and refills the pop-up. The moved selection is stored, not sent to the host.
void checkConstraintsForMenu(PanelContext *context, int row);

} // namespace tessarin

#endif
