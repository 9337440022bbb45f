// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing of JSON whose fields keep their order.

#ifndef TESSARIN_TOOLS_ORDERED_JSON_H
#define TESSARIN_TOOLS_ORDERED_JSON_H

#include "pde/panel_diagnostics.h"

#include <string>
#include <string_view>

namespace tessarin::tools {

/// The compact JSON text of a value, in UTF-8.
std::string toJson(const pde::DiagnosticValue &value);

/// A text as a JSON string; bytes that are not UTF-8 become U+FFFD.
std::string toJsonString(std::string_view utf8);

/// A JSON text without the white space between its tokens, otherwise as it stands.
std::string compactJson(std::string_view json);

} // namespace tessarin::tools

#endif
