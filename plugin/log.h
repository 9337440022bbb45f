// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The diagnostic log. Every call writes one line: a tag ("BEGIN", "END", "LOG"), a blank, then the message.
//
// Two kinds of formats meet here. The plain functions' messages (_VERBOSE) write "%S" for a zero-terminated string
// and a bare "%s" for an object; the methods' messages (_PDEProlog, _PDEEpilog, _PDELog) write "%@" for an object.
// A line is built in locals and handed over in one call, so any thread may log.

#ifndef TESSARIN_PLUGIN_LOG_H
#define TESSARIN_PLUGIN_LOG_H

#include "platform/formatter.h"

#include <array>
#include <span>

namespace tessarin {

/// Longest part of a _VERBOSE format that is used, in characters.
inline constexpr std::size_t kLongestVerboseFormat = 255;

/// Rewrites a plain function's format into the formatter's: cut to kLongestVerboseFormat characters, every "%s"
/// becomes "%@", then every "%S" becomes "%s". Conversions with a precision ("%.200s") stay as they are.
std::string rewriteVerboseFormat(std::string_view format);

/// Writes "<tag> self(<object>) <message>", or "<tag> <message>" for a null object.
void logMethodLine(std::string_view tag, const ObjectText &object, std::string_view format,
                   std::span<const FormatArgument> arguments);
/// Writes "LOG <message>" with a plain function's format.
void logVerboseLine(std::string_view format, std::span<const FormatArgument> arguments);

template <typename... Arguments>
void _PDEProlog(const ObjectText &object, std::string_view format, const Arguments &...arguments)
{
    logMethodLine("BEGIN", object, format, std::array<FormatArgument, sizeof...(arguments)>{arguments...});
}

template <typename... Arguments>
void _PDEEpilog(const ObjectText &object, std::string_view format, const Arguments &...arguments)
{
    logMethodLine("END", object, format, std::array<FormatArgument, sizeof...(arguments)>{arguments...});
}

template <typename... Arguments>
void _PDELog(const ObjectText &object, std::string_view format, const Arguments &...arguments)
{
    logMethodLine("LOG", object, format, std::array<FormatArgument, sizeof...(arguments)>{arguments...});
}

template <typename... Arguments>
void _VERBOSE(std::string_view format, const Arguments &...arguments)
{
    logVerboseLine(format, std::array<FormatArgument, sizeof...(arguments)>{arguments...});
}

/// Logs a finished text, which is itself used as the format: a "%" in it meets no argument.
void Printlog(const char *text);

/// Formats with the plain C conversions into a text buffer of 128 characters, cut to fit, for Printlog().
std::string printlogText(std::string_view format, std::span<const FormatArgument> arguments);

/// Printlog() of a text made with the plain C conversions.
template <typename... Arguments>
void printlogFormatted(std::string_view format, const Arguments &...arguments)
{
    Printlog(printlogText(format, std::array<FormatArgument, sizeof...(arguments)>{arguments...}).c_str());
}

} // namespace tessarin

#endif
