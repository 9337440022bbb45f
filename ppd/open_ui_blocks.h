// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The scanner's reading of "*OpenUI" blocks, for hosts that have no parsed PPD.

#ifndef TESSARIN_PPD_OPEN_UI_BLOCKS_H
#define TESSARIN_PPD_OPEN_UI_BLOCKS_H

#include "plugin/panel_context.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace tessarin {

/// Reads the blocks of the panel's options: choice lists with their default into the option table, the integer
/// defaults of sliders and check boxes into their tables.
class OpenUIBlockReader {
public:
    /// Makes the block of strings and gives it to the context.
    explicit OpenUIBlockReader(PanelContext &context);

    /// False when the block of strings could not be made.
    bool isReady() const { return next_ != nullptr; }

    /// Takes a line that opens a block, and with it the block's lines from `file` if the option is the panel's.
    /// False when the line opens no block.
    bool takeBlock(const char *line, std::FILE *file);

private:
    void readIntegerBlock(std::FILE *file, const char *keyword, std::int32_t &target);
    void readPopUpBlock(std::FILE *file, int row);
    bool addPair(int row, std::string_view key, std::string_view text);
    const char *store(std::string_view text);

    PanelContext &context_;
    char *next_ = nullptr;      ///< where the next string goes
    std::size_t remaining_ = 0; ///< bytes left in the block
};

} // namespace tessarin

#endif
