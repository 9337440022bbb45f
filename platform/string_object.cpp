// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/string_object.h"

#include <utility>

namespace tessarin {

StringObject::StringObject(std::string utf8) : text_(std::move(utf8)) {}

StringRef makeString(std::string utf8)
{
    return std::make_shared<StringObject>(std::move(utf8));
}

StringRef makeString(const QString &text)
{
    return text.isNull() ? nullptr : makeString(text.toStdString());
}

QString toQString(const StringRef &string)
{
    return string ? QString::fromStdString(string->text()) : QString();
}

} // namespace tessarin
