// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// String helpers: conversion between string objects and zero-terminated strings, and localisation.
//
// Each takes an allocator argument first, which is ignored, in the manner of the platform's string functions.

#ifndef TESSARIN_PLUGIN_STRING_HELPERS_H
#define TESSARIN_PLUGIN_STRING_HELPERS_H

#include "platform/formatter.h"
#include "platform/string_object.h"

#include <array>
#include <cstdint>
#include <span>

namespace tessarin {

namespace pde {
class Bundle;
}

/// Encoding numbers, handed through unchanged.
inline constexpr std::uint32_t kEncodingASCII = 1;              ///< the PPD path, the slider formats
inline constexpr std::uint32_t kEncodingUTF8 = 4;               ///< option keys and choices
inline constexpr std::uint32_t kEncodingPrinterID = 0x08000100; ///< UTF-8, as printer identifiers name it

/// The plug-in bundle that localised texts come from: process-wide, the one of the panel set up last; null before
/// the first. Not owned.
extern pde::Bundle *mybundle;

/// A new string from a zero-terminated one; null for null, for an unknown encoding, and for bytes beyond ASCII
/// where the encoding is ASCII. Owned by the caller.
StringRef myCFStringCreateWithCString(const void *allocator, const char *text, std::uint32_t encoding);
/// A new string with the same characters; null for null. Owned by the caller.
StringRef myCFStringCreateCopy(const void *allocator, const StringRef &string);
/// A new string made by applying `format` to the arguments; null for a null format. Owned by the caller.
StringRef myCFStringCreateFormatted(const StringRef &format, std::span<const FormatArgument> arguments);

/// The same with the arguments one by one; `options` is ignored.
template <typename... Arguments>
StringRef myCFStringCreateWithFormat(const void * /*allocator*/, const void * /*options*/, const StringRef &format,
                                     const Arguments &...arguments)
{
    return myCFStringCreateFormatted(format, std::array<FormatArgument, sizeof...(arguments)>{arguments...});
}

/// Converts `string` into `buffer` as a zero-terminated string. `size` is the room in bytes, terminator included;
/// it may be smaller than the buffer. True when the whole string fitted and could be converted; otherwise the
/// buffer stays as it is.
bool myCFStringGetCString(const StringRef &string, char *buffer, std::size_t size, std::uint32_t encoding);

/// Releases a string; null is ignored.
void myCFRelease(const StringRef &string);

/// The localised text for an English key, from `mybundle`; the key itself when it has no translation. `comment` is
/// ignored. The caller does not own the result.
StringRef MyCFCopyLocalizedString(const StringRef &key, const char *comment);
/// The same for a key that is a zero-terminated string in UTF-8.
StringRef localizedText(const char *english);

} // namespace tessarin

#endif
