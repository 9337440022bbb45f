// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/preview_renderer.h"

#include "printing/text.h"

#include <QFileInfo>

#include <cmath>
#include <numeric>
#include <utility>

namespace tessarin::host {

namespace {

void cancel(std::shared_ptr<std::atomic<bool>> &flag)
{
    if (flag) {
        *flag = true;
        flag.reset();
    }
}

/// The size, or one of its proportions with no more than `most` pixels.
QSize boundedPixels(const QSize &size, int most)
{
    const double pixels = static_cast<double>(size.width()) * size.height();
    return pixels <= most ? size : (QSizeF(size) * std::sqrt(most / pixels)).toSize();
}

} // namespace

PreviewRenderer::PreviewRenderer(OpenPages open) : open_(std::move(open)), thread_(this) {}

PreviewRenderer::~PreviewRenderer()
{
    cancel(opening_);
    cancel(drawing_);
}

void PreviewRenderer::setDocuments(const QStringList &paths)
{
    cancel(opening_);
    cancel(drawing_);
    isOpen_ = false;
    const auto flag = std::make_shared<std::atomic<bool>>(false);
    opening_ = flag;
    thread_.start([this, flag, paths, open = open_, layout = layout_](const WorkerThread::HandOver &handOver) {
        const auto documents = std::make_shared<Documents>();
        openAll(paths, open, layout, *flag, *documents);
        handOver([this, flag, documents] {
            if (*flag) {
                return;
            }
            documents_ = documents;
            isOpen_ = true;
            pageCount_ = std::accumulate(documents->pageCounts.begin(), documents->pageCounts.end(), 0);
            problems_ = documents->problems;
            remarks_ = documents->remarks;
            cache_.clear();
            select();
            emit documentsOpened();
        });
    });
}

void PreviewRenderer::openAll(const QStringList &paths, const OpenPages &open, const PageLayout &layout,
                              const std::atomic<bool> &cancelled, Documents &documents)
{
    for (const QString &path : paths) {
        if (cancelled) {
            return;
        }
        Outcome<std::unique_ptr<PageSource>> opened = open(path);
        if (!opened.ok()) {
            documents.problems << opened.reason();
            continue;
        }
        std::unique_ptr<PageSource> source = opened.take();
        setReadingPaper(*source, layout);
        const QString name = QFileInfo(path).fileName();
        if (const QString remark = source->remark(); !remark.isEmpty()) {
            documents.remarks << TessarinPrint::tr("%1: %2").arg(name, remark);
        }
        documents.names << name;
        documents.pageCounts.push_back(source->pageCount());
        documents.sources.push_back(std::move(source));
    }
}

void PreviewRenderer::setLayout(const PageLayout &layout)
{
    if (layout == layout_) {
        return;
    }
    layout_ = layout;
    cancel(drawing_);
    cache_.clear();
    select();
    emit changed();
}

void PreviewRenderer::setPages(std::function<bool(int page)> isSelected)
{
    isSelected_ = std::move(isSelected);
    const std::vector<Sheet> before = selected_;
    select();
    if (selected_ != before) {
        cancel(drawing_);
        cache_.clear();
        emit changed();
    }
}

void PreviewRenderer::select()
{
    selected_.clear();
    if (documents_) {
        selected_ = sheetsOf(selectedPageRefs(documents_->pageCounts, isSelected_), layout_.numberUp);
    }
}

Outcome<QImage> PreviewRenderer::draw(const Documents &documents, const Sheet &sheet, const PageLayout &layout,
                                      const QSize &pixels, const std::atomic<bool> &cancelled)
{
    const SourceOf sourceOf = [&documents](int document) -> PageSource & {
        return *documents.sources[static_cast<std::size_t>(document)];
    };
    Outcome<QImage> drawn = drawSheet(sheet, layout, sourceOf, pixels, cancelled);
    return drawn.ok() ? drawn
                      : Outcome<QImage>::failed(TessarinPrint::tr("%1: %2").arg(
                            documents.names.value(sheet.front().document), drawn.reason()));
}

void PreviewRenderer::request(int sheet, const QSize &pixels)
{
    cancel(drawing_);
    const QSize size = boundedPixels(pixels, kMostPixels);
    if (!isOpen_ || sheet < 0 || sheet >= sheets() || size.isEmpty()) {
        return;
    }
    const QString name = QStringLiteral("%1 %2x%3").arg(sheet).arg(size.width()).arg(size.height());
    if (const QImage *known = cache_.object(name)) {
        emit ready(sheet, *known);
        return;
    }
    const auto flag = std::make_shared<std::atomic<bool>>(false);
    drawing_ = flag;
    thread_.start([this, flag, name, sheet, size, pages = selected_[static_cast<std::size_t>(sheet)],
                   documents = documents_, layout = layout_](const WorkerThread::HandOver &handOver) {
        if (*flag) {
            return;
        }
        const Outcome<QImage> drawn = draw(*documents, pages, layout, size, *flag);
        handOver([this, flag, name, sheet, drawn] {
            if (*flag) {
                return;
            }
            if (!drawn.ok()) {
                emit failed(sheet, drawn.reason());
                return;
            }
            const QImage &image = drawn.value();
            cache_.insert(name, new QImage(image), image.sizeInBytes()); // the cache owns it
            emit ready(sheet, image);
        });
    });
}

} // namespace tessarin::host
