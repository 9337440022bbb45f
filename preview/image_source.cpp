// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_formats.h"

#include "printing/text.h"

#include <QImageReader>
#include <QPainter>
#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>

namespace tessarin::host {

namespace {

// The memory that reading one image may take, in MiB: a scan of A4 at 600 dots per inch needs 133.
constexpr int kMemoryLimit = 256;
// The most pixels of a picture that goes into a PDF file: A4 at 600 dots per inch has 35 million.
constexpr double kMostPixels = 36e6;
// Not what a print server takes for an image, or recognised by next to nothing.
constexpr std::array kOtherFormats = {"pdf", "svg", "svgz", "tga", "wbmp", "xbm", "xpm"};

void prepare(QImageReader &reader)
{
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    QImageReader::setAllocationLimit(kMemoryLimit);
}

bool isTransposed(const QImageReader &reader)
{
    return reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
}

/// Reads the image at `size`, or as it is when it is smaller than that; null when it cannot be read. The size is
/// that of the upright image.
QImage readScaled(const QString &path, const QSize &full, const QSize &size)
{
    QImageReader reader(path);
    prepare(reader);
    if (size.width() < full.width()) {
        reader.setScaledSize(isTransposed(reader) ? size.transposed() : size);
    }
    return reader.read();
}

/// Reads the file anew for each picture, at the size that is wanted: what is kept in memory is only the path.
class ImageSource final : public PageSource {
public:
    ImageSource(QString path, const QSize &size) : path_(std::move(path)), size_(size) {}

    int pageCount() const override { return 1; }
    QSizeF pageSize(int /*page*/) const override { return size_; }
    bool hasFixedSize() const override { return false; }

    QImage render(int /*page*/, const QSize &pixels, const std::atomic<bool> &cancelled) const override
    {
        const QSize wanted = fittedPixels(size_, pixels);
        const QImage image = wanted.isEmpty() || cancelled ? QImage() : readScaled(path_, size_, wanted);
        return image.isNull() || cancelled ? QImage()
                                           : image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }

    bool paint(int /*page*/, QPainter &painter, const QRectF &area) const override
    {
        const double pixels = static_cast<double>(size_.width()) * size_.height();
        const double factor = std::min(1.0, std::sqrt(kMostPixels / pixels));
        const QImage image = readScaled(path_, size_, (QSizeF(size_) * factor).toSize().expandedTo(QSize(1, 1)));
        if (image.isNull()) {
            return false;
        }
        painter.save();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(fitted(size_, area), image);
        painter.restore();
        return true;
    }

private:
    QString path_;
    QSize size_; ///< of the upright image, in pixels
};

} // namespace

bool isImage(const QString &path)
{
    QImageReader reader(path);
    prepare(reader);
    const QByteArray format = reader.format();
    return !format.isEmpty() && reader.canRead() &&
           std::none_of(kOtherFormats.begin(), kOtherFormats.end(),
                        [&format](const char *other) { return format == other; });
}

OpenedPages openImage(const QString &path)
{
    QImageReader reader(path);
    prepare(reader);
    QSize size = reader.size();
    if (size.isValid() && isTransposed(reader)) {
        size.transpose();
    }
    if (!size.isValid()) { // a format that tells its size only when it is read
        size = reader.read().size();
    }
    if (size.isEmpty()) {
        return cannotShow(path, TessarinPrint::tr("the image cannot be read: %1").arg(reader.errorString()));
    }
    return OpenedPages(std::make_unique<ImageSource>(path, size));
}

} // namespace tessarin::host
