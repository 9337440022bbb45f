// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A slider's positions by what a person means: the printer's default, and a value that is typed.

#ifndef TESSARIN_CONTROLS_TYPED_VALUE_H
#define TESSARIN_CONTROLS_TYPED_VALUE_H

#include "plugin/panel_context.h"

#include <QString>

#include <optional>

namespace tessarin {

/// The position of the PPD's default for the slider in a row of `Scrolls`, whatever choice is marked. Nothing when
/// the PPD has no such option or its default is no number.
std::optional<int> defaultPosition(const PanelContext &context, int row);

/// The position whose shown value is nearest to a typed one, the larger value of two. The unit may be there, be
/// left out, or stand apart ("95", "95 %", "D65", "+5"). Nothing for what is no whole number or out of the slider's
/// range.
std::optional<int> typedPosition(int row, const QString &typed);

/// The value text at a position.
QString valueText(int row, int position);

} // namespace tessarin

#endif
