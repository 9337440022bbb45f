// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The summary: one line per setting, as label and value texts, for the host's summary page.

#ifndef TESSARIN_INK_SUMMARY_H
#define TESSARIN_INK_SUMMARY_H

#include "pde/print_dialog_extension.h"
#include "platform/string_object.h"
#include "plugin/panel_context.h"

#include <optional>

namespace tessarin {

/// Builds the summary of all settings as they were last stored. Nothing for a null context.
std::optional<pde::Summary> MyGetSummaryText(PanelContext *context);

/// Adds a line: the localised label with the value, localised when asked for.
void mySummaryEntry(pde::Summary &dictionary, const StringRef &label, const StringRef &value, bool localiseValue);

/// Adds the line of pop-up row `row`: the text of its selected choice, of its first one when nothing is selected.
/// No line when that choice does not exist.
void insertPopEntrySummary(int row, PanelContext *context, pde::Summary &dictionary);

/// Appends a label to the display order, if the summary has one.
void myEnterArrayList(pde::Summary &dictionary, const QString &label);

} // namespace tessarin

#endif
