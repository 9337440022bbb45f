// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The plug-in's factory of panels.

#ifndef TESSARIN_PLUGIN_PLUGIN_FACTORY_H
#define TESSARIN_PLUGIN_PLUGIN_FACTORY_H

#include "pde/print_dialog_extension.h"

#include <memory>

namespace tessarin {

class TessarinPDEPlugIn : public pde::PlugIn {
public:
    bool initWithBundle(const std::shared_ptr<pde::Bundle> &bundle) override;
    /// One panel for the printer-module type; an empty array for any other. The array of an earlier call is not
    /// released: its panel stays alive.
    std::shared_ptr<pde::PanelArray> PDEPanelsForType(const QString &type,
                                                      const std::shared_ptr<pde::HostCallback> &hostInfo) override;

private:
    std::weak_ptr<pde::Bundle> pluginBundle; ///< not retained
    std::shared_ptr<pde::PanelArray> PDEs;   ///< the panels of the last call
};

} // namespace tessarin

#endif
