// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// One panel in one dialog: asked for and driven in the protocol's usual order.

#ifndef TESSARIN_HOST_PANEL_SESSION_H
#define TESSARIN_HOST_PANEL_SESSION_H

#include "pde/print_dialog_extension.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <QPointer>

#include <memory>

namespace tessarin::host {

/// What the dialog holds of a panel.
struct PanelSession {
    std::shared_ptr<pde::Panel> panel{};                ///< null: no panel was offered
    QString name{};                                     ///< the heading over the panel
    QString kind{};                                     ///< identifies the plug-in
    std::shared_ptr<const QStringList> supportedKeys{}; ///< null: the panel could not tell
    QPointer<QWidget> view{};                           ///< the panel's until the dialog gives it a parent
    QString problem{};                                  ///< for the user: what is wrong; empty: nothing
};

/// Asks the plug-in for the panel of a printer and drives it up to the point where it shows the printer's values.
/// Without a panel or view the session says so in `problem`; a panel without view still saves.
PanelSession openPanel(pde::PlugIn &plugIn, const std::shared_ptr<pde::HostCallback> &callback);

} // namespace tessarin::host

#endif
