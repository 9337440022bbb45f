// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A document as pages that can be drawn.

#ifndef TESSARIN_PREVIEW_PAGE_SOURCE_H
#define TESSARIN_PREVIEW_PAGE_SOURCE_H

#include "printing/outcome.h"

#include <QImage>
#include <QMarginsF>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <atomic>
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
    /// The size of page `page` (from 0) in points (1/72 inch). Of a document whose pages have no fixed size only
    /// the proportions count. Empty when the page is damaged.
    virtual QSizeF pageSize(int page) const = 0;
    /// False when the pages are as large as there is room for them, as an image is.
    virtual bool hasFixedSize() const { return true; }
    /// Tells the paper (points) that the pages go on and the margins that cannot be printed; until then it is A4.
    /// Only a document that has no pages of its own, a text, takes notice: its pages are laid out anew, and
    /// pageCount() may answer another number.
    virtual void setPaper(const QSizeF & /*paper*/, const QMarginsF & /*margins*/) {}
    /// Whether the document's file is PDF.
    virtual bool isPdf() const { return false; }
    /// What a person has to know of these pages; empty when there is nothing.
    virtual QString remark() const { return {}; }
    /// A picture of the page that fits into `pixels` with its proportions kept; null when the page cannot be drawn,
    /// or `cancelled` becomes true meanwhile.
    virtual QImage render(int page, const QSize &pixels, const std::atomic<bool> &cancelled) const = 0;
    /// Draws the page into `area` of a painter's device, with its proportions kept and as vectors where the
    /// document has them. False when the page cannot be drawn.
    virtual bool paint(int page, QPainter &painter, const QRectF &area) const = 0;
};

/// How much of a text is laid out. The first page needs no more than the beginning of the file.
enum class TextExtent { FirstPage, Whole };

/// Opens a document: PDF, an image that Qt can read, or plain UTF-8 or Latin-1 text. The reason of a failure names
/// the file and says why there is no preview (a format without preview, a damaged or encrypted file). Anything but
/// a regular file is refused without waiting for it.
Outcome<std::unique_ptr<PageSource>> openPages(const QString &path, TextExtent extent = TextExtent::FirstPage);

/// The largest rectangle of the proportions `size`, as large as fits into `room` and in its middle.
QRectF fitted(const QSizeF &size, const QRectF &room);
/// The same in whole pixels, at least one each way. Empty when either size is.
QSize fittedPixels(const QSizeF &size, const QSize &room);

} // namespace tessarin::host

#endif
