// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The choices of a pop-up as assistive technology reads them, whether or not the pop-up's list is open.

#ifndef TESSARIN_PLATFORM_ACCESSIBLE_CHOICES_H
#define TESSARIN_PLATFORM_ACCESSIBLE_CHOICES_H

#include "platform/popup_button.h"

#include <QAccessible>
#include <QHash>
#include <QPointer>

namespace tessarin {

/// The open list of a pop-up; null while it is closed.
QAbstractItemView *openListOf(const PopUpButton *popup);

/// What the list and its choices have in common.
class AccessiblePopUpPart : public QAccessibleInterface {
public:
    explicit AccessiblePopUpPart(PopUpButton *popup) : popup_(popup) {}

    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    void setText(QAccessible::Text, const QString &) override {}

protected:
    QPointer<PopUpButton> popup_;
};

/// The list: its children are the rows that are not hidden and not separators.
class AccessibleChoiceList : public AccessiblePopUpPart {
public:
    using AccessiblePopUpPart::AccessiblePopUpPart;
    ~AccessibleChoiceList() override;

    bool isValid() const override { return !popup_.isNull(); }
    QAccessibleInterface *parent() const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::List; }
    QAccessible::State state() const override;

private:
    QList<int> rows() const;

    mutable QHash<int, QAccessible::Id> choices_; ///< by row; they stay when rows go, and are invalid then
};

/// One choice. Pressing it is choosing it: the pop-up tells of it as when a person chooses.
class AccessibleChoice : public AccessiblePopUpPart, public QAccessibleActionInterface {
public:
    AccessibleChoice(PopUpButton *popup, const AccessibleChoiceList *list, int row);

    int row() const { return row_; }
    bool isValid() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface *parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    bool canBeChosen() const;

    const AccessibleChoiceList *list_; ///< owns this
    int row_;
};

} // namespace tessarin

#endif
