// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/option_box.h"

#include "host/input_guard.h"
#include "host/plain_text.h"
#include "printing/text.h"
#include "settings/conflicts.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace tessarin::host {

namespace {

constexpr int kShortest = 14;               // characters: longer texts do not make the page wider than the window
constexpr int kTextRole = Qt::UserRole + 1; // a choice's text without what it is in conflict with

} // namespace

OptionBox::OptionBox(JobSettings &settings, const CatalogueOption &option, QWidget *parent)
    : QComboBox(parent), settings_(settings), option_(option)
{
    setObjectName(option_.key);
    setAccessibleName(option_.text);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kShortest);
    guardInput(*this);
    for (const CatalogueChoice &choice : option_.choices) {
        addItem(choice.text, choice.choice);
        setItemData(count() - 1, choice.text, kTextRole);
    }
    connect(this, &QComboBox::activated, this, &OptionBox::choose);
    connect(&settings_, &JobSettings::changed, this, &OptionBox::refresh);
    refresh();
}

void OptionBox::offerMore(const QString &text)
{
    addItem(text);
    setItemData(count() - 1, text, kTextRole);
    offersMore_ = true;
    showValue();
}

void OptionBox::refresh()
{
    showValue();
    if (hasFocus() || view()->isVisible()) {
        markConflicts();
    } else {
        markConflict(currentIndex()); // the others are marked when they can be seen
    }
}

void OptionBox::showValue()
{
    const QString value = settings_.value(option_.key);
    const int index = findData(value);
    const bool showsAnother = count() > listed() + (offersMore_ ? 1 : 0);
    if (showsAnother && index != listed()) {
        removeItem(listed());
    }
    if (index < 0 && !value.isEmpty()) {
        const QString text = choiceText(settings_.printer(), option_.key, value);
        insertItem(listed(), text, value);
        setItemData(listed(), text, kTextRole);
    }
    setCurrentIndex(findData(value));
}

void OptionBox::choose(int index)
{
    const QString choice = itemData(index).toString();
    const bool more = isMore(index);
    showValue();
    if (more) {
        QMetaObject::invokeMethod(this, &OptionBox::moreWanted, Qt::QueuedConnection);
        return;
    }
    if (choice != settings_.value(option_.key)) {
        QMetaObject::invokeMethod(
            this, [this, choice] { emit chosen(option_.key, choice); }, Qt::QueuedConnection);
    }
}

void OptionBox::markConflict(int index)
{
    if (index < 0 || isMore(index)) {
        return;
    }
    const QString text = itemData(index, kTextRole).toString();
    const QString reason = conflictReason(settings_.printer(), option_.key, itemData(index).toString());
    //: %1 is a choice, %2 says what it does not go with
    setItemText(index, reason.isEmpty() ? text : TessarinPrint::tr("%1 – %2").arg(text, reason));
    setItemData(index, reason.isEmpty() ? QVariant() : palette().brush(QPalette::Disabled, QPalette::Text),
                Qt::ForegroundRole);
    setItemData(index, reason.isEmpty() ? QVariant() : plainToolTip(reason), Qt::ToolTipRole);
}

void OptionBox::markConflicts()
{
    for (int i = 0; i < count(); ++i) {
        markConflict(i);
    }
}

void OptionBox::showPopup()
{
    markConflicts();
    // Reasons are longer than choices: the list may be wider than the pop-up that it belongs to.
    constexpr int margin = 24;
    const int wanted = view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width() + margin;
    view()->setMinimumWidth(std::clamp(wanted, 0, screen()->availableSize().width() * 3 / 4));
    QComboBox::showPopup();
}

void OptionBox::focusInEvent(QFocusEvent *event)
{
    markConflicts(); // the arrow keys go through the choices without the list
    QComboBox::focusInEvent(event);
}

} // namespace tessarin::host
