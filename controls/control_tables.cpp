// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/control_tables.h"

namespace tessarin {

// One row per line, so that a row reads like the table it is.
// clang-format off

// In the order of the pages' reading. Shadows carries 4117 although it stands between 4105 and 4106; 4103 is free;
// Reference Light is the only slider with a default of its own, a position (D65).
std::array<ScrollRow, kSliderCount + 1> Scrolls{{
    {.page = kPageGeneral, .number = 0, .sliderId = 4101, .textId = 4401, .keyword = "vornBrightness", .label = "Brightness", .halveNegative = 1, .minimum = -10, .maximum = 10, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 5, .shownBase = 100, .shownFactor = 10.0F, .format = "%d%%"},
    {.page = kPageGeneral, .number = 1, .sliderId = 4102, .textId = 4402, .keyword = "vornContrast", .label = "Contrast", .halveNegative = 1, .minimum = -10, .maximum = 10, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 5, .shownBase = 100, .shownFactor = 10.0F, .format = "%d%%"},
    {.page = kPageColor, .number = 2, .sliderId = 4104, .textId = 4404, .keyword = "vornRefLight", .label = "Reference Light", .halveNegative = 0, .minimum = 0, .maximum = 6, .ppdDefault = 3, .ppdOffset = 50, .ppdStep = 5, .shownBase = 50, .shownFactor = 5.0F, .format = "D%d"},
    {.page = kPageColor, .number = 3, .sliderId = 4105, .textId = 4405, .keyword = "vornGamut", .label = "Color Gamut", .halveNegative = 1, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 100, .shownFactor = 20.0F, .format = "%d%%"},
    {.page = kPageColor, .number = 4, .sliderId = 4117, .textId = 4417, .keyword = "vornShadows", .label = "Shadows", .halveNegative = 1, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 100, .shownFactor = 20.0F, .format = "%d%%"},
    {.page = kPageColor, .number = 5, .sliderId = 4106, .textId = 4406, .keyword = "vornGreyToneA", .label = "Greytone A", .halveNegative = 0, .minimum = -10, .maximum = 10, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 5, .shownBase = 0, .shownFactor = 5.0F, .format = "%+d"},
    {.page = kPageColor, .number = 6, .sliderId = 4107, .textId = 4407, .keyword = "vornGreyToneB", .label = "Greytone B", .halveNegative = 0, .minimum = -10, .maximum = 10, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 5, .shownBase = 0, .shownFactor = 5.0F, .format = "%+d"},
    {.page = kPageInkUsage, .number = 7, .sliderId = 4108, .textId = 4408, .keyword = "vornUCR", .label = "Black Usage (UCR)", .halveNegative = 0, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 50, .shownFactor = 10.0F, .format = "%d%%"},
    {.page = kPageInkUsage, .number = 8, .sliderId = 4109, .textId = 4409, .keyword = "vornBrightC", .label = "Usage Bright Cyan", .halveNegative = 0, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 50, .shownFactor = 10.0F, .format = "%d%%"},
    {.page = kPageInkUsage, .number = 9, .sliderId = 4110, .textId = 4410, .keyword = "vornBrightM", .label = "Usage Bright Magenta", .halveNegative = 0, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 50, .shownFactor = 10.0F, .format = "%d%%"},
    {.page = kPageInkUsage, .number = 10, .sliderId = 4111, .textId = 4411, .keyword = "vornTAC", .label = "Total Ink Maximum", .halveNegative = 0, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 300, .shownFactor = 20.0F, .format = "%d%%"},
    {.page = kPageInkLimits, .number = 11, .sliderId = 4112, .textId = 4412, .keyword = "vornIntensity", .label = "Ink-Intensity", .halveNegative = 1, .minimum = -8, .maximum = 0, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 0, .shownFactor = -10.0F, .format = "%d%%"},
    {.page = kPageInkLimits, .number = 12, .sliderId = 4113, .textId = 4413, .keyword = "vornInklimitK", .label = "Ink-Limit Black", .halveNegative = 1, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 100, .shownFactor = 20.0F, .format = "%d%%"},
    {.page = kPageInkLimits, .number = 13, .sliderId = 4114, .textId = 4414, .keyword = "vornInklimitC", .label = "Ink-Limit Cyan", .halveNegative = 1, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 100, .shownFactor = 20.0F, .format = "%d%%"},
    {.page = kPageInkLimits, .number = 14, .sliderId = 4115, .textId = 4415, .keyword = "vornInklimitM", .label = "Ink-Limit Magenta", .halveNegative = 1, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 100, .shownFactor = 20.0F, .format = "%d%%"},
    {.page = kPageInkLimits, .number = 15, .sliderId = 4116, .textId = 4416, .keyword = "vornInklimitY", .label = "Ink-Limit Yellow", .halveNegative = 1, .minimum = -5, .maximum = 5, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 10, .shownBase = 100, .shownFactor = 20.0F, .format = "%d%%"},
    {.page = kPageCorrection, .number = 16, .sliderId = 4131, .textId = 4431, .keyword = "vornColorK", .label = "Black", .halveNegative = 0, .minimum = -10, .maximum = 10, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 5, .shownBase = 0, .shownFactor = 5.0F, .format = "%d%%"},
    {.page = kPageCorrection, .number = 17, .sliderId = 4132, .textId = 4432, .keyword = "vornColorC", .label = "Cyan", .halveNegative = 0, .minimum = -10, .maximum = 10, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 5, .shownBase = 0, .shownFactor = 5.0F, .format = "%d%%"},
    {.page = kPageCorrection, .number = 18, .sliderId = 4133, .textId = 4433, .keyword = "vornColorM", .label = "Magenta", .halveNegative = 0, .minimum = -10, .maximum = 10, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 5, .shownBase = 0, .shownFactor = 5.0F, .format = "%d%%"},
    {.page = kPageCorrection, .number = 19, .sliderId = 4134, .textId = 4434, .keyword = "vornColorY", .label = "Yellow", .halveNegative = 0, .minimum = -10, .maximum = 10, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 5, .shownBase = 0, .shownFactor = 5.0F, .format = "%d%%"},
    {.page = 0, .number = -1, .sliderId = 0, .textId = 0, .keyword = nullptr, .label = nullptr, .halveNegative = 0, .minimum = 0, .maximum = 0, .ppdDefault = 0, .ppdOffset = 0, .ppdStep = 1, .shownBase = 0, .shownFactor = 0.0F, .format = nullptr},
}};

std::array<PopRow, kPopUpCount + 1> pops{{
    {.page = kPageGeneral, .keyword = "*vornCartridgeType", .label = "Cartridge",        .controlId = 4507, .defaultIndex = 1},
    {.page = kPageGeneral, .keyword = "*vornMediaType",     .label = "Media Type",       .controlId = 4501, .defaultIndex = 1},
    {.page = kPageGeneral, .keyword = "*vornResolution",    .label = "Print Resolution", .controlId = 4502, .defaultIndex = 1},
    {.page = kPageColor,   .keyword = "*vornIntent",        .label = "Rendering Intent", .controlId = 4504, .defaultIndex = 1},
    {.page = kPageColor,   .keyword = "*vornColorModel",    .label = "Color Mode",       .controlId = 4505, .defaultIndex = 1},
    {.page = kPageGeneral, .keyword = "*vornDithering",     .label = "Dithering",        .controlId = 4506, .defaultIndex = 1},
    {.page = kPageColor,   .keyword = "*vornColorspace",    .label = "Color Space",      .controlId = 4503, .defaultIndex = 1},
    {.page = kPageColor,   .keyword = "*vornCMYKspace",     .label = "CMYK-Colorspace",  .controlId = 4508, .defaultIndex = 1},
    {.page = 0,            .keyword = nullptr,              .label = nullptr,            .controlId = 0,    .defaultIndex = 1},
}};

// The order differs from that of the check-box states.
std::array<CheckBoxRow, kCheckBoxCount + 1> checkboxes{{
    {.keyword = "vornNoPrint",       .value = 0},
    {.keyword = "vornColorGamma",    .value = 0},
    {.keyword = "vornPSInterpreter", .value = 0},
    {.keyword = nullptr,             .value = 0},
}};

const std::array<std::int32_t, 8> dlgidx{kPageGeneral, kPageColor, kPageCorrection, kPageInkConsumption, kPageInkUsage, kPageInkLimits, 0, 0};

// The last two rows of the total names and values count downward, the bars do not: so the view is numbered.
const InkIDs LastInkBarID{3011, 3012, 3013, 3014, 3015, 3016, 3017, 3018, 3019, 3020, 3021, 3022, 0};
const InkIDs TotalInkBarID{2999, 3000, 3001, 3002, 3003, 3004, 3005, 3006, 3007, 3008, 3009, 3010, 0};
const InkIDs LastInkValueID{3111, 3112, 3113, 3114, 3115, 3116, 3117, 3118, 3119, 3120, 3121, 3122, 3139};
const InkIDs TotalInkValueID{3101, 3102, 3103, 3104, 3105, 3106, 3107, 3108, 3109, 3110, 3100, 3099, 3129};
const InkIDs LastInkNameID{3211, 3212, 3213, 3214, 3215, 3216, 3217, 3218, 3219, 3220, 3221, 3222, 0};
const InkIDs TotalInkNameID{3201, 3202, 3203, 3204, 3205, 3206, 3207, 3208, 3209, 3210, 3200, 3199, 0};

// clang-format on

const char *keywordWithoutStar(const PopRow &row)
{
    return row.keyword[0] == '*' ? row.keyword + 1 : row.keyword;
}

const ScrollRow *sliderRow(int number)
{
    const ScrollRow *row = Scrolls.data();
    while (row->number >= 0 && row->number != number) {
        ++row;
    }
    return row->number >= 0 ? row : nullptr;
}

} // namespace tessarin
