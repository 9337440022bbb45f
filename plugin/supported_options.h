// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The PPD option keys that the panel presents.

#ifndef TESSARIN_PLUGIN_SUPPORTED_OPTIONS_H
#define TESSARIN_PLUGIN_SUPPORTED_OPTIONS_H

#include <QStringList>

#include <memory>

namespace tessarin {

/// A new array of the keys of all pop-ups, sliders and check boxes in the order of their tables, without "*"; null
/// when out of memory.
std::shared_ptr<const QStringList> MyGetSupportedOptions();

} // namespace tessarin

#endif
