// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/pdf_writer.h"

#include "printing/text.h"

#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <algorithm>

namespace tessarin::host {

namespace {

constexpr int kPointsPerInch = 72;
constexpr int kResolution = 720; // fine enough that no line of a page moves visibly

using Sources = std::vector<std::unique_ptr<PageSource>>;

Outcome<Sources> openAll(const QStringList &documents, const PageLayout &layout)
{
    Sources sources;
    for (const QString &path : documents) {
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

} // namespace

Outcome<int> writePdf(const QStringList &documents, const PdfRequest &request, const std::atomic<bool> &cancelled,
                      const std::function<void(int done, int total)> &progress)
{
    using Result = Outcome<int>;
    const Outcome<Sources> opened = openAll(documents, request.layout);
    if (!opened.ok()) {
        return Result::failed(opened.reason());
    }
    const Sources &sources = opened.value();
    std::vector<int> pageCounts;
    for (const auto &source : sources) {
        pageCounts.push_back(source->pageCount());
    }
    const std::function<bool(int)> all = [](int) { return true; };
    const std::vector<Sheet> sheets = sheetsOf(
        selectedPageRefs(pageCounts, request.isSelected ? request.isSelected : all), request.layout.numberUp);
    const SourceOf sourceOf = [&](int document) -> PageSource & {
        return *sources[static_cast<std::size_t>(document)];
    };
    const auto failed = [&](const QString &why) {
        return Result::failed(TessarinPrint::tr("file %1: %2").arg(request.target, why));
    };
    if (sheets.empty()) {
        return failed(TessarinPrint::tr("none of the pages is selected"));
    }
    QSaveFile file(request.target); // not committed, it leaves what was there
    if (!file.open(QIODevice::WriteOnly)) {
        return failed(file.errorString());
    }
    QPdfWriter writer(&file);
    writer.setResolution(kResolution);
    writer.setTitle(request.title);
    QPainter painter;
    int done = 0;
    for (const Sheet &sheet : sheets) {
        if (cancelled) {
            return failed(TessarinPrint::tr("cancelled"));
        }
        const SheetPlan plan = planSheet(sheet, request.layout, sourceOf);
        writer.setPageLayout(pageLayout(plan.size));
        if (done == 0 ? !painter.begin(&writer) : !writer.newPage()) {
            return failed(TessarinPrint::tr("a page cannot be begun: %1").arg(file.errorString()));
        }
        constexpr double scale = static_cast<double>(kResolution) / kPointsPerInch;
        painter.save();
        painter.scale(scale, scale);
        const QString wrong = paintSheet(plan, sourceOf, painter);
        painter.restore();
        if (!wrong.isEmpty()) {
            return failed(wrong);
        }
        progress(++done, static_cast<int>(sheets.size()));
    }
    painter.end();
    if (!file.commit()) {
        return failed(file.errorString());
    }
    return done;
}

} // namespace tessarin::host
