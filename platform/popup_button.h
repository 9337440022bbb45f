// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The pop-up button of the interface file: a combo box whose items carry a tag and can be hidden.

#ifndef TESSARIN_PLATFORM_POPUP_BUTTON_H
#define TESSARIN_PLATFORM_POPUP_BUTTON_H

#include <QComboBox>

namespace tessarin {

/// Roles of a pop-up item in its combo box's model.
enum PopUpItemRole : int {
    kItemTagRole = Qt::UserRole + 1,    ///< the item's tag, a 32-bit integer; 0 when none was given
    kItemHiddenRole = Qt::UserRole + 2, ///< true: hidden from the list
};

/// A combo box that leaves hidden items out of its list. Items that must not be reached are disabled in the model,
/// which keeps keyboard, wheel and type-ahead off them.
class PopUpButton : public QComboBox {
    Q_OBJECT

public:
    explicit PopUpButton(QWidget *parent = nullptr);

    void showPopup() override;

    /// Room for six letters, whatever the choices are: the panel gives every pop-up its place, and a long choice
    /// must not push it wider.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

} // namespace tessarin

#endif
