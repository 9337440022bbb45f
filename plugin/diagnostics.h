// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel's side of the diagnostic interface.

#ifndef TESSARIN_PLUGIN_DIAGNOSTICS_H
#define TESSARIN_PLUGIN_DIAGNOSTICS_H

#include "pde/panel_diagnostics.h"

namespace tessarin {

class PasswordPDE;

class Diagnostics : public pde::PanelDiagnostics {
public:
    void setStableAddresses(bool stable) override;
    void setAlertObserver(std::function<void(const pde::DiagnosticAlert &)> observer) override;
    pde::DiagnosticValue state(pde::Panel &panel) override;
    void setInkFilePath(pde::Panel &panel, const QString &path) override;
    pde::DiagnosticValue choose(pde::Panel &panel, int popUpId, int item) override;
    pde::DiagnosticValue slide(pde::Panel &panel, int sliderId, int position) override;
    pde::DiagnosticValue check(pde::Panel &panel, int checkBoxId, bool on) override;
    pde::DiagnosticValue press(pde::Panel &panel, int buttonId) override;
    bool selectTab(pde::Panel &panel, int position) override;
    std::int32_t event(pde::Panel &panel, int eventId) override;
};

/// The state tree of a panel.
pde::DiagnosticValue panelState(const PasswordPDE &panel);

/// Whether a control is enabled or hidden by its own flag, whatever the views around it are.
bool isEnabledItself(const QWidget &control);
bool isHiddenItself(const QWidget &control);

} // namespace tessarin

#endif
