// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where pages go on sheets, seen in the pictures.

#include "preview/page_painter.h"
#include "tests/preview/preview_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using test::colourAt;

constexpr QSizeF kPaper(600, 800);

class PagePainter : public testing::Test {
protected:
    /// A document of these pages.
    void use(const QList<test::TestPage> &pages)
    {
        const QString path = folder_.filePath("pages.pdf");
        test::writePdfFile(path, pages);
        auto opened = openPages(path);
        ASSERT_TRUE(opened.ok()) << opened.reason().toStdString();
        source_ = opened.take();
    }
    void useImage(const QSize &size, Qt::GlobalColor colour)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(folder_.filePath("image.png")));
        auto opened = openPages(folder_.filePath("image.png"));
        ASSERT_TRUE(opened.ok());
        source_ = opened.take();
    }
    QImage draw(const PageLayout &layout, int pages = 1, const QSize &pixels = QSize(300, 300))
    {
        Sheet sheet;
        for (int page = 0; page < pages; ++page) {
            sheet.push_back({.page = page});
        }
        const Outcome<QImage> drawn = drawSheet(
            sheet, layout, [this](int) -> PageSource & { return *source_; }, pixels, never_);
        EXPECT_EQ(drawn.reason(), QString());
        return drawn.ok() ? drawn.value() : QImage();
    }

    QTemporaryDir folder_{};
    std::unique_ptr<PageSource> source_{};
    std::atomic<bool> never_ = false;
};

TEST_F(PagePainter, SheetHasThePapersProportions)
{
    use({{.size = kPaper}});
    const QImage image = draw({.paper = kPaper});
    EXPECT_EQ(image.size(), QSize(225, 300));
    EXPECT_EQ(colourAt(image, 0.25, 0.25), "red");
    EXPECT_EQ(colourAt(image, 0.49, 0.49), "red");
    EXPECT_EQ(colourAt(image, 0.51, 0.25), "white");
    EXPECT_EQ(colourAt(image, 0.25, 0.51), "white");
}

TEST_F(PagePainter, SmallPageKeepsItsSizeInTheMiddle)
{
    use({{.size = QSizeF(300, 400)}}); // a quarter of the paper: its corner is at 150, 200 of 600 x 800
    const QImage image = draw({.paper = kPaper});
    EXPECT_EQ(colourAt(image, 0.27, 0.27), "red");
    EXPECT_EQ(colourAt(image, 0.48, 0.48), "red");
    EXPECT_EQ(colourAt(image, 0.23, 0.27), "white");
    EXPECT_EQ(colourAt(image, 0.27, 0.23), "white");
}

TEST_F(PagePainter, LargePageFitsIntoThePrintableArea)
{
    use({{.size = QSizeF(1200, 1600)}});
    const QImage image = draw({.paper = kPaper, .margins = QMarginsF(60, 80, 60, 80)});
    EXPECT_EQ(colourAt(image, 0.05, 0.05), "white");
    EXPECT_EQ(colourAt(image, 0.12, 0.12), "red");
    EXPECT_EQ(colourAt(image, 0.48, 0.48), "red");
    EXPECT_EQ(colourAt(image, 0.52, 0.48), "white");
}

TEST_F(PagePainter, NothingIsPrintedInTheMargins)
{
    use({{.size = kPaper}});
    const QImage image = draw({.paper = kPaper, .margins = QMarginsF(60, 160, 60, 80)});
    EXPECT_EQ(colourAt(image, 0.05, 0.3), "white");
    EXPECT_EQ(colourAt(image, 0.3, 0.15), "white");
    EXPECT_EQ(colourAt(image, 0.15, 0.25), "red");
    // The line at the left margin is dashed: dark and light points of it.
    int marks = 0;
    for (int y = 160; y < 260; ++y) {
        marks += qGray(image.pixel(22, y)) < 200 || qGray(image.pixel(23, y)) < 200 ? 1 : 0;
    }
    EXPECT_GT(marks, 30);
    EXPECT_LT(marks, 95);
}

TEST_F(PagePainter, AutomaticallyTheSheetLiesForPagesInLandscape)
{
    use({{.size = kPaper.transposed()}});
    const QImage image = draw({.paper = kPaper, .margins = QMarginsF(0, 0, 0, 200)});
    EXPECT_EQ(image.size(), QSize(300, 225));
    EXPECT_EQ(colourAt(image, 0.1, 0.25), "white"); // the paper's lower margin comes to the left
    EXPECT_EQ(colourAt(image, 0.3, 0.25), "red");
    EXPECT_EQ(colourAt(image, 0.3, 0.75), "white");
}

TEST_F(PagePainter, RequestedOrientationsHold)
{
    use({{.size = kPaper}});
    const QImage landscape = draw({.paper = kPaper, .orientation = 4});
    EXPECT_EQ(landscape.size(), QSize(300, 225)); // the page is 450 wide in the middle of 800
    EXPECT_EQ(colourAt(landscape, 0.25, 0.25), "red");
    EXPECT_EQ(colourAt(landscape, 0.19, 0.25), "white");
    const QImage reverse = draw({.paper = kPaper, .orientation = 5});
    EXPECT_EQ(reverse.size(), QSize(300, 225));
    EXPECT_EQ(colourAt(reverse, 0.75, 0.75), "red");
    EXPECT_EQ(colourAt(reverse, 0.25, 0.25), "white");
    const QImage upsideDown = draw({.paper = kPaper, .orientation = 6});
    EXPECT_EQ(upsideDown.size(), QSize(225, 300));
    EXPECT_EQ(colourAt(upsideDown, 0.75, 0.75), "red");
    EXPECT_EQ(colourAt(upsideDown, 0.25, 0.25), "white");
    use({{.size = kPaper.transposed()}});
    const QImage portrait = draw({.paper = kPaper, .orientation = 3}); // fitted: 600 x 450
    EXPECT_EQ(portrait.size(), QSize(225, 300));
    EXPECT_EQ(colourAt(portrait, 0.25, 0.25), "red");
    EXPECT_EQ(colourAt(portrait, 0.25, 0.19), "white");
}

TEST_F(PagePainter, TwoPagesStandSideBySideOnALyingSheet)
{
    use({{.size = kPaper, .corner = Qt::red}, {.size = kPaper, .corner = Qt::blue}});
    const QImage image = draw({.paper = kPaper, .numberUp = 2}, 2);
    EXPECT_EQ(image.size(), QSize(300, 225)); // cells of 400 x 600, pages of 400 x 533
    EXPECT_EQ(colourAt(image, 0.1, 0.25), "red");
    EXPECT_EQ(colourAt(image, 0.4, 0.25), "white");
    EXPECT_EQ(colourAt(image, 0.6, 0.25), "blue");
    EXPECT_EQ(colourAt(image, 0.9, 0.25), "white");
}

TEST_F(PagePainter, FourPagesGoLeftToRightThenDown)
{
    use({{.size = kPaper, .corner = Qt::red},
         {.size = kPaper, .corner = Qt::blue},
         {.size = kPaper, .corner = Qt::green},
         {.size = kPaper, .corner = Qt::black}});
    const QImage image = draw({.paper = kPaper, .numberUp = 4}, 4);
    EXPECT_EQ(image.size(), QSize(225, 300));
    EXPECT_EQ(colourAt(image, 0.12, 0.12), "red");
    EXPECT_EQ(colourAt(image, 0.62, 0.12), "blue");
    EXPECT_EQ(colourAt(image, 0.12, 0.62), "green");
    EXPECT_EQ(colourAt(image, 0.62, 0.62), "black");
    EXPECT_EQ(colourAt(image, 0.38, 0.12), "white");
    const QImage three = draw({.paper = kPaper, .numberUp = 4}, 3);
    EXPECT_EQ(colourAt(three, 0.62, 0.62), "white");
}

TEST_F(PagePainter, GridsOfSixNineAndSixteen)
{
    QList<test::TestPage> pages(16, {.size = kPaper, .corner = Qt::red});
    for (const int last : {5, 8, 15}) {
        pages[last].corner = Qt::blue;
    }
    use(pages);
    const QImage six = draw({.paper = kPaper, .numberUp = 6}, 6);
    EXPECT_EQ(six.size(), QSize(300, 225)); // 3 x 2
    EXPECT_EQ(colourAt(six, 0.75, 0.6), "blue");
    EXPECT_EQ(colourAt(six, 0.42, 0.6), "red");
    const QImage nine = draw({.paper = kPaper, .numberUp = 9}, 9);
    EXPECT_EQ(colourAt(nine, 0.7, 0.7), "blue");
    EXPECT_EQ(colourAt(nine, 0.7, 0.4), "blue"); // the sixth
    const QImage sixteen = draw({.paper = kPaper, .numberUp = 16}, 16);
    EXPECT_EQ(colourAt(sixteen, 0.8, 0.8), "blue");
    EXPECT_EQ(colourAt(sixteen, 0.05, 0.55), "blue"); // the ninth, first of the third row
}

TEST_F(PagePainter, PageThatIsTheOtherWayRoundIsTurned)
{
    use({{.size = kPaper, .corner = Qt::red}, {.size = kPaper.transposed(), .corner = Qt::blue}});
    const QImage image = draw({.paper = kPaper, .numberUp = 4}, 2);
    EXPECT_EQ(image.size(), QSize(225, 300));
    EXPECT_EQ(colourAt(image, 0.12, 0.12), "red");
    EXPECT_EQ(colourAt(image, 0.6, 0.4), "blue"); // a quarter counterclockwise: its corner is at the bottom left
    EXPECT_EQ(colourAt(image, 0.6, 0.1), "white");
    EXPECT_EQ(colourAt(image, 0.9, 0.4), "white");
}

TEST_F(PagePainter, ImageFillsThePrintableArea)
{
    useImage(QSize(40, 20), Qt::green);
    const QImage image = draw({.paper = kPaper, .margins = QMarginsF(80, 60, 80, 60)});
    EXPECT_EQ(image.size(),
              QSize(300, 225)); // it lies; margins 60, 80, 60, 80: 680 x 340 in the middle of 800 x 600
    EXPECT_EQ(colourAt(image, 0.1, 0.5), "green");
    EXPECT_EQ(colourAt(image, 0.9, 0.5), "green");
    EXPECT_EQ(colourAt(image, 0.5, 0.25), "green");
    EXPECT_EQ(colourAt(image, 0.5, 0.19), "white");
}

TEST_F(PagePainter, GreyHasNoColours)
{
    use({{.size = kPaper, .corner = Qt::blue}});
    const QImage image = draw({.paper = kPaper, .grey = true});
    EXPECT_TRUE(image.allGray());
    EXPECT_GT(qGray(image.pixel(50, 50)), 20);
    EXPECT_LT(qGray(image.pixel(50, 50)), 110);
    EXPECT_EQ(colourAt(image, 0.75, 0.25), "white");
}

TEST(Sheets, SelectedPagesAreCountedWithinEachDocument)
{
    const auto odd = [](int page) { return page % 2 == 1; };
    EXPECT_EQ(
        selectedPageRefs({3, 0, 2}, odd),
        (std::vector<PageRef>{{.document = 0, .page = 0}, {.document = 0, .page = 2}, {.document = 2, .page = 0}}));
    EXPECT_EQ(selectedPageRefs({2, 1}, nullptr).size(), 3U);
}

TEST(Sheets, EachDocumentBeginsANewOne)
{
    const std::vector<Sheet> sheets = sheetsOf(selectedPageRefs({3, 1}, nullptr), 2);
    ASSERT_EQ(sheets.size(), 3U);
    EXPECT_EQ(sheets[0], (Sheet{{.document = 0, .page = 0}, {.document = 0, .page = 1}}));
    EXPECT_EQ(sheets[1], (Sheet{{.document = 0, .page = 2}}));
    EXPECT_EQ(sheets[2], (Sheet{{.document = 1, .page = 0}}));
    EXPECT_EQ(sheetsOf(selectedPageRefs({3}, nullptr), 5).size(), 3U); // 5 is no number of pages on a side
    EXPECT_TRUE(sheetsOf({}, 4).empty());
}

} // namespace
} // namespace tessarin::host
