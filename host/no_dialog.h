// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Printing from a script: the dialog's rules without its window.

#ifndef TESSARIN_HOST_NO_DIALOG_H
#define TESSARIN_HOST_NO_DIALOG_H

#include "host/command_line.h"
#include "host/dialog.h"

#include <QString>

namespace tessarin::host {

/// How a run without window ended.
struct RunResult {
    ExitCode code = ExitCode::Printed;
    QString reason{}; ///< of a failure
    QString output{}; ///< for standard output: the jobs that were made
};

/// Prints what the parts say, at once: the printer's panel has its say about the settings as in the dialog. Nothing
/// is printed when a setting is not possible or settings exclude each other. Ends when the print server has the
/// documents; the printing goes on there.
RunResult printWithoutDialog(const DialogParts &parts);

/// Opens the parts' printer with a preset's values and the command line's over them. The reason of a failure names
/// the setting that is not possible.
Outcome<std::shared_ptr<OpenPrinter>> openWithValues(const DialogParts &parts);

} // namespace tessarin::host

#endif
