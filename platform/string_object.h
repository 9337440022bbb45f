// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// String objects: the platform's immutable texts, passed about as shared handles.

#ifndef TESSARIN_PLATFORM_STRING_OBJECT_H
#define TESSARIN_PLATFORM_STRING_OBJECT_H

#include <QString>

#include <memory>
#include <string>

namespace tessarin {

/// One immutable text (UTF-8). A release is counted, not acted upon: the storage goes with the last handle, so that
/// releasing one object twice through two records can neither free twice nor leave a dangling handle.
class StringObject {
public:
    explicit StringObject(std::string utf8);

    const std::string &text() const { return text_; }
    /// How often release() was called, 0 or more.
    int releaseCount() const { return releaseCount_; }
    void release() { ++releaseCount_; }

private:
    std::string text_;
    int releaseCount_ = 0;
};

/// A shared handle; null stands for an absent string.
using StringRef = std::shared_ptr<StringObject>;

/// A new string object from UTF-8 bytes, kept as they are.
StringRef makeString(std::string utf8);
/// A new string object with the characters of `text`; null for a null QString.
StringRef makeString(const QString &text);
/// The characters of a string object; a null QString for a null handle.
QString toQString(const StringRef &string);

} // namespace tessarin

#endif
