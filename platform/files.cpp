// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/files.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarin {

FileHandle openForReading(const char *path)
{
    const int descriptor = open(path, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return nullptr;
    }
    struct stat status = {};
    const bool known = fstat(descriptor, &status) == 0;
    if (!known || (!S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode))) {
        close(descriptor);
        errno = ENXIO;
        return nullptr;
    }
    std::FILE *file = fdopen(descriptor, "r");
    if (file == nullptr) {
        close(descriptor);
    }
    return FileHandle(file);
}

} // namespace tessarin
