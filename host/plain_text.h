// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Texts from outside on widgets that would read more into them than they say.

#ifndef TESSARIN_HOST_PLAIN_TEXT_H
#define TESSARIN_HOST_PLAIN_TEXT_H

#include <QString>

namespace tessarin::host {

/// A text for a caption, button or title: an ampersand in it is shown and makes no mnemonic.
inline QString withoutMnemonic(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

/// A text for a tool tip, which would take markup in it for its own.
inline QString plainToolTip(const QString &text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped());
}

} // namespace tessarin::host

#endif
