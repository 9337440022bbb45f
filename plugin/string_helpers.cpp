// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/string_helpers.h"

#include "pde/print_dialog_extension.h"

#include <algorithm>

namespace tessarin {

pde::Bundle *mybundle = nullptr;

namespace {

bool isKnownEncoding(std::uint32_t encoding)
{
    return encoding == kEncodingASCII || encoding == kEncodingUTF8 || encoding == kEncodingPrinterID;
}

bool fitsEncoding(std::string_view text, std::uint32_t encoding)
{
    return encoding != kEncodingASCII ||
           std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

StringRef myCFStringCreateWithCString(const void * /*allocator*/, const char *text, std::uint32_t encoding)
{
    if (text == nullptr || !isKnownEncoding(encoding) || !fitsEncoding(text, encoding)) {
        return nullptr;
    }
    return makeString(std::string(text));
}

StringRef myCFStringCreateCopy(const void * /*allocator*/, const StringRef &string)
{
    return string ? makeString(string->text()) : nullptr;
}

StringRef myCFStringCreateFormatted(const StringRef &format, std::span<const FormatArgument> arguments)
{
    return format ? makeString(formatText(format->text(), arguments)) : nullptr;
}

bool myCFStringGetCString(const StringRef &string, char *buffer, std::size_t size, std::uint32_t encoding)
{
    if (!string || buffer == nullptr || !isKnownEncoding(encoding)) {
        return false;
    }
    const std::string &text = string->text();
    if (text.size() >= size || !fitsEncoding(text, encoding)) {
        return false;
    }
    std::copy(text.begin(), text.end(), buffer);
    buffer[text.size()] = '\0';
    return true;
}

void myCFRelease(const StringRef &string)
{
    if (string) {
        string->release();
    }
}

StringRef MyCFCopyLocalizedString(const StringRef &key, const char * /*comment*/)
{
    if (!key || mybundle == nullptr) {
        return key;
    }
    return makeString(mybundle->localizedString(toQString(key)));
}

StringRef localizedText(const char *english)
{
    return MyCFCopyLocalizedString(myCFStringCreateWithCString(nullptr, english, kEncodingUTF8), "");
}

} // namespace tessarin
