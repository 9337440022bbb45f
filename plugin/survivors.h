// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What stays allocated when its owner goes, by design of the panel's life cycle: kept reachable, so that a leak
// checker finds it, and never destroyed, since views may not be touched once main() has ended.

#ifndef TESSARIN_PLUGIN_SURVIVORS_H
#define TESSARIN_PLUGIN_SURVIVORS_H

#include "pde/print_dialog_extension.h"

#include <memory>

namespace tessarin {

struct PanelContext;

void keepForEver(const std::shared_ptr<pde::Bundle> &bundle);
void keepForEver(const std::shared_ptr<pde::PanelArray> &panels);
void keepForEver(std::unique_ptr<char[]> strings);

/// Keeps a record reachable until forgetContext().
void rememberContext(PanelContext *context);
void forgetContext(PanelContext *context);

} // namespace tessarin

#endif
