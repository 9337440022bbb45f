// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the plug-in's diagnostic log goes.

#ifndef TESSARIN_HOST_LOG_OUTPUT_H
#define TESSARIN_HOST_LOG_OUTPUT_H

#include "printing/outcome.h"

#include "pde/print_dialog_extension.h"

#include <QString>

#include <optional>

namespace tessarin::host {

/// The log sink for a destination: "stderr", "none", "syslog" or empty (no sink: the plug-in's default, the system
/// log), else a file that lines are added to. The sink writes each line with one call, so that lines of several
/// threads or processes do not mix, and says on standard error, once, when the file takes no more. The reason of a
/// failure names the file.
Outcome<std::optional<pde::LogSink>> logSinkFor(const QString &destination);

} // namespace tessarin::host

#endif
