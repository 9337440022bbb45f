// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink counters: how much ink each channel used in the last job and in all jobs.
//
// A text whose lines may carry a record "LastInk_<code>=<number>" or "TotalInk_<code>=<number>" anywhere in them.
// It comes from the printer's counter file or, where that is missing, from the extra data inside the printer's PPD.

#ifndef TESSARIN_INK_COUNTER_READER_H
#define TESSARIN_INK_COUNTER_READER_H

#include "ink/counter_text.h"
#include "plugin/panel_context.h"

namespace tessarin {

/// Reads the counters into the context's settings: from the file at `path`, else from the PPD's extra data. Without
/// either all channels are hidden.
void ParseInkData(const char *path, PanelContext *context);

} // namespace tessarin

#endif
