// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/focus_order.h"

#include <algorithm>

namespace tessarin::host {

namespace {

/// The part that holds a widget, the innermost one; -1: none.
qsizetype partOf(const QWidget *widget, const QList<QWidget *> &parts)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const qsizetype part = parts.indexOf(widget); part >= 0) {
            return part;
        }
    }
    return -1;
}

} // namespace

void orderFocus(const QList<QWidget *> &parts)
{
    QList<QList<QWidget *>> found(parts.size());
    QWidget *const first = parts.first()->window();
    for (QWidget *widget = first->nextInFocusChain(); widget != first; widget = widget->nextInFocusChain()) {
        const qsizetype part = partOf(widget, parts);
        if (part >= 0 && widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr) {
            found[part] << widget;
        }
    }
    QWidget *before = nullptr;
    for (const QList<QWidget *> &widgets : found) {
        for (QWidget *widget : widgets) {
            if (before != nullptr) {
                QWidget::setTabOrder(before, widget);
            }
            before = widget;
        }
    }
}

} // namespace tessarin::host
