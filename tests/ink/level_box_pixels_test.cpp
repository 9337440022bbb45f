// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A bar's pixels: frame, white ground and fill, at several scales and in a dark theme.

#include "ink/level_box.h"

#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace tessarin::test {
namespace {

constexpr QRgb kUntouched = qRgb(1, 2, 3);
constexpr QRgb kWhite = qRgb(255, 255, 255);
constexpr QRgb kFill = qRgb(0, 160, 80);
constexpr QRgb kTop = qRgb(163, 163, 163);  // 0.64
constexpr QRgb kSide = qRgb(217, 217, 217); // 0.85

// The inner rectangle is 100 wide, so that the level is the fill's width in pixels.
constexpr int kWidth = 102;
constexpr int kHeight = 14;

QImage rendered(QWidget &view, double ratio = 1.0)
{
    QImage image((QSizeF(view.size()) * ratio).toSize(), QImage::Format_ARGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(kUntouched);
    view.render(&image);
    return image;
}

QImage bar(int level, double ratio = 1.0, int width = kWidth)
{
    LevelBox box;
    box.resize(width, kHeight);
    box.setColor(QColor::fromRgb(kFill));
    box.setLevel(level);
    return rendered(box, ratio);
}

TEST(LevelBoxPixels, FrameTheBarWithADarkerTop)
{
    const QImage image = bar(50);
    for (int x = 0; x < kWidth; ++x) {
        EXPECT_EQ(image.pixel(x, 0), kTop) << x;
        EXPECT_EQ(image.pixel(x, kHeight - 1), kSide) << x;
    }
    for (int y = 1; y < kHeight; ++y) {
        EXPECT_EQ(image.pixel(0, y), kSide) << y;
        EXPECT_EQ(image.pixel(kWidth - 1, y), kSide) << y;
    }
}

TEST(LevelBoxPixels, FillByTheLevelFromTheLeftInnerEdge)
{
    for (const int level : {0, 1, 2, 37, 50, 99, 100}) {
        const QImage image = bar(level);
        for (int y = 1; y < kHeight - 1; ++y) {
            for (int x = 1; x < kWidth - 1; ++x) {
                ASSERT_EQ(image.pixel(x, y), x <= level ? kFill : kWhite) << level << " at " << x << "," << y;
            }
        }
    }
}

TEST(LevelBoxPixels, FillOverTheRightSideAbove100)
{
    const QImage over = bar(101);
    for (int y = 1; y < kHeight - 1; ++y) {
        EXPECT_EQ(over.pixel(kWidth - 2, y), kFill) << y;
        EXPECT_EQ(over.pixel(kWidth - 1, y), kFill) << y;
    }
    for (const int level : {150, 1000, 214748}) {
        EXPECT_EQ(bar(level), over) << level;
    }
    for (int x = 0; x < kWidth; ++x) {
        EXPECT_EQ(over.pixel(x, 0), kTop);
        EXPECT_EQ(over.pixel(x, kHeight - 1), kSide);
    }
}

TEST(LevelBoxPixels, NeverLeaveTheView)
{
    QWidget parent;
    parent.resize(200, 60);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor::fromRgb(kUntouched));
    parent.setPalette(palette);
    LevelBox box(&parent);
    box.setGeometry(20, 20, kWidth, kHeight);
    box.setColor(QColor::fromRgb(kFill));
    box.setLevel(150);
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(parent, ratio);
        const QRectF view = QRectF(QPointF(box.pos()) * ratio, QSizeF(box.size()) * ratio);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const bool inside = view.contains(QPointF(x + 0.5, y + 0.5));
                ASSERT_EQ(image.pixel(x, y) == kUntouched, !inside) << x << "," << y;
            }
        }
    }
}

TEST(LevelBoxPixels, HaveNoFillForANegativeLevel)
{
    EXPECT_EQ(bar(-1), bar(0));
    EXPECT_EQ(bar(-200000), bar(0));
}

TEST(LevelBoxPixels, AreCrispAtEveryScale)
{
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const QImage image = bar(50, ratio);
        std::set<QRgb> colours;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colours.insert(image.pixel(x, y));
            }
        }
        EXPECT_EQ(colours, (std::set<QRgb>{kTop, kSide, kWhite, kFill})) << ratio;
    }
}

TEST(LevelBoxPixels, ScaleFrameAndFill)
{
    for (const double ratio : {1.5, 2.0}) {
        for (const int level : {0, 1, 50, 100}) {
            SCOPED_TRACE(testing::Message() << ratio << " " << level);
            const QImage image = bar(level, ratio);
            const int middle = image.height() / 2;
            int left = 0;
            while (image.pixel(left, middle) == kSide) {
                ++left;
            }
            int filled = 0;
            while (left + filled < image.width() && image.pixel(left + filled, middle) == kFill) {
                ++filled;
            }
            int right = 0;
            while (image.pixel(image.width() - 1 - right, middle) == kSide) {
                ++right;
            }
            int top = 0;
            while (image.pixel(image.width() / 2, top) == kTop) {
                ++top;
            }
            EXPECT_NEAR(left, ratio, 0.5);
            EXPECT_NEAR(right, ratio, 0.5);
            EXPECT_NEAR(top, ratio, 0.5);
            EXPECT_NEAR(filled, level * ratio, 1.0);
            EXPECT_EQ(filled == 0, level == 0);
            for (int x = 0; x < image.width(); ++x) {
                EXPECT_EQ(image.pixel(x, 0), kTop);
                EXPECT_EQ(image.pixel(x, image.height() - 1), kSide);
            }
        }
    }
}

TEST(LevelBoxPixels, AreExactlyDoubledAtTwiceTheScale)
{
    for (const int level : {0, 1, 50, 99, 100, 150}) {
        EXPECT_EQ(bar(level, 2.0).convertToFormat(QImage::Format_RGB32), [level] {
            QImage doubled = bar(level).scaled(2 * kWidth, 2 * kHeight);
            doubled.setDevicePixelRatio(2.0);
            return doubled.convertToFormat(QImage::Format_RGB32);
        }()) << level;
    }
}

TEST(LevelBoxPixels, AreTheSameInADarkTheme)
{
    LevelBox box;
    box.resize(kWidth, kHeight);
    const QImage light = rendered(box);
    QPalette dark(QColor(30, 30, 30), QColor(20, 20, 20));
    dark.setColor(QPalette::Base, Qt::black);
    box.setPalette(dark);
    box.setAutoFillBackground(true);
    EXPECT_EQ(rendered(box), light);
    EXPECT_EQ(light.pixel(kWidth - 2, 2), kWhite);
    EXPECT_EQ(light.pixel(2, 2), qRgb(255, 0, 255));
}

TEST(LevelBoxPixels, HaveTheColourOfTheBar)
{
    LevelBox box;
    box.resize(kWidth, kHeight);
    for (const QRgb colour : {qRgb(0, 0, 0), qRgb(160, 255, 255), qRgb(255, 150, 255), qRgb(50, 50, 50)}) {
        box.setColor(QColor::fromRgb(colour));
        EXPECT_EQ(rendered(box).pixel(10, 5), colour);
    }
}

TEST(LevelBoxPixels, AreDrawnOnlyWhereAsked)
{
    LevelBox box;
    box.resize(kWidth, kHeight);
    QImage image(box.size(), QImage::Format_ARGB32);
    image.fill(kUntouched);
    const QRect part(10, 2, 20, 5);
    box.render(&image, part.topLeft(), QRegion(part));
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            ASSERT_EQ(image.pixel(x, y) == kUntouched, !part.contains(x, y)) << x << "," << y;
        }
    }
}

TEST(LevelBoxPixels, OfAViewWithoutRoomAreNone)
{
    for (const int width : {1, 2}) {
        const QImage image = bar(100, 1.0, width);
        EXPECT_EQ(image.pixel(0, 0), kTop);
    }
}

} // namespace
} // namespace tessarin::test
