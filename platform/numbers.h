// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading numbers from texts that come from outside.

#ifndef TESSARIN_PLATFORM_NUMBERS_H
#define TESSARIN_PLATFORM_NUMBERS_H

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

namespace tessarin {

/// Reads a decimal integer as the conversion "%d" does: leading white space, an optional sign, digits; what follows
/// is ignored. A number beyond 32 bits gives the nearest end of the range. Nothing when there is no digit.
std::optional<std::int32_t> readInteger(std::string_view text);

/// `value` limited to the range of a 32-bit integer.
constexpr std::int32_t clampToInt32(std::int64_t value)
{
    constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t greatest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(value < least ? least : value > greatest ? greatest : value);
}

/// `value` limited to the range of a 16-bit integer.
constexpr std::int16_t clampToInt16(std::int64_t value)
{
    constexpr std::int64_t least = std::numeric_limits<std::int16_t>::min();
    constexpr std::int64_t greatest = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(value < least ? least : value > greatest ? greatest : value);
}

} // namespace tessarin

#endif
