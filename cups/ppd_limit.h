// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A bound for PPD files. libcups unfolds compressed ones and keeps some 70 bytes for each byte of a dense file, so
// that a few hundred kilobytes could take all of a machine's memory.

#ifndef TESSARIN_CUPS_PPD_LIMIT_H
#define TESSARIN_CUPS_PPD_LIMIT_H

#include <cstddef>
#include <vector>

#include <unistd.h>
#include <zlib.h>

namespace tessarin {

/// Largest PPD that is opened, in bytes when unfolded. The largest block of extra data takes two thirds of it.
inline constexpr std::size_t kLargestPPD = 24UL * 1024 * 1024;

/// Whether the open file `descriptor`, compressed or not, unfolds to more than kLargestPPD bytes. Reads it to that
/// point and goes back to its start. What breaks off before it is no larger; false without memory to tell.
inline bool exceedsLargestPPD(int descriptor)
{
    const int copy = dup(descriptor);
    gzFile file = copy < 0 ? nullptr : gzdopen(copy, "rb");
    if (file == nullptr) {
        if (copy >= 0) {
            close(copy);
        }
        return false;
    }
    constexpr unsigned kPiece = 64 * 1024;
    std::vector<char> piece(kPiece);
    std::size_t total = 0;
    int count = 0;
    while (total <= kLargestPPD && (count = gzread(file, piece.data(), kPiece)) > 0) {
        total += static_cast<std::size_t>(count);
    }
    gzclose(file);
    lseek(descriptor, 0, SEEK_SET); // the copy shares its place
    return total > kLargestPPD;
}

} // namespace tessarin

#endif
