// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/accessible_choices.h"

#include "platform/accessible_reach.h"
#include "platform/accessible_views.h"

#include <QAbstractItemView>

namespace tessarin {

namespace {

bool canBeSeen(const PopUpButton &popup, int row)
{
    return !popup.itemData(row, kItemHiddenRole).toBool() &&
           popup.itemData(row, Qt::AccessibleDescriptionRole).toString() != QLatin1String("separator");
}

QModelIndex indexOf(const PopUpButton &popup, int row)
{
    return popup.model()->index(row, popup.modelColumn(), popup.rootModelIndex());
}

bool hasChoice(const PopUpButton *popup, int row)
{
    return popup != nullptr && row < popup->count() && canBeSeen(*popup, row);
}

bool isEnabledChoice(const PopUpButton *popup, int row)
{
    return hasChoice(popup, row) && (indexOf(*popup, row).flags() & Qt::ItemIsEnabled) != 0;
}

/// Chooses as a person does. What hears of it may take the pop-up away.
void choose(const QPointer<PopUpButton> &popup, int row, const QString &text)
{
    popup->hidePopup();
    popup->setCurrentIndex(row);
    if (popup) {
        emit popup->activated(row);
    }
    if (popup) {
        emit popup->textActivated(text);
    }
}

} // namespace

QAbstractItemView *openListOf(const PopUpButton *popup)
{
    // Not by view(), which would make the list.
    auto *list = popup->findChild<QAbstractItemView *>();
    return list != nullptr && list->isVisible() ? list : nullptr;
}

QWindow *AccessiblePopUpPart::window() const
{
    return popup_ ? popup_->window()->windowHandle() : nullptr;
}

QAccessibleInterface *AccessiblePopUpPart::childAt(int x, int y) const
{
    for (int index = 0; index < childCount(); ++index) {
        if (QAccessibleInterface *found = child(index); found->rect().contains(x, y)) {
            return found;
        }
    }
    return nullptr;
}

AccessibleChoiceList::~AccessibleChoiceList()
{
    for (const QAccessible::Id choice : std::as_const(choices_)) {
        QAccessible::deleteAccessibleInterface(choice);
    }
}

QList<int> AccessibleChoiceList::rows() const
{
    QList<int> rows;
    for (int row = 0; popup_ && row < popup_->count(); ++row) {
        if (canBeSeen(*popup_, row)) {
            rows.append(row);
        }
    }
    return rows;
}

QAccessibleInterface *AccessibleChoiceList::parent() const
{
    return QAccessible::queryAccessibleInterface(popup_);
}

int AccessibleChoiceList::childCount() const
{
    return static_cast<int>(rows().size());
}

QAccessibleInterface *AccessibleChoiceList::child(int index) const
{
    const QList<int> seen = rows();
    if (index < 0 || index >= seen.size()) {
        return nullptr;
    }
    QAccessible::Id &choice = choices_[seen[index]];
    if (choice == 0) {
        choice = QAccessible::registerAccessibleInterface(new AccessibleChoice(popup_, this, seen[index]));
    }
    return QAccessible::accessibleInterface(choice);
}

int AccessibleChoiceList::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *choice = dynamic_cast<const AccessibleChoice *>(child);
    return choice != nullptr && choice->parent() == this ? static_cast<int>(rows().indexOf(choice->row())) : -1;
}

QString AccessibleChoiceList::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && popup_ ? captionOf(popup_) : QString();
}

QRect AccessibleChoiceList::rect() const
{
    const QAbstractItemView *list = popup_ ? openListOf(popup_) : nullptr;
    return list != nullptr ? QRect(list->mapToGlobal(QPoint()), list->size()) : QRect();
}

QAccessible::State AccessibleChoiceList::state() const
{
    QAccessible::State state;
    state.offscreen = popup_.isNull() || openListOf(popup_) == nullptr;
    state.disabled = popup_.isNull() || !isWithinReach(popup_);
    return state;
}

AccessibleChoice::AccessibleChoice(PopUpButton *popup, const AccessibleChoiceList *list, int row)
    : AccessiblePopUpPart(popup), list_(list), row_(row)
{}

bool AccessibleChoice::isValid() const
{
    return hasChoice(popup_, row_);
}

bool AccessibleChoice::canBeChosen() const
{
    return isEnabledChoice(popup_, row_) && isWithinReach(popup_);
}

void *AccessibleChoice::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

QAccessibleInterface *AccessibleChoice::parent() const
{
    return const_cast<AccessibleChoiceList *>(list_);
}

QString AccessibleChoice::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Name && isValid() ? popup_->itemText(row_) : QString();
}

QRect AccessibleChoice::rect() const
{
    const QAbstractItemView *list = isValid() ? openListOf(popup_) : nullptr;
    if (list == nullptr) {
        return {};
    }
    const QRect place = list->visualRect(indexOf(*popup_, row_));
    return {list->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State AccessibleChoice::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.disabled = !canBeChosen();
    state.selectable = true;
    state.selected = isValid() && popup_->currentIndex() == row_;
    state.offscreen = rect().isEmpty();
    return state;
}

QStringList AccessibleChoice::actionNames() const
{
    return canBeChosen() ? QStringList{pressAction()} : QStringList();
}

void AccessibleChoice::doAction(const QString &name)
{
    if (name != pressAction() || !canBeChosen()) {
        return;
    }
    // Later: what a choice brings about may ask the person, and whoever pressed does not wait for the answer.
    QMetaObject::invokeMethod(
        popup_,
        [popup = popup_, row = row_, text = popup_->itemText(row_)] {
            // The choices may have changed since, or another press has brought up a question.
            if (isEnabledChoice(popup, row) && popup->itemText(row) == text && canBeUsedNow(popup)) {
                choose(popup, row, text);
            }
        },
        Qt::QueuedConnection);
}

} // namespace tessarin
