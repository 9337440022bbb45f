// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Making, clearing and freeing of a panel's context record.

#ifndef TESSARIN_PLUGIN_CONTEXT_LIFECYCLE_H
#define TESSARIN_PLUGIN_CONTEXT_LIFECYCLE_H

#include "plugin/panel_context.h"

namespace tessarin {

/// A new zero-filled record with an empty option table; null when out of memory. Makes new format strings for all
/// rows of the slider table, which all panels share. The record is kept reachable until it is released; in the life
/// of a panel nothing releases it.
PanelContext *MyCreateCustomContext();

/// Releases the shared format strings of the first 20 slider rows, without clearing them, and frees the record with
/// its option table. The scan buffer is left behind.
void MyReleaseCustomContext(PanelContext *context);

/// Frees the scan buffer and empties the menus of the pop-ups 0 to 10. Record and option table stay; the choice
/// lists are emptied, since their strings are gone.
void myCleanup(PanelContext *context);

} // namespace tessarin

#endif
