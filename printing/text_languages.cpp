// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/text_languages.h"

#include <QLocale>

namespace tessarin::host {

namespace {

QString &askedCode()
{
    static QString code;
    return code;
}

} // namespace

QStringList textLanguages()
{
    QStringList all;
    const QString &asked = askedCode();
    const QLocale locale = asked.isEmpty() ? QLocale() : QLocale(asked);
    for (const QString &name : locale.uiLanguages()) {
        const QStringList parts = name.split(u'-');
        for (qsizetype count = parts.size(); count > 0; --count) {
            all << parts.first(count).join(u'_');
        }
    }
    all.removeDuplicates();
    return all;
}

void setTextLanguage(const QString &code)
{
    askedCode() = code;
}

} // namespace tessarin::host
