// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_formats.h"
#include "preview/pdf_reader.h"
#include "printing/text.h"

#include <QCoreApplication>
#include <QPluginLoader>

namespace tessarin::host {

namespace {

struct Module {
    PdfReader *reader = nullptr; ///< lives as long as the process
    QString failure{};           ///< why there is none
};

Module loadModule()
{
    QPluginLoader loader(QCoreApplication::applicationDirPath() + QStringLiteral("/" TESSARIN_PDF_MODULE_FROM_BIN));
    loader.setLoadHints(QLibrary::PreventUnloadHint);
    Module module;
    module.reader = qobject_cast<PdfReader *>(loader.instance());
    module.failure = loader.errorString();
    return module;
}

} // namespace

OpenedPages openPdf(const QString &path)
{
    static const Module module = loadModule();
    if (module.reader == nullptr) {
        const QString missing = TessarinPrint::tr("the part of this program that reads PDF files is missing");
        return cannotShow(path, TessarinPrint::tr("%1: %2").arg(missing, module.failure));
    }
    return module.reader->open(path);
}

} // namespace tessarin::host
