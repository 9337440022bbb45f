// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps input that is meant for something else from changing a setting: the wheel that scrolls the page, and a
// shortcut that is not possible just now.

#ifndef TESSARIN_HOST_INPUT_GUARD_H
#define TESSARIN_HOST_INPUT_GUARD_H

#include <QWidget>

namespace tessarin::host {

/// Hands the wheel's turns over a widget on to its parent while the widget does not have the focus, and keeps the
/// wheel from giving it the focus. A letter typed with Alt, Control or Meta selects nothing: a list would else take
/// the letter of a disabled button's shortcut for the beginning of a choice.
void guardInput(QWidget &widget);

} // namespace tessarin::host

#endif
