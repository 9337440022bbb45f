// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The pane: what it shows, and turning by keys, buttons and wheel.

#include "preview/preview_pane.h"
#include "tests/preview/preview_test_support.h"

#include <QKeyEvent>
#include <QPalette>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using test::colourAt;
using test::waitFor;

class Pane : public testing::Test {
protected:
    Pane()
    {
        pane_.resize(260, 340);
        pane_.show();
    }
    ~Pane() override { pane_.setRenderer(nullptr); }

    void openPdf(int pages)
    {
        const QString path = folder_.filePath("pages.pdf");
        test::writePdfFile(path, QList<test::TestPage>(pages));
        open({path});
    }
    void open(const QStringList &paths)
    {
        pane_.setRenderer(&renderer_);
        renderer_.setDocuments(paths);
        ASSERT_TRUE(waitFor([this] { return renderer_.isOpen(); }));
    }
    bool hasPicture()
    {
        return waitFor([this] { return !pane_.picture().isNull(); });
    }
    QString position() const { return pane_.findChild<QLabel *>(QStringLiteral("previewPosition"))->text(); }
    QToolButton *button(const char *name) const { return pane_.findChild<QToolButton *>(QLatin1String(name)); }
    void press(Qt::Key key)
    {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&pane_, &down);
    }
    void wheel(int angle)
    {
        QWheelEvent event(QPointF(50, 50), pane_.mapToGlobal(QPointF(50, 50)), QPoint(), QPoint(0, angle),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&pane_, &event);
    }

    QTemporaryDir folder_{};
    PreviewRenderer renderer_{};
    PreviewPane pane_{};
};

TEST_F(Pane, WithoutDocumentItSaysSo)
{
    EXPECT_EQ(pane_.message(), QStringLiteral("There is no document."));
    pane_.setRenderer(&renderer_);
    EXPECT_EQ(pane_.message(), QStringLiteral("There is no document."));
    open({});
    EXPECT_EQ(pane_.message(), QStringLiteral("There is no document."));
    EXPECT_EQ(position(), QString());
}

TEST_F(Pane, ShowsTheFocusBesideAMessageToo)
{
    pane_.activateWindow();
    ASSERT_FALSE(pane_.message().isEmpty());
    pane_.setFocus();
    ASSERT_TRUE(waitFor([this] { return pane_.hasFocus(); }));
    const QImage with = pane_.grab().toImage();
    pane_.clearFocus();
    const QImage without = pane_.grab().toImage();
    int columns = 0;
    for (int x = 0; x < with.width(); ++x) {
        columns += with.copy(x, 0, 1, with.height()) == without.copy(x, 0, 1, with.height()) ? 0 : 1;
    }
    EXPECT_GT(columns, 100);
}

TEST_F(Pane, SaysWhyThereIsNoPreview)
{
    test::writeFile(folder_.filePath("letter.ps"), "%!PS\n");
    open({folder_.filePath("letter.ps")});
    EXPECT_EQ(pane_.message(), QStringLiteral("letter.ps: there is no preview of this kind of document"));
    EXPECT_EQ(pane_.accessibleDescription(),
              QStringLiteral("letter.ps: there is no preview of this kind of document"));
    EXPECT_TRUE(waitFor([this] { return test::darkPixels(pane_.grab().toImage(), QRect(0, 100, 260, 140)) > 50; }));
}

TEST_F(Pane, ShowsThePaper)
{
    openPdf(1);
    ASSERT_TRUE(hasPicture());
    EXPECT_EQ(pane_.message(), QString());
    const QImage shown = pane_.grab().toImage();
    EXPECT_EQ(colourAt(shown, 0.25, 0.25), "red");
    EXPECT_EQ(colourAt(shown, 0.7, 0.7), "white");
    EXPECT_FALSE(button("nextPage")->isVisible()); // one page needs no turning
}

TEST_F(Pane, KeysTurn)
{
    openPdf(3);
    ASSERT_TRUE(hasPicture());
    EXPECT_EQ(position(), QStringLiteral("Page 1 of 3"));
    press(Qt::Key_PageDown);
    EXPECT_EQ(position(), QStringLiteral("Page 2 of 3"));
    press(Qt::Key_End);
    EXPECT_EQ(position(), QStringLiteral("Page 3 of 3"));
    press(Qt::Key_PageDown);
    EXPECT_EQ(position(), QStringLiteral("Page 3 of 3"));
    press(Qt::Key_PageUp);
    EXPECT_EQ(position(), QStringLiteral("Page 2 of 3"));
    press(Qt::Key_Home);
    EXPECT_EQ(position(), QStringLiteral("Page 1 of 3"));
    press(Qt::Key_PageUp);
    EXPECT_EQ(position(), QStringLiteral("Page 1 of 3"));
    EXPECT_EQ(pane_.accessibleDescription(), QStringLiteral("Page 1 of 3"));
    EXPECT_EQ(pane_.accessibleName(), QStringLiteral("Preview"));
}

TEST_F(Pane, ButtonsTurnAndEndWhereThePagesDo)
{
    openPdf(3);
    ASSERT_TRUE(hasPicture());
    EXPECT_FALSE(button("firstPage")->isEnabled());
    EXPECT_FALSE(button("previousPage")->isEnabled());
    button("nextPage")->click();
    EXPECT_EQ(position(), QStringLiteral("Page 2 of 3"));
    EXPECT_TRUE(button("previousPage")->isEnabled());
    button("lastPage")->click();
    EXPECT_EQ(position(), QStringLiteral("Page 3 of 3"));
    EXPECT_FALSE(button("nextPage")->isEnabled());
    EXPECT_FALSE(button("lastPage")->isEnabled());
    button("previousPage")->click();
    EXPECT_EQ(position(), QStringLiteral("Page 2 of 3"));
    button("firstPage")->click();
    EXPECT_EQ(position(), QStringLiteral("Page 1 of 3"));
    for (const char *name : {"firstPage", "previousPage", "nextPage", "lastPage"}) {
        EXPECT_FALSE(button(name)->accessibleName().isEmpty()) << name;
    }
}

TEST_F(Pane, WheelTurnsByNotches)
{
    openPdf(3);
    ASSERT_TRUE(hasPicture());
    wheel(-60);
    EXPECT_EQ(pane_.sheet(), 0);
    wheel(-60);
    EXPECT_EQ(pane_.sheet(), 1);
    wheel(-120);
    EXPECT_EQ(pane_.sheet(), 2);
    wheel(240);
    EXPECT_EQ(pane_.sheet(), 0);
}

TEST_F(Pane, FollowsTheSelection)
{
    openPdf(12);
    ASSERT_TRUE(hasPicture());
    pane_.showSheet(11);
    EXPECT_EQ(position(), QStringLiteral("Page 12 of 12"));
    renderer_.setPages([](int page) { return page <= 5; });
    EXPECT_EQ(position(), QStringLiteral("Page 5 of 5"));
    renderer_.setLayout({.numberUp = 2});
    EXPECT_EQ(position(), QStringLiteral("Sheet 3 of 3"));
    renderer_.setPages([](int) { return false; });
    EXPECT_EQ(pane_.message(), QStringLiteral("None of the document's 12 pages is selected."));
    EXPECT_TRUE(pane_.picture().isNull());
}

TEST_F(Pane, PictureFollowsTheLayout)
{
    openPdf(1);
    ASSERT_TRUE(hasPicture());
    EXPECT_LT(pane_.picture().width(), pane_.picture().height());
    renderer_.setLayout({.orientation = 4});
    EXPECT_TRUE(waitFor([this] { return pane_.picture().width() > pane_.picture().height(); }));
    renderer_.setLayout({.orientation = 4, .grey = true});
    EXPECT_TRUE(waitFor([this] { return pane_.picture().allGray(); }));
}

TEST_F(Pane, PictureIsAsLargeAsThePane)
{
    openPdf(1);
    ASSERT_TRUE(hasPicture());
    pane_.resize(520, 680);
    EXPECT_TRUE(waitFor([this] { return pane_.picture().height() > 600; }));
}

TEST_F(Pane, TellsOfDocumentsThatAreNotShown)
{
    test::writePdfFile(folder_.filePath("good.pdf"), {{}});
    test::writeFile(folder_.filePath("letter.ps"), "%!PS\n");
    open({folder_.filePath("good.pdf"), folder_.filePath("letter.ps")});
    ASSERT_TRUE(hasPicture());
    const auto *remark = pane_.findChild<QLabel *>(QStringLiteral("previewRemark"));
    EXPECT_TRUE(remark->isVisible());
    EXPECT_EQ(remark->text(), QStringLiteral("letter.ps: there is no preview of this kind of document"));
}

TEST_F(Pane, SaysThatAPageCannotBeDrawn)
{
    test::writeCutImage(folder_.filePath("cut.png"));
    open({folder_.filePath("cut.png")});
    EXPECT_TRUE(waitFor([this] { return pane_.message() == QStringLiteral("cut.png: page 1 cannot be drawn"); }));
    EXPECT_EQ(pane_.accessibleDescription(), QStringLiteral("Page 1 of 1: cut.png: page 1 cannot be drawn"));
}

TEST_F(Pane, TextAndIconsTakeTheThemesColours)
{
    openPdf(3);
    ASSERT_TRUE(hasPicture());
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::ButtonText, Qt::white);
    pane_.setPalette(dark);
    const QImage icon = button("nextPage")->icon().pixmap(QSize(16, 16)).toImage();
    EXPECT_EQ(icon.pixelColor(icon.width() / 2, icon.height() / 2), QColor(Qt::white));
}

TEST_F(Pane, SizesSuitTheDialog)
{
    EXPECT_EQ(pane_.minimumSize(), QSize(180, 220));
    EXPECT_EQ(pane_.sizeHint(), QSize(260, 340));
}

TEST_F(Pane, OutlivesItsRenderer)
{
    auto renderer = std::make_unique<PreviewRenderer>();
    pane_.setRenderer(renderer.get());
    renderer.reset();
    pane_.showSheet(2);
    press(Qt::Key_End);
    EXPECT_EQ(pane_.message(), QStringLiteral("There is no document."));
}

} // namespace
} // namespace tessarin::host
