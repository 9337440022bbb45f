// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What may be chosen with the selected media type: rendering intents, colour modes, controls and tab pages.

#ifndef TESSARIN_CONTROLS_AVAILABILITY_H
#define TESSARIN_CONTROLS_AVAILABILITY_H

#include "plugin/panel_context.h"

#include <array>

namespace tessarin {

/// Rows of the pop-ups, then numbers of the sliders, that an incomplete media profile (media mode 2) disables; each
/// list ends with -1.
extern const std::array<int, 7> disablepopups;
extern const std::array<int, 7> disablesliders;

/// The media mode of an incomplete media profile, one without colour data.
inline constexpr int kIncompleteProfileMode = 2;
/// The media mode of media that take one setting for all bright inks.
inline constexpr int kBrightInksMode = 5;

/// The number that a choice key ends with: its last character as a digit, 0..9; 0 for another character, an empty
/// key and null. Of a media type's key it is the media mode.
int StringPropertyNumber(const char *text);

/// The media mode of the media type that the settings select, 0..9; 0 where none is selected.
int selectedMediaMode(const PanelContext &context);

/// Hides the entries of pop-up row 3 (rendering intent) or 4 (colour mode) that the media mode does not allow and
/// moves the selection off them. Stores the row's selection, and media selection 1 where it was 0.
void checkAvailabilityForMenus(PanelContext *context, int row);

/// Enables, shows and moves controls by the media mode. `eventId`: the pop-up's control id when called from an
/// event, 0 at embedding; only a media type event warns of an incomplete profile.
void checkControlAvailability(PanelContext *context, int eventId);

/// Shows the warning about an incomplete media profile. 0; -1 when it could not be shown.
int MyShowAlert(QWidget *parent);

} // namespace tessarin

#endif
