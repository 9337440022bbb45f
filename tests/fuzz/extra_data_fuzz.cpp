// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Extra data on attributes of any content: values as they stand, or any stream in well-made chunks.

#include "ink/extra_data.h"
#include "ppd/ppd_file.h"
#include "tests/fuzz/fuzz_support.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

using namespace tessarin;

namespace {

constexpr std::size_t kChunk = 158;
constexpr qsizetype kEncodedChunk = 211;

void addAttribute(std::string &ppd, std::size_t number, std::string_view value)
{
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "*EXData%04zx: \"", number);
    ppd += name.data();
    ppd += value;
    ppd += "\"\n";
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    std::string text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n";
    test::InputReader input({data, size});
    std::size_t number = 0;
    if ((input.byte() & 1U) != 0) {
        const std::string_view stream = input.rest();
        for (std::size_t at = 0; at < stream.size(); at += kChunk) {
            const std::string_view chunk = stream.substr(at, kChunk);
            const QByteArray encoded =
                QByteArray(chunk.data(), static_cast<qsizetype>(chunk.size())).toBase64().left(kEncodedChunk);
            addAttribute(text, number++, {encoded.data(), static_cast<std::size_t>(encoded.size())});
        }
        addAttribute(text, number, {});
    } else {
        while (!input.atEnd()) {
            std::string value = input.text();
            std::replace(value.begin(), value.end(), '"', '\'');
            addAttribute(text, number++, value);
        }
    }
    static test::MemoryFile file;
    file.write(text);
    const PPDHandle ppd = openPPD(file.path().c_str());
    std::size_t length = 0;
    const ExtraData block(ppdxReadData(ppd.get(), kInkExtraDataName, &length));
    test::require(block != nullptr || length == 0, "without a block there is no length");
    test::require(block == nullptr || block.get()[length] == '\0', "a block ends in a zero");
    return 0;
}
