// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Hidden and disabled items of a pop-up, which no way of a person reaches.

#include "controls/control_layer.h"
#include "controls/menu_items.h"
#include "controls/popup_filling.h"
#include "tests/controls/controls_test_support.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

/// A pop-up of items 1 to 7: 1 enabled, 2 disabled, 3 hidden, 4 a separator, 5 enabled, 6 hidden, 7 disabled.
class UnreachableItems : public testing::Test {
protected:
    UnreachableItems()
    {
        popup.resize(200, 30);
        FillPopup(&popup,
                  Choices{{"A", "Alpha"},
                          {"B", "Beta"},
                          {"C", "Gamma"},
                          kSeparatorPair,
                          {"E", "Epsilon"},
                          {"F", "Zeta"},
                          {"G", "Eta"}},
                  std::vector<int>{1, 0, 1, 1, 1, 1, 0}, 1);
        ChangeMenuItemAttributes(&popup, 3, kMenuItemHidden, 0);
        ChangeMenuItemAttributes(&popup, 6, kMenuItemHidden, 0);
        popup.show();
        popup.setFocus();
        if (!QTest::qWaitForWindowExposed(&popup)) {
            ADD_FAILURE() << "not shown";
        }
    }

    int current() const { return popup.currentIndex() + 1; }

    PopUpButton popup;
    QSignalSpy activated{&popup, &QComboBox::activated};
};

TEST_F(UnreachableItems, ArePassedOverByTheKeys)
{
    for (const auto key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End}) {
        SetComboControlValue(&popup, 1);
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 5) << key;
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 5) << "nothing behind it may be chosen";
    }
    for (const auto key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home}) {
        SetComboControlValue(&popup, 5);
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 1) << key;
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 1);
    }
    EXPECT_EQ(activated.count(), 6) << "one for each choice that was made";
}

TEST_F(UnreachableItems, ArePassedOverByTheWheel)
{
    turnWheel(&popup, -1);
    EXPECT_EQ(current(), 5);
    turnWheel(&popup, -1);
    EXPECT_EQ(current(), 5);
    turnWheel(&popup, 1);
    EXPECT_EQ(current(), 1);
    turnWheel(&popup, 1);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(activated.count(), 2);
}

TEST_F(UnreachableItems, AreNotFoundByTyping)
{
    for (const auto key : {Qt::Key_B, Qt::Key_G, Qt::Key_Z, Qt::Key_Minus}) {
        QTest::qWait(QApplication::keyboardInputInterval() + 20); // what was typed before is forgotten
        QTest::keyClick(&popup, key);
        EXPECT_EQ(current(), 1) << key;
    }
    EXPECT_EQ(activated.count(), 0);
}

TEST_F(UnreachableItems, LeaveOthersToBeFoundByTyping)
{
    QTest::keyClick(&popup, Qt::Key_E);
    EXPECT_EQ(current(), 5);
    EXPECT_EQ(activated.count(), 1);
}

TEST_F(UnreachableItems, AreNotChosenByTheMouse)
{
    clickItem(&popup, 2);
    EXPECT_EQ(current(), 1);
    clickItem(&popup, 4);
    EXPECT_EQ(current(), 1);
    clickItem(&popup, 7);
    EXPECT_EQ(current(), 1);
    for (const QList<QVariant> &arguments : activated) {
        EXPECT_EQ(arguments.at(0).toInt(), 0) << "at most the selected item is chosen once more";
    }
    clickItem(&popup, 5);
    EXPECT_EQ(current(), 5);
    EXPECT_EQ(activated.last().at(0).toInt(), 4);
}

TEST_F(UnreachableItems, TakeNoRoomInTheListWhenTheyAreHidden)
{
    popup.showPopup();
    for (int n = 1; n <= 7; ++n) {
        const QRect row = popup.view()->visualRect(popup.model()->index(n - 1, 0));
        EXPECT_EQ(row.isEmpty(), n == 3 || n == 6) << n;
    }
    popup.hidePopup();
}

TEST_F(UnreachableItems, ArePassedOverInTheOpenList)
{
    popup.showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup.view()->window()));
    QTest::keyClick(popup.view(), Qt::Key_Down);
    QTest::keyClick(popup.view(), Qt::Key_Return);
    EXPECT_EQ(current(), 5);
}

} // namespace
} // namespace tessarin::test
