// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/memory.h"

#include <QSettings>

namespace tessarin::host {

namespace {

constexpr char kLastPrinter[] = "lastPrinter";

QSettings memory()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("tessarin"),
                     QStringLiteral("tessarin-print"));
}

} // namespace

QString lastPrinter()
{
    return memory().value(QLatin1String(kLastPrinter)).toString();
}

void rememberPrinter(const QString &identity)
{
    memory().setValue(QLatin1String(kLastPrinter), identity);
}

} // namespace tessarin::host
