// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// PDF files that are written, read again.

#include "preview/pdf_writer.h"
#include "tests/preview/preview_test_support.h"

#include <QDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tessarin::host {
namespace {

using test::colourAt;

class PdfWriting : public testing::Test {
protected:
    QString path(const char *name) const { return folder_.filePath(QLatin1String(name)); }
    QString pdf(const char *name, const QList<test::TestPage> &pages) const
    {
        test::writePdfFile(path(name), pages);
        return path(name);
    }
    Outcome<int> write(const QStringList &documents, PdfRequest request)
    {
        request.target = target_;
        return writePdf(documents, request, cancelled_,
                        [this](int done, int total) { progress_ << QStringLiteral("%1/%2").arg(done).arg(total); });
    }
    /// The file that was written.
    std::unique_ptr<PageSource> written() const
    {
        auto opened = openPages(target_);
        EXPECT_EQ(opened.reason(), QString());
        return opened.ok() ? opened.take() : nullptr;
    }
    std::string corner(const PageSource &pages, int page) const
    {
        return colourAt(pages.render(page, QSize(80, 80), never_), 0.2, 0.2);
    }
    QStringList files() const { return QDir(folder_.path()).entryList(QDir::Files, QDir::Name); }

    QTemporaryDir folder_{};
    QString target_ = path("out.pdf");
    std::atomic<bool> cancelled_ = false;
    std::atomic<bool> never_ = false;
    QStringList progress_{};
};

TEST_F(PdfWriting, SelectedPagesInOrder)
{
    const QString one = pdf("one.pdf", {{.corner = Qt::red}, {.corner = Qt::green}, {.corner = Qt::blue}});
    const Outcome<int> result = write({one}, {.isSelected = [](int page) { return page != 2; }, .title = "Title"});
    ASSERT_TRUE(result.ok()) << result.reason().toStdString();
    EXPECT_EQ(result.value(), 2);
    EXPECT_EQ(progress_, (QStringList{"1/2", "2/2"}));
    const auto pages = written();
    ASSERT_TRUE(pages);
    EXPECT_EQ(pages->pageCount(), 2);
    EXPECT_EQ(corner(*pages, 0), "red");
    EXPECT_EQ(corner(*pages, 1), "blue");
    EXPECT_EQ(pages->pageSize(0), QSizeF(595, 842));
    EXPECT_EQ(files(), (QStringList{"one.pdf", "out.pdf"}));
}

TEST_F(PdfWriting, PagesStayVectors)
{
    const QString one = pdf("one.pdf", {{}, {}});
    ASSERT_TRUE(write({one}, {.isSelected = [](int page) { return page == 1; }}).ok());
    EXPECT_FALSE(test::readFile(target_).contains("/Subtype /Image"));
    ASSERT_TRUE(write({one}, {.layout = {.grey = true}}).ok());
    EXPECT_TRUE(test::readFile(target_).contains("/Subtype /Image"));
}

TEST_F(PdfWriting, WholePdfIsCopied)
{
    const QString one = pdf("one.pdf", {{}, {.size = QSizeF(842, 595)}});
    const Outcome<int> result = write({one}, {});
    ASSERT_TRUE(result.ok());
    EXPECT_EQ(result.value(), 2);
    EXPECT_EQ(test::readFile(target_), test::readFile(one));
    ASSERT_TRUE(write({one}, {.layout = {.paper = QSizeF(420, 595)}}).ok());
    EXPECT_NE(test::readFile(target_), test::readFile(one)); // another paper
    const auto pages = written();
    ASSERT_TRUE(pages);
    EXPECT_EQ(pages->pageSize(0).toSize(), QSize(420, 595));
    EXPECT_EQ(pages->pageSize(1).toSize(), QSize(595, 420)); // it lies
    EXPECT_EQ(corner(*pages, 1), "red");
}

TEST_F(PdfWriting, DocumentsOfAllKinds)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::green);
    ASSERT_TRUE(image.save(path("image.png")));
    test::writeFile(path("notes.txt"), QByteArray("line\n").repeated(640));
    const Outcome<int> result =
        write({pdf("one.pdf", {{.corner = Qt::blue}}), path("image.png"), path("notes.txt")}, {});
    ASSERT_TRUE(result.ok()) << result.reason().toStdString();
    EXPECT_EQ(result.value(), 12); // 1, 1, and 10 of the text
    const auto pages = written();
    ASSERT_TRUE(pages);
    ASSERT_EQ(pages->pageCount(), 12);
    EXPECT_EQ(corner(*pages, 0), "blue");
    EXPECT_EQ(corner(*pages, 1), "green");
    EXPECT_EQ(pages->pageSize(1).toSize(), QSize(842, 595));
    const QImage text = pages->render(11, QSize(595, 842), never_);
    EXPECT_GT(test::darkPixels(text, QRect(36, 36, 40, 770)), 500);
    EXPECT_EQ(test::darkPixels(text, QRect(100, 0, 495, 842)), 0);
}

TEST_F(PdfWriting, SeveralPagesOnASide)
{
    const QString one = pdf("one.pdf", {{.corner = Qt::red}, {.corner = Qt::blue}, {.corner = Qt::green}});
    const Outcome<int> result = write({one}, {.layout = {.numberUp = 2}});
    ASSERT_TRUE(result.ok());
    EXPECT_EQ(result.value(), 2);
    const auto pages = written();
    ASSERT_TRUE(pages);
    EXPECT_EQ(pages->pageCount(), 2);
    const QImage first = pages->render(0, QSize(300, 300), never_);
    EXPECT_GT(first.width(), first.height());
    EXPECT_EQ(colourAt(first, 0.1, 0.25), "red");
    EXPECT_EQ(colourAt(first, 0.6, 0.25), "blue");
}

TEST_F(PdfWriting, ReversedAndTurnedPages)
{
    const QString one = pdf("one.pdf", {{.corner = Qt::red}, {.size = QSizeF(842, 595), .corner = Qt::blue}});
    ASSERT_TRUE(write({one}, {.layout = {.orientation = 6}}).ok());
    auto pages = written();
    ASSERT_TRUE(pages);
    EXPECT_EQ(colourAt(pages->render(0, QSize(300, 300), never_), 0.75, 0.75), "red");
    EXPECT_EQ(colourAt(pages->render(0, QSize(300, 300), never_), 0.25, 0.25), "white");
    ASSERT_TRUE(write({one}, {.layout = {.numberUp = 4}}).ok());
    pages = written();
    ASSERT_TRUE(pages);
    const QImage sheet = pages->render(0, QSize(300, 300), never_);
    EXPECT_EQ(colourAt(sheet, 0.12, 0.12), "red");
    EXPECT_EQ(colourAt(sheet, 0.6, 0.4), "blue"); // turned counterclockwise
    EXPECT_EQ(colourAt(sheet, 0.6, 0.1), "white");
}

TEST_F(PdfWriting, GreyHasNoColoursAndNoMarginLines)
{
    const QString one = pdf("one.pdf", {{.corner = Qt::red}});
    ASSERT_TRUE(write({one}, {.layout = {.margins = QMarginsF(60, 60, 60, 60), .grey = true}}).ok());
    const auto pages = written();
    ASSERT_TRUE(pages);
    const QImage picture = pages->render(0, QSize(300, 300), never_);
    EXPECT_TRUE(picture.allGray());
    EXPECT_LT(qGray(picture.pixel(60, 60)), 160);
    EXPECT_EQ(test::darkPixels(picture, QRect(picture.width() / 2 + 5, 0, 90, 300)), 0);
}

TEST_F(PdfWriting, CancelLeavesNothingBehind)
{
    const QString one = pdf("one.pdf", QList<test::TestPage>(50));
    PdfRequest request{.target = target_, .layout = {.numberUp = 2}};
    const Outcome<int> result =
        writePdf({one}, request, cancelled_, [this](int done, int) { cancelled_ = done == 3; });
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.reason(), QStringLiteral("cancelled"));
    EXPECT_EQ(files(), QStringList{"one.pdf"});
    cancelled_ = true;
    EXPECT_FALSE(write({one}, {}).ok());
    EXPECT_EQ(files(), QStringList{"one.pdf"});
}

TEST_F(PdfWriting, FailuresNameTheFileAndKeepTheTarget)
{
    const QString one = pdf("one.pdf", {{}});
    test::writeFile(target_, "before");
    test::writeFile(path("letter.ps"), "%!PS\n");
    EXPECT_EQ(write({one, path("letter.ps")}, {}).reason(),
              QStringLiteral("letter.ps: there is no preview of this kind of document"));
    test::writeCutImage(path("cut.png"));
    EXPECT_EQ(write({one, path("cut.png")}, {}).reason(), QStringLiteral("cut.png: page 1 cannot be drawn"));
    EXPECT_EQ(write({one}, {.isSelected = [](int) { return false; }}).reason(),
              QStringLiteral("out.pdf: none of the pages is selected"));
    EXPECT_EQ(test::readFile(target_), QByteArray("before"));
    EXPECT_EQ(files().filter(QStringLiteral("out.pdf")), QStringList{"out.pdf"}); // no temporary file either
}

TEST_F(PdfWriting, TargetsThatCannotBeWritten)
{
    const QString one = pdf("one.pdf", {{}});
    target_ = path("missing/out.pdf");
    EXPECT_TRUE(write({one}, {}).reason().startsWith(QStringLiteral("out.pdf: ")));
    target_ = folder_.path();
    EXPECT_TRUE(write({one}, {}).reason().endsWith(QStringLiteral(": it is not a regular file")));
    target_ = path("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(target_).constData(), 0600), 0);
    EXPECT_EQ(write({one}, {}).reason(), QStringLiteral("pipe: it is not a regular file"));
}

TEST_F(PdfWriting, ADocumentMayBeItsOwnTarget)
{
    target_ = pdf("one.pdf", {{.corner = Qt::red}, {.corner = Qt::blue}});
    ASSERT_TRUE(write({target_}, {.isSelected = [](int page) { return page == 2; }}).ok());
    const auto pages = written();
    ASSERT_TRUE(pages);
    EXPECT_EQ(pages->pageCount(), 1);
    EXPECT_EQ(corner(*pages, 0), "blue");
}

TEST_F(PdfWriting, ThousandPages)
{
    const QString one = pdf("one.pdf", QList<test::TestPage>(1000));
    const Outcome<int> result = write({one}, {.isSelected = [](int page) { return page > 1; }});
    ASSERT_TRUE(result.ok());
    EXPECT_EQ(result.value(), 999);
    const auto pages = written();
    ASSERT_TRUE(pages);
    EXPECT_EQ(pages->pageCount(), 999);
}

} // namespace
} // namespace tessarin::host
