// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/accessible_popup.h"

#include "platform/accessible_choices.h"
#include "platform/accessible_reach.h"
#include "platform/accessible_views.h"

namespace tessarin {

AccessiblePopUp::AccessiblePopUp(PopUpButton *popup) : QAccessibleWidget(popup, QAccessible::ComboBox) {}

AccessiblePopUp::~AccessiblePopUp()
{
    if (list_ != 0) {
        QAccessible::deleteAccessibleInterface(list_);
    }
}

PopUpButton *AccessiblePopUp::popup() const
{
    return static_cast<PopUpButton *>(object());
}

void *AccessiblePopUp::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface) {
        return static_cast<QAccessibleTextInterface *>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QString AccessiblePopUp::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return captionOf(popup());
    case QAccessible::Accelerator:
        return acceleratorOf(popup());
    case QAccessible::Value:
        return popup()->currentText();
    default:
        return QAccessibleWidget::text(kind);
    }
}

QStringList AccessiblePopUp::keyBindingsForAction(const QString &name) const
{
    const QString keys = name == setFocusAction() ? acceleratorOf(popup()) : QString();
    return keys.isEmpty() ? QAccessibleWidget::keyBindingsForAction(name) : QStringList{keys};
}

QAccessible::State AccessiblePopUp::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.disabled = !isWithinReach(popup());
    state.expandable = true;
    state.expanded = openListOf(popup()) != nullptr;
    state.hasPopup = true;
    return state;
}

QStringList AccessiblePopUp::actionNames() const
{
    return isWithinReach(popup()) ? QAccessibleWidget::actionNames() << showMenuAction() << pressAction()
                                  : QStringList();
}

void AccessiblePopUp::doAction(const QString &name)
{
    if (name != showMenuAction() && name != pressAction()) {
        QAccessibleWidget::doAction(name);
    } else if (openListOf(popup()) != nullptr) {
        popup()->hidePopup();
    } else if (canBeUsedNow(popup())) {
        popup()->showPopup();
    }
}

QAccessibleInterface *AccessiblePopUp::child(int index) const
{
    if (index != 0) {
        return nullptr;
    }
    if (list_ == 0) {
        list_ = QAccessible::registerAccessibleInterface(new AccessibleChoiceList(popup()));
    }
    return QAccessible::accessibleInterface(list_);
}

QAccessibleInterface *AccessiblePopUp::childAt(int x, int y) const
{
    QAccessibleInterface *list = child(0);
    return list->rect().contains(x, y) ? list : nullptr;
}

int AccessiblePopUp::indexOfChild(const QAccessibleInterface *child) const
{
    return list_ != 0 && child == QAccessible::accessibleInterface(list_) ? 0 : -1;
}

void AccessiblePopUp::selection(int, int *start, int *end) const
{
    *start = 0;
    *end = 0;
}

QString AccessiblePopUp::text(int start, int end) const
{
    return popup()->currentText().mid(start, end - start);
}

int AccessiblePopUp::characterCount() const
{
    return static_cast<int>(popup()->currentText().size());
}

QRect AccessiblePopUp::characterRect(int) const
{
    return rect(); // the letters are the style's to place
}

int AccessiblePopUp::offsetAtPoint(const QPoint &) const
{
    return -1;
}

QString AccessiblePopUp::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace tessarin
