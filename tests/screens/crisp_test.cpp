// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What is drawn uses every pixel of the screen, at the density that QT_SCALE_FACTOR asks for: no blurred lines, no
// pictures of half the screen's resolution.

#include "ink/level_box.h"
#include "preview/preview_pane.h"
#include "tests/screens/dialog_fixture.h"
#include "tests/support/panel_session.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryDir>
#include <QToolButton>

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace tessarin::test {
namespace {

double askedDensity()
{
    const QByteArray asked = qgetenv("QT_SCALE_FACTOR");
    return asked.isEmpty() ? 1 : asked.toDouble();
}

QImage pictureOf(QWidget &view)
{
    return view.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The part of a window's picture that shows one of its views, in the screen's pixels.
QImage partOf(const QImage &window, const QWidget &view)
{
    const double density = window.devicePixelRatio();
    const QPoint corner = view.mapTo(view.window(), QPoint());
    const QPoint first(qRound(corner.x() * density), qRound(corner.y() * density));
    const QPoint last(qRound((corner.x() + view.width()) * density),
                      qRound((corner.y() + view.height()) * density));
    return window.copy(QRect(first, last - QPoint(1, 1)));
}

/// Mean difference of a pixel, 0 to 255.
double difference(const QImage &one, const QImage &other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
        }
    }
    return sum / (one.width() * one.height());
}

QImage resized(const QImage &picture, const QSize &size)
{
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// An icon as a screen of as many pixels can show it, on the ground of `shown`.
QImage ideal(const QPixmap &icon, const QImage &shown)
{
    QImage whole(shown.size(), QImage::Format_RGB32);
    whole.fill(shown.pixel(0, 0));
    QPainter(&whole).drawImage(0, 0, resized(icon.toImage(), shown.size()));
    return whole;
}

TEST(Crisp, TheDensityIsTheOneAskedFor)
{
    const QWidget view;
    EXPECT_DOUBLE_EQ(view.devicePixelRatioF(), askedDensity());
}

TEST(Crisp, InkBarsHaveAllTheirLinesAndNoMixedColours)
{
    QWidget box;
    box.resize(160, 300);
    box.setStyleSheet(QStringLiteral("background: #102030"));
    const QRgb ground = QColor(0x10, 0x20, 0x30).rgb();
    const QColor ink(0, 128, 255);
    std::vector<LevelBox *> bars;
    for (int row = 0; row < 12; ++row) { // at odd places, which a density of 1.25 puts between pixels
        auto *bar = new LevelBox(&box);
        bar->setGeometry(7, 3 + row * 23, 111, 14);
        bar->setLevel(37);
        bar->setColor(ink);
        bars.push_back(bar);
    }
    box.show();
    const QImage picture = pictureOf(box);
    const QRgb top = qRgb(163, 163, 163);
    const QRgb side = qRgb(217, 217, 217);
    const QRgb white = qRgb(255, 255, 255);
    for (const LevelBox *bar : bars) {
        SCOPED_TRACE("bar at " + std::to_string(bar->y()));
        const QImage part = partOf(picture, *bar);
        std::set<QRgb> colours;
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x) {
                colours.insert(part.pixel(x, y));
            }
        }
        EXPECT_EQ(colours, (std::set<QRgb>{top, side, white, ink.rgb()}));
        EXPECT_FALSE(colours.contains(ground));
        for (int x = 0; x < part.width(); ++x) {
            ASSERT_EQ(part.pixel(x, 0), top) << x;
            ASSERT_EQ(part.pixel(x, part.height() - 1), side) << x;
        }
        const int thickest = static_cast<int>(std::ceil(askedDensity()));
        for (int y = thickest; y < part.height() - thickest; ++y) {
            ASSERT_EQ(part.pixel(0, y), side) << y;
            ASSERT_EQ(part.pixel(part.width() - 1, y), side) << y;
            ASSERT_EQ(part.pixel(thickest, y), ink.rgb()) << y;
            ASSERT_EQ(part.pixel(part.width() - 1 - thickest, y), white) << y;
        }
    }
}

TEST(Crisp, ThePanelsIconsUseEveryPixel)
{
    PanelSession session;
    QWidget window;
    QWidget *view = session.open();
    QWidget *before = view->parentWidget();
    view->setParent(&window);
    view->show();
    window.show();
    auto *tabs = qobject_cast<QTabWidget *>(session.context()->controls.tabView.data());
    ASSERT_NE(tabs, nullptr);
    int icons = 0;
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        const QImage picture = pictureOf(window);
        for (const QLabel *label : tabs->widget(page)->findChildren<QLabel *>()) {
            if (!label->hasScaledContents() || !label->isVisible()) {
                continue;
            }
            ++icons;
            const QImage shown = partOf(picture, *label);
            const QPixmap own = label->pixmap();
            EXPECT_GE(own.width(), shown.width()) << "drawn larger than it is";
            const QImage best = ideal(own, shown);
            const double off = difference(shown, best);
            const QImage coarse = resized(resized(best, label->size()), best.size());
            EXPECT_LT(off, askedDensity() > 1 ? difference(coarse, best) / 2 : 1.0)
                << label->objectName().toStdString();
        }
    }
    EXPECT_GT(icons, 10);
    view->setParent(before); // the panel's again
}

TEST(Crisp, TheDialogsIconsUseEveryPixel)
{
    WholeDialog whole("en");
    ASSERT_TRUE(whole.problem.isEmpty()) << whole.problem.toStdString();
    whole.dialog->show();
    whole.dialog->pages()->showPage(host::Page::General);
    int icons = 0;
    for (const QLabel *label : whole.dialog->findChildren<QLabel *>()) {
        const QPixmap picture = label->pixmap();
        if (!picture.isNull() && !label->hasScaledContents()) {
            ++icons;
            EXPECT_DOUBLE_EQ(picture.devicePixelRatio(), askedDensity()) << label->objectName().toStdString();
        }
    }
    for (const QToolButton *button : whole.dialog->findChildren<QToolButton *>()) {
        if (button->objectName().endsWith(QLatin1String("Page"))) { // of the bar that turns pages
            ++icons;
            const QPixmap picture = button->icon().pixmap(button->iconSize(), askedDensity());
            EXPECT_EQ(picture.width(), std::lround(button->iconSize().width() * askedDensity()))
                << button->objectName().toStdString();
        }
    }
    EXPECT_EQ(icons, 5);
}

/// Where a picture lies in another one, near a place; nothing when it is not there pixel by pixel.
std::optional<QPoint> placeOf(const QImage &part, const QImage &whole, const QPoint &near)
{
    constexpr int reach = 4;
    for (int y = near.y() - reach; y <= near.y() + reach; ++y) {
        for (int x = near.x() - reach; x <= near.x() + reach; ++x) {
            if (whole.copy(QRect(QPoint(x, y), part.size())) == part) {
                return QPoint(x, y);
            }
        }
    }
    return std::nullopt;
}

TEST(Crisp, ThePreviewShowsThePageAsItWasDrawn)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lines.png"));
    QImage lines(301, 401, QImage::Format_RGB32);
    lines.fill(Qt::white);
    QPainter painter(&lines);
    for (int x = 0; x < lines.width(); x += 5) {
        painter.drawLine(x, 0, x, lines.height());
    }
    painter.end();
    ASSERT_TRUE(lines.save(path));
    QWidget window;
    window.resize(331, 431);
    host::PreviewRenderer renderer;
    host::PreviewPane pane(&window);
    pane.setGeometry(7, 3, 301, 407); // a density of 1.25 puts this between pixels
    window.show();
    pane.setRenderer(&renderer);
    renderer.setDocuments({path});
    QElapsedTimer timer;
    timer.start();
    const QSizeF room = QSizeF(pane.paperArea().size()) * askedDensity();
    const auto isDrawn = [&] { // it fills the room in one direction
        const QSize size = pane.picture().size();
        return size.width() > room.width() - 1 || size.height() > room.height() - 1;
    };
    while (!isDrawn() && timer.elapsed() < 60000) {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    ASSERT_TRUE(isDrawn()) << pane.picture().width() << " x " << pane.picture().height();
    QImage drawn = pane.picture().convertToFormat(QImage::Format_RGB32);
    drawn.setDevicePixelRatio(1);
    constexpr int frame = 4; // is drawn over the edge
    const QImage inner = drawn.copy(drawn.rect().adjusted(frame, frame, -frame, -frame));
    QImage shown = pictureOf(window);
    shown.setDevicePixelRatio(1);
    const QRectF area = QRectF(pane.paperArea()).translated(pane.pos());
    const QPointF corner = area.center() * askedDensity() - QRectF(drawn.rect()).center() + QPointF(frame, frame);
    EXPECT_TRUE(placeOf(inner, shown, corner.toPoint()).has_value());
    pane.setRenderer(nullptr);
}

} // namespace
} // namespace tessarin::test
