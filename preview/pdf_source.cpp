// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_formats.h"

#include "printing/text.h"

#include <QPainter>
#include <QRectF>
#include <QVariant>

#include <cmath>
#include <utility>

#include <poppler-qt6.h>

namespace tessarin::host {

namespace {

constexpr double kPointsPerInch = 72;

void ignoreMessage(const QString & /*message*/, const QVariant & /*closure*/) {}

/// Poppler tells every oddity of a document on the error output otherwise; what matters shows in its results.
void silencePoppler()
{
    static const bool done = [] {
        Poppler::setDebugErrorFunction(ignoreMessage, QVariant());
        return true;
    }();
    Q_UNUSED(done)
}

bool isCancelled(const QVariant &flag)
{
    return *static_cast<const std::atomic<bool> *>(flag.value<const void *>());
}

class PdfSource final : public PageSource {
public:
    explicit PdfSource(std::unique_ptr<Poppler::Document> document)
        : document_(std::move(document)), pageCount_(document_->numPages())
    {
        document_->setRenderHint(Poppler::Document::Antialiasing);
        document_->setRenderHint(Poppler::Document::TextAntialiasing);
    }

    int pageCount() const override { return pageCount_; }
    bool isPdf() const override { return true; }

    QSizeF pageSize(int page) const override
    {
        const std::unique_ptr<Poppler::Page> found = document_->page(page);
        const QSizeF size = found ? found->pageSizeF() : QSizeF();
        return std::isfinite(size.width()) && std::isfinite(size.height()) ? size : QSizeF();
    }

    QImage render(int page, const QSize &pixels, const std::atomic<bool> &cancelled) const override
    {
        const std::unique_ptr<Poppler::Page> found = document_->page(page);
        const QSizeF points = pageSize(page);
        const QSize size = fittedPixels(points, pixels);
        if (!found || size.isEmpty()) {
            return {};
        }
        document_->setRenderBackend(Poppler::Document::SplashBackend);
        const QImage image = found->renderToImage(
            size.width() / points.width() * kPointsPerInch, size.height() / points.height() * kPointsPerInch, 0, 0,
            size.width(), size.height(), Poppler::Page::Rotate0, nullptr, nullptr, isCancelled,
            QVariant::fromValue(static_cast<const void *>(&cancelled)));
        return cancelled ? QImage() : image;
    }

    bool paint(int page, QPainter &painter, const QRectF &area) const override
    {
        const std::unique_ptr<Poppler::Page> found = document_->page(page);
        const QSizeF points = pageSize(page);
        if (!found || points.isEmpty()) {
            return false;
        }
        const QRectF target = fitted(points, area);
        painter.save();
        painter.setClipRect(target, Qt::IntersectClip);
        painter.translate(target.topLeft());
        painter.scale(target.width() / points.width(), target.height() / points.height());
        document_->setRenderBackend(Poppler::Document::QPainterBackend);
        const bool painted = found->renderToPainter(&painter, kPointsPerInch, kPointsPerInch);
        painter.restore();
        return painted;
    }

private:
    std::unique_ptr<Poppler::Document> document_;
    int pageCount_;
};

} // namespace

OpenedPages openPdf(const QString &path)
{
    silencePoppler();
    std::unique_ptr<Poppler::Document> document = Poppler::Document::load(path);
    if (!document) {
        return cannotShow(path, TessarinPrint::tr("the PDF file is damaged"));
    }
    if (document->isLocked()) {
        return cannotShow(path, TessarinPrint::tr("the PDF file is protected by a password"));
    }
    if (document->numPages() < 1) {
        return cannotShow(path, TessarinPrint::tr("the PDF file has no pages"));
    }
    return OpenedPages(std::make_unique<PdfSource>(std::move(document)));
}

} // namespace tessarin::host
