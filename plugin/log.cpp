// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/log.h"

#include "platform/log_sink.h"

namespace tessarin {

namespace {

constexpr std::size_t kPrintlogBuffer = 128; // characters, terminator included

/// Adds a plain function's format as rewriteVerboseFormat() has it.
void appendRewritten(std::string &line, std::string_view format)
{
    const std::string_view used = format.substr(0, kLongestVerboseFormat);
    char before = '\0';
    for (const char letter : used) {
        line += before != '%' ? letter : letter == 's' ? '@' : letter == 'S' ? 's' : letter;
        before = letter;
    }
}

} // namespace

std::string rewriteVerboseFormat(std::string_view format)
{
    std::string rewritten;
    appendRewritten(rewritten, format);
    return rewritten;
}

void logMethodLine(std::string_view tag, const ObjectText &object, std::string_view format,
                   std::span<const FormatArgument> arguments)
{
    std::string joined(tag);
    joined += ' ';
    if (object.description) {
        joined += "self(" + *object.description + ") ";
    }
    joined += format;
    writeLogLine(formatText(joined, arguments));
}

void logVerboseLine(std::string_view format, std::span<const FormatArgument> arguments)
{
    std::string joined;
    joined.reserve(4 + format.size());
    joined += "LOG ";
    appendRewritten(joined, format);
    writeLogLine(formatText(joined, arguments));
}

void Printlog(const char *text)
{
    _VERBOSE(text);
}

std::string printlogText(std::string_view format, std::span<const FormatArgument> arguments)
{
    return formatText(format, arguments).substr(0, kPrintlogBuffer - 1);
}

} // namespace tessarin
