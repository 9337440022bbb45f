// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Menus of pop-ups: items with a tag, whose sign is their enabled state. The menu handle is the pop-up's combo box.

#ifndef TESSARIN_CONTROLS_MENU_ITEMS_H
#define TESSARIN_CONTROLS_MENU_ITEMS_H

#include <QComboBox>
#include <QWidget>

#include <cstdint>

namespace tessarin {

using MenuHandle = QComboBox *;

/// Attributes of ChangeMenuItemAttributes().
enum MenuItemAttribute : int {
    kMenuItemHidden = 3,
    kMenuItemSeparator = 4, ///< no effect
    kMenuItemDisabled = 5,
};

inline constexpr int kSeparatorTag = 123;

/// The menu of a view that is a pop-up, else null.
MenuHandle comboMenu(QWidget *popup);

/// Stores the pop-up's menu in `menu`, null for a view that is no pop-up. Always 0.
int GetComboMenu(QWidget *popup, MenuHandle *menu);
int CountMenuItems(MenuHandle menu);
/// Removes the first item `count` times. The second argument is ignored.
int DeleteMenuItems(MenuHandle menu, int unused, int count);
/// Appends an item with a UTF-8 title and a tag.
int AddMenuItem(MenuHandle menu, const char *title, std::int32_t tag);
int MyAppendMenuItem(MenuHandle menu, const char *title, std::int32_t n);
int MyAppendDisabledMenuItem(MenuHandle menu, const char *title, std::int32_t n);
int MyAppendSeparatorItem(MenuHandle menu);

/// Sets and clears an attribute of item `item` (1-based; smaller numbers address the first item). Disabling makes
/// the tag negative, enabling positive; hiding leaves the tag. Where a menu cannot hide items they are disabled
/// instead.
int ChangeMenuItemAttributes(MenuHandle menu, int item, int set, int clear);

/// The tag of the item at a 0-based index; 0 when there is none.
std::int32_t menuItemTag(const QComboBox *menu, int index);
/// Whether an item with the tag may be chosen, as far as its tag says.
bool menuItemTagIsEnabled(std::int32_t tag);
bool menuItemIsHidden(const QComboBox *menu, int index);
bool menuItemIsSeparator(const QComboBox *menu, int index);

} // namespace tessarin

#endif
