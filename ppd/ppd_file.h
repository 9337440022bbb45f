// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A PPD file opened through libcups for the length of a scope.

#ifndef TESSARIN_PPD_PPD_FILE_H
#define TESSARIN_PPD_PPD_FILE_H

#include "cups/ppd_library.h"

#include <memory>

namespace tessarin {

struct PPDCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PPDHandle = std::unique_ptr<ppd_file_t, PPDCloser>;

/// Opens and parses the PPD at `path`; null when it cannot be read, is no PPD, is larger
/// than kLargestPPD, or is a pipe or device.
PPDHandle openPPD(const char *path);

} // namespace tessarin

#endif
