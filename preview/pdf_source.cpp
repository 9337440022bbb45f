// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_formats.h"
#include "preview/pdf_reader.h"

#include "printing/text.h"

#include <QObject>
#include <QPainter>
#include <QRectF>
#include <QTransform>
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

/// The quarter turns of a transformation that turns by nothing else.
Poppler::Page::Rotation rotationOf(const QTransform &transform)
{
    if (std::abs(transform.m11()) >= std::abs(transform.m12())) {
        return transform.m11() >= 0 ? Poppler::Page::Rotate0 : Poppler::Page::Rotate180;
    }
    return transform.m12() > 0 ? Poppler::Page::Rotate90 : Poppler::Page::Rotate270;
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
        // Poppler sets transformations of its own, which take the place of the painter's: what that one would do is
        // told in resolution, offset and rotation.
        const QTransform toDevice = painter.combinedTransform();
        const QRectF target = toDevice.mapRect(fitted(points, area));
        const Poppler::Page::Rotation rotation = rotationOf(toDevice);
        const bool isTurned = rotation == Poppler::Page::Rotate90 || rotation == Poppler::Page::Rotate270;
        const QSizeF shown = isTurned ? points.transposed() : points;
        const QPoint corner = target.topLeft().toPoint();
        painter.save();
        painter.resetTransform();
        painter.setClipRect(target, Qt::IntersectClip);
        document_->setRenderBackend(Poppler::Document::QPainterBackend);
        const bool painted =
            found->renderToPainter(&painter, target.width() / shown.width() * kPointsPerInch,
                                   target.height() / shown.height() * kPointsPerInch, -corner.x(), -corner.y(),
                                   corner.x() + static_cast<int>(std::ceil(target.width())) + 1,
                                   corner.y() + static_cast<int>(std::ceil(target.height())) + 1, rotation);
        painter.restore();
        return painted;
    }

private:
    std::unique_ptr<Poppler::Document> document_;
    int pageCount_;
};

OpenedPages openDocument(const QString &path)
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

class PdfReaderPlugIn final : public QObject, public PdfReader {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.tessarin.print.PdfReader/1")
    Q_INTERFACES(tessarin::host::PdfReader)

public:
    OpenedPages open(const QString &path) override { return openDocument(path); }
};

} // namespace

} // namespace tessarin::host

#include "pdf_source.moc"
