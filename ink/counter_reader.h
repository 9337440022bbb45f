// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink counters: how much ink each channel used in the last job and in all jobs.
//
// A text whose lines may carry a record "LastInk_<code>=<number>" or "TotalInk_<code>=<number>" anywhere in them.
// It comes from the printer's counter file or, where that is missing, from the extra data inside the printer's PPD.

#ifndef TESSARIN_INK_COUNTER_READER_H
#define TESSARIN_INK_COUNTER_READER_H

#include "plugin/panel_context.h"

#include <cstddef>
#include <cstdio>

namespace tessarin {

/// Size of the buffer for one line, terminator included. A longer line is seen in pieces, each scanned on its own.
inline constexpr int kInkLineSize = 256;

/// Reads one line of up to `size` - 1 bytes into `buffer`, from `stream` or, when that is null, from memory:
/// `cursor` points to the next byte and `remaining` counts the bytes left; both are advanced. A line from a stream
/// keeps its line end (LF, CR LF or CR); a line from memory does not, and the line ends behind it are skipped.
/// Answers `buffer`, or null at the end.
char *myGets(char *buffer, int size, std::FILE *stream, const char **cursor, std::size_t *remaining);

/// Reads the counters into the context's settings: from the file at `path`, else from the PPD's extra data. Without
/// either all channels are hidden.
void ParseInkData(const char *path, PanelContext *context);

} // namespace tessarin

#endif
