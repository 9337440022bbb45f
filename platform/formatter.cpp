// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/formatter.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace tessarin {

namespace {

std::atomic<bool> stableAddresses = false;

constexpr int kLargestWidth = 4096; // a width or precision from outside must not ask for gigabytes

std::string addressText(const void *pointer)
{
    if (pointer == nullptr) {
        return "0x0";
    }
    if (stableAddresses) {
        return "0xP";
    }
    std::array<char, 2 + 2 * sizeof(void *) + 1> text{};
    const int length = std::snprintf(text.data(), text.size(), "0x%jx",
                                     static_cast<std::uintmax_t>(reinterpret_cast<std::uintptr_t>(pointer)));
    return {text.data(), static_cast<std::size_t>(length)};
}

/// A conversion as parsed from a format.
struct Conversion {
    std::string_view text; ///< the whole of it, from "%" on
    bool left = false;
    bool plus = false;
    bool blank = false;
    bool zero = false;
    int width = 0;
    int precision = -1; ///< -1: none given
    char letter = '\0'; ///< '\0': incomplete
};

int readCount(std::string_view format, std::size_t &at)
{
    int value = 0;
    for (; at < format.size() && format[at] >= '0' && format[at] <= '9'; ++at) {
        value = std::min(value * 10 + (format[at] - '0'), kLargestWidth);
    }
    return value;
}

Conversion parseConversion(std::string_view format, std::size_t start)
{
    Conversion result;
    std::size_t at = start + 1;
    for (; at < format.size(); ++at) {
        if (format[at] == '-') {
            result.left = true;
        } else if (format[at] == '+') {
            result.plus = true;
        } else if (format[at] == ' ') {
            result.blank = true;
        } else if (format[at] == '0') {
            result.zero = true;
        } else {
            break;
        }
    }
    result.width = readCount(format, at);
    if (at < format.size() && format[at] == '.') {
        ++at;
        result.precision = readCount(format, at);
    }
    while (at < format.size() && std::strchr("hlqjzt", format[at]) != nullptr) {
        ++at;
    }
    if (at < format.size()) {
        result.letter = format[at];
        ++at;
    }
    result.text = format.substr(start, at - start);
    return result;
}

/// Adds `body` in a field of the conversion's width; zeros go between the sign and the digits.
void appendPadded(std::string &line, const Conversion &conversion, std::string_view sign, std::string_view body,
                  bool zeros)
{
    const std::size_t length = sign.size() + body.size();
    const auto width = static_cast<std::size_t>(conversion.width);
    const std::size_t fill = width > length ? width - length : 0;
    if (fill > 0 && !conversion.left && !zeros) {
        line.append(fill, ' ');
    }
    line.append(sign);
    if (fill > 0 && !conversion.left && zeros) {
        line.append(fill, '0');
    }
    line.append(body);
    if (fill > 0 && conversion.left) {
        line.append(fill, ' ');
    }
}

std::string_view signText(const Conversion &conversion, bool negative)
{
    return negative ? "-" : conversion.plus ? "+" : conversion.blank ? " " : "";
}

void appendInteger(std::string &line, const Conversion &conversion, long long value)
{
    const bool isSigned = conversion.letter == 'd' || conversion.letter == 'i';
    const bool negative = isSigned && value < 0;
    const auto bits = static_cast<unsigned long long>(value);
    const unsigned long long magnitude = negative ? 0ULL - bits : bits;
    const int base = conversion.letter == 'x' || conversion.letter == 'X' ? 16 : conversion.letter == 'o' ? 8 : 10;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), magnitude, base).ptr;
    if (conversion.letter == 'X') {
        std::transform(digits.data(), end, digits.data(),
                       [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    }
    const std::string_view sign = isSigned ? signText(conversion, negative) : std::string_view();
    const auto count = static_cast<std::size_t>(end - digits.data());
    if (conversion.precision >= 0 && count < static_cast<std::size_t>(conversion.precision)) {
        std::string body(static_cast<std::size_t>(conversion.precision) - count, '0');
        body.append(digits.data(), count);
        appendPadded(line, conversion, sign, body, false);
    } else {
        appendPadded(line, conversion, sign, {digits.data(), count}, conversion.zero && conversion.precision < 0);
    }
}

void appendReal(std::string &line, const Conversion &conversion, double value)
{
    const int precision = std::min(conversion.precision < 0 ? 6 : conversion.precision, 100);
    const std::chars_format form = conversion.letter == 'e'   ? std::chars_format::scientific
                                   : conversion.letter == 'g' ? std::chars_format::general
                                                              : std::chars_format::fixed;
    std::array<char, 512> digits{}; // the longest double has 309 digits before the point
    const bool negative = value < 0;
    const auto result =
        std::to_chars(digits.data(), digits.data() + digits.size(), negative ? -value : value, form, precision);
    appendPadded(line, conversion, signText(conversion, negative),
                 {digits.data(), static_cast<std::size_t>(result.ptr - digits.data())}, conversion.zero);
}

void appendString(std::string &line, const Conversion &conversion, std::string_view text)
{
    if (conversion.precision >= 0) {
        text = text.substr(0, static_cast<std::size_t>(conversion.precision));
    }
    appendPadded(line, conversion, {}, text, false);
}

bool appendIntegerArgument(std::string &line, const Conversion &conversion, const FormatArgument::Value &value)
{
    if (const auto *integer = std::get_if<long long>(&value)) {
        appendInteger(line, conversion, *integer);
        return true;
    }
    if (const auto *handle = std::get_if<HandleNumber>(&value)) {
        appendInteger(line, conversion, stableAddresses ? 0 : static_cast<std::int32_t>(handle->handle));
        return true;
    }
    return false;
}

/// Adds the text of one conversion; false when the argument is of another kind.
bool appendConverted(std::string &line, const Conversion &conversion, const FormatArgument::Value &value)
{
    switch (conversion.letter) {
    case 's':
        if (const auto *text = std::get_if<const char *>(&value)) {
            appendString(line, conversion, *text != nullptr ? *text : "(null)");
            return true;
        }
        return false;
    case '@':
        if (const auto *object = std::get_if<ObjectText>(&value)) {
            line.append(object->description ? std::string_view(*object->description) : "(null)");
            return true;
        }
        return false;
    case 'p':
        if (const auto *pointer = std::get_if<const void *>(&value)) {
            appendString(line, conversion, addressText(*pointer));
            return true;
        }
        return false;
    case 'f':
    case 'e':
    case 'g':
        if (const auto *real = std::get_if<double>(&value)) {
            appendReal(line, conversion, *real);
            return true;
        }
        return false;
    default:
        return appendIntegerArgument(line, conversion, value);
    }
}

bool isOurs(char letter)
{
    return letter != '\0' && std::strchr("diuxXofegs@p", letter) != nullptr;
}

} // namespace

std::string formatText(std::string_view format, std::span<const FormatArgument> arguments)
{
    std::string line;
    line.reserve(format.size() + 64);
    std::size_t next = 0;
    std::size_t at = 0;
    while (at < format.size()) {
        const std::size_t percent = std::min(format.find('%', at), format.size());
        line.append(format.substr(at, percent - at));
        if (percent == format.size()) {
            break;
        }
        const Conversion conversion = parseConversion(format, percent);
        at = percent + conversion.text.size();
        if (conversion.text == "%%") {
            line += '%';
        } else if (!isOurs(conversion.letter)) {
            // Not a conversion of ours: the "%" is text, and what follows it may hold a conversion again.
            line += '%';
            at = percent + 1;
        } else if (next >= arguments.size() || !appendConverted(line, conversion, arguments[next++].value())) {
            line += conversion.text;
        }
    }
    return line;
}

ObjectText describeObject(std::string_view className, const void *address)
{
    if (address == nullptr) {
        return {};
    }
    return {"<" + std::string(className) + ": " + addressText(address) + ">"};
}

void setStableAddresses(bool stable)
{
    stableAddresses = stable;
}

} // namespace tessarin
