// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A pop-up as assistive technology reads it: named by its caption, its choice as its text, and below it a list of
// the choices that can be seen, each of which can be pressed.

#ifndef TESSARIN_PLATFORM_ACCESSIBLE_POPUP_H
#define TESSARIN_PLATFORM_ACCESSIBLE_POPUP_H

#include "platform/popup_button.h"

#include <QAccessibleWidget>

namespace tessarin {

class AccessiblePopUp : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit AccessiblePopUp(PopUpButton *popup);
    ~AccessiblePopUp() override;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QStringList keyBindingsForAction(const QString &name) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

    // The text that is shown, which has neither caret nor selection.
    void selection(int number, int *start, int *end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int *start, int *end) const override;

private:
    PopUpButton *popup() const;

    mutable QAccessible::Id list_ = 0; ///< made when it is first asked for; 0 before
};

} // namespace tessarin

#endif
