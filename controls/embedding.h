// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Embedding of a tab page: its controls are found by id, stored in the context, and given their initial values.

#ifndef TESSARIN_CONTROLS_EMBEDDING_H
#define TESSARIN_CONTROLS_EMBEDDING_H

#include "plugin/panel_context.h"

#include <array>
#include <cstdint>

namespace tessarin {

/// Where the Ghostscript interpreter is looked for, in this order. Replaceable for tests only.
extern std::array<const char *, 2> ghostscriptPaths;

/// Embeds the page with the mask. `extra` is not read. Always 0; a null context is only logged.
std::int32_t MyEmbedCustomControls(std::int32_t pageMask, PanelContext *context, std::int32_t extra, QWidget *view);

} // namespace tessarin

#endif
