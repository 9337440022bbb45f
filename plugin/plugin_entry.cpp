// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The plug-in library's root object.

#include "pde/print_dialog_extension.h"
#include "platform/bundle.h"
#include "platform/log_sink.h"
#include "plugin/diagnostics.h"
#include "plugin/plugin_factory.h"

#include <QObject>

#include <utility>

namespace tessarin {

class TessarinPDEEntry : public QObject, public pde::PlugInEntry, public Diagnostics {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID TESSARIN_PDE_PLUGIN_IID FILE "TessarinPDE.json")
    Q_INTERFACES(tessarin::pde::PlugInEntry tessarin::pde::PanelDiagnostics)

public:
    std::shared_ptr<pde::Bundle> openBundle(const QString &directory, const QString &language,
                                            QString *reason) override
    {
        return DirectoryBundle::open(directory, language, reason);
    }

    std::unique_ptr<pde::PlugIn> createPlugIn() override { return std::make_unique<TessarinPDEPlugIn>(); }

    void setLogSink(pde::LogSink sink) override { tessarin::setLogSink(std::move(sink)); }
};

} // namespace tessarin

#include "plugin_entry.moc"
