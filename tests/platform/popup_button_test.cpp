// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/popup_button.h"

#include <QListView>

#include <gtest/gtest.h>

namespace tessarin {
namespace {

QListView *list(const PopUpButton &button)
{
    return qobject_cast<QListView *>(button.view());
}

TEST(PopUpButtonTest, LeavesHiddenItemsOutOfItsList)
{
    PopUpButton button;
    button.addItems({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
    button.setItemData(1, true, kItemHiddenRole);
    button.show();
    button.showPopup();
    ASSERT_NE(list(button), nullptr);
    EXPECT_FALSE(list(button)->isRowHidden(0));
    EXPECT_TRUE(list(button)->isRowHidden(1));
    EXPECT_FALSE(list(button)->isRowHidden(2));
    EXPECT_EQ(button.count(), 3) << "they stay items";
    button.hidePopup();
}

TEST(PopUpButtonTest, ShowsItemsAgainThatAreHiddenNoMore)
{
    PopUpButton button;
    button.addItems({QStringLiteral("One"), QStringLiteral("Two")});
    button.setItemData(0, true, kItemHiddenRole);
    button.show();
    button.showPopup();
    EXPECT_TRUE(list(button)->isRowHidden(0));
    button.hidePopup();
    button.setItemData(0, false, kItemHiddenRole);
    button.setItemData(1, true, kItemHiddenRole);
    button.showPopup();
    EXPECT_FALSE(list(button)->isRowHidden(0));
    EXPECT_TRUE(list(button)->isRowHidden(1));
    button.hidePopup();
}

TEST(PopUpButtonTest, IsNotWidenedByALongChoice)
{
    PopUpButton button;
    button.addItem(QStringLiteral("x"));
    const QSize before = button.sizeHint();
    button.addItem(QString(300, QLatin1Char('m')));
    EXPECT_EQ(button.sizeHint(), before);
}

} // namespace
} // namespace tessarin
