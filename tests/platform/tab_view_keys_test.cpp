// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/platform/tab_view_fixture.h"

namespace tessarin::test {
namespace {

class TabViewKeys : public TabViewFixture {};
class TabViewWheel : public TabViewFixture {};

TEST_F(TabViewKeys, MoveToTheNeighbouringTab)
{
    press(Qt::Key_Right);
    EXPECT_EQ(current(), 1);
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    EXPECT_EQ(current(), 1);
}

TEST_F(TabViewKeys, PassOverRefusedTabs)
{
    refused = {1, 2};
    press(Qt::Key_Right);
    EXPECT_EQ(current(), 3);
    press(Qt::Key_Left);
    EXPECT_EQ(current(), 0);
}

TEST_F(TabViewKeys, StopAtTheEnds)
{
    press(Qt::Key_Left);
    EXPECT_EQ(current(), 0);
    refused = {4};
    tabs.setCurrentIndex(3);
    press(Qt::Key_Right);
    EXPECT_EQ(current(), 3) << "only refused tabs lie there";
}

TEST_F(TabViewKeys, FollowTheDirectionOfTheScript)
{
    tabs.setLayoutDirection(Qt::RightToLeft);
    press(Qt::Key_Left);
    EXPECT_EQ(current(), 1);
    press(Qt::Key_Right);
    EXPECT_EQ(current(), 0);
}

TEST_F(TabViewKeys, HomeAndEndGoToTheOutermostAllowedTab)
{
    press(Qt::Key_End);
    EXPECT_EQ(current(), 4);
    press(Qt::Key_Home);
    EXPECT_EQ(current(), 0);
    tabs.setCurrentIndex(2);
    refused = {0, 4};
    press(Qt::Key_End);
    EXPECT_EQ(current(), 3);
    press(Qt::Key_Home);
    EXPECT_EQ(current(), 1);
}

TEST_F(TabViewKeys, DoNothingWhenEveryTabIsRefused)
{
    refused = {0, 1, 2, 3, 4};
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Home, Qt::Key_End}) {
        press(key);
        EXPECT_EQ(current(), 0) << key;
    }
}

TEST_F(TabViewKeys, OfOtherKindsSelectNothing)
{
    for (const Qt::Key key :
         {Qt::Key_B, Qt::Key_Down, Qt::Key_Up, Qt::Key_Space, Qt::Key_Return, Qt::Key_PageDown}) {
        press(key);
        EXPECT_EQ(current(), 0) << key;
    }
}

TEST_F(TabViewKeys, ControlTabGoesRound)
{
    for (const int expected : {1, 2, 3, 4, 0}) {
        pressInView(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(current(), expected);
    }
    for (const int expected : {4, 3}) {
        pressInView(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(current(), expected);
    }
    pressInView(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(current(), 2) << "however the toolkit reports it";
}

TEST_F(TabViewKeys, ControlTabPassesOverRefusedTabs)
{
    refused = {1, 4};
    pressInView(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), 2);
    pressInView(Qt::Key_Tab, Qt::ControlModifier);
    pressInView(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), 0) << "round the end";
    pressInView(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(current(), 3);
    refused = {0, 1, 2, 4};
    pressInView(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), 3) << "there is no other";
}

TEST_F(TabViewKeys, TabWithoutControlSelectsNothing)
{
    pressInView(Qt::Key_Tab, Qt::NoModifier);
    EXPECT_EQ(current(), 0);
}

TEST_F(TabViewKeys, ControlTabOnAPageReachesTheTabs)
{
    refused = {1};
    auto *child = new QWidget(tabs.widget(0));
    QTest::keyClick(child, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), 2);
}

TEST_F(TabViewWheel, MovesOneTabPerNotch)
{
    turnWheel({0, -120});
    EXPECT_EQ(current(), 1);
    turnWheel({0, -240});
    EXPECT_EQ(current(), 3);
    turnWheel({0, 120});
    EXPECT_EQ(current(), 2);
}

TEST_F(TabViewWheel, TakesTheGreaterOfBothDirections)
{
    turnWheel({-120, 10});
    EXPECT_EQ(current(), 1);
    turnWheel({10, 120});
    EXPECT_EQ(current(), 0);
}

TEST_F(TabViewWheel, AddsUpSmallTurns)
{
    for (int i = 0; i < 3; ++i) {
        turnWheel({0, -30});
        EXPECT_EQ(current(), 0);
    }
    turnWheel({0, -30});
    EXPECT_EQ(current(), 1);
    turnWheel({0, -60});
    turnWheel({0, 60});
    EXPECT_EQ(current(), 1) << "there and back";
}

TEST_F(TabViewWheel, PassesOverRefusedTabs)
{
    refused = {1, 2};
    turnWheel({0, -120});
    EXPECT_EQ(current(), 3);
    turnWheel({0, 120});
    EXPECT_EQ(current(), 0);
}

TEST_F(TabViewWheel, StopsAtTheEnds)
{
    turnWheel({0, 1200});
    EXPECT_EQ(current(), 0);
    turnWheel({0, -12000});
    EXPECT_EQ(current(), 4);
    refused = {0, 1, 2, 3};
    turnWheel({0, 120});
    EXPECT_EQ(current(), 4);
}

} // namespace
} // namespace tessarin::test
