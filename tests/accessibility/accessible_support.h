// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the tests of accessibility ask of a window.

#ifndef TESSARIN_TESTS_ACCESSIBILITY_ACCESSIBLE_SUPPORT_H
#define TESSARIN_TESTS_ACCESSIBILITY_ACCESSIBLE_SUPPORT_H

#include <QAccessible>
#include <QWidget>

#include <string>
#include <vector>

namespace tessarin::test {

/// A text of a view, as assistive technology reads it.
inline std::string readText(QWidget *view, QAccessible::Text kind)
{
    QAccessibleInterface *read = QAccessible::queryAccessibleInterface(view);
    return read != nullptr ? read->text(kind).toStdString() : "(nothing)";
}

inline std::string nameOf(QWidget *view)
{
    return readText(view, QAccessible::Name);
}

/// The views that Tab goes through in a window, from `first` on, round to it again.
inline std::vector<QWidget *> tabStops(QWidget *first)
{
    std::vector<QWidget *> stops;
    QWidget *view = first;
    do {
        const bool takesTab = (view->focusPolicy() & Qt::TabFocus) != 0;
        if (takesTab && view->isVisible() && view->isEnabled() && view->focusProxy() == nullptr) {
            stops.push_back(view);
        }
        view = view->nextInFocusChain();
    } while (view != first);
    return stops;
}

/// Whether a person who reads lines comes from `first` to `second`: it is lower, or in the same line farther on.
inline bool isReadBefore(const QWidget *first, const QWidget *second)
{
    const QRect a(first->mapToGlobal(QPoint()), first->size());
    const QRect b(second->mapToGlobal(QPoint()), second->size());
    const bool sameLine = a.top() <= b.center().y() && b.center().y() <= a.bottom();
    return sameLine ? a.left() < b.left() : a.center().y() < b.center().y();
}

inline std::string describe(const QWidget *view)
{
    return std::string(view->metaObject()->className()) + " " + view->objectName().toStdString();
}

} // namespace tessarin::test

#endif
