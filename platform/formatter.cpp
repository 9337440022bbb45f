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

/// `body` in a field of the conversion's width; zeros go between the sign and the digits.
std::string padded(const Conversion &conversion, const std::string &sign, std::string body, bool zeros)
{
    const std::size_t length = sign.size() + body.size();
    const auto width = static_cast<std::size_t>(conversion.width);
    if (length >= width) {
        return sign + body;
    }
    if (conversion.left) {
        return sign + body + std::string(width - length, ' ');
    }
    if (zeros) {
        return sign + std::string(width - length, '0') + body;
    }
    return std::string(width - length, ' ') + sign + body;
}

std::string signText(const Conversion &conversion, bool negative)
{
    return negative ? "-" : conversion.plus ? "+" : conversion.blank ? " " : "";
}

std::string integerText(const Conversion &conversion, long long value)
{
    const bool isSigned = conversion.letter == 'd' || conversion.letter == 'i';
    const bool negative = isSigned && value < 0;
    const auto bits = static_cast<unsigned long long>(value);
    const unsigned long long magnitude = negative ? 0ULL - bits : bits;
    const int base = conversion.letter == 'x' || conversion.letter == 'X' ? 16 : conversion.letter == 'o' ? 8 : 10;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), magnitude, base).ptr;
    std::string body(digits.data(), end);
    if (conversion.letter == 'X') {
        std::transform(body.begin(), body.end(), body.begin(),
                       [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    }
    if (conversion.precision >= 0 && body.size() < static_cast<std::size_t>(conversion.precision)) {
        body.insert(0, static_cast<std::size_t>(conversion.precision) - body.size(), '0');
    }
    return padded(conversion, isSigned ? signText(conversion, negative) : std::string(), std::move(body),
                  conversion.zero && conversion.precision < 0);
}

std::string realText(const Conversion &conversion, double value)
{
    const int precision = std::min(conversion.precision < 0 ? 6 : conversion.precision, 100);
    const std::chars_format form = conversion.letter == 'e'   ? std::chars_format::scientific
                                   : conversion.letter == 'g' ? std::chars_format::general
                                                              : std::chars_format::fixed;
    std::array<char, 512> digits{}; // the longest double has 309 digits before the point
    const bool negative = value < 0;
    const auto result =
        std::to_chars(digits.data(), digits.data() + digits.size(), negative ? -value : value, form, precision);
    return padded(conversion, signText(conversion, negative), std::string(digits.data(), result.ptr),
                  conversion.zero);
}

std::string stringText(const Conversion &conversion, std::string_view text)
{
    if (conversion.precision >= 0) {
        text = text.substr(0, static_cast<std::size_t>(conversion.precision));
    }
    return padded(conversion, {}, std::string(text), false);
}

/// The text of one conversion, or nothing when the argument is of another kind.
std::optional<std::string> convert(const Conversion &conversion, const FormatArgument::Value &value)
{
    if (std::strchr("diuxXo", conversion.letter) != nullptr) {
        if (const auto *integer = std::get_if<long long>(&value)) {
            return integerText(conversion, *integer);
        }
        if (const auto *handle = std::get_if<HandleNumber>(&value)) {
            return integerText(conversion, stableAddresses ? 0 : static_cast<std::int32_t>(handle->handle));
        }
    } else if (std::strchr("feg", conversion.letter) != nullptr) {
        if (const auto *real = std::get_if<double>(&value)) {
            return realText(conversion, *real);
        }
    } else if (conversion.letter == 's') {
        if (const auto *text = std::get_if<const char *>(&value)) {
            return stringText(conversion, *text != nullptr ? *text : "(null)");
        }
    } else if (conversion.letter == '@') {
        if (const auto *object = std::get_if<ObjectText>(&value)) {
            return object->description.value_or("(null)");
        }
    } else if (conversion.letter == 'p') {
        if (const auto *pointer = std::get_if<const void *>(&value)) {
            return stringText(conversion, addressText(*pointer));
        }
    }
    return std::nullopt;
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
        } else if (conversion.letter == '\0' || std::strchr("diuxXofegs@p", conversion.letter) == nullptr) {
            // Not a conversion of ours: the "%" is text, and what follows it may hold a conversion again.
            line += '%';
            at = percent + 1;
        } else if (next < arguments.size()) {
            line += convert(conversion, arguments[next].value()).value_or(std::string(conversion.text));
            ++next;
        } else {
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
