// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink counters of a text, channel by channel.

#ifndef TESSARIN_TOOLS_INKDATA_TABLE_H
#define TESSARIN_TOOLS_INKDATA_TABLE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::tools {

/// One channel that the text names.
struct InkTableRow {
    std::string code;
    std::string name;                  ///< English
    std::optional<std::int32_t> last;  ///< last job's counter, unscaled; nothing: the text does not give it
    std::optional<std::int32_t> total; ///< total counter, unscaled
};

/// The channels of a counter text, in the order of the channel table. A later record replaces an earlier one.
std::vector<InkTableRow> readInkTable(std::string_view text);

/// The table for a person, with a heading; "-" where a counter is not given.
std::string inkTableText(const std::vector<InkTableRow> &rows);

/// The table as a JSON array of objects with the fields code, name, last and total (null where not given).
std::string inkTableJson(const std::vector<InkTableRow> &rows);

} // namespace tessarin::tools

#endif
