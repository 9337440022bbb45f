// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Opening a printer's PPD.

#ifndef TESSARIN_PRINTING_PPD_FILE_H
#define TESSARIN_PRINTING_PPD_FILE_H

#include "printing/cups_options.h"
#include "printing/outcome.h"

#include "cups/ppd_library.h"

#include <QString>

#include <memory>
#include <vector>

namespace tessarin::host {

struct PpdCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PpdHandle = std::unique_ptr<ppd_file_t, PpdCloser>;

/// Opens and parses a PPD file and marks its default choices. Fails at once, never waiting, for what is not a
/// readable regular file with something in it; the reason names the file and, for a fault in the text, the line.
///
/// `numbers`: settings that will be marked. An option set by a slider lists only some of the values that the driver
/// takes; where one of these settings is a whole number that its option does not list, the number becomes a choice
/// of the open PPD, so that it can be marked and a panel starts from it.
Outcome<PpdHandle> openPpd(const QString &path, const CupsOptions &numbers = CupsOptions());

/// An option of a PPD with the group on the first level that it is in.
struct PpdOptionPlace {
    const ppd_group_t *group = nullptr; ///< owned by the PPD, as the option
    const ppd_option_t *option = nullptr;
};
/// All options in the PPD's order, those of groups within groups behind the outer group's own.
std::vector<PpdOptionPlace> optionsOf(const ppd_file_t &ppd);

/// True for the group of what is built into the printer, which is no matter of a job.
bool isInstalledGroup(const ppd_group_t &group);

/// A whole number as a driver reads it: an optional sign and ASCII digits, nothing else.
bool isWholeNumber(const QString &text);

/// The printer's name as the PPD gives it; empty when it gives none.
QString ppdNickname(const ppd_file_t &ppd);

} // namespace tessarin::host

#endif
