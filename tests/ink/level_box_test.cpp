// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A bar's properties, redraws and clicks.

#include "controls/control_layer.h"
#include "ink/level_box.h"
#include "platform/view_tags.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>

#include <gtest/gtest.h>

#include <limits>

namespace tessarin::test {
namespace {

class CountingBox : public LevelBox {
public:
    using LevelBox::LevelBox;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        LevelBox::paintEvent(event);
    }
};

class ClickedView : public QWidget {
public:
    int releases = 0;

protected:
    void mouseReleaseEvent(QMouseEvent *) override { ++releases; }
};

void settle()
{
    QElapsedTimer timer;
    timer.start();
    do {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    } while (timer.elapsed() < 60);
}

TEST(LevelBox, IsMagentaAndHalfFullAtFirst)
{
    const LevelBox box;
    EXPECT_EQ(box.level(), 50);
    EXPECT_EQ(box.color(), QColor(255, 0, 255, 255));
    EXPECT_EQ(box.tag(), 3011);
    EXPECT_EQ(tagOf(&box), 3011);
}

TEST(LevelBox, IsOpaque)
{
    const LevelBox box;
    EXPECT_TRUE(box.isOpaque());
    EXPECT_TRUE(box.testAttribute(Qt::WA_OpaquePaintEvent));
}

TEST(LevelBox, KeepsItsTagWholly)
{
    LevelBox box;
    for (const qintptr tag : {qintptr{0}, qintptr{-5}, qintptr{2999}, std::numeric_limits<qintptr>::max()}) {
        setTagOf(&box, tag);
        EXPECT_EQ(box.tag(), tag);
        EXPECT_EQ(tagOf(&box), tag);
    }
}

TEST(LevelBox, TakesAnyLevel)
{
    LevelBox box;
    for (const int level : {0, 1, 100, 101, 214748, -2000, std::numeric_limits<int>::max()}) {
        SetBarControlValue(&box, level);
        EXPECT_EQ(box.level(), level);
    }
}

TEST(LevelBox, TakesAColourOfEightBitComponents)
{
    LevelBox box;
    SetBarColVal(&box, 160, 255, 100);
    EXPECT_EQ(box.color().rgba(), qRgba(160, 255, 100, 255));
}

TEST(LevelBox, IsDrawnAgainForALevelOrAColourButNotForATag)
{
    CountingBox box;
    box.resize(100, 16);
    box.show();
    settle();
    ASSERT_GT(box.paints, 0);

    box.paints = 0;
    box.setTag(7);
    settle();
    EXPECT_EQ(box.paints, 0);

    box.setLevel(70);
    settle();
    EXPECT_EQ(box.paints, 1);

    box.setLevel(70); // the same once more
    settle();
    EXPECT_EQ(box.paints, 2);

    box.setColor(Qt::red);
    settle();
    EXPECT_EQ(box.paints, 3);
}

TEST(LevelBox, SwallowsTheClick)
{
    ClickedView parent;
    parent.resize(200, 100);
    LevelBox box(&parent);
    box.setGeometry(10, 10, 100, 16);
    QWidget plain(&parent);
    plain.setGeometry(10, 50, 100, 16);
    const auto release = [](QWidget *view) {
        QMouseEvent event(QEvent::MouseButtonRelease, QPointF(5, 5), view->mapToGlobal(QPointF(5, 5)),
                          Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(view, &event);
    };
    release(&plain);
    EXPECT_EQ(parent.releases, 1);
    release(&box);
    EXPECT_EQ(parent.releases, 1);
    EXPECT_EQ(box.level(), 50);
}

} // namespace
} // namespace tessarin::test
