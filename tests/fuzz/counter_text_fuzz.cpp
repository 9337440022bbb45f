// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The ink counters on text of any content: line by line from memory, and as the panel reads a file.

#include "ink/counter_reader.h"
#include "ink/counter_text.h"
#include "plugin/context_lifecycle.h"
#include "plugin/panel_context.h"
#include "tests/fuzz/fuzz_support.h"

#include <array>
#include <cstring>

using namespace tessarin;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const char *cursor = reinterpret_cast<const char *>(data);
    std::size_t remaining = size;
    std::array<char, kInkLineSize> line{};
    while (myGets(line.data(), kInkLineSize, nullptr, &cursor, &remaining) != nullptr) {
        test::require(std::memchr(line.data(), 0, line.size()) != nullptr, "a line ends within its buffer");
        if (const auto record = parseInkRecord(line.data())) {
            test::require(record->channel < kSlotCount, "a channel has its place");
        }
    }

    static test::MemoryFile file;
    file.write(test::textOf(data, size));
    PanelContext *context = MyCreateCustomContext();
    ParseInkData(file.path().c_str(), context);
    test::require(context->settings.inkChannelCount >= 0 &&
                      context->settings.inkChannelCount <= static_cast<int>(kSlotCount),
                  "no more channels are shown than there are");
    MyReleaseCustomContext(context);
    return 0;
}
