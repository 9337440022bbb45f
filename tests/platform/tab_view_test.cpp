// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/platform/tab_view_fixture.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QStyleOptionTab>

namespace tessarin::test {
namespace {

class TabViewTest : public TabViewFixture {};

TEST_F(TabViewTest, SelectsTheTabThatIsClicked)
{
    click(3);
    EXPECT_EQ(current(), 3);
    click(1);
    EXPECT_EQ(current(), 1);
}

TEST_F(TabViewTest, StaysWhenARefusedTabIsClicked)
{
    refused = {2};
    const QSignalSpy changes(&tabs, &QTabWidget::currentChanged);
    click(2);
    EXPECT_EQ(current(), 0);
    EXPECT_EQ(changes.count(), 0) << "not even for a moment";
    EXPECT_NE(std::find(asked.begin(), asked.end(), 2), asked.end());
    EXPECT_TRUE(tabs.widget(0)->isVisible());
}

TEST_F(TabViewTest, StaysWhenARefusedTabIsPressedOrReleasedAlone)
{
    refused = {2};
    const QPoint there = bar()->tabRect(2).center();
    QTest::mousePress(bar(), Qt::LeftButton, Qt::NoModifier, bar()->tabRect(0).center());
    QTest::mouseRelease(bar(), Qt::LeftButton, Qt::NoModifier, there);
    EXPECT_EQ(current(), 0);
    QTest::mousePress(bar(), Qt::LeftButton, Qt::NoModifier, there);
    QTest::mouseRelease(bar(), Qt::LeftButton, Qt::NoModifier, bar()->tabRect(1).center());
    EXPECT_NE(current(), 2);
    QTest::mouseDClick(bar(), Qt::LeftButton, Qt::NoModifier, there);
    EXPECT_NE(current(), 2);
}

TEST_F(TabViewTest, AsksAtEverySelection)
{
    click(1);
    refused = {0};
    click(0);
    EXPECT_EQ(current(), 1);
    refused.clear();
    click(0);
    EXPECT_EQ(current(), 0) << "what was refused once is asked for again";
}

TEST_F(TabViewTest, AllowsEveryTabWithoutAQuestion)
{
    refused = {1, 2, 3, 4};
    tabs.setShouldSelect({});
    click(4);
    EXPECT_EQ(current(), 4);
    tabs.setCurrentIndex(2);
    EXPECT_EQ(current(), 2);
}

TEST_F(TabViewTest, RefusesAProgramsSelectionToo)
{
    refused = {2};
    tabs.setCurrentIndex(2);
    EXPECT_EQ(current(), 0);
    EXPECT_EQ(bar()->currentIndex(), 0);
    EXPECT_TRUE(tabs.widget(0)->isVisible());
    tabs.setCurrentIndex(3);
    EXPECT_EQ(current(), 3);
    bar()->setCurrentIndex(2);
    EXPECT_EQ(current(), 3) << "back to the last one that was allowed";
}

TEST_F(TabViewTest, RefusesAssistiveTechnologyToo)
{
    refused = {2};
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(bar());
    ASSERT_NE(interface, nullptr);
    const auto pressTab = [interface](int position) {
        QAccessibleInterface *tab = interface->child(position);
        ASSERT_NE(tab, nullptr);
        ASSERT_NE(tab->actionInterface(), nullptr);
        tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    };
    pressTab(2);
    EXPECT_EQ(current(), 0);
    pressTab(3);
    EXPECT_EQ(current(), 3);
}

TEST_F(TabViewTest, StaysOnATabThatIsRefusedAfterwards)
{
    click(2);
    refused = {2};
    EXPECT_EQ(current(), 2) << "it stays shown";
    click(2);
    EXPECT_EQ(current(), 2);
    click(0);
    EXPECT_EQ(current(), 0);
    click(2);
    EXPECT_EQ(current(), 0) << "but cannot be entered again";
}

TEST_F(TabViewTest, FollowsTheShortcutOfATabUnlessItIsRefused)
{
    tabs.setTabText(1, QStringLiteral("&Beta"));
    tabs.setTabText(2, QStringLiteral("&Gamma"));
    tabs.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tabs));
    refused = {2};
    const QSignalSpy changes(&tabs, &QTabWidget::currentChanged);
    QTest::keyClick(&tabs, Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(current(), 0);
    EXPECT_EQ(changes.count(), 0) << "not even for a moment";
    QTest::keyClick(&tabs, Qt::Key_B, Qt::AltModifier);
    EXPECT_EQ(current(), 1);
}

TEST_F(TabViewTest, KeepsRefusedPagesAndTabsEnabled)
{
    refused = {0, 2};
    tabs.setIdentifier(2, QStringLiteral("Off"));
    EXPECT_TRUE(tabs.isTabEnabled(2));
    EXPECT_TRUE(tabs.widget(2)->isEnabled());
    EXPECT_TRUE(tabs.isTabEnabled(0));
    EXPECT_EQ(current(), 0);
}

/// The tab bar with its drawing options in the open.
class OpenTabBar : public AskingTabBar {
public:
    using AskingTabBar::initStyleOption;
};

TEST(TabViewDrawing, ShowsRefusedTabsAsDisabled)
{
    OpenTabBar bar;
    bar.addTab(QStringLiteral("Alpha"));
    bar.addTab(QStringLiteral("Beta"));
    bar.setShouldSelect([](int position) { return position != 1; });
    QStyleOptionTab allowed;
    QStyleOptionTab refused;
    bar.initStyleOption(&allowed, 0);
    bar.initStyleOption(&refused, 1);
    EXPECT_TRUE(allowed.state.testFlag(QStyle::State_Enabled));
    EXPECT_FALSE(refused.state.testFlag(QStyle::State_Enabled));
    EXPECT_EQ(refused.palette.currentColorGroup(), QPalette::Disabled);
    EXPECT_NE(allowed.palette.currentColorGroup(), QPalette::Disabled);

    bar.setShouldSelect({});
    QStyleOptionTab again;
    bar.initStyleOption(&again, 1);
    EXPECT_TRUE(again.state.testFlag(QStyle::State_Enabled)) << "without a question none is refused";
}

TEST_F(TabViewTest, KeepsTheIdentifierOfEachTab)
{
    EXPECT_TRUE(tabs.identifier(1).isNull()) << "none was given";
    tabs.setIdentifier(1, QStringLiteral("On"));
    tabs.setIdentifier(2, QStringLiteral("Off"));
    EXPECT_EQ(tabs.identifier(1), QStringLiteral("On"));
    EXPECT_EQ(tabs.identifier(2), QStringLiteral("Off"));
    tabs.setIdentifier(1, QStringLiteral("Off"));
    EXPECT_EQ(tabs.identifier(1), QStringLiteral("Off"));
    EXPECT_TRUE(tabs.identifier(0).isNull());
}

TEST_F(TabViewTest, IgnoresTheIdentifierOfAMissingTab)
{
    tabs.setIdentifier(-1, QStringLiteral("On"));
    tabs.setIdentifier(5, QStringLiteral("On"));
    EXPECT_TRUE(tabs.identifier(-1).isNull());
    EXPECT_TRUE(tabs.identifier(5).isNull());
}

TEST_F(TabViewTest, TakesOnlyATextForAnIdentifier)
{
    bar()->setTabData(1, 7);
    EXPECT_TRUE(tabs.identifier(1).isNull());
    bar()->setTabData(1, QStringLiteral(""));
    EXPECT_FALSE(tabs.identifier(1).isNull());
}

TEST(TabViewEmpty, HasNothingToSelect)
{
    TabView tabs;
    tabs.setShouldSelect([](int) { return false; });
    QTest::keyClick(&tabs, Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyClick(tabs.findChild<QTabBar *>(), Qt::Key_Right);
    EXPECT_EQ(tabs.currentIndex(), -1);
    tabs.addTab(new QWidget, QStringLiteral("Alpha"));
    EXPECT_EQ(tabs.currentIndex(), 0) << "the first tab is shown, asked or not";
    QTest::keyClick(&tabs, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(tabs.currentIndex(), 0);
}

} // namespace
} // namespace tessarin::test
