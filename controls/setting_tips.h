// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Tool tips and "What's this?" of the panel.

#ifndef TESSARIN_CONTROLS_SETTING_TIPS_H
#define TESSARIN_CONTROLS_SETTING_TIPS_H

#include "plugin/panel_context.h"

#include <QHelpEvent>
#include <QString>

namespace tessarin {

/// What is to be told of the place in the panel's view: the description of the setting there and how a slider is
/// set, or why a tab is off. Empty when there is nothing to tell.
QString settingTip(const PanelContext &context, const QWidget *view, const QPoint &place);

/// Answers a help event of the panel's view; false when there is nothing to tell.
bool answerHelp(const PanelContext &context, QWidget *view, const QHelpEvent &event);

} // namespace tessarin

#endif
