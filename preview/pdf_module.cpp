// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_formats.h"
#include "preview/pdf_reader.h"
#include "printing/text.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace tessarin::host {

namespace {

/// The module's reader, which lives as long as the process; null when the module is not there.
PdfReader *loadReader()
{
    QPluginLoader loader(QCoreApplication::applicationDirPath() + QStringLiteral("/" TESSARIN_PDF_MODULE_FROM_BIN));
    return qobject_cast<PdfReader *>(loader.instance());
}

} // namespace

OpenedPages openPdf(const QString &path)
{
    static PdfReader *const reader = loadReader();
    if (reader == nullptr) {
        return cannotShow(path, TessarinPrint::tr("the part of this program that reads PDF files is missing"));
    }
    return reader->open(path);
}

} // namespace tessarin::host
