// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Dispatch of the events that a person's actions raise.

#ifndef TESSARIN_CONTROLS_EVENT_DISPATCH_H
#define TESSARIN_CONTROLS_EVENT_DISPATCH_H

#include "plugin/panel_context.h"

#include <cstdint>

namespace tessarin {

/// The result for an event that is not handled, and for a change that the host refused.
inline constexpr std::int32_t kEventNotHandled = -111;

/// Handles the event whose number is the id of the control that raised it. `kind` is always 1 and is not read. 0
/// when it was handled, else kEventNotHandled: the values of most controls are taken when the settings are saved.
std::int32_t processEvent(PanelContext *context, int kind, std::int32_t eventId);

} // namespace tessarin

#endif
