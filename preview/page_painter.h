// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Pages on sheets of paper, placed as a print server places them.

#ifndef TESSARIN_PREVIEW_PAGE_PAINTER_H
#define TESSARIN_PREVIEW_PAGE_PAINTER_H

#include "preview/page_source.h"
#include "printing/outcome.h"

#include <QImage>
#include <QMarginsF>
#include <QRectF>
#include <QSize>
#include <QSizeF>

#include <atomic>
#include <functional>
#include <vector>

class QPainter;

namespace tessarin::host {

/// How the pages of a job go on its sheets.
struct PageLayout {
    QSizeF paper =
        QSizeF(595.276, 841.890); ///< points, as the printer takes it in (A4); empty: the pages' own size
    QMarginsF margins{};          ///< points: what the printer leaves white at the edges of `paper`
    int orientation =
        0; ///< as IPP numbers it: 3 portrait, 4 landscape, 5 and 6 the same reversed; 0: as the pages are
    int numberUp = 1; ///< pages on a side: 1, 2, 4, 6, 9 or 16; others count as 1
    bool grey = false;
    bool showsMargins = true; ///< pictures have dashed lines at the margins

    bool operator==(const PageLayout &other) const = default;
};

/// A page of one of several documents.
struct PageRef {
    int document = 0; ///< from 0
    int page = 0;     ///< from 0

    bool operator==(const PageRef &other) const = default;
};

/// The pages on one side of a sheet, in reading order; at least one.
using Sheet = std::vector<PageRef>;

/// The pages that are printed: those that `isSelected` (page numbers from 1 within each document; null: all) of
/// documents with these numbers of pages, which may be 0.
std::vector<PageRef> selectedPageRefs(const std::vector<int> &pageCounts,
                                      const std::function<bool(int page)> &isSelected);
/// Divides pages into sheets. Each document begins a new sheet, as on the print server.
std::vector<Sheet> sheetsOf(const std::vector<PageRef> &pages, int numberUp);

/// A page's place on a sheet.
struct PlacedPage {
    PageRef page{};
    QRectF area{};         ///< points, in the plan's coordinates
    bool isTurned = false; ///< a quarter counterclockwise, to fit a sheet of pages that are the other way round
};

/// A sheet as it is held to read it: on its side for pages in landscape.
struct SheetPlan {
    QSizeF size{};             ///< points
    QMarginsF margins{};       ///< points
    bool isUpsideDown = false; ///< all of it is drawn turned by half a circle
    std::vector<PlacedPage> pages{};

    QRectF printable() const { return QRectF(QPointF(), size).marginsRemoved(margins); }
};

/// The documents' pages by the documents' number; the pages stay the caller's.
using SourceOf = std::function<PageSource &(int document)>;

/// Tells a document the paper as its pages are read on it.
void setReadingPaper(PageSource &source, const PageLayout &layout);

/// Where the pages go. `sheet` is not empty.
SheetPlan planSheet(const Sheet &sheet, const PageLayout &layout, const SourceOf &sourceOf);

/// A picture of the sheet, as large as fits into `pixels`: white paper, the pages within the printable area, thin
/// dashed lines at the margins. The reason of a failure says which page cannot be drawn, or is empty when
/// `cancelled` became true.
Outcome<QImage> drawSheet(const Sheet &sheet, const PageLayout &layout, const SourceOf &sourceOf,
                          const QSize &pixels, const std::atomic<bool> &cancelled);

/// Draws the pages of a plan, as vectors where they have them, with a painter whose unit is the point and whose
/// origin is the sheet's corner. Answers an empty text, or why a page cannot be drawn.
QString paintSheet(const SheetPlan &plan, const SourceOf &sourceOf, QPainter &painter);

} // namespace tessarin::host

#endif
