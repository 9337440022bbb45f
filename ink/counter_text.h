// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink counter text: lines that may carry a record "LastInk_<code>=<number>" or "TotalInk_<code>=<number>"
// anywhere in them. It stands in a printer's counter file or in the extra data inside its PPD.

#ifndef TESSARIN_INK_COUNTER_TEXT_H
#define TESSARIN_INK_COUNTER_TEXT_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string_view>

namespace tessarin {

/// Size of the buffer for one line, terminator included. A longer line is seen in pieces, each scanned on its own.
inline constexpr int kInkLineSize = 256;

/// Reads one line of up to `size` - 1 bytes into `buffer`, from `stream` or, when that is null, from memory:
/// `cursor` points to the next byte and `remaining` counts the bytes left; both are advanced. A line from a stream
/// keeps its line end (LF, CR LF or CR); a line from memory does not, and the line ends behind it are skipped.
/// Answers `buffer`, or null at the end.
char *myGets(char *buffer, int size, std::FILE *stream, const char **cursor, std::size_t *remaining);

/// One record of the counter text.
struct InkRecord {
    bool total;          ///< the total of all jobs, else the last job's amount
    std::size_t channel; ///< channel index
    std::int32_t value;  ///< as it stands in the text, unscaled
};

/// The record of a line; nothing when it holds none: no keyword, an unknown code, no "=" or no number. Of a line
/// with both keywords only the total is read.
std::optional<InkRecord> parseInkRecord(std::string_view line);

} // namespace tessarin

#endif
