// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/preview_renderer.h"

#include <algorithm>
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

} // namespace

PreviewRenderer::PreviewRenderer()
{
    thread_.setMaxThreadCount(1);
}

PreviewRenderer::~PreviewRenderer()
{
    cancel(opening_);
    cancel(drawing_);
    thread_.clear();
    thread_.waitForDone();
}

void PreviewRenderer::setDocuments(const QStringList &paths)
{
    cancel(opening_);
    cancelDrawing();
    isOpen_ = false;
    auto flag = std::make_shared<std::atomic<bool>>(false);
    opening_ = flag;
    thread_.start([this, flag, paths, layout = layout_] {
        auto documents = std::make_shared<Documents>();
        for (const QString &path : paths) {
            if (*flag) {
                return;
            }
            Outcome<std::unique_ptr<PageSource>> source = openPages(path);
            if (!source.ok()) {
                documents->problems << source.reason();
                continue;
            }
            documents->sources.push_back(source.take());
            setReadingPaper(*documents->sources.back(), layout);
            documents->pageCounts.push_back(documents->sources.back()->pageCount());
        }
        QMetaObject::invokeMethod(
            this,
            [this, flag, documents] {
                if (*flag) {
                    return;
                }
                documents_ = documents;
                isOpen_ = true;
                pageCount_ = std::accumulate(documents->pageCounts.begin(), documents->pageCounts.end(), 0);
                problems_ = documents->problems;
                select();
                emit documentsOpened();
            },
            Qt::QueuedConnection);
    });
}

void PreviewRenderer::setLayout(const PageLayout &layout)
{
    if (layout == layout_) {
        return;
    }
    layout_ = layout;
    cancelDrawing();
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
        cancelDrawing();
        cache_.clear();
        emit changed();
    }
}

void PreviewRenderer::select()
{
    selected_.clear();
    if (documents_) {
        const std::function<bool(int)> all = [](int) { return true; };
        selected_ =
            sheetsOf(selectedPageRefs(documents_->pageCounts, isSelected_ ? isSelected_ : all), layout_.numberUp);
    }
}

void PreviewRenderer::cancelDrawing()
{
    cancel(drawing_);
}

void PreviewRenderer::request(int sheet, const QSize &pixels)
{
    cancelDrawing();
    if (!isOpen_ || sheet < 0 || sheet >= sheets() || pixels.isEmpty()) {
        return;
    }
    const QString name = QStringLiteral("%1 %2x%3").arg(sheet).arg(pixels.width()).arg(pixels.height());
    if (const QImage *known = cache_.object(name)) {
        emit ready(sheet, *known);
        return;
    }
    auto flag = std::make_shared<std::atomic<bool>>(false);
    drawing_ = flag;
    thread_.start([this, flag, name, sheet, pixels, pages = selected_[static_cast<std::size_t>(sheet)],
                   documents = documents_, layout = layout_] {
        if (*flag) {
            return;
        }
        const SourceOf sourceOf = [&](int document) -> PageSource & {
            return *documents->sources[static_cast<std::size_t>(document)];
        };
        const Outcome<QImage> drawn = drawSheet(pages, layout, sourceOf, pixels, *flag);
        QImage image = drawn.ok() ? drawn.value() : QImage();
        QMetaObject::invokeMethod(
            this,
            [this, flag, name, sheet, image = std::move(image)] {
                if (!*flag && !image.isNull()) {
                    cache_.insert(name, new QImage(image),
                                  static_cast<int>(image.sizeInBytes())); // the cache owns it
                    emit ready(sheet, image);
                }
            },
            Qt::QueuedConnection);
    });
}

} // namespace tessarin::host
