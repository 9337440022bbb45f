// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Loading a panel plug-in from its bundle.

#ifndef TESSARIN_HOST_PLUGIN_LOADER_H
#define TESSARIN_HOST_PLUGIN_LOADER_H

#include "printing/outcome.h"

#include "pde/print_dialog_extension.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace tessarin::host {

/// How a plug-in is to be loaded.
struct PlugInRequest {
    QString directory{};                      ///< the bundle's folder
    QString language{};                       ///< as for PlugInEntry::openBundle; empty: the environment's
    std::optional<pde::LogSink> logSink{};    ///< set before anything is logged; nothing: the plug-in's default
    std::function<void(QObject &)> prepare{}; ///< given the root object before the factory is made; may be empty
};

/// A loaded plug-in with its factory initialised. The members are in the order in which they must outlive each
/// other: destruction takes the factory, and the panels it holds, before the bundle.
struct LoadedPlugIn {
    pde::PlugInEntry *entry = nullptr; ///< owned by the library, which stays loaded until the process ends
    std::shared_ptr<pde::Bundle> bundle{};
    std::unique_ptr<pde::PlugIn> plugIn{};
};

/// Loads the plug-in of a bundle: reads "bundle.json" there, and looks at the library's metadata (interface and
/// protocol version) before any of its code runs. The library is never unloaded, since views made by it may outlive
/// the result. The reason of a refusal names the file at fault.
Outcome<LoadedPlugIn> loadPlugIn(const PlugInRequest &request);

} // namespace tessarin::host

#endif
