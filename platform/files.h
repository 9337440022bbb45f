// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Opening of files that come from outside.

#ifndef TESSARIN_PLATFORM_FILES_H
#define TESSARIN_PLATFORM_FILES_H

#include <cstdio>
#include <memory>

namespace tessarin {

struct FileCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a file for reading. Null on failure, with the reason in errno. A pipe, socket or device is refused
/// (ENXIO), since reading it could wait or go on for ever; a directory opens and holds no lines.
FileHandle openForReading(const char *path);

} // namespace tessarin

#endif
