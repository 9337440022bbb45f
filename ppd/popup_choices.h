// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Choice lists of the pop-ups from the parsed PPD, and their current selections.

#ifndef TESSARIN_PPD_POPUP_CHOICES_H
#define TESSARIN_PPD_POPUP_CHOICES_H

#include "plugin/panel_context.h"

#include <string_view>

namespace tessarin {

/// Whether a separator stands before the first choice of this kind in a `pops` row: custom media types (row 1),
/// colour spaces with a number of 1000 or more (rows 6 and 7).
bool startsSeparatedChoices(int row, const char *key);

/// Whether a media type's display text is marked with " *": its key ends in '0'.
bool isMarkedMedia(int row, std::string_view key);

/// Builds the choice list of every `pops` row from the context's parsed PPD, in a new scan buffer of exactly the
/// size needed. Rows without option or choices, and all rows when out of memory, stay empty. Always 0.
int getPPDComboOptions(PanelContext *context);

/// Sets the selection of every `pops` row from the PPD's marked choice, else its default. 0 when the option or its
/// default is missing; 1 for a choice that is not in the list. Always 0.
int getPPDComboSelections(PanelContext *context);

} // namespace tessarin

#endif
