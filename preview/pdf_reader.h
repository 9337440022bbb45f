// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the module that reads PDF files offers. It is loaded when the first such file is opened: with all the
// libraries that it brings the dialog would take half as long again to start.

#ifndef TESSARIN_PREVIEW_PDF_READER_H
#define TESSARIN_PREVIEW_PDF_READER_H

#include "preview/page_formats.h"

#include <QtPlugin>

namespace tessarin::host {

class PdfReader {
public:
    PdfReader() = default;
    virtual ~PdfReader() = default;
    PdfReader(const PdfReader &) = delete;
    PdfReader &operator=(const PdfReader &) = delete;

    virtual OpenedPages open(const QString &path) = 0;
};

} // namespace tessarin::host

Q_DECLARE_INTERFACE(tessarin::host::PdfReader, "org.tessarin.print.PdfReader/1")

#endif
