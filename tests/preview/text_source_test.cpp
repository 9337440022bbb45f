// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Plain text on pages.

#include "preview/page_source.h"
#include "preview/text_layout.h"
#include "tests/preview/preview_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

const TextGrid kSmall = {.columns = 10, .lines = 3};

QList<QStringList> laidOut(const char *text, const TextGrid &grid = kSmall)
{
    return textPages(QString::fromUtf8(text), grid, 100);
}

TEST(TextLayout, LinesBreakAtTheLastColumn)
{
    EXPECT_EQ(laidOut("0123456789abc\nx"), (QList<QStringList>{{"0123456789", "abc", "x"}}));
    EXPECT_EQ(laidOut("0123456789\nx"), (QList<QStringList>{{"0123456789", "x"}}));
}

TEST(TextLayout, PagesBreakAfterTheLastLineAndAtFormFeeds)
{
    EXPECT_EQ(laidOut("a\nb\nc\nd\n"), (QList<QStringList>{{"a", "b", "c"}, {"d"}}));
    EXPECT_EQ(laidOut("a\fb"), (QList<QStringList>{{"a"}, {"b"}}));
    EXPECT_EQ(laidOut("a\n\f"), (QList<QStringList>{{"a"}}));
    EXPECT_EQ(laidOut("a\nb\nc\n"), (QList<QStringList>{{"a", "b", "c"}}));
}

TEST(TextLayout, EveryLineEndCounts)
{
    EXPECT_EQ(laidOut("a\r\nb\rc"), (QList<QStringList>{{"a", "b", "c"}}));
    EXPECT_EQ(laidOut("a\n\nb"), (QList<QStringList>{{"a", "", "b"}}));
}

TEST(TextLayout, TabsFillToTheEighthColumn)
{
    EXPECT_EQ(laidOut("ab\tc"), (QList<QStringList>{{"ab      c"}}));
}

TEST(TextLayout, WideCharactersTakeTwoColumns)
{
    EXPECT_EQ(laidOut("漢字漢字漢字"), (QList<QStringList>{{"漢字漢字漢", "字"}}));
}

TEST(TextLayout, NeverMorePagesThanWanted)
{
    EXPECT_EQ(textPages(QStringLiteral("a\fb\fc\fd"), kSmall, 2), (QList<QStringList>{{"a"}, {"b"}}));
}

TEST(TextLayout, AnEmptyTextIsOnePage)
{
    EXPECT_EQ(laidOut("").size(), 1);
}

TEST(TextLayout, A4HasSeventyTwoColumnsAndSixtyFourLines)
{
    const TextGrid grid = textGrid(QSizeF(595.276, 841.890), {});
    EXPECT_EQ(grid.columns, 72); // (595 - 72) / 7.2
    EXPECT_EQ(grid.lines, 64);   // (842 - 72) / 12
    const TextGrid narrow = textGrid(QSizeF(595.276, 841.890), QMarginsF(108, 0, 108, 0));
    EXPECT_EQ(narrow.columns, 52); // (595 - 216) / 7.2
    EXPECT_EQ(narrow.lines, 64);
}

TEST(TextEncoding, Utf8OrElseLatin1)
{
    EXPECT_EQ(decodedText("gr\xC3\xBC\xC3\x9F"), QStringLiteral("grüß"));
    EXPECT_EQ(decodedText("gr\xFC\xDF"), QStringLiteral("grüß"));
    EXPECT_EQ(decodedText("\xEF\xBB\xBFmark"), QStringLiteral("mark"));
    EXPECT_EQ(decodedText("cut \xC3"), QStringLiteral("cut "));
    EXPECT_FALSE(decodedText(QByteArray("a\0b", 3)).has_value());
    EXPECT_FALSE(decodedText("a\x1B[1m").has_value());
}

class TextSources : public testing::Test {
protected:
    std::unique_ptr<PageSource> open(const QByteArray &text, TextExtent extent = TextExtent::FirstPage)
    {
        test::writeFile(folder_.filePath("notes.txt"), text);
        Outcome<std::unique_ptr<PageSource>> pages = openPages(folder_.filePath("notes.txt"), extent);
        return pages.ok() ? pages.take() : nullptr;
    }

    QTemporaryDir folder_{};
    std::atomic<bool> never_ = false;
};

TEST_F(TextSources, OnlyTheFirstPageIsShownAndSaysSo)
{
    const auto pages = open(QByteArray("line\n").repeated(65));
    ASSERT_TRUE(pages);
    EXPECT_EQ(pages->pageCount(), 1);
    EXPECT_EQ(pages->remark(), QStringLiteral("only the first page is shown here; all pages are printed"));
    const auto brief = open(QByteArray("line\n").repeated(64));
    ASSERT_TRUE(brief);
    EXPECT_EQ(brief->remark(), QString());
}

TEST_F(TextSources, ALargeTextIsReadInPart)
{
    const auto pages = open(QByteArray("\f").repeated(100) + QByteArray(300 * 1024, 'x'));
    ASSERT_TRUE(pages);
    EXPECT_EQ(pages->pageCount(), 1);
    EXPECT_NE(pages->remark(), QString());
}

TEST_F(TextSources, TheWholeTextHasAllPages)
{
    const auto pages = open(QByteArray("line\n").repeated(640), TextExtent::Whole);
    ASSERT_TRUE(pages);
    EXPECT_EQ(pages->pageCount(), 10);
    EXPECT_EQ(pages->remark(), QString());
    pages->setPaper(QSizeF(842, 595), {}); // 43 lines
    EXPECT_EQ(pages->pageCount(), 15);
    EXPECT_EQ(pages->pageSize(0), QSizeF(842, 595));
}

TEST_F(TextSources, LettersStandInTheirColumnsAndLines)
{
    const auto pages = open(QByteArray(" ").repeated(71) + "M\n\nM");
    ASSERT_TRUE(pages);
    const QImage image = pages->render(0, QSize(600, 842), never_); // a pixel per point
    ASSERT_EQ(image.height(), 842);
    EXPECT_GT(test::darkPixels(image, QRect(547, 36, 9, 12)), 2); // column 72 begins at 36 + 71 * 7.2 = 547.2
    EXPECT_EQ(test::darkPixels(image, QRect(0, 36, 546, 12)), 0);
    EXPECT_GT(test::darkPixels(image, QRect(36, 60, 8, 12)), 2); // the third line
    EXPECT_EQ(test::darkPixels(image, QRect(0, 48, 595, 12)), 0);
}

} // namespace
} // namespace tessarin::host
