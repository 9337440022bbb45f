// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The typed formatter behind the log and the value texts. A format may hold the printf conversions of integers,
// floating numbers, zero-terminated strings and pointers, and "%@" for an object's description.
//
// Formats are partly made of text from outside (a PPD's choice names, an object's description), so the formatter
// knows which arguments it was given: a conversion that it cannot satisfy is written as it stands.

#ifndef TESSARIN_PLATFORM_FORMATTER_H
#define TESSARIN_PLATFORM_FORMATTER_H

#include "platform/string_object.h"

#include <QtGlobal>

#include <concepts>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace tessarin {

/// An object as "%@" shows it; nothing is a null object and shows as "(null)".
struct ObjectText {
    std::optional<std::string> description;
};

/// A control handle that a line shows as a number ("%d"), cut to 32 bits.
struct HandleNumber {
    qintptr handle;
};

/// One argument of a format, with its kind.
class FormatArgument {
public:
    template <std::integral T>
    FormatArgument(T value) : value_(static_cast<long long>(value))
    {}
    FormatArgument(double value) : value_(value) {}
    FormatArgument(const char *text) : value_(text) {}
    FormatArgument(const std::string &text) : value_(text.c_str()) {}
    FormatArgument(ObjectText object) : value_(std::move(object)) {}
    FormatArgument(const StringRef &string)
        : value_(ObjectText{string ? std::optional(string->text()) : std::nullopt})
    {}
    FormatArgument(const void *pointer) : value_(pointer) {}
    FormatArgument(HandleNumber handle) : value_(handle) {}

    using Value = std::variant<long long, double, const char *, const void *, ObjectText, HandleNumber>;
    const Value &value() const { return value_; }

private:
    Value value_;
};

/// Applies `format` to `arguments` in order. "(null)" stands for a null text or object, "0x0" for a null pointer. A
/// conversion whose argument is missing or of another kind, or that is unknown, is written literally; one of
/// another kind still takes its argument. The result does not depend on the locale.
std::string formatText(std::string_view format, std::span<const FormatArgument> arguments);

/// The description of an object of class `className` at `address`: "<Class: 0x…>"; a null object for null.
ObjectText describeObject(std::string_view className, const void *address);

/// With `stable`, every pointer that is not null is written as "0xP" and every handle as 0, so that the lines of
/// two builds can be compared byte for byte. Off at start; set before any line is formatted.
void setStableAddresses(bool stable);

} // namespace tessarin

#endif
