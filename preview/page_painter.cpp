// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_painter.h"

#include "printing/text.h"

#include <QPainter>
#include <QPen>
#include <QTransform>

#include <algorithm>
#include <array>
#include <utility>

namespace tessarin::host {

namespace {

constexpr int kLandscape = 4; // IPP's values of orientation-requested
constexpr int kReverseLandscape = 5;
constexpr int kReversePortrait = 6;
constexpr double kTolerance = 2; // points: paper sizes are often rounded
constexpr std::array kNumbersUp = {1, 2, 4, 6, 9, 16};
constexpr QRgb kMarginColour = 0xFF9A9A9A;

int validNumberUp(int numberUp)
{
    return std::find(kNumbersUp.begin(), kNumbersUp.end(), numberUp) == kNumbersUp.end() ? 1 : numberUp;
}

bool isLandscape(const QSizeF &size)
{
    return size.width() > size.height();
}

/// Margins of a sheet whose left edge comes to the top: this is how pages in landscape are read.
QMarginsF turned(const QMarginsF &margins)
{
    return {margins.bottom(), margins.left(), margins.top(), margins.right()};
}

QMarginsF reversed(const QMarginsF &margins)
{
    return {margins.right(), margins.bottom(), margins.left(), margins.top()};
}

bool isOnItsSide(const PageLayout &layout)
{
    return layout.orientation == kLandscape || layout.orientation == kReverseLandscape;
}

/// Columns of pages on a sheet of this size.
int columnsOf(int numberUp, const QSizeF &sheet)
{
    switch (numberUp) {
    case 2:
        return isLandscape(sheet) ? 2 : 1;
    case 6:
        return isLandscape(sheet) ? 3 : 2;
    case 4:
        return 2;
    case 9:
        return 3;
    case 16:
        return 4;
    default:
        return 1;
    }
}

/// Where a page goes in its cell. A page alone on a sheet keeps its size when the paper is large enough.
QRectF areaOf(const QSizeF &page, bool hasFixedSize, const SheetPlan &plan, int numberUp, const QRectF &cell)
{
    const bool keepsSize = hasFixedSize && numberUp == 1 && page.width() <= plan.size.width() + kTolerance &&
                           page.height() <= plan.size.height() + kTolerance;
    if (keepsSize) {
        return {QPointF((plan.size.width() - page.width()) / 2, (plan.size.height() - page.height()) / 2), page};
    }
    return fitted(page, cell);
}

QString cannotDraw(const PageRef &page)
{
    return TessarinPrint::tr("page %1 cannot be drawn").arg(page.page + 1);
}

/// A painter for the sheet in points, turned as the plan says.
void useSheetCoordinates(QPainter &painter, const SheetPlan &plan)
{
    if (plan.isUpsideDown) {
        painter.translate(plan.size.width(), plan.size.height());
        painter.rotate(180);
    }
}

/// A painter whose origin is the corner of a page's area, the page upright. Answers the page's size there.
QSizeF usePageCoordinates(QPainter &painter, const PlacedPage &placed)
{
    if (!placed.isTurned) {
        painter.translate(placed.area.topLeft());
        return placed.area.size();
    }
    painter.translate(placed.area.bottomLeft());
    painter.rotate(-90);
    return placed.area.size().transposed();
}

void drawMargins(QPainter &painter, const SheetPlan &plan)
{
    if (plan.margins.isNull()) {
        return;
    }
    QPen pen(QColor::fromRgb(kMarginColour), 0, Qt::DashLine);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plan.printable());
}

} // namespace

std::vector<PageRef> selectedPageRefs(const std::vector<int> &pageCounts,
                                      const std::function<bool(int page)> &isSelected)
{
    std::vector<PageRef> pages;
    int document = 0;
    for (const int count : pageCounts) {
        for (int page = 0; page < count; ++page) {
            if (!isSelected || isSelected(page + 1)) {
                pages.push_back({.document = document, .page = page});
            }
        }
        ++document;
    }
    return pages;
}

std::vector<Sheet> sheetsOf(const std::vector<PageRef> &pages, int numberUp)
{
    const auto most = static_cast<std::size_t>(validNumberUp(numberUp));
    std::vector<Sheet> sheets;
    for (const PageRef &page : pages) {
        if (sheets.empty() || sheets.back().size() == most || sheets.back().back().document != page.document) {
            sheets.emplace_back();
        }
        sheets.back().push_back(page);
    }
    return sheets;
}

void setReadingPaper(PageSource &source, const PageLayout &layout)
{
    if (isOnItsSide(layout)) {
        source.setPaper(layout.paper.transposed(), turned(layout.margins));
    } else {
        source.setPaper(layout.paper, layout.margins);
    }
}

SheetPlan planSheet(const Sheet &sheet, const PageLayout &layout, const SourceOf &sourceOf)
{
    const int numberUp = validNumberUp(layout.numberUp);
    const bool isAutomatic = layout.orientation == 0;
    const PageSource &document = sourceOf(sheet.front().document);
    const QSizeF first = document.pageSize(sheet.front().page);
    const QSizeF paper = !layout.paper.isEmpty()                       ? layout.paper
                         : document.hasFixedSize() && !first.isEmpty() ? first
                                                                       : PageLayout().paper;
    const bool isSquare = first.width() == first.height();

    // Two and six pages fill a sheet best when it is turned.
    const bool pagesOnSide =
        isAutomatic ? !isSquare && isLandscape(first) != isLandscape(paper) : isOnItsSide(layout);
    const bool sheetOnSide = pagesOnSide != (numberUp == 2 || numberUp == 6);
    SheetPlan plan{.size = sheetOnSide ? paper.transposed() : paper,
                   .margins = sheetOnSide ? turned(layout.margins) : layout.margins,
                   .isUpsideDown =
                       layout.orientation == kReverseLandscape || layout.orientation == kReversePortrait};
    if (plan.isUpsideDown) {
        plan.margins = reversed(plan.margins);
    }

    const QRectF room = plan.printable();
    const int columns = columnsOf(numberUp, plan.size);
    const int rows = numberUp / columns;
    const QSizeF cell(room.width() / columns, room.height() / rows);
    int position = 0;
    for (const PageRef &page : sheet) {
        const PageSource &source = sourceOf(page.document);
        QSizeF size = source.pageSize(page.page);
        const bool isTurned =
            isAutomatic && size.width() != size.height() && isLandscape(size) != isLandscape(first);
        if (isTurned) {
            size.transpose();
        }
        const int row = position / columns;
        const QPointF corner(room.left() + cell.width() * (position % columns), room.top() + cell.height() * row);
        plan.pages.push_back({.page = page,
                              .area = areaOf(size, source.hasFixedSize(), plan, numberUp, QRectF(corner, cell)),
                              .isTurned = isTurned});
        ++position;
    }
    return plan;
}

Outcome<QImage> drawSheet(const Sheet &sheet, const PageLayout &layout, const SourceOf &sourceOf,
                          const QSize &pixels, const std::atomic<bool> &cancelled)
{
    setReadingPaper(sourceOf(sheet.front().document), layout);
    const SheetPlan plan = planSheet(sheet, layout, sourceOf);
    QImage image(fittedPixels(plan.size, pixels), QImage::Format_RGB32);
    if (image.isNull()) {
        return Outcome<QImage>::failed(TessarinPrint::tr("there is no room for the paper"));
    }
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF scale(image.width() / plan.size.width(), image.height() / plan.size.height());
    painter.scale(scale.width(), scale.height());
    useSheetCoordinates(painter, plan);
    painter.setClipRect(plan.printable());
    const QTransform toPixels = painter.transform();
    for (const PlacedPage &placed : plan.pages) {
        const QRect target = toPixels.mapRect(placed.area).toRect();
        const QImage page =
            sourceOf(placed.page.document)
                .render(placed.page.page,
                        (placed.isTurned ? target.size().transposed() : target.size()).expandedTo(QSize(1, 1)),
                        cancelled);
        if (page.isNull()) {
            return Outcome<QImage>::failed(cancelled ? QString() : cannotDraw(placed.page));
        }
        painter.resetTransform(); // whole pixels keep the picture sharp
        const int angle = (placed.isTurned ? -90 : 0) + (plan.isUpsideDown ? 180 : 0);
        painter.drawImage(target, angle == 0 ? page : page.transformed(QTransform().rotate(angle)));
        painter.setTransform(toPixels);
    }
    painter.setClipping(false);
    if (layout.showsMargins) {
        drawMargins(painter, plan);
    }
    painter.end();
    return layout.grey ? image.convertToFormat(QImage::Format_Grayscale8) : image;
}

QString paintSheet(const SheetPlan &plan, const SourceOf &sourceOf, QPainter &painter)
{
    painter.save();
    useSheetCoordinates(painter, plan);
    QString failure;
    for (const PlacedPage &placed : plan.pages) {
        painter.save();
        const QSizeF size = usePageCoordinates(painter, placed);
        if (!sourceOf(placed.page.document).paint(placed.page.page, painter, QRectF(QPointF(), size))) {
            failure = cannotDraw(placed.page);
        }
        painter.restore();
        if (!failure.isEmpty()) {
            break;
        }
    }
    painter.restore();
    return failure;
}

} // namespace tessarin::host
