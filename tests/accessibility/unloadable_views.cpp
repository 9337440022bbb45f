// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A library with views of a panel, made to be unloaded.

#include "platform/accessible_views.h"

#include <QAccessible>
#include <QSlider>

/// Makes a view with a slider, has its value read, and deletes it.
extern "C" Q_DECL_EXPORT int readSlider()
{
    tessarin::AccessibleLoading accessible(
        [](const QWidget *, int position) { return QStringLiteral("%1%").arg(100 + 5 * position); });
    QWidget view;
    accessible.keep(&view);
    auto *slider = new QSlider(&view);
    slider->setRange(-10, 10);
    slider->setValue(-1);
    return QAccessible::queryAccessibleInterface(slider)->valueInterface()->currentValue().toInt();
}
