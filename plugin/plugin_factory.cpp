// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/plugin_factory.h"

#include "plugin/descriptions.h"
#include "plugin/log.h"
#include "plugin/password_pde.h"
#include "plugin/restore.h"
#include "plugin/survivors.h"

namespace tessarin {

bool TessarinPDEPlugIn::initWithBundle(const std::shared_ptr<pde::Bundle> &bundle)
{
    const ObjectText self = describeObject("TessarinPDEPlugIn", this);
    _PDEProlog(self, "initWithBundle:(%@, %p)", describe(bundle.get()), static_cast<const void *>(bundle.get()));
    pluginBundle = bundle;
    _PDEEpilog(self, "initWithBundle:=BOOL(YES)");
    return true;
}

std::shared_ptr<pde::PanelArray>
TessarinPDEPlugIn::PDEPanelsForType(const QString &type, const std::shared_ptr<pde::HostCallback> &hostInfo)
{
    const ObjectText self = describeObject("TessarinPDEPlugIn", this);
    _PDEProlog(self, "PDEPanelsForType:(%@) withHostInfo:(%@)", describe(type), describe(hostInfo.get()));
    keepForEver(PDEs);
    PDEs = std::make_shared<pde::PanelArray>();
    PDEs->reserve(1);
    if (type == QLatin1String(pde::kPrinterModulePanelType)) {
        auto panel = std::make_shared<PasswordPDE>();
        panel->initWithCallback(hostInfo, pluginBundle.lock());
        _PDELog(self, "Creating PDE of type kPrinterModuleTypeIDStr(%@) PasswordPDE (%p)", describe(type),
                static_cast<const void *>(panel.get()));
        if (panel) {
            PDEs->push_back(panel);
        }
        if (PDEs->empty()) {
            _VERBOSE("RELEASING empty PDEs\n");
            PDEs = nullptr;
        }
    }
    if (!RunningOn105OrLater()) {
        _VERBOSE("AUTORELEASING PDEs -done-\n");
    }
    if (!PDEs) {
        return nullptr;
    }
    _PDEEpilog(self, "PDEPanelsForType:withHostInfo:=NSArray(%@)", describe(PDEs.get()));
    return PDEs;
}

} // namespace tessarin
