// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Documents for the tests of previews, and looks at pictures.

#ifndef TESSARIN_TESTS_PREVIEW_PREVIEW_TEST_SUPPORT_H
#define TESSARIN_TESTS_PREVIEW_PREVIEW_TEST_SUPPORT_H

#include "preview/page_source.h"

#include <QApplication>
#include <QColor>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QList>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QSize &size, std::ostream *out)
{
    *out << size.width() << " x " << size.height();
}

inline void PrintTo(const QSizeF &size, std::ostream *out)
{
    *out << size.width() << " x " << size.height();
}

inline void PrintTo(const QRectF &rect, std::ostream *out)
{
    *out << rect.x() << ", " << rect.y() << ", " << rect.width() << " x " << rect.height();
}

namespace tessarin::test {

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

/// The pages of a PDF for tests, each with a colour of its own in its first quarter (top left).
struct TestPage {
    QSizeF size = QSizeF(595, 842); ///< points
    QColor corner = Qt::red;
};

/// Writes the pages: white, the top left quarter filled with the page's colour.
inline void writePdfFile(const QString &path, const QList<TestPage> &pages)
{
    QPdfWriter writer(path);
    writer.setResolution(72);
    QPainter painter;
    for (const TestPage &page : pages) {
        const bool lies = page.size.width() > page.size.height();
        writer.setPageLayout(QPageLayout(QPageSize(lies ? page.size.transposed() : page.size, QPageSize::Point,
                                                   QString(), QPageSize::ExactMatch),
                                         lies ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
        if (!painter.isActive()) {
            painter.begin(&writer);
        } else {
            writer.newPage();
        }
        painter.fillRect(QRectF(0, 0, page.size.width() / 2, page.size.height() / 2), page.corner);
    }
}

/// Writes the first half of an image that does not compress.
inline void writeCutImage(const QString &path)
{
    QImage image(100, 100, QImage::Format_RGB32);
    quint32 value = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            value = value * 1664525U + 1013904223U;
            image.setPixel(x, y, 0xFF000000U | (value >> 8));
        }
    }
    if (!image.save(path)) {
        qFatal("%s cannot be written", qPrintable(path));
    }
    const QByteArray whole = readFile(path);
    writeFile(path, whole.left(whole.size() / 2));
}

/// The colour at a point given as fractions of the width and height: "red", "white" and so on, or its code.
inline std::string colourAt(const QImage &image, double x, double y)
{
    if (image.isNull()) {
        return "no image";
    }
    const QRgb found =
        image.pixel(static_cast<int>(x * (image.width() - 1)), static_cast<int>(y * (image.height() - 1)));
    struct Named {
        QRgb code = 0;
        const char *name = nullptr;
    };
    for (const Named &named :
         {Named{0xFFFFFFFF, "white"}, Named{0xFF000000, "black"}, Named{0xFFFF0000, "red"},
          Named{0xFF00FF00, "green"}, Named{0xFF0000FF, "blue"}, Named{0xFFFFFF00, "yellow"}}) {
        if (std::abs(qRed(found) - qRed(named.code)) < 12 && std::abs(qGreen(found) - qGreen(named.code)) < 12 &&
            std::abs(qBlue(found) - qBlue(named.code)) < 12) {
            return named.name;
        }
    }
    return QColor::fromRgb(found).name().toStdString();
}

/// The number of pixels darker than a middle grey.
inline int darkPixels(const QImage &image, const QRect &area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        }
    }
    return count;
}

/// Runs the event loop until `done` or a few seconds have passed; answers whether it was done.
inline bool waitFor(const std::function<bool()> &done)
{
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < 20000) {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    return done();
}

} // namespace tessarin::test

#endif
