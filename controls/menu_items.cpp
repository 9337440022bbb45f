// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/menu_items.h"

#include "platform/popup_button.h"
#include "plugin/log.h"

#include <QSignalBlocker>
#include <QStandardItem>
#include <QStandardItemModel>

#include <algorithm>
#include <cstdlib>

namespace tessarin {

namespace {

QStandardItemModel *itemModel(const QComboBox *menu)
{
    return menu != nullptr ? qobject_cast<QStandardItemModel *>(menu->model()) : nullptr;
}

const QString kSeparatorDescription = QStringLiteral("separator"); // what the toolkit's styles look for

/// Whether the menu leaves hidden items out of its list.
bool canHideItems(const QComboBox *menu)
{
    return qobject_cast<const PopUpButton *>(menu) != nullptr;
}

/// Derives from tag and hidden flag whether keyboard, wheel and type-ahead may reach the item.
void updateItemFlags(QStandardItem &item)
{
    const bool separator = item.data(Qt::AccessibleDescriptionRole).toString() == kSeparatorDescription;
    const bool hidden = item.data(kItemHiddenRole).toBool();
    const bool enabled = !separator && !hidden && menuItemTagIsEnabled(item.data(kItemTagRole).toInt());
    item.setFlags(enabled ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags);
}

void appendItem(MenuHandle menu, QStandardItem *item)
{
    if (QStandardItemModel *model = itemModel(menu)) {
        const QSignalBlocker blocker(menu);
        updateItemFlags(*item);
        model->appendRow(item); // the model owns the item
    } else {
        delete item;
    }
}

} // namespace

MenuHandle comboMenu(QWidget *popup)
{
    return qobject_cast<QComboBox *>(popup);
}

int GetComboMenu(QWidget *popup, MenuHandle *menu)
{
    *menu = comboMenu(popup);
    return 0;
}

int CountMenuItems(MenuHandle menu)
{
    return menu != nullptr ? menu->count() : 0;
}

int DeleteMenuItems(MenuHandle menu, int /*unused*/, int count)
{
    if (menu == nullptr) {
        return 0;
    }
    _VERBOSE("Remove all Items - count=%d\n", count);
    const QSignalBlocker blocker(menu);
    menu->model()->removeRows(0, std::min(count, menu->count())); // in one go, since views follow each removal
    return 0;
}

int AddMenuItem(MenuHandle menu, const char *title, std::int32_t tag)
{
    if (menu == nullptr) {
        return 0;
    }
    _VERBOSE("AppendMenuItem: %S=%d\n", title, tag);
    auto *item = new QStandardItem(QString::fromUtf8(title));
    item->setData(tag, kItemTagRole);
    appendItem(menu, item);
    return 0;
}

int MyAppendMenuItem(MenuHandle menu, const char *title, std::int32_t n)
{
    return AddMenuItem(menu, title, n);
}

int MyAppendDisabledMenuItem(MenuHandle menu, const char *title, std::int32_t n)
{
    return AddMenuItem(menu, title, -n);
}

int MyAppendSeparatorItem(MenuHandle menu)
{
    if (menu == nullptr) {
        return 0;
    }
    auto *item = new QStandardItem;
    item->setData(kSeparatorDescription, Qt::AccessibleDescriptionRole);
    item->setData(kSeparatorTag, kItemTagRole);
    appendItem(menu, item);
    return 0;
}

int ChangeMenuItemAttributes(MenuHandle menu, int item, int set, int clear)
{
    QStandardItemModel *model = itemModel(menu);
    QStandardItem *found = model != nullptr ? model->item(item < 1 ? 0 : item - 1) : nullptr;
    if (found == nullptr) {
        return 0;
    }
    if (!canHideItems(menu)) {
        set = set == kMenuItemHidden ? kMenuItemDisabled : set;
        clear = clear == kMenuItemHidden ? kMenuItemDisabled : clear;
    }
    const QSignalBlocker blocker(menu);
    const auto magnitude = [found] { return std::abs(found->data(kItemTagRole).toInt()); };
    if (set == kMenuItemDisabled) {
        found->setData(magnitude() == 0 ? -1 : -magnitude(), kItemTagRole);
    }
    if (clear == kMenuItemDisabled) {
        found->setData(magnitude() == 0 ? 1 : magnitude(), kItemTagRole);
    }
    if (set == kMenuItemHidden) {
        found->setData(true, kItemHiddenRole);
    }
    if (clear == kMenuItemHidden) {
        found->setData(false, kItemHiddenRole);
    }
    updateItemFlags(*found);
    return 0;
}

std::int32_t menuItemTag(const QComboBox *menu, int index)
{
    return menu != nullptr ? menu->itemData(index, kItemTagRole).toInt() : 0;
}

bool menuItemTagIsEnabled(std::int32_t tag)
{
    return tag >= 0;
}

bool menuItemIsHidden(const QComboBox *menu, int index)
{
    return menu != nullptr && menu->itemData(index, kItemHiddenRole).toBool();
}

bool menuItemIsSeparator(const QComboBox *menu, int index)
{
    return menu != nullptr &&
           menu->itemData(index, Qt::AccessibleDescriptionRole).toString() == kSeparatorDescription;
}

} // namespace tessarin
