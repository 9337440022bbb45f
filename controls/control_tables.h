// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The tables that define the panel's controls, shared by all panels of a process.

#ifndef TESSARIN_CONTROLS_CONTROL_TABLES_H
#define TESSARIN_CONTROLS_CONTROL_TABLES_H

#include "platform/string_object.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tessarin {

inline constexpr std::size_t kSliderCount = 20;
inline constexpr std::size_t kPopUpCount = 8;
inline constexpr std::size_t kCheckBoxCount = 3;
inline constexpr std::size_t kInkRowCount = 12; ///< display rows of an ink box
inline constexpr std::size_t kInkIDCount = 13;  ///< the display rows and the sum

/// Page masks: tab page i has bit 2^i.
enum PageMask : std::int32_t {
    kPageGeneral = 1,
    kPageColor = 2,
    kPageCorrection = 4,
    kPageInkConsumption = 8,
    kPageInkUsage = 16,
    kPageInkLimits = 32,
};

/// Rows of `pops`, and with them indices of pop-up controls, selections and choice lists.
enum PopUpRow : int {
    kPopCartridge = 0,
    kPopMediaType = 1,
    kPopResolution = 2,
    kPopIntent = 3,
    kPopColorModel = 4,
    kPopDithering = 5,
    kPopColorspace = 6,
    kPopCMYKspace = 7,
};

/// Slider numbers that the logic names.
enum SliderNumber : int {
    kSliderBrightness = 0,
    kSliderContrast = 1,
    kSliderRefLight = 2,
    kSliderGamut = 3,
    kSliderGreyToneA = 5,
    kSliderGreyToneB = 6,
    kSliderUCR = 7,
    kSliderBrightCyan = 8,
    kSliderBrightMagenta = 9,
    kSliderColorBlack = 16,
    kSliderColorYellow = 19,
};

/// Control ids (view tags) that the logic names.
enum ControlID : std::int32_t {
    kPhotoID = 1901,
    kBrightCyanIconID = 1935,
    kCartridgeCaptionID = 3556,
    kBrightUsageLabelID = 3577,
    kReloadInkID = 4003,
    kBrightCyanSliderID = 4109,
    kBrightMagentaSliderID = 4110,
    kMediaTypeID = 4501,
    kResolutionID = 4502,
    kColorModelID = 4505,
    kCartridgeID = 4507,
    kNoPrintID = 4705,
    kPSInterpreterID = 4706,
    kColorGammaID = 4707,
    kIdleEventID = 4900,
};

/// One slider. A PPD value is position * ppdStep + ppdOffset; the shown value is position * shownFactor +
/// shownBase.
struct ScrollRow {
    std::int32_t page;           ///< mask of the page that holds the slider
    std::int32_t number;         ///< slider number, 0..19; -1 ends the table
    std::int32_t sliderId;       ///< control id of the slider
    std::int32_t textId;         ///< control id of its value text: sliderId + 300
    const char *keyword;         ///< PPD main keyword without "*"; null ends the table
    const char *label;           ///< name in the summary
    std::int32_t halveNegative;  ///< 1: a negative scaled position is halved
    std::int32_t minimum;        ///< least position
    std::int32_t maximum;        ///< greatest position
    std::int32_t ppdDefault;     ///< the keyword's value in the PPD, written when it is read
    std::int32_t ppdOffset;      ///< PPD value of position 0
    std::int32_t ppdStep;        ///< PPD value per position, never 0
    std::int32_t shownBase;      ///< shown value of position 0
    float shownFactor;           ///< shown value per position
    const char *format;          ///< printf format of the shown value
    StringRef formatString = {}; ///< the format as a string, made with every context
};

/// The position at which a slider stands for `value` of its keyword; it may be beyond the slider's ends.
inline std::int64_t positionOfPPDValue(const ScrollRow &slider, std::int32_t value)
{
    return (std::int64_t{value} - slider.ppdOffset) / slider.ppdStep;
}

/// One pop-up.
struct PopRow {
    std::int32_t page;         ///< mask of the page that holds the pop-up
    const char *keyword;       ///< PPD main keyword with "*"; null ends the table
    const char *label;         ///< name in the summary
    std::int32_t controlId;    ///< control id
    std::int32_t defaultIndex; ///< 1-based pair number of the PPD's default; only the own block reader sets it
};

/// One check box.
struct CheckBoxRow {
    const char *keyword; ///< PPD main keyword without "*"; null ends the table
    std::int32_t value;  ///< the keyword's value in the PPD, written when it is read
};

using InkIDs = std::array<std::int32_t, kInkIDCount>;

extern std::array<ScrollRow, kSliderCount + 1> Scrolls;
extern std::array<PopRow, kPopUpCount + 1> pops;
extern std::array<CheckBoxRow, kCheckBoxCount + 1> checkboxes;

/// Page mask by position of the tab; 0: no page.
extern const std::array<std::int32_t, 8> dlgidx;

// Control ids by display row, then of the sum field; 0: no control.
extern const InkIDs LastInkBarID;
extern const InkIDs TotalInkBarID;
extern const InkIDs LastInkValueID;
extern const InkIDs TotalInkValueID;
extern const InkIDs LastInkNameID;
extern const InkIDs TotalInkNameID;

/// A `pops` keyword without its leading "*".
const char *keywordWithoutStar(const PopRow &row);

/// The row of `Scrolls` with a slider number; null when the table has none.
const ScrollRow *sliderRow(int number);

} // namespace tessarin

#endif
