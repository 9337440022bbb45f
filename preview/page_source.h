// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A document as pages that can be drawn.

#ifndef TESSARIN_PREVIEW_PAGE_SOURCE_H
#define TESSARIN_PREVIEW_PAGE_SOURCE_H

#include "printing/outcome.h"

#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <memory>

class QPainter;
class QRectF;

namespace tessarin::host {

/// The pages of one document. Used by one thread at a time, which need not be the one that opened it.
class PageSource {
public:
    PageSource() = default;
    virtual ~PageSource() = default;
    PageSource(const PageSource &) = delete;
    PageSource &operator=(const PageSource &) = delete;

    /// At least 1.
    virtual int pageCount() const = 0;
    /// The size of page `page` (from 0) in points (1/72 inch); empty when the document has none of its own (a text,
    /// an image without resolution).
    virtual QSizeF pageSize(int page) const = 0;
    /// A picture of the page that fits into `pixels` with its proportions kept; null when the page cannot be drawn.
    virtual QImage render(int page, const QSize &pixels) const = 0;
    /// Draws the page into `area` of a painter's device, with its proportions kept and as vectors where the
    /// document has them. False when the page cannot be drawn.
    virtual bool paint(int page, QPainter &painter, const QRectF &area) const = 0;
};

/// Opens a document: PDF, an image that Qt can read, or plain UTF-8 or Latin-1 text. The reason of a failure names
/// the file and says why there is no preview (a format without preview, a damaged or encrypted file).
Outcome<std::unique_ptr<PageSource>> openPages(const QString &path);

} // namespace tessarin::host

#endif
