// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Filling of a pop-up from a choice list.

#ifndef TESSARIN_CONTROLS_POPUP_FILLING_H
#define TESSARIN_CONTROLS_POPUP_FILLING_H

#include "ppd/option_table.h"

#include <QWidget>

#include <span>

namespace tessarin {

/// Fills the pop-up with the list's pairs, item n being pair n, and selects item `active` (item 1 when that is 0 or
/// beyond the list). `enabledFlags` has one entry per pair, 0 for a pair that is shown disabled; without flags all
/// are enabled. The result is that of the final selection.
int FillPopup(QWidget *popup, ChoiceList list, std::span<const int> enabledFlags, int active);

} // namespace tessarin

#endif
