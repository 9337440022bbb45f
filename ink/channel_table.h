// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink channels: codes of the counter text, display names, bar colours and display order.

#ifndef TESSARIN_INK_CHANNEL_TABLE_H
#define TESSARIN_INK_CHANNEL_TABLE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tessarin {

inline constexpr std::size_t kInkChannelCount = 20;
inline constexpr int kEndChannel = 20; ///< the end row, which an empty display row carries

struct InkChannel {
    const char *code; ///< as in the counter text; null ends the table
    const char *name; ///< shown after localisation
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
};

/// By channel index.
extern const std::array<InkChannel, kInkChannelCount + 1> inklevels;

/// Channel indices in the order in which the rows show them, then the end row.
extern const std::array<int, kInkChannelCount + 1> colorOrder;

// Channels of the black rule: where one of the special blacks is reported, plain black is not shown.
inline constexpr std::size_t kPlainBlack = 0;
inline constexpr std::array<std::size_t, 4> kSpecialBlacks{1, 16, 17, 18};

/// The first channel with exactly this code; -1 when there is none.
int findInkChannel(std::string_view code);

} // namespace tessarin

#endif
