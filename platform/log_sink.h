// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the diagnostic log goes.

#ifndef TESSARIN_PLATFORM_LOG_SINK_H
#define TESSARIN_PLATFORM_LOG_SINK_H

#include <functional>
#include <string_view>

namespace tessarin {

/// Receives one log line, line ends included.
using LogSink = std::function<void(std::string_view line)>;

/// Sends all further lines to `sink`; an empty one restores the default, the system log at debug priority. To be
/// set while nothing is logged.
void setLogSink(LogSink sink);

/// Hands one finished line to the sink, in one call.
void writeLogLine(std::string_view line);

} // namespace tessarin

#endif
