// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The formats of documents that have pages to draw. Each open…() is given a regular file.

#ifndef TESSARIN_PREVIEW_PAGE_FORMATS_H
#define TESSARIN_PREVIEW_PAGE_FORMATS_H

#include "preview/page_source.h"
#include "printing/outcome.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace tessarin::host {

using OpenedPages = Outcome<std::unique_ptr<PageSource>>;

/// A failure of this document: "letter.pdf: the file is damaged".
OpenedPages cannotShow(const QString &path, const QString &why);
/// Why there are no pages of a format that is none of these.
QString noPreviewReason();

OpenedPages openPdf(const QString &path);

/// Whether the file is an image by its content.
bool isImage(const QString &path);
OpenedPages openImage(const QString &path);

OpenedPages openText(const QString &path, TextExtent extent);

} // namespace tessarin::host

#endif
