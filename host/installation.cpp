// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/installation.h"

#include <QCoreApplication>
#include <QDir>

namespace tessarin::host {

namespace {

QString besideProgram(const char *relativePath)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + QString::fromUtf8(relativePath));
}

} // namespace

QString samplePpdPath()
{
    return besideProgram(TESSARIN_DATA_FROM_BIN "/tessarin-sample.ppd");
}

QString pdfPpdPath()
{
    return besideProgram(TESSARIN_DATA_FROM_BIN "/save-as-pdf.ppd");
}

QString translationsDirectory()
{
    return besideProgram(TESSARIN_DATA_FROM_BIN "/translations");
}

QString bundleDirectory(const QString &asked)
{
    if (!asked.isEmpty()) {
        return asked;
    }
    const QString fromEnvironment = qEnvironmentVariable("TESSARIN_BUNDLE");
    return fromEnvironment.isEmpty() ? besideProgram(TESSARIN_BUNDLE_FROM_BIN) : fromEnvironment;
}

} // namespace tessarin::host
