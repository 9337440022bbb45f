// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/log.h"

#include "platform/log_sink.h"

namespace tessarin {

namespace {

constexpr std::size_t kPrintlogBuffer = 128; // characters, terminator included

void changeConversions(std::string &format, char from, char to)
{
    for (std::size_t at = 0; at + 1 < format.size(); ++at) {
        if (format[at] == '%' && format[at + 1] == from) {
            format[at + 1] = to;
        }
    }
}

} // namespace

std::string rewriteVerboseFormat(std::string_view format)
{
    std::string rewritten(format.substr(0, kLongestVerboseFormat));
    changeConversions(rewritten, 's', '@');
    changeConversions(rewritten, 'S', 's'); // after the objects, so that a "%S" never becomes one
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
    logMethodLine("LOG", {}, rewriteVerboseFormat(format), arguments);
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
