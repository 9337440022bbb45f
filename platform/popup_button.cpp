// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/popup_button.h"

#include <QListView>

namespace tessarin {

PopUpButton::PopUpButton(QWidget *parent) : QComboBox(parent)
{
    // The panel gives every pop-up its place; a long choice must not push it wider.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(6);
}

void PopUpButton::showPopup()
{
    // The list keeps its own idea of hidden rows, and is made with the first showing.
    if (auto *list = qobject_cast<QListView *>(view())) {
        for (int row = 0; row < count(); ++row) {
            list->setRowHidden(row, itemData(row, kItemHiddenRole).toBool());
        }
    }
    QComboBox::showPopup();
}

} // namespace tessarin
