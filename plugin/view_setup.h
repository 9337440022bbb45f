// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Setting up of the loaded view: tabs, localised texts, and the embedding of each page.

#ifndef TESSARIN_PLUGIN_VIEW_SETUP_H
#define TESSARIN_PLUGIN_VIEW_SETUP_H

#include "plugin/panel_context.h"

namespace tessarin {

/// Marks and localises every tab of the tab view and embeds its page. 1 when every page was embedded without error,
/// also when there is none; 0 otherwise.
int CocoaEmbedControls(PanelContext *context, QWidget *contentView, QWidget *tabView);

/// Replaces the texts of all text fields and the titles of all buttons below a view, at every depth, by their
/// localised forms.
void translateSubviews(QWidget *view);

} // namespace tessarin

#endif
