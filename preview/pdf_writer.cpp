// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/pdf_writer.h"

#include "printing/text.h"

#include <QFileInfo>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

namespace tessarin::host {

namespace {

constexpr double kPointsPerInch = 72;
constexpr int kResolution = 720;        // fine enough that no line of a page moves visibly
constexpr double kGreyResolution = 300; // dots to the inch of pages in grey
constexpr double kMostPixels = 36e6;    // of a page in grey; A2 at that resolution has 35 million
constexpr double kTolerance = 2;        // points: paper sizes are often rounded
constexpr qint64 kBlock = 1048576;      // bytes copied at a time

using Sources = std::vector<std::unique_ptr<PageSource>>;
using Progress = std::function<void(int done, int total)>;

QString of(const QString &path, const QString &why)
{
    return TessarinPrint::tr("%1: %2").arg(QFileInfo(path).fileName(), why);
}

Outcome<Sources> openAll(const QStringList &documents, const PageLayout &layout, const std::atomic<bool> &cancelled)
{
    Sources sources;
    for (const QString &path : documents) {
        if (cancelled) {
            return Outcome<Sources>::failed(TessarinPrint::tr("cancelled"));
        }
        Outcome<std::unique_ptr<PageSource>> source = openPages(path, TextExtent::Whole);
        if (!source.ok()) {
            return Outcome<Sources>::failed(source.reason());
        }
        sources.push_back(source.take());
        setReadingPaper(*sources.back(), layout);
    }
    return sources;
}

QPageLayout pageLayout(const QSizeF &sheet)
{
    // A page size is upright in Qt, and an orientation turns it.
    const bool lies = sheet.width() > sheet.height();
    return QPageLayout(
        QPageSize(lies ? sheet.transposed() : sheet, QPageSize::Point, QString(), QPageSize::ExactMatch),
        lies ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
}

/// Whether the page goes on the paper as it is, in either orientation.
bool isOnPaper(const QSizeF &page, const QSizeF &paper)
{
    const auto fits = [&paper](const QSizeF &size) {
        return std::abs(size.width() - paper.width()) <= kTolerance &&
               std::abs(size.height() - paper.height()) <= kTolerance;
    };
    return paper.isEmpty() || fits(page) || fits(page.transposed());
}

/// One job of writing.
class Writing {
public:
    Writing(const QStringList &documents, const PdfRequest &request, const std::atomic<bool> &cancelled,
            const Progress &progress, Sources sources)
        : documents_(documents), request_(request), cancelled_(cancelled), progress_(progress),
          sources_(std::move(sources)), file_(request.target)
    {
        std::vector<int> pageCounts;
        for (const std::unique_ptr<PageSource> &source : sources_) {
            pageCounts.push_back(source->pageCount());
        }
        sheets_ = sheetsOf(selectedPageRefs(pageCounts, request.isSelected), request.layout.numberUp);
    }

    Outcome<int> run()
    {
        const QFileInfo target(request_.target);
        if (sheets_.empty()) {
            return atTarget(TessarinPrint::tr("none of the pages is selected"));
        }
        if (target.exists() && !target.isFile()) {
            return atTarget(TessarinPrint::tr("it is not a regular file"));
        }
        if (!file_.open(QIODevice::WriteOnly)) {
            return atTarget(file_.errorString());
        }
        const QString failure = isCopy() ? copy() : draw();
        if (!failure.isEmpty()) {
            return Outcome<int>::failed(failure); // the file goes uncommitted
        }
        if (cancelled_) {
            return Outcome<int>::failed(TessarinPrint::tr("cancelled"));
        }
        if (!file_.commit()) {
            return atTarget(file_.errorString());
        }
        return static_cast<int>(sheets_.size());
    }

private:
    Outcome<int> atTarget(const QString &why) const { return Outcome<int>::failed(of(request_.target, why)); }

    PageSource &source(int document) const { return *sources_[static_cast<std::size_t>(document)]; }

    void tell(std::size_t done) const
    {
        if (progress_) {
            progress_(static_cast<int>(done), static_cast<int>(sheets_.size()));
        }
    }

    /// Whether the only document is a PDF file of just these sheets.
    bool isCopy() const
    {
        const PageLayout &layout = request_.layout;
        if (sources_.size() != 1 || !source(0).isPdf() || layout.orientation != 0 || layout.grey ||
            sheets_.size() != static_cast<std::size_t>(source(0).pageCount())) {
            return false;
        }
        return layout.numberUp <= 1 && std::all_of(sheets_.begin(), sheets_.end(), [&](const Sheet &sheet) {
                   return isOnPaper(source(0).pageSize(sheet.front().page), layout.paper);
               });
    }

    /// Answers an empty text, or what went wrong; so does draw().
    QString copy()
    {
        QFile original(documents_.front());
        if (!original.open(QIODevice::ReadOnly)) {
            return of(documents_.front(), original.errorString());
        }
        while (!original.atEnd()) {
            if (cancelled_) {
                return TessarinPrint::tr("cancelled");
            }
            const QByteArray block = original.read(kBlock);
            if (block.isEmpty()) {
                return of(documents_.front(), original.errorString());
            }
            if (file_.write(block) != block.size()) {
                return of(request_.target, file_.errorString());
            }
        }
        tell(sheets_.size());
        return {};
    }

    QString draw()
    {
        QPdfWriter writer(&file_);
        writer.setResolution(kResolution);
        writer.setTitle(request_.title);
        QPainter painter;
        const SourceOf sourceOf = [this](int document) -> PageSource & { return source(document); };
        std::size_t done = 0;
        for (const Sheet &sheet : sheets_) {
            if (cancelled_) {
                return TessarinPrint::tr("cancelled");
            }
            const SheetPlan plan = planSheet(sheet, request_.layout, sourceOf);
            writer.setPageLayout(pageLayout(plan.size));
            if (done == 0 ? !painter.begin(&writer) : !writer.newPage()) {
                return of(request_.target,
                          TessarinPrint::tr("a page cannot be begun: %1").arg(file_.errorString()));
            }
            const QString failure = request_.layout.grey ? drawGrey(sheet, plan, sourceOf, painter)
                                                         : drawPages(plan, sourceOf, painter);
            if (cancelled_) {
                return TessarinPrint::tr("cancelled");
            }
            if (!failure.isEmpty()) {
                return of(documents_.value(sheet.front().document), failure);
            }
            tell(++done);
        }
        if (!painter.end()) {
            return of(request_.target, file_.errorString());
        }
        return {};
    }

    static QString drawPages(const SheetPlan &plan, const SourceOf &sourceOf, QPainter &painter)
    {
        painter.save();
        painter.scale(kResolution / kPointsPerInch, kResolution / kPointsPerInch);
        QString failure = paintSheet(plan, sourceOf, painter);
        painter.restore();
        return failure;
    }

    QString drawGrey(const Sheet &sheet, const SheetPlan &plan, const SourceOf &sourceOf, QPainter &painter) const
    {
        const QSizeF full = plan.size * (kGreyResolution / kPointsPerInch);
        const double factor = std::min(1.0, std::sqrt(kMostPixels / (full.width() * full.height())));
        PageLayout withoutLines = request_.layout;
        withoutLines.showsMargins = false;
        const Outcome<QImage> picture =
            drawSheet(sheet, withoutLines, sourceOf, (full * factor).toSize(), cancelled_);
        if (picture.ok()) {
            painter.drawImage(QRectF(QPointF(), plan.size * (kResolution / kPointsPerInch)), picture.value());
        }
        return picture.reason();
    }

    const QStringList &documents_;
    const PdfRequest &request_;
    const std::atomic<bool> &cancelled_;
    const Progress &progress_;
    Sources sources_;
    std::vector<Sheet> sheets_{};
    QSaveFile file_; ///< uncommitted, it leaves what was there
};

} // namespace

Outcome<int> writePdf(const QStringList &documents, const PdfRequest &request, const std::atomic<bool> &cancelled,
                      const Progress &progress)
{
    Outcome<Sources> opened = openAll(documents, request.layout, cancelled);
    if (!opened.ok()) {
        return Outcome<int>::failed(opened.reason());
    }
    return Writing(documents, request, cancelled, progress, opened.take()).run();
}

} // namespace tessarin::host
