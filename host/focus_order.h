// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The order in which Tab goes through a window.

#ifndef TESSARIN_HOST_FOCUS_ORDER_H
#define TESSARIN_HOST_FOCUS_ORDER_H

#include <QList>
#include <QWidget>

namespace tessarin::host {

/// Lets the keyboard go through the parts of a window one after the other. Inside a part the order stays; a part
/// that is inside another one is taken out of it.
void orderFocus(const QList<QWidget *> &parts);

} // namespace tessarin::host

#endif
