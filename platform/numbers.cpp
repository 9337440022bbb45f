// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/numbers.h"

namespace tessarin {

std::optional<std::int32_t> readInteger(std::string_view text)
{
    std::size_t at = 0;
    const auto isSpace = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    while (at < text.size() && isSpace(text[at])) {
        ++at;
    }
    bool negative = false;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
        negative = text[at] == '-';
        ++at;
    }
    constexpr std::int64_t beyond = std::int64_t{1} << 40; // past both ends; keeps the sum from overflowing
    std::int64_t value = 0;
    const std::size_t first = at;
    for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
        if (value < beyond) {
            value = value * 10 + (text[at] - '0');
        }
    }
    if (at == first) {
        return std::nullopt;
    }
    return clampToInt32(negative ? -value : value);
}

} // namespace tessarin
