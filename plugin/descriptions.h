// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// How the log shows the objects of the panel ("%@").

#ifndef TESSARIN_PLUGIN_DESCRIPTIONS_H
#define TESSARIN_PLUGIN_DESCRIPTIONS_H

#include "pde/print_dialog_extension.h"
#include "platform/formatter.h"

#include <QWidget>

namespace tessarin {

ObjectText describe(const QString &text);
ObjectText describe(const pde::Bundle *bundle);
ObjectText describe(const pde::HostCallback *callback);
ObjectText describe(const pde::Panel *panel);
ObjectText describe(const QWidget *view);
/// "(first, second)"; likewise the array of panels.
ObjectText describe(const QStringList *array);
ObjectText describe(const pde::PanelArray *array);
/// "{label = value; ...}" in display order.
ObjectText describe(const std::optional<pde::Summary> &dictionary);

} // namespace tessarin

#endif
