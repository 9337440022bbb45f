// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/log_sink.h"

#include <algorithm>
#include <climits>
#include <utility>

#include <syslog.h>

namespace tessarin {

namespace {

LogSink &currentSink()
{
    static LogSink sink;
    return sink;
}

} // namespace

void setLogSink(LogSink sink)
{
    currentSink() = std::move(sink);
}

void writeLogLine(std::string_view line)
{
    if (const LogSink &sink = currentSink()) {
        sink(line);
        return;
    }
    const auto length = static_cast<int>(std::min<std::size_t>(line.size(), INT_MAX));
    syslog(LOG_USER | LOG_DEBUG, "%.*s", length, line.data());
}

} // namespace tessarin
