// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Opening a printer's PPD.

#ifndef TESSARIN_HOST_PPD_FILE_H
#define TESSARIN_HOST_PPD_FILE_H

#include "host/cups_options.h"
#include "host/outcome.h"

#include "cups/ppd_library.h"

#include <QString>

#include <memory>

namespace tessarin::host {

struct PpdCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PpdHandle = std::unique_ptr<ppd_file_t, PpdCloser>;

/// Opens and parses a PPD file and marks its default choices. Fails at once, never waiting, for what is not a
/// readable regular file with something in it; the reason names the file and, for a fault in the text, the line.
Outcome<PpdHandle> openPpd(const QString &path);

/// The printer's name as the PPD gives it; empty when it gives none.
QString ppdNickname(const ppd_file_t &ppd);

} // namespace tessarin::host

#endif
