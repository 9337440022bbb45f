// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Copies into the fixed text buffers of the records.

#ifndef TESSARIN_PLATFORM_BOUNDED_COPY_H
#define TESSARIN_PLATFORM_BOUNDED_COPY_H

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace tessarin {

/// Copies `text` into `buffer`, cut at the byte to the buffer's size less one, and terminates it. A buffer of size
/// 0 is left alone.
inline void copyBounded(std::span<char> buffer, std::string_view text)
{
    if (buffer.empty()) {
        return;
    }
    const std::size_t count = std::min(text.size(), buffer.size() - 1);
    std::copy_n(text.data(), count, buffer.data());
    buffer[count] = '\0';
}

} // namespace tessarin

#endif
