// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel's own scanner over the text of a PPD file, and the reading of current values from the parsed PPD.

#ifndef TESSARIN_PPD_KEYWORD_SCANNER_H
#define TESSARIN_PPD_KEYWORD_SCANNER_H

#include "plugin/panel_context.h"

#include <cstddef>

namespace tessarin {

/// Size of the buffer for one line, terminator included. A longer line is scanned in pieces, each as a line.
inline constexpr std::size_t kScanLineSize = 256;

/// Fills the context's option table for the PPD at `path`: choice lists from the parsed PPD (on an old host from
/// the file's own blocks), constraints from the file's lines. A file that cannot be opened leaves no constraints.
void ParsePPDFile(const char *path, PanelContext *context);

/// Reads the current selections, slider positions and check-box states from the parsed PPD. Always 0.
int getPPDOptionSelections(PanelContext *context);

} // namespace tessarin

#endif
