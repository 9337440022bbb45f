// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Numbering the bars of a box.

#include "ink/level_box.h"
#include "ink/level_display.h"
#include "platform/view_tags.h"
#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"
#include "tests/support/panel_session.h"

#include <QLabel>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using testing::ElementsAre;

/// A box with a bar at each height, in this order, numbered from `firstTag`; the bars' tags in the same order.
std::vector<qintptr> tagsOf(const std::vector<int> &heights, int firstTag = 2999)
{
    QWidget box;
    std::vector<LevelBox *> bars;
    for (const int y : heights) {
        bars.push_back(new LevelBox(&box));
        bars.back()->setGeometry(0, y, 50, 10);
    }
    enumLevelBoxes(&box, firstTag);
    std::vector<qintptr> tags;
    for (const LevelBox *bar : bars) {
        tags.push_back(bar->tag());
    }
    return tags;
}

TEST(LevelBoxTags, GoFromTheHighestBarDown)
{
    EXPECT_THAT(tagsOf({10, 30, 50}), ElementsAre(2999, 3000, 3001));
    EXPECT_THAT(tagsOf({50, 30, 10}), ElementsAre(3001, 3000, 2999));
    EXPECT_THAT(tagsOf({30, 50, 10, 40, 20}), ElementsAre(3001, 3003, 2999, 3002, 3000));
    EXPECT_THAT(tagsOf({-30, 0, -50}), ElementsAre(3000, 3001, 2999));
}

TEST(LevelBoxTags, KeepTheOrderOfBarsAtTheSameHeight)
{
    EXPECT_THAT(tagsOf({10, 10, 10}), ElementsAre(2999, 3000, 3001));
    EXPECT_THAT(tagsOf({30, 10, 30, 10}), ElementsAre(3001, 2999, 3002, 3000));
}

TEST(LevelBoxTags, MayBeginWithTheTagOfANewBar)
{
    EXPECT_THAT(tagsOf({50, 30, 10}, 3011), ElementsAre(3013, 3012, 3011));
}

TEST(LevelBoxTags, StayOnASingleBar)
{
    EXPECT_THAT(tagsOf({10}), ElementsAre(3011));
    EXPECT_THAT(tagsOf({}), ElementsAre());
    EXPECT_THAT(tagsOf({20, 10}), ElementsAre(3000, 2999));
}

TEST(LevelBoxTags, AreGivenToTheFirstSixteenBars)
{
    // The 17th and 18th are the highest, but they were not counted.
    std::vector<int> heights;
    std::vector<qintptr> expected;
    for (int k = 0; k < 16; ++k) {
        heights.push_back(500 - 10 * k);
        expected.push_back(2999 + 15 - k);
    }
    heights.insert(heights.end(), {5, 1});
    expected.insert(expected.end(), {3011, 3011});
    EXPECT_EQ(tagsOf(heights), expected);
    heights.resize(16);
    expected.resize(16);
    EXPECT_EQ(tagsOf(heights), expected);
}

TEST(LevelBoxTags, AreNotGivenToNestedBars)
{
    QWidget box;
    auto *inner = new QWidget(&box);
    auto *nested = new LevelBox(inner);
    auto *only = new LevelBox(&box);
    const CapturedLog log;
    enumLevelBoxes(&box, 2999);
    EXPECT_EQ(only->tag(), 3011);
    auto *second = new LevelBox(&box);
    second->move(0, 50);
    enumLevelBoxes(&box, 2999);
    EXPECT_EQ(only->tag(), 2999);
    EXPECT_EQ(second->tag(), 3000);
    EXPECT_EQ(nested->tag(), 3011);
    EXPECT_EQ(log.lines(), logged({"$$$$$ Subviews:2\n", "$$$$$ Subviews:3\n"}));
}

TEST(LevelBoxTags, AreGivenByTheTagOfTheView)
{
    QWidget box;
    auto *other = new LevelBox(&box);
    other->setTag(77);
    auto *label = new QLabel(&box);
    setTagOf(label, 3011);
    label->move(0, 20);
    auto *plain = new QLabel(&box);
    auto *bar = new LevelBox(&box);
    bar->move(0, 10);
    const CapturedLog log;
    enumLevelBoxes(&box, 3011);
    EXPECT_EQ(other->tag(), 77);
    EXPECT_EQ(tagOf(plain), 0);
    EXPECT_EQ(bar->tag(), 3011);
    EXPECT_EQ(tagOf(label), 3012);
    EXPECT_EQ(log.lines(), logged({"$$$$$ Subviews:4\n"}));
}

TEST(LevelBoxTags, StayWhenTheBoxIsNumberedAgain)
{
    QWidget box;
    std::vector<LevelBox *> bars;
    for (int k = 0; k < 4; ++k) {
        bars.push_back(new LevelBox(&box));
        bars.back()->move(0, 10 * k);
    }
    enumLevelBoxes(&box, 3011);
    bars.front()->move(0, 100);
    enumLevelBoxes(&box, 2999);
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(bars[static_cast<std::size_t>(k)]->tag(), 3011 + k);
    }
}

TEST(LevelBoxTags, TellOfAnEmptyBox)
{
    QWidget box;
    const CapturedLog log;
    enumLevelBoxes(&box, 2999);
    enumLevelBoxes(nullptr, 2999);
    EXPECT_EQ(log.lines(), logged({"$$$$$ Subviews:0\n", "$$$$$ Subviews:0\n"}));
}

TEST(LevelBoxTags, CountHiddenBarsToo)
{
    QWidget box;
    auto *upper = new LevelBox(&box);
    upper->hide();
    auto *lower = new LevelBox(&box);
    lower->move(0, 20);
    enumLevelBoxes(&box, 2999);
    EXPECT_EQ(upper->tag(), 2999);
    EXPECT_EQ(lower->tag(), 3000);
}

TEST(LevelBoxTags, GoDownInBothBoxesOfThePanel)
{
    PanelSession session(ppdFixture("minimal"));
    QWidget *view = session.open();
    ASSERT_NE(view, nullptr);
    for (const int firstTag : {3011, 2999}) {
        const QWidget *box = nullptr;
        int lastTop = -1;
        for (int k = 0; k < 12; ++k) {
            const QWidget *bar = viewWithTag(view, firstTag + k);
            ASSERT_NE(bar, nullptr) << firstTag + k;
            ASSERT_NE(dynamic_cast<const LevelBox *>(bar), nullptr);
            EXPECT_TRUE(box == nullptr || bar->parentWidget() == box);
            box = bar->parentWidget();
            EXPECT_GT(bar->y(), lastTop);
            lastTop = bar->y();
        }
    }
}

} // namespace
} // namespace tessarin::test
