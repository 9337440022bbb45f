// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/setting_texts.h"

#include <algorithm>

namespace tessarin {

// One row per line, so that a row reads like the table it is.
// clang-format off

const std::array<SettingText, kSettingTextCount> settingTexts{{
    {{SettingKind::PopUp, 0}, "The ink cartridges that are in the printer."},
    {{SettingKind::PopUp, 1}, "What is printed on; ink amounts and colors are matched to it."},
    {{SettingKind::PopUp, 2}, "How finely the ink drops are placed: a higher resolution shows more detail and takes longer."},
    {{SettingKind::PopUp, 3}, "How colors that cannot be printed are replaced by colors that can."},
    {{SettingKind::PopUp, 4}, "Whether the print is grey or in color, and which kind of color data it is made from."},
    {{SettingKind::PopUp, 5}, "The pattern of ink drops from which shades are made."},
    {{SettingKind::PopUp, 6}, "What the numbers of RGB data mean as colors."},
    {{SettingKind::PopUp, 7}, "What the numbers of CMYK data mean as colors."},
    {{SettingKind::Slider, 0}, "Makes the whole print lighter or darker."},
    {{SettingKind::Slider, 1}, "Makes the difference between light and dark stronger or weaker."},
    {{SettingKind::Slider, 2}, "The daylight in which the print will be looked at, from warm (D50) to cool (D80)."},
    {{SettingKind::Slider, 3}, "Makes the colors more vivid or more muted."},
    {{SettingKind::Slider, 4}, "Makes the dark parts of the print lighter or darker."},
    {{SettingKind::Slider, 5}, "Gives greys a greenish or reddish tint."},
    {{SettingKind::Slider, 6}, "Gives greys a bluish or yellowish tint."},
    {{SettingKind::Slider, 7}, "How much of dark and grey tones is printed with black ink in place of colored inks."},
    {{SettingKind::Slider, 8}, "How much bright cyan ink is used in place of cyan; without a slider for magenta, how much of all bright inks."},
    {{SettingKind::Slider, 9}, "How much bright magenta ink is used in place of magenta."},
    {{SettingKind::Slider, 10}, "The most ink of all colors together that may fall on one spot."},
    {{SettingKind::Slider, 11}, "Takes this share away from the amount of all inks."},
    {{SettingKind::Slider, 12}, "The most black ink that may fall on one spot."},
    {{SettingKind::Slider, 13}, "The most cyan ink that may fall on one spot."},
    {{SettingKind::Slider, 14}, "The most magenta ink that may fall on one spot."},
    {{SettingKind::Slider, 15}, "The most yellow ink that may fall on one spot."},
    {{SettingKind::Slider, 16}, "Adds black to the print or takes it away."},
    {{SettingKind::Slider, 17}, "Adds cyan to the print or takes it away."},
    {{SettingKind::Slider, 18}, "Adds magenta to the print or takes it away."},
    {{SettingKind::Slider, 19}, "Adds yellow to the print or takes it away."},
    {{SettingKind::CheckBox, 0}, "The job's ink is counted, but nothing is printed."},
    {{SettingKind::CheckBox, 1}, "Lets the four sliders of this page change the colors of the print."},
    {{SettingKind::CheckBox, 2}, "Ghostscript turns PostScript data into the printed picture, in place of the system's own interpreter."},
    {{SettingKind::LastInk, 0}, "How much of this ink the last job used."},
    {{SettingKind::TotalInk, 0}, "How much of this ink all jobs together have used."},
    {{SettingKind::ReloadInk, 0}, "Reads again how much ink was used."},
}};

// clang-format on

const char *settingText(Setting setting)
{
    const auto row = std::find_if(settingTexts.begin(), settingTexts.end(),
                                  [setting](const SettingText &one) { return one.setting == setting; });
    return row != settingTexts.end() ? row->text : nullptr;
}

} // namespace tessarin
