// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/ppd_file.h"

#include "platform/files.h"

namespace tessarin {

PPDHandle openPPD(const char *path)
{
    // ppdOpenFile() would wait for ever on a pipe.
    const FileHandle file = openForReading(path);
    return PPDHandle(file ? ppdOpen(file.get()) : nullptr);
}

} // namespace tessarin
