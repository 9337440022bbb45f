// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/popup_button.h"

#include <QFontMetrics>
#include <QListView>
#include <QStyle>
#include <QStyleOptionComboBox>

#include <algorithm>

namespace tessarin {

namespace {

constexpr int kShownLetters = 6;

} // namespace

// The toolkit's own size policies would make the list of each pop-up at once, before anyone opens it.
PopUpButton::PopUpButton(QWidget *parent) : QComboBox(parent) {}

QSize PopUpButton::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QFontMetrics metrics = fontMetrics();
    // As the toolkit counts: no icon is lower than 14, and a choice has a line of room above and below.
    const QSize content(kShownLetters * metrics.horizontalAdvance(QLatin1Char('X')),
                        std::max(metrics.height(), 14) + 2);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, content, this);
}

QSize PopUpButton::minimumSizeHint() const
{
    return sizeHint();
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
