// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Documents of every kind, good and bad.

#include "preview/page_source.h"
#include "tests/preview/preview_test_support.h"

#include <QImageWriter>

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

namespace tessarin::host {
namespace {

using test::colourAt;
using test::writeFile;
using test::writePdfFile;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kKeepsFreedMemory = true;
#else
constexpr bool kKeepsFreedMemory = false;
#endif

class PageSources : public testing::Test {
protected:
    QString path(const char *name) const { return folder_.filePath(QLatin1String(name)); }
    /// The file with this content, opened.
    Outcome<std::unique_ptr<PageSource>> open(const char *name, const QByteArray &content)
    {
        writeFile(path(name), content);
        return openPages(path(name));
    }

    QTemporaryDir folder_{};
    std::atomic<bool> never_ = false;
};

TEST_F(PageSources, PdfHasItsPagesInTheirSizes)
{
    writePdfFile(path("two.pdf"), {{.size = QSizeF(300, 400)}, {.size = QSizeF(500, 200), .corner = Qt::blue}});
    const auto pages = openPages(path("two.pdf"));
    ASSERT_TRUE(pages.ok()) << pages.reason().toStdString();
    EXPECT_EQ(pages.value()->pageCount(), 2);
    EXPECT_EQ(pages.value()->pageSize(0), QSizeF(300, 400));
    EXPECT_EQ(pages.value()->pageSize(1), QSizeF(500, 200));
    EXPECT_TRUE(pages.value()->hasFixedSize());
    EXPECT_TRUE(pages.value()->isPdf());

    const QImage second = pages.value()->render(1, QSize(100, 100), never_);
    EXPECT_EQ(second.size(), QSize(100, 40));
    EXPECT_EQ(colourAt(second, 0.25, 0.25), "blue");
    EXPECT_EQ(colourAt(second, 0.75, 0.25), "white");
    EXPECT_EQ(colourAt(second, 0.25, 0.75), "white");
}

TEST_F(PageSources, PdfIsPaintedWithItsProportions)
{
    writePdfFile(path("one.pdf"), {{.size = QSizeF(200, 100), .corner = Qt::red}});
    const auto pages = openPages(path("one.pdf"));
    ASSERT_TRUE(pages.ok());
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    QPainter painter(&image);
    ASSERT_TRUE(pages.value()->paint(0, painter, QRectF(0, 0, 100, 100)));
    painter.end();
    EXPECT_EQ(colourAt(image, 0.05, 0.3), "red"); // the page lies in the middle, 50 high
    EXPECT_EQ(colourAt(image, 0.45, 0.45), "red");
    EXPECT_NE(colourAt(image, 0.55, 0.45), "red");
    EXPECT_NE(colourAt(image, 0.45, 0.55), "red");
    EXPECT_EQ(colourAt(image, 0.25, 0.1), "yellow");
    EXPECT_EQ(colourAt(image, 0.25, 0.9), "yellow");
}

TEST_F(PageSources, PdfFollowsThePaintersTransformation)
{
    writePdfFile(path("one.pdf"), {{.size = QSizeF(200, 100), .corner = Qt::red}});
    const auto pages = openPages(path("one.pdf"));
    ASSERT_TRUE(pages.ok());
    struct Case {
        int angle = 0;
        QPointF origin{};
    };
    for (const Case &one : {Case{0, {20, 40}}, Case{90, {60, 20}}, Case{180, {80, 60}}, Case{270, {40, 80}}}) {
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::yellow);
        QPainter painter(&image);
        painter.translate(one.origin);
        painter.rotate(one.angle);
        painter.scale(2, 2);
        // 60 x 30 pixels at the origin; its corner is the first quarter of that
        ASSERT_TRUE(pages.value()->paint(0, painter, QRectF(0, 0, 30, 15)));
        painter.end();
        int red = 0;
        for (int y = 0; y < 100; ++y) {
            for (int x = 0; x < 100; ++x) {
                red += image.pixelColor(x, y) == QColor(Qt::red) ? 1 : 0;
            }
        }
        EXPECT_NEAR(red, 30 * 15, 50) << one.angle;
        QTransform turn;
        turn.translate(one.origin.x(), one.origin.y());
        turn.rotate(one.angle);
        const QPointF corner = turn.map(QPointF(3, 3));
        const QPointF end = turn.map(QPointF(27, 12));
        const QPointF beyond = turn.map(QPointF(33, 18));
        EXPECT_EQ(colourAt(image, corner.x() / 99, corner.y() / 99), "red") << one.angle;
        EXPECT_EQ(colourAt(image, end.x() / 99, end.y() / 99), "red") << one.angle;
        EXPECT_NE(colourAt(image, beyond.x() / 99, beyond.y() / 99), "red") << one.angle;
    }
}

TEST_F(PageSources, PageThatIsNotThereIsNoPicture)
{
    writePdfFile(path("one.pdf"), {{}});
    const auto pages = openPages(path("one.pdf"));
    ASSERT_TRUE(pages.ok());
    EXPECT_TRUE(pages.value()->render(1, QSize(50, 50), never_).isNull());
    EXPECT_TRUE(pages.value()->pageSize(7).isEmpty());
    EXPECT_TRUE(pages.value()->render(0, QSize(), never_).isNull());
}

TEST_F(PageSources, CancelledDrawingIsNoPicture)
{
    writePdfFile(path("one.pdf"), {{}});
    const auto pages = openPages(path("one.pdf"));
    ASSERT_TRUE(pages.ok());
    const std::atomic<bool> at_once = true;
    EXPECT_TRUE(pages.value()->render(0, QSize(50, 50), at_once).isNull());
}

TEST_F(PageSources, DamagedPdfSaysSo)
{
    writePdfFile(path("whole.pdf"), {{}, {}});
    const QByteArray whole = test::readFile(path("whole.pdf"));
    const auto cut = open("cut.pdf", whole.left(200));
    ASSERT_FALSE(cut.ok());
    EXPECT_EQ(cut.reason(), QStringLiteral("cut.pdf: the PDF file is damaged"));
    const auto header = open("header.pdf", "%PDF-1.4\nnothing else\n");
    ASSERT_FALSE(header.ok());
    EXPECT_EQ(header.reason(), QStringLiteral("header.pdf: the PDF file is damaged"));
}

TEST_F(PageSources, PdfWithPasswordSaysSo)
{
    const QByteArray key(32, 'x');
    const auto locked = open("locked.pdf", "%PDF-1.4\n"
                                           "1 0 obj\n<</Type/Catalog/Pages 2 0 R>>\nendobj\n"
                                           "2 0 obj\n<</Type/Pages/Kids[3 0 R]/Count 1>>\nendobj\n"
                                           "3 0 obj\n<</Type/Page/Parent 2 0 R/MediaBox[0 0 99 99]>>\nendobj\n"
                                           "4 0 obj\n<</Filter/Standard/V 1/R 2/P -4/O(" +
                                               key + ")/U(" + key +
                                               ")>>\nendobj\n"
                                               "trailer\n<</Root 1 0 R/Encrypt 4 0 R/Size 5"
                                               "/ID[<00112233445566778899AABBCCDDEEFF>"
                                               "<00112233445566778899AABBCCDDEEFF>]>>\n%%EOF\n");
    ASSERT_FALSE(locked.ok());
    EXPECT_EQ(locked.reason(), QStringLiteral("locked.pdf: the PDF file is protected by a password"));
}

TEST_F(PageSources, ThousandPagesOpenAtOnce)
{
    writePdfFile(path("thousand.pdf"), QList<test::TestPage>(1000));
    QElapsedTimer timer;
    timer.start();
    const auto pages = openPages(path("thousand.pdf"));
    const qint64 opening = timer.nsecsElapsed();
    ASSERT_TRUE(pages.ok());
    EXPECT_EQ(pages.value()->pageCount(), 1000);
    EXPECT_EQ(colourAt(pages.value()->render(999, QSize(50, 50), never_), 0.25, 0.25), "red");

    struct rusage before = {};
    getrusage(RUSAGE_SELF, &before);
    timer.restart();
    for (int page = 0; page < 1000; page += 5) {
        ASSERT_FALSE(pages.value()->render(page, QSize(300, 300), never_).isNull());
    }
    EXPECT_LT(opening, timer.nsecsElapsed()); // of a fifth of the pages: opening looks at none of them
    struct rusage after = {};
    getrusage(RUSAGE_SELF, &after);
    if (!kKeepsFreedMemory) {
        EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 64 * 1024); // KiB; 200 pictures at once would be more
    }
}

TEST_F(PageSources, ImagesAreReadAtTheSizeThatIsWanted)
{
    QImage image(400, 200, QImage::Format_RGB32);
    image.fill(Qt::green);
    for (const char *name : {"image.png", "image.jpg", "image.bmp", "image.ppm"}) {
        ASSERT_TRUE(image.save(path(name)));
        const auto pages = openPages(path(name));
        ASSERT_TRUE(pages.ok()) << pages.reason().toStdString();
        EXPECT_EQ(pages.value()->pageCount(), 1);
        EXPECT_EQ(pages.value()->pageSize(0), QSizeF(400, 200));
        EXPECT_FALSE(pages.value()->hasFixedSize());
        const QImage small = pages.value()->render(0, QSize(50, 50), never_);
        EXPECT_EQ(small.size(), QSize(50, 25));
        EXPECT_EQ(colourAt(small, 0.5, 0.5), "green");
        EXPECT_EQ(pages.value()->render(0, QSize(800, 800), never_).size(), QSize(800, 400));
    }
}

TEST_F(PageSources, ImageStandsUprightAsItsCameraSaid)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter(&image).fillRect(0, 0, 20, 20, Qt::blue); // the left half
    QImageWriter writer(path("turned.jpg"));
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(writer.write(image));
    const auto pages = openPages(path("turned.jpg"));
    ASSERT_TRUE(pages.ok());
    EXPECT_EQ(pages.value()->pageSize(0), QSizeF(20, 40));
    const QImage upright = pages.value()->render(0, QSize(10, 100), never_);
    EXPECT_EQ(upright.size(), QSize(10, 20));
    EXPECT_EQ(colourAt(upright, 0.5, 0.1), "blue");
    EXPECT_EQ(colourAt(upright, 0.5, 0.9), "white");
}

TEST_F(PageSources, DamagedImageIsNoPicture)
{
    test::writeCutImage(path("cut.png"));
    const auto pages = openPages(path("cut.png"));
    ASSERT_TRUE(pages.ok()); // its header says what it is
    EXPECT_TRUE(pages.value()->render(0, QSize(40, 40), never_).isNull());
}

TEST_F(PageSources, FormatsWithoutPreviewSaySo)
{
    const QString why = QStringLiteral(": there is no preview of this kind of document");
    EXPECT_EQ(open("letter.ps", "%!PS-Adobe-3.0\nshowpage\n").reason(), QStringLiteral("letter.ps") + why);
    EXPECT_EQ(open("letter.odt", QByteArray("PK\x03\x04\x14\x00\x00\x08", 8)).reason(),
              QStringLiteral("letter.odt") + why);
    EXPECT_EQ(open("job.prn", "\x1B%-12345X@PJL\n").reason(), QStringLiteral("job.prn") + why);
    EXPECT_EQ(open("late.bin", QByteArray(3000, 'a') + '\0').reason(), QStringLiteral("late.bin") + why);
}

TEST_F(PageSources, WhatIsNoFileIsRefusedWithoutWaiting)
{
    EXPECT_EQ(open("empty.pdf", "").reason(), QStringLiteral("empty.pdf: the file is empty"));
    EXPECT_EQ(openPages(path("missing.pdf")).reason(), QStringLiteral("missing.pdf: No such file or directory"));
    EXPECT_TRUE(openPages(folder_.path()).reason().endsWith(QStringLiteral(": it is a directory")));
    ASSERT_EQ(mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    EXPECT_EQ(openPages(path("pipe")).reason(), QStringLiteral("pipe: it is not a regular file"));
    EXPECT_EQ(openPages(QStringLiteral("/dev/zero")).reason(), QStringLiteral("zero: it is not a regular file"));
}

} // namespace
} // namespace tessarin::host
