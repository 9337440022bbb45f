// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps a wheel that scrolls a page from changing a setting that happens to lie under it.

#ifndef TESSARIN_HOST_WHEEL_GUARD_H
#define TESSARIN_HOST_WHEEL_GUARD_H

#include <QWidget>

namespace tessarin::host {

/// Hands the wheel's turns over a widget on to its parent while the widget does not have the focus, and keeps the
/// wheel from giving it the focus.
void guardWheel(QWidget &widget);

} // namespace tessarin::host

#endif
