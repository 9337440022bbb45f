// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What assistive technology may use: no more than a person could come to.

#ifndef TESSARIN_PLATFORM_ACCESSIBLE_REACH_H
#define TESSARIN_PLATFORM_ACCESSIBLE_REACH_H

#include <QWidget>

namespace tessarin {

/// Whether a person can come to a control: it is enabled, nothing up to its page is hidden, and the page is the
/// current one or one that its tab view lets be selected.
bool isWithinReach(const QWidget *control);

/// Whether it can be used at this moment: it is within reach, and no question has to be answered first.
bool canBeUsedNow(const QWidget *control);

} // namespace tessarin

#endif
