// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ink/channel_table.h"

namespace tessarin {

// clang-format off

// "O" stands twice: a record for it always goes to the first, Optimizer. Two channels are called "Photo Black".
const std::array<InkChannel, kInkChannelCount + 1> inklevels{{
    {.code = "K",     .name = "Black",       .red = 0,   .green = 0,   .blue = 0},
    {.code = "KP",    .name = "Photo Black", .red = 0,   .green = 0,   .blue = 0},
    {.code = "K3",    .name = "Grey",        .red = 100, .green = 100, .blue = 100},
    {.code = "K4",    .name = "bright Grey", .red = 150, .green = 150, .blue = 150},
    {.code = "Y",     .name = "Yellow",      .red = 255, .green = 255, .blue = 0},
    {.code = "M",     .name = "Magenta",     .red = 255, .green = 0,   .blue = 255},
    {.code = "C",     .name = "Cyan",        .red = 0,   .green = 255, .blue = 255},
    {.code = "M2",    .name = "bright Mag.", .red = 255, .green = 150, .blue = 255},
    {.code = "C2",    .name = "bright Cyan", .red = 160, .green = 255, .blue = 255},
    {.code = "Y2",    .name = "br. Yellow",  .red = 255, .green = 255, .blue = 100},
    {.code = "R",     .name = "Red",         .red = 255, .green = 0,   .blue = 0},
    {.code = "G",     .name = "Green",       .red = 0,   .green = 255, .blue = 0},
    {.code = "B",     .name = "Blue",        .red = 0,   .green = 0,   .blue = 255},
    {.code = "O",     .name = "Optimizer",   .red = 150, .green = 150, .blue = 150},
    {.code = "OR",    .name = "Orange",      .red = 255, .green = 128, .blue = 0},
    {.code = "O",     .name = "Violet",      .red = 255, .green = 0,   .blue = 128},
    {.code = "KR",    .name = "PG Black",    .red = 0,   .green = 0,   .blue = 0},
    {.code = "KM",    .name = "Matte Black", .red = 0,   .green = 0,   .blue = 0},
    {.code = "KG",    .name = "Photo Black", .red = 0,   .green = 0,   .blue = 0},
    {.code = "K2",    .name = "dark Grey",   .red = 50,  .green = 50,  .blue = 50},
    {.code = nullptr, .name = " ",           .red = 0,   .green = 0,   .blue = 0},
}};

const std::array<int, kInkChannelCount + 1> colorOrder{0, 1, 16, 17, 18, 2, 3, 19, 4, 9, 5, 7, 6, 8, 10, 11, 12, 13, 14, 15, 20};

// clang-format on

int findInkChannel(std::string_view code)
{
    for (std::size_t channel = 0; inklevels[channel].code != nullptr; ++channel) {
        if (code == inklevels[channel].code) {
            return static_cast<int>(channel);
        }
    }
    return -1;
}

} // namespace tessarin
