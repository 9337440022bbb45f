// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Items of pop-ups: their tags, their states, and the selection.

#include "controls/control_layer.h"
#include "controls/menu_items.h"
#include "tests/controls/controls_test_support.h"

#include <QSignalSpy>
#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class MenuItems : public testing::Test {
protected:
    void add(std::initializer_list<std::pair<const char *, int>> items)
    {
        for (const auto &[title, tag] : items) {
            AddMenuItem(&popup, title, tag);
        }
    }

    PopUpButton popup;
    CapturedLog log;
};

TEST_F(MenuItems, ComeFromAPopUpOnly)
{
    QLabel label;
    MenuHandle menu = nullptr;
    EXPECT_EQ(GetComboMenu(&popup, &menu), 0);
    EXPECT_EQ(menu, &popup);
    EXPECT_EQ(GetComboMenu(&label, &menu), 0);
    EXPECT_EQ(menu, nullptr);
    menu = &popup;
    EXPECT_EQ(GetComboMenu(nullptr, &menu), 0);
    EXPECT_EQ(menu, nullptr);
}

TEST_F(MenuItems, AreAppendedWithTitleAndTag)
{
    EXPECT_EQ(AddMenuItem(&popup, "Bl\xc3\xa4u %d & <b>", 7), 0);
    EXPECT_EQ(MyAppendMenuItem(&popup, "Second", 2), 0);
    EXPECT_EQ(MyAppendDisabledMenuItem(&popup, "Third", 3), 0);
    EXPECT_EQ(MyAppendSeparatorItem(&popup), 0);
    EXPECT_EQ(CountMenuItems(&popup), 4);
    EXPECT_EQ(titlesOf(popup), (std::vector<std::string>{"Bl\xc3\xa4u %d & <b>", "Second", "Third", ""}));
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{7, 2, -3, 123}));
    EXPECT_EQ(log.lines(), logged({"AppendMenuItem: Bl\xc3\xa4u %d & <b>=7\n", "AppendMenuItem: Second=2\n",
                                   "AppendMenuItem: Third=-3\n"}));
}

TEST_F(MenuItems, WithANegativeTagOrASeparatorsCannotBeChosen)
{
    add({{"Positive", 1}, {"Zero", 0}, {"Negative", -3}});
    MyAppendSeparatorItem(&popup);
    EXPECT_EQ(choosableOf(popup), (std::vector<bool>{true, true, false, false}));
    EXPECT_FALSE(menuItemIsSeparator(&popup, 2));
    EXPECT_TRUE(menuItemIsSeparator(&popup, 3));
}

TEST_F(MenuItems, AreCountedAndAppendedWhereThereIsAMenu)
{
    EXPECT_EQ(CountMenuItems(nullptr), 0);
    EXPECT_EQ(AddMenuItem(nullptr, "x", 1), 0);
    EXPECT_EQ(MyAppendSeparatorItem(nullptr), 0);
    EXPECT_EQ(DeleteMenuItems(nullptr, 0, 3), 0);
    EXPECT_EQ(ChangeMenuItemAttributes(nullptr, 1, 5, 0), 0);
    EXPECT_TRUE(log.lines().empty());
    EXPECT_EQ(CountMenuItems(&popup), 0);
}

TEST_F(MenuItems, AppendedOrRemovedByTheLayerRaiseNoEvent)
{
    const QSignalSpy activated(&popup, &QComboBox::activated);
    const QSignalSpy changed(&popup, &QComboBox::currentIndexChanged);
    add({{"One", 1}, {"Two", 2}});
    SetComboControlValue(&popup, 2);
    ChangeMenuItemAttributes(&popup, 2, 5, 0);
    DeleteMenuItems(&popup, 0, 2);
    EXPECT_EQ(activated.count(), 0);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(MenuItems, AreRemovedFromTheFirstOn)
{
    add({{"One", 1}, {"Two", -2}, {"Three", 0}});
    MyAppendSeparatorItem(&popup);
    log.clear();
    EXPECT_EQ(DeleteMenuItems(&popup, 99, 2), 0);
    EXPECT_EQ(titlesOf(popup), (std::vector<std::string>{"Three", ""}));
    EXPECT_EQ(log.lines(), logged({"Remove all Items - count=2\n"}));
    DeleteMenuItems(&popup, 0, CountMenuItems(&popup));
    EXPECT_EQ(CountMenuItems(&popup), 0);
    EXPECT_EQ(popup.currentIndex(), -1);
}

TEST_F(MenuItems, StayWhenNoneAreToBeRemoved)
{
    add({{"One", 1}});
    log.clear();
    EXPECT_EQ(DeleteMenuItems(&popup, 0, 0), 0);
    EXPECT_EQ(DeleteMenuItems(&popup, 0, -3), 0);
    EXPECT_EQ(CountMenuItems(&popup), 1);
    EXPECT_EQ(log.lines(), logged({"Remove all Items - count=0\n", "Remove all Items - count=-3\n"}));
    DeleteMenuItems(&popup, 0, 5);
    EXPECT_EQ(CountMenuItems(&popup), 0) << "more than there are empties the menu";
}

struct AttributeCase {
    int before, set, clear, after;
};

TEST_F(MenuItems, ChangeTheSignOfTheirTag)
{
    const std::vector<AttributeCase> cases{
        {2, 5, 0, -2}, {-2, 5, 0, -2}, {0, 5, 0, -1},  {2, 0, 5, 2}, {-2, 0, 5, 2},     {0, 0, 5, 1},
        {-1, 0, 5, 1}, {2, 4, 0, 2},   {2, 0, 4, 2},   {0, 4, 4, 0}, {2, 3, 0, 2},      {-2, 3, 0, -2},
        {0, 3, 0, 0},  {2, 0, 3, 2},   {-2, 0, 3, -2}, {0, 0, 3, 0}, {123, 5, 0, -123},
    };
    for (const AttributeCase &c : cases) {
        PopUpButton menu;
        AddMenuItem(&menu, "Item", c.before);
        EXPECT_EQ(ChangeMenuItemAttributes(&menu, 1, c.set, c.clear), 0);
        EXPECT_EQ(menuItemTag(&menu, 0), c.after) << c.before << " set " << c.set << " clear " << c.clear;
        EXPECT_EQ(choosableOf(menu)[0], c.after >= 0 && c.set != 3) << c.before << " set " << c.set;
    }
}

TEST_F(MenuItems, WithTagZeroAreEnabledToOneAfterTheyWereDisabled)
{
    add({{"Zero", 0}});
    ChangeMenuItemAttributes(&popup, 1, 5, 0);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{-1}));
    ChangeMenuItemAttributes(&popup, 1, 0, 5);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{1})) << "not back to 0";
}

TEST_F(MenuItems, KeepTagAndPlaceWhenTheyAreHidden)
{
    add({{"One", 1}, {"Two", -2}, {"Three", 3}});
    ChangeMenuItemAttributes(&popup, 1, 3, 0);
    ChangeMenuItemAttributes(&popup, 2, 3, 0);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{1, -2, 3}));
    EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{true, true, false}));
    EXPECT_EQ(choosableOf(popup), (std::vector<bool>{false, false, true}));
    ChangeMenuItemAttributes(&popup, 1, 0, 3);
    ChangeMenuItemAttributes(&popup, 2, 0, 3);
    EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{false, false, false}));
    EXPECT_EQ(choosableOf(popup), (std::vector<bool>{true, false, true})) << "a disabled one stays disabled";
    EXPECT_EQ(popup.count(), 3);
}

TEST_F(MenuItems, BelowOneAddressTheFirst)
{
    for (const int number : {1, 0, -1, -7}) {
        PopUpButton menu;
        AddMenuItem(&menu, "One", 1);
        AddMenuItem(&menu, "Two", 2);
        ChangeMenuItemAttributes(&menu, number, 5, 0);
        EXPECT_EQ(tagsOf(menu), (std::vector<int>{-1, 2})) << number;
    }
}

TEST_F(MenuItems, BeyondTheLastAreNotThere)
{
    add({{"One", 1}});
    EXPECT_EQ(ChangeMenuItemAttributes(&popup, 2, 5, 0), 0);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{1}));
    PopUpButton empty;
    EXPECT_EQ(ChangeMenuItemAttributes(&empty, 0, 5, 0), 0);
}

TEST_F(MenuItems, AreDisabledInsteadWhereAMenuCannotHideThem)
{
    QComboBox plain;
    AddMenuItem(&plain, "One", 1);
    ChangeMenuItemAttributes(&plain, 1, 3, 0);
    EXPECT_EQ(tagsOf(plain), (std::vector<int>{-1}));
    EXPECT_EQ(hiddenOf(plain), (std::vector<bool>{false}));
    ChangeMenuItemAttributes(&plain, 1, 0, 3);
    EXPECT_EQ(tagsOf(plain), (std::vector<int>{1}));
}

TEST_F(MenuItems, GiveThePopUpsValueWhateverTheirState)
{
    add({{"One", 1}, {"Two", -2}, {"Zero", 0}});
    MyAppendSeparatorItem(&popup);
    const std::vector<std::pair<int, std::string>> values{{1, "1"}, {2, "-2"}, {0, "0"}, {123, "123"}};
    for (int n = 1; n <= 4; ++n) {
        SetComboControlValue(&popup, n);
        log.clear();
        const auto &[value, text] = values[static_cast<std::size_t>(n) - 1];
        EXPECT_EQ(GetComboControlValue(&popup), value);
        EXPECT_EQ(log.lines(), logged({"+++ tag of selected item: " + text + "\n"}));
    }
}

TEST_F(MenuItems, GiveNoValueWhenNoneIsSelected)
{
    add({{"One", 1}});
    SetComboControlValue(&popup, 0);
    log.clear();
    EXPECT_EQ(GetComboControlValue(&popup), 0);
    EXPECT_TRUE(log.lines().empty());
}

TEST_F(MenuItems, AreSelectedByNumber)
{
    add({{"One", 1}, {"Two", -2}, {"Three", 3}});
    log.clear();
    EXPECT_EQ(SetComboControlValue(&popup, 3), 0);
    EXPECT_EQ(popup.currentIndex(), 2);
    EXPECT_EQ(SetComboControlValue(&popup, 2), 0);
    EXPECT_EQ(popup.currentIndex(), 1) << "a disabled one too";
    EXPECT_EQ(SetComboControlValue(&popup, 4), 0);
    EXPECT_EQ(popup.currentIndex(), 1) << "there are fewer";
    EXPECT_EQ(log.lines(), logged({"SetComboControlValue to #3 of 3\n", "SetComboControlValue to #2 of 3\n",
                                   "SetComboControlValue to #4 of 3\n"}));
}

TEST_F(MenuItems, AreDeselectedByNumberZero)
{
    add({{"One", 1}, {"Two", 2}});
    SetComboControlValue(&popup, 2);
    EXPECT_EQ(SetComboControlValue(&popup, 0), 0);
    EXPECT_EQ(popup.currentIndex(), -1);
    EXPECT_EQ(popup.currentText(), QString());

    PopUpButton empty;
    EXPECT_EQ(SetComboControlValue(&empty, 0), 0);
    EXPECT_EQ(SetComboControlValue(&empty, 1), 0);
    EXPECT_EQ(empty.currentIndex(), -1);
}

TEST_F(MenuItems, AreSelectedByTag)
{
    add({{"Four", 4}, {"Two", -2}, {"Zero", 0}});
    log.clear();
    EXPECT_EQ(SelectComboControlEntryWithTag(&popup, 2), 0);
    EXPECT_EQ(popup.currentIndex(), 1) << "the disabled form is found";
    SelectComboControlEntryWithTag(&popup, 4);
    EXPECT_EQ(popup.currentIndex(), 0);
    SelectComboControlEntryWithTag(&popup, 0);
    EXPECT_EQ(popup.currentIndex(), 2);
    EXPECT_EQ(log.lines(), logged({"SetComboControlValue to #2 of 3\n", "SetComboControlValue to #4 of 3\n",
                                   "SetComboControlValue to #0 of 3\n"}));
}

TEST_F(MenuItems, AreSelectedInTheirDisabledFormWhenATagIsThereTwice)
{
    add({{"Enabled", 2}, {"Disabled", -2}, {"Again", 2}});
    SelectComboControlEntryWithTag(&popup, 2);
    EXPECT_EQ(popup.currentIndex(), 1);
    SelectComboControlEntryWithTag(&popup, -2);
    EXPECT_EQ(popup.currentIndex(), 0) << "of two the first";
}

TEST_F(MenuItems, StaySelectedWhenNoItemHasTheTag)
{
    add({{"One", 1}, {"Two", 2}});
    SetComboControlValue(&popup, 2);
    EXPECT_EQ(SelectComboControlEntryWithTag(&popup, 9), 0);
    EXPECT_EQ(popup.currentIndex(), 1);
}

TEST_F(MenuItems, AreValidatedByTheirTagsSign)
{
    EXPECT_TRUE(menuItemTagIsEnabled(1));
    EXPECT_TRUE(menuItemTagIsEnabled(123));
    EXPECT_TRUE(menuItemTagIsEnabled(0));
    EXPECT_FALSE(menuItemTagIsEnabled(-1));
    EXPECT_TRUE(PasswordPDE::validateMenuItem(0));
    EXPECT_TRUE(PasswordPDE::validateMenuItem(1));
    EXPECT_FALSE(PasswordPDE::validateMenuItem(-1));
}

TEST_F(MenuItems, HaveNoTagBeyondTheMenu)
{
    add({{"One", 1}});
    EXPECT_EQ(menuItemTag(&popup, 1), 0);
    EXPECT_EQ(menuItemTag(&popup, -1), 0);
    EXPECT_EQ(menuItemTag(nullptr, 0), 0);
    EXPECT_FALSE(menuItemIsHidden(&popup, 5));
    EXPECT_FALSE(menuItemIsHidden(nullptr, 0));
    EXPECT_FALSE(menuItemIsSeparator(nullptr, 0));
}

} // namespace
} // namespace tessarin::test
