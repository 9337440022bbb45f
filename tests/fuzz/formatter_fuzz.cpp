// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The formatter on formats and arguments of any content.

#include "platform/formatter.h"
#include "tests/fuzz/fuzz_support.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <deque>
#include <vector>

using namespace tessarin;

namespace {

FormatArgument takeArgument(test::InputReader &input, std::deque<std::string> &texts)
{
    switch (input.byte() % 7) {
    case 0:
        return {static_cast<long long>(input.number())};
    case 1:
        return {std::bit_cast<double>(input.number())};
    case 2:
        texts.push_back(input.text());
        return {texts.back()};
    case 3:
        return {static_cast<const char *>(nullptr)};
    case 4:
        return {ObjectText{input.byte() % 2 == 0 ? std::nullopt : std::optional(input.text())}};
    case 5:
        return {reinterpret_cast<const void *>(static_cast<std::uintptr_t>(input.number()))};
    default:
        return {HandleNumber{static_cast<qintptr>(input.number())}};
    }
}

/// What the C library makes of a number is what the formatter makes of it.
void compareWithTheLibrary(test::InputReader &input)
{
    const auto whole = static_cast<int>(input.number());
    const double real = std::bit_cast<double>(input.number());
    std::array<char, 2000> expected{};
    std::snprintf(expected.data(), expected.size(), "%d|%5d|%-7d|%05d|%x", whole, whole, whole, whole,
                  static_cast<unsigned>(whole));
    const std::array<FormatArgument, 5> integers{whole, whole, whole, whole, static_cast<unsigned>(whole)};
    test::require(formatText("%d|%5d|%-7d|%05d|%x", integers) == expected.data(), "integers are as in printf");
    if (std::isfinite(real)) {
        std::snprintf(expected.data(), expected.size(), "%f|%.1f|%g|%8.2e", real, real, real, real);
        const std::array<FormatArgument, 4> reals{real, real, real, real};
        test::require(formatText("%f|%.1f|%g|%8.2e", reals) == expected.data(),
                      "floating numbers are as in printf");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    test::InputReader input({data, size});
    compareWithTheLibrary(input);
    setStableAddresses((input.byte() & 1U) != 0);
    test::require(!describeObject("Nothing", nullptr).description, "nothing has no description");
    const std::string format = input.text();
    std::deque<std::string> texts; // whose places stay
    std::vector<FormatArgument> arguments;
    while (!input.atEnd() && arguments.size() < 32) {
        arguments.push_back(takeArgument(input, texts));
    }
    const std::string first = formatText(format, arguments);
    test::require(first == formatText(format, arguments), "the same arguments give the same text");
    if (format.find('%') == std::string::npos) {
        test::require(first == format, "a format without conversions stands as it is");
    }
    return 0;
}
