// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/ppd_file.h"

#include "cups/ppd_limit.h"
#include "platform/files.h"

#include <cstdio>

#include <fcntl.h>

namespace tessarin {

PPDHandle openPPD(const char *path)
{
    // ppdOpenFile() would wait for ever on a pipe.
    const FileHandle file = openForReading(path);
    if (file && exceedsLargestPPD(fileno(file.get()))) {
        return nullptr;
    }
    // libcups closes the descriptor that it reads, ppdOpen() even that of the file it is given.
    const int descriptor = file ? fcntl(fileno(file.get()), F_DUPFD_CLOEXEC, 0) : -1;
    return PPDHandle(descriptor >= 0 ? ppdOpenFd(descriptor) : nullptr);
}

} // namespace tessarin
