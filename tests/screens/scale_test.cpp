// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Places of the interface file at other fonts than the one that it is drawn for.

#include "platform/interface_scale.h"
#include "tests/screens/variants.h"
#include "tests/support/panel_session.h"

#include <QLabel>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <map>

namespace tessarin::test {
namespace {

/// The places of all views of the panel that have a name.
std::map<std::string, QRect> places(int percent)
{
    const FontScale font(percent);
    PanelSession session;
    const QWidget *view = session.open();
    std::map<std::string, QRect> all;
    for (const QWidget *one : view->findChildren<QWidget *>()) {
        const QString name = one->objectName();
        const bool isPage = name.endsWith(QLatin1String("Page"));
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && !isPage) {
            all[name.toStdString()] = one->geometry();
        }
    }
    return all;
}

TEST(InterfaceScale, IsOneForTheFontOfInterfaceFilesAndSmallerOnes)
{
    EXPECT_TRUE(interfaceScale(QApplication::font()).isOne());
    for (const double points : {4.0, 8.0, 9.0}) {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        const InterfaceScale scale = interfaceScale(font);
        EXPECT_EQ(scale.across, 1) << points;
        EXPECT_EQ(scale.down, 1) << points;
    }
}

TEST(InterfaceScale, GrowsWithTheFont)
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * 2);
    const InterfaceScale scale = interfaceScale(font);
    EXPECT_GE(scale.across, 2);
    EXPECT_LE(scale.across, 2.125);
    EXPECT_GE(scale.down, 2);
    EXPECT_LE(scale.down, 2.125);
}

TEST(InterfaceScale, LeavesASmallerFontsPanelAsItIsDrawn)
{
    const auto usual = places(100);
    const auto smaller = places(80);
    ASSERT_GT(usual.size(), 100U);
    EXPECT_EQ(usual.at("mediaTypePopUp"), QRect(196, 16, 432, 28));
    EXPECT_EQ(usual.at("lastName0").size(), QSize(104, 16));
    EXPECT_EQ(smaller, usual);
}

TEST(InterfaceScale, KeepsEqualSizesEqualAndPicturesSquare)
{
    for (const int percent : {110, 125, 150, 175, 200}) {
        const auto larger = places(percent);
        for (const auto &[name, place] : larger) {
            const bool isPicture = name.ends_with("Icon");
            if (isPicture) {
                EXPECT_EQ(place.width(), place.height()) << name << " at " << percent;
            }
            if (name.starts_with("lastName") || name.starts_with("totalName")) {
                EXPECT_EQ(place.size(), larger.at("lastName0").size()) << name << " at " << percent;
            }
        }
        EXPECT_GT(larger.at("mediaTypePopUp").width(), 432) << percent;
        EXPECT_EQ(larger.at("cmykSpacePopUp"), larger.at("colorSpacePopUp")) << percent;
    }
}

TEST(InterfaceScale, LeavesPlacesToLayouts)
{
    QWidget root;
    root.resize(100, 100);
    auto *column = new QVBoxLayout(&root);
    auto *placed = new QLabel(&root);
    column->addWidget(placed);
    placed->setGeometry(1, 2, 30, 40);
    placed->setMinimumSize(10, 20);
    auto *free = new QWidget(&root);
    free->setGeometry(1, 2, 30, 40);
    free->setMaximumSize(60, 70);
    scaleInterface(&root, {.across = 1.5, .down = 2});
    EXPECT_EQ(root.size(), QSize(150, 200));
    EXPECT_EQ(placed->geometry(), QRect(1, 2, 30, 40));
    EXPECT_EQ(placed->minimumSize(), QSize(15, 40));
    EXPECT_EQ(free->geometry(), QRect(2, 4, 45, 80));
    EXPECT_EQ(free->maximumSize(), QSize(90, 140));
}

} // namespace
} // namespace tessarin::test
