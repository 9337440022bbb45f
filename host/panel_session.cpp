// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/panel_session.h"

#include "printing/text.h"

namespace tessarin::host {

PanelSession openPanel(pde::PlugIn &plugIn, const std::shared_ptr<pde::HostCallback> &callback)
{
    PanelSession session;
    const std::shared_ptr<pde::PanelArray> panels =
        plugIn.PDEPanelsForType(QLatin1String(pde::kPrinterModulePanelType), callback);
    if (!panels || panels->empty() || !panels->front()) {
        session.problem = TessarinPrint::tr("The printer's plug-in offers no panel of settings.");
        return session;
    }
    session.panel = panels->front();
    session.name = session.panel->panelName();
    session.kind = session.panel->panelKind();
    session.supportedKeys = session.panel->supportedPPDOptionKeys();
    session.view = session.panel->panelView();
    session.panel->willShow();
    if (!session.panel->restoreValuesAndReturnError(nullptr)) {
        session.problem = TessarinPrint::tr("The panel could not read the printer's settings.");
    }
    if (!session.view) {
        session.problem = TessarinPrint::tr("The panel of printer settings could not load its controls.");
    }
    return session;
}

} // namespace tessarin::host
