// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a control tells about itself: what it does, why it cannot be used, which choices are not offered. Everything
// is worked out when it is asked for, in the bundle's language; nothing is logged, and no control is changed.

#ifndef TESSARIN_CONTROLS_SETTING_HELP_H
#define TESSARIN_CONTROLS_SETTING_HELP_H

#include "controls/setting_texts.h"
#include "plugin/panel_context.h"

#include <QString>

#include <optional>

namespace tessarin {

/// The setting that a view of the panel shows: the control itself, its caption, a slider's value text, or one of
/// the views of an ink row. Nothing for any other view.
std::optional<Setting> settingOf(const PanelContext &context, const QWidget *view);

/// The control of a pop-up, slider or check box; null for the others and while it is not on the panel.
QWidget *settingControl(const PanelContext &context, Setting setting);

/// Why the setting's control is disabled; empty while it is enabled.
QString unavailableReason(const PanelContext &context, Setting setting);

/// Which choices of a pop-up cannot be chosen and what is to blame, a line for each cause; empty when all can.
QString missingChoices(const PanelContext &context, int row);

/// What the setting that a view shows does, then why it is disabled or which choices are missing; a line each.
/// Empty for a view that shows no setting.
QString settingDescription(const PanelContext &context, const QWidget *view);

/// Why the tab at a 0-based position is off; empty while it is on.
QString tabReason(const PanelContext &context, int position);

/// A text of `controls/setting_texts.h` in the bundle's language.
QString localizedSentence(const char *text);

} // namespace tessarin

#endif
