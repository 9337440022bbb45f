// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Sliders with their value texts, and the controls that follow the colour mode.

#ifndef TESSARIN_CONTROLS_SLIDERS_H
#define TESSARIN_CONTROLS_SLIDERS_H

#include "platform/string_object.h"
#include "plugin/panel_context.h"

#include <cstdint>

namespace tessarin {

struct ScrollRow;

/// The property that links a slider with its value text: of the slider the text field's handle, of the text field
/// the row number in `Scrolls`.
inline constexpr std::uint32_t kValueTextProperty = 0x54657874; // 'Text'

/// The number that a slider shows at a position.
std::int32_t shownValue(const ScrollRow &slider, std::int32_t position);

/// The value text of row `row` of `Scrolls` at a position, e.g. "95%"; null for a row that does not exist. The
/// caller releases it.
StringRef CreateScrollValueCFString(int row, std::int32_t position);

/// Refreshes the value text beside a slider, and enables the slider.
void SetScrollValue(QWidget *slider);

/// Enables (`on` other than 0) or disables the four sliders of the colour correction.
void enableColControls(PanelContext *context, int on);
void enableSlider(QWidget *slider, bool on);

/// Shows the colour-space pop-up that goes with the selected colour mode, RGB or CMYK. A selection beyond the list
/// becomes its last pair.
void ShowCurrentInputMode(PanelContext *context);

/// Tells the host's preview whether the job is in colour, by the standard option "ColorModel".
void SetPreviewColor(PanelContext *context, bool colour);

/// Shows a number; a negative one as a single blank.
void setValueText(QWidget *textField, std::int32_t value);

/// Moves a control vertically so that its top is at `top`, keeping its size.
void CorrectControlPosition(QWidget *control, int top);

} // namespace tessarin

#endif
