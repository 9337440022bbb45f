// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The two boxes of ink rows: name, bar and number of each channel that the printer reported.

#ifndef TESSARIN_INK_LEVEL_DISPLAY_H
#define TESSARIN_INK_LEVEL_DISPLAY_H

#include "plugin/panel_context.h"

namespace tessarin {

/// Gives the bars directly inside `box` the tags firstTag, firstTag + 1, ... from the highest on the screen down.
/// At most 16 bars that still have their first tag are counted; fewer than two stay as they are.
void enumLevelBoxes(QWidget *box, int firstTag);

/// Lays out and fills both boxes from the counters in the settings; rows without a channel are hidden.
void SetInkValues(PanelContext *context);

/// Reads the counters again from the context's counter file and shows them.
void ReloadInkCounters(PanelContext *context);

} // namespace tessarin

#endif
