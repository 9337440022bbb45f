// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A bound for PPD files. libcups unfolds compressed ones and keeps some 70 bytes for each byte of a dense file, so
// that a few hundred kilobytes could take all of a machine's memory.

#ifndef TESSARIN_CUPS_PPD_LIMIT_H
#define TESSARIN_CUPS_PPD_LIMIT_H

#include <array>
#include <cstddef>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

namespace tessarin {

/// Largest PPD that is opened, in bytes when unfolded. The largest block of extra data takes two thirds of it.
inline constexpr std::size_t kLargestPPD = 24UL * 1024 * 1024;

/// Whether the open file `descriptor`, compressed or not, may unfold to more than kLargestPPD bytes: it does, it is
/// damaged where libcups might read on, or it cannot be told. Reads it to that point and goes back to its start. A
/// file that breaks off is as large as what is there.
inline bool exceedsLargestPPD(int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0 || status.st_size > static_cast<off_t>(kLargestPPD)) {
        return true;
    }
    const int copy = fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    if (copy < 0) {
        return true;
    }
    gzFile file = gzdopen(copy, "rb"); // closes the copy
    if (file == nullptr) {
        close(copy);
        return true;
    }
    std::array<char, 16384> piece{};
    std::size_t total = 0;
    int count = 0;
    while (total <= kLargestPPD && (count = gzread(file, piece.data(), piece.size())) > 0) {
        total += static_cast<std::size_t>(count);
    }
    int error = Z_OK;
    gzerror(file, &error);
    gzclose(file);
    lseek(descriptor, 0, SEEK_SET); // the copy shares its place
    return total > kLargestPPD || (count < 0 && error != Z_BUF_ERROR);
}

} // namespace tessarin

#endif
