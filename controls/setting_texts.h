// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What each control of the panel does to the print, and the sentences in which a control says why it cannot be
// used. All of them are keys of the translations.

#ifndef TESSARIN_CONTROLS_SETTING_TEXTS_H
#define TESSARIN_CONTROLS_SETTING_TEXTS_H

#include <array>
#include <cstddef>

namespace tessarin {

enum class SettingKind {
    PopUp,     ///< by row of `pops`
    Slider,    ///< by row of `Scrolls`
    CheckBox,  ///< by row of `checkboxes`
    LastInk,   ///< a row of the box of the last job
    TotalInk,  ///< a row of the box of all jobs
    ReloadInk, ///< the button below the boxes
};

/// A control of the panel, by kind and row. The rows of an ink box say the same: their number is 0.
struct Setting {
    SettingKind kind = SettingKind::PopUp;
    int number = 0;

    bool operator==(const Setting &) const = default;
};

struct SettingText {
    Setting setting;
    const char *text;
};

inline constexpr std::size_t kSettingTextCount = 34; ///< 8 pop-ups, 20 sliders, 3 check boxes, the ink page's three

/// One row per control, in the order of the kinds and their numbers.
extern const std::array<SettingText, kSettingTextCount> settingTexts;

// %1 is always the caption of another control, with its choice where there is a %2; in lists of choices %3 is their
// number and %4 their names, or %1 and %2 where no other control is to blame.
inline constexpr char kNotWithText[] = "Not available with %1: %2.";
inline constexpr char kNoColorDataText[] = "Not available with %1: %2, a media profile without color data.";
inline constexpr char kSwitchedOffText[] = "Available when \"%1\" is switched on.";
inline constexpr char kNoGhostscriptText[] = "Not available: Ghostscript is not installed.";
inline constexpr char kNotNowText[] = "Not available with the present settings.";
inline constexpr char kNoChoicesText[] = "This printer has nothing to choose here.";
inline constexpr char kNotOfferedText[] = "Not offered with %1: %2 (%3): %4";
inline constexpr char kExcludedText[] = "Excluded by %1: %2 (%3): %4";
inline constexpr char kNotChoosableText[] = "Cannot be chosen (%1): %2";

// How a slider is set, and the field for a value.
inline constexpr char kHowToResetText[] = "A double click or Delete sets the default, %1.";
inline constexpr char kHowToTypeText[] = "Digits or F2 open a field for a value.";
inline constexpr char kResetText[] = "Reset to default (%1)";
inline constexpr char kTypeText[] = "Enter a value…";
inline constexpr char kRangeText[] = "Enter a value from %1 to %2.";

/// The caption of the check box without which the colour correction's sliders stand still; the interface's own
/// text.
inline constexpr char kCorrectionCaption[] = "Manual color correction";

/// All texts of this file but those of `settingTexts` and the caption.
inline constexpr std::array settingSentences{
    kNotWithText + 0,   kNoColorDataText + 0, kSwitchedOffText + 0, kNoGhostscriptText + 0, kNotNowText + 0,
    kNoChoicesText + 0, kNotOfferedText + 0,  kExcludedText + 0,    kNotChoosableText + 0,  kHowToResetText + 0,
    kHowToTypeText + 0, kResetText + 0,       kTypeText + 0,        kRangeText + 0,
};

/// What the control does to the print, in English; null when the table has no such row.
const char *settingText(Setting setting);

} // namespace tessarin

#endif
