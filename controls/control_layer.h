// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The control access layer: the panel's logic speaks to views only through these functions, by handle, numeric id,
// value and 1-based item number.
//
// An empty handle, or one of the wrong kind, is ignored; getters then give 0. Results are status codes, 0 for
// success, unless stated. Values are set without raising an event: only a person's actions do.

#ifndef TESSARIN_CONTROLS_CONTROL_LAYER_H
#define TESSARIN_CONTROLS_CONTROL_LAYER_H

#include "platform/string_object.h"
#include "plugin/panel_context.h"

#include <cstddef>
#include <cstdint>

namespace tessarin {

/// By which a control is found. The signature is a fixed constant that nothing reads.
struct ControlIDRecord {
    std::uint32_t signature;
    std::int32_t id; ///< the view's tag
};
inline constexpr std::uint32_t kControlSignature = 0x54657353; // 'TesS'

/// A rectangle of the layer, in pixels of the view that holds the control. Of a frame (x, y, width, height): top =
/// y, left = x, bottom = y - height + 1, right = x + width - 1, and back by the same rule.
struct ControlRect {
    std::int16_t top = 0;
    std::int16_t left = 0;
    std::int16_t bottom = 0;
    std::int16_t right = 0;
};

/// Finds the view with the id below `parent`, itself included. 0, or -1 with an empty `control`.
int GetControlByID(QWidget *parent, ControlIDRecord id, ControlHandle *control);
/// The same look-up; true when the control was NOT found. The second argument is ignored.
bool MyEmbedControl(QWidget *parent, void *unused, ControlIDRecord id, ControlHandle *control);
/// The owner of a control: none on this platform.
QWidget *GetControlOwner(QWidget *view);

// Calls of older control managers that have no effect here.
void InitOSSpecificItems();
void MySetControlIcon(QWidget *control, int icon);
void SetControlReference(QWidget *control, std::int32_t reference);
std::int32_t GetControlReference(QWidget *control);

/// Stores `size` bytes (a 32-bit integer or a handle) at `value` as the control's one property, which is its tag.
int SetControlProperty(QWidget *control, std::uint32_t signature, std::uint32_t propertyTag, std::size_t size,
                       const void *value);
/// Gives the control's property. `value` stays as it is for a view that is no control.
int GetControlProperty(QWidget *control, std::uint32_t signature, std::uint32_t propertyTag, std::size_t size,
                       qintptr *value);

/// The absolute tag of the selected item of a pop-up; 0 when nothing is selected.
int GetComboControlValue(QWidget *popup);
/// Selects item `n` (1-based). A pop-up with fewer than `n` items stays as it is; 0 selects nothing.
int SetComboControlValue(QWidget *popup, int n);
/// Selects the item with tag `tag`, then the one with tag -`tag`; without either the selection stays.
int SelectComboControlEntryWithTag(QWidget *popup, int tag);

int SetSliderMinimum(QWidget *slider, std::int32_t minimum);
int SetSliderMaximum(QWidget *slider, std::int32_t maximum);
int SetSliderControlValue(QWidget *slider, std::int32_t position);
std::int32_t GetSliderControlValue(QWidget *slider);

/// On for any value but 0. Always 0.
int SetCheckButtonValue(QWidget *checkBox, int value);
/// 1 when on, else 0 (a mixed state is not on).
int GetCheckButtonValue(QWidget *checkBox);

int SetControlVisibility(QWidget *view, bool visible);
int EnableControl(QWidget *control);
int DisableControl(QWidget *control);
/// EnableControl() or DisableControl().
void SetControlEnabled(QWidget *control, bool enabled);

/// The view's frame as a rectangle; all zeros for an empty handle.
int GetControlBounds(QWidget *view, ControlRect *bounds);
int SetControlBounds(QWidget *view, const ControlRect &bounds);
/// Moves the view's origin to (h, v), keeping its size.
int MoveControl(QWidget *view, int h, int v);
/// Redraws the view at once.
int Draw1Control(QWidget *view);
int SetTextControl(QWidget *textField, const StringRef &text);

/// Marks tab `n` (1-based) with the identifier "On" or "Off". A missing tab is ignored.
int SetTabEnabled(QWidget *tabView, int n, bool enabled);
inline constexpr char kTabOn[] = "On";
inline constexpr char kTabOff[] = "Off";

int SetBarControlValue(QWidget *levelView, int level);
/// Components 0..255.
int SetBarColVal(QWidget *levelView, int red, int green, int blue);

/// A critical alert with one button. The button's code, 1; 0 when it could not be shown.
int MyAlertPanel(const char *message);
/// An alert with the text "<title>\n\n<message>" and the buttons "OK" and, when asked for, "Cancel". `item` becomes
/// 1 for the default button, else 2; it may be null. 0; -1 when the alert could not be shown.
int MyStdAlert(QWidget *parent, bool withCancel, const StringRef &title, const StringRef &message,
               std::int16_t *item);

} // namespace tessarin

#endif
