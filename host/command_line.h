// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The arguments of the program and its exit codes.

#ifndef TESSARIN_HOST_COMMAND_LINE_H
#define TESSARIN_HOST_COMMAND_LINE_H

#include "printing/outcome.h"
#include "settings/job_settings.h"

#include <QString>
#include <QStringList>

namespace tessarin::host {

/// How the program ends.
enum class ExitCode : int {
    Printed = 0,   ///< printed, or what was asked for in place of printing is done
    Cancelled = 1, ///< the user closed the dialog without printing
    Usage = 2,     ///< arguments or settings that make no sense, or a file they name that cannot be written
    Printer = 3,   ///< an unreadable PPD, an unknown queue, an unreachable print server
    Document = 4,  ///< a document that cannot be read
    PlugIn = 5,    ///< the panel's plug-in cannot be loaded
};

/// How the summary is printed in place of a window.
enum class SummaryForm { None, Text, Json };

/// What the user asked for. An empty text is an option that was not given.
struct CommandLine {
    QString ppdFile{};
    QString queue{};     ///< "queue" or "queue/instance"; never together with ppdFile or sample
    bool sample = false; ///< the sample printer
    KeyValues options{}; ///< of -o, -n and -P, in this order
    QString preset{};
    bool noDialog = false;     ///< print without a window
    bool listPresets = false;  ///< list the printer's presets in place of a window
    bool separateJobs = false; ///< one job for each document
    QString ticketFile{};      ///< "-": standard output
    QString log{};             ///< as for logSinkFor()
    QString bundle{};
    QString language{};
    QString picturesDirectory{}; ///< not empty: make pictures in place of a window
    SummaryForm summary = SummaryForm::None;
    QStringList documents{}; ///< "-": standard input
};

/// Reads the arguments, the program's own name first. The reason of a failure is a message without program name.
Outcome<CommandLine> parseCommandLine(const QStringList &arguments);

/// True when the arguments ask for the help text, or the version, whatever else they say.
bool asksForHelp(int argc, const char *const *argv);
bool asksForVersion(int argc, const char *const *argv);
/// True when the arguments ask for something that needs no window: a summary, a list, printing without dialog.
bool asksForNoWindow(int argc, const char *const *argv);
/// The help text with the exit codes. Needs an application object.
QString helpText();

} // namespace tessarin::host

#endif
