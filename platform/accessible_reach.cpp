// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/accessible_reach.h"

#include "platform/tab_view.h"

#include <QApplication>
#include <QStackedWidget>

namespace tessarin {

namespace {

bool isPageWithinReach(const QStackedWidget *pages, QWidget *page)
{
    const auto *tabs = qobject_cast<const TabView *>(pages->parentWidget());
    if (tabs == nullptr) {
        return true;
    }
    const int position = tabs->indexOf(page);
    return position == tabs->currentIndex() || (tabs->isTabVisible(position) && tabs->maySelect(position));
}

bool isOrHolds(const QWidget *window, const QWidget *inner)
{
    while (inner != nullptr && inner != window) { // over windows too, which isAncestorOf() stops at
        inner = inner->parentWidget();
    }
    return inner != nullptr;
}

bool isBlocked(const QWidget *window)
{
    const QWidget *modal = QApplication::activeModalWidget();
    if (modal == nullptr || isOrHolds(modal, window)) {
        return false;
    }
    return modal->windowModality() != Qt::WindowModal || isOrHolds(window, modal);
}

} // namespace

bool isWithinReach(const QWidget *control)
{
    if (!control->isEnabled()) {
        return false;
    }
    for (auto *view = const_cast<QWidget *>(control); view != nullptr && !view->isWindow();
         view = view->parentWidget()) {
        // A page is hidden whenever it is not the current one.
        if (const auto *pages = qobject_cast<const QStackedWidget *>(view->parentWidget())) {
            return isPageWithinReach(pages, view);
        }
        if (view->isHidden()) {
            return false;
        }
    }
    return true;
}

bool canBeUsedNow(const QWidget *control)
{
    return isWithinReach(control) && !isBlocked(control->window());
}

} // namespace tessarin
