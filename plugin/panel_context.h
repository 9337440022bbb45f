// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The panel's context record: everything that the logic of one panel works on.
//
// A plain record, zero-filled at creation; every field's empty value is zero or null. Control handles are borrowed:
// the loaded interface owns the views, and a handle of a view that has gone reads as null.

#ifndef TESSARIN_PLUGIN_PANEL_CONTEXT_H
#define TESSARIN_PLUGIN_PANEL_CONTEXT_H

#include <QPointer>
#include <QWidget>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

struct ppd_file_s;

namespace tessarin {

namespace pde {
class HostCallback;
}
struct PPDOptionTable;

inline constexpr std::size_t kSlotCount = 21;        ///< slider numbers, ink channels, ink display rows (one spare)
inline constexpr std::size_t kPopUpSlotCount = 12;   ///< pop-up rows, with places to spare
inline constexpr std::size_t kTabCount = 6;          ///< tab pages at most
inline constexpr std::size_t kCheckBoxSlotCount = 4; ///< check-box states, the last one spare
inline constexpr std::size_t kPPDPathSize = 256;     ///< characters, terminator included
inline constexpr std::size_t kInkFilePathSize = 150; ///< characters, terminator included

using ControlHandle = QPointer<QWidget>;
using ControlSlots = std::array<ControlHandle, kSlotCount>;

/// Handles of the panel's controls; null: not on the panel.
struct ControlsStruct {
    ControlHandle noPrintCheckBox;       ///< print simulation (vornNoPrint)
    ControlHandle psInterpreterCheckBox; ///< PostScript interpreter (vornPSInterpreter)
    ControlHandle colorGammaCheckBox;    ///< manual colour correction (vornColorGamma)
    ControlHandle spareControl1;
    ControlHandle spareControl2;
    ControlHandle spareControl3;
    ControlSlots sliderControls;    ///< by slider number
    ControlSlots sliderAuxControls; ///< value text fields, by slider number
    ControlHandle tabView;
    std::array<ControlHandle, 8> extraControls;
    std::array<ControlHandle, kPopUpSlotCount> popupControls; ///< by row of `pops`
    ControlSlots lastInkBars;                                 ///< by display row 0..11
    ControlSlots totalInkBars;                                ///< by display row 0..11
    ControlSlots lastInkValues;                               ///< by display row 0..11; 12: the sum
    ControlSlots totalInkValues;                              ///< by display row 0..11; 12: the sum
    ControlSlots lastInkNames;                                ///< by display row 0..11
    ControlSlots totalInkNames;                               ///< by display row 0..11
    ControlHandle spareControl4;
    ControlHandle photoControl;     ///< photo indicator (id 1901)
    ControlHandle brightCyanIcon;   ///< bright-cyan indicator (id 1935)
    ControlHandle cyanPane;         ///< container of slider 4109
    ControlHandle magentaPane;      ///< container of slider 4110
    ControlHandle brightUsageLabel; ///< caption of the bright-ink usage (id 3577)
    ControlHandle summaryControl;   ///< owner of the controls; when present the summary syncs the ticket first
    std::int32_t controlsInt = 0;   ///< slider rows walked by the last embedding
};

/// The option values that the panel shows and writes back.
struct PanelSettings {
    /// 0 or 1 (from the PPD: the value's low byte): 0 vornNoPrint, 1 vornPSInterpreter (1: Ghostscript, the PPD's
    /// value 0), 2 vornColorGamma, 3 spare. The order is not that of the `checkboxes` table.
    std::array<std::uint8_t, kCheckBoxSlotCount> checkBoxStates{};
    std::array<char, kInkFilePathSize> inkFilePath{};            ///< the printer's ink counter file
    std::array<std::int32_t, kPopUpSlotCount> popupSelections{}; ///< 1-based pair number by `pops` row; 0: none
    std::array<std::int32_t, kSlotCount> sliderValues{};         ///< slider position by slider number
    std::array<std::int32_t, kSlotCount> inkLast{};              ///< last job's counter by ink channel, unscaled
    std::array<std::int32_t, kSlotCount> inkTotal{};             ///< total counter by ink channel, unscaled
    std::array<std::int32_t, kSlotCount> inkSeen{};              ///< 0: not shown, else 1-based place, by channel
    std::int32_t inkChannelCount = 0;                            ///< channels shown
};

struct PanelContext {
    ControlsStruct controls;
    PanelSettings settings;
    std::unique_ptr<PPDOptionTable> ppdOptions;      ///< choice lists and constraints; made with the record
    ControlHandle embedObject;                       ///< the page last embedded
    std::array<ControlHandle, kTabCount> tabObjects; ///< each page's view, by the bit of its mask
    ControlHandle availabilityObject;                ///< window for the availability alerts; null: none
    std::int32_t availabilityInt1 = 0;               ///< left edge of cyanPane when embedded, in pixels
    std::int32_t availabilityInt2 = 0;               ///< half the way from cyanPane to magentaPane, in pixels
    std::unique_ptr<char[]> ppdScanBuffer;           ///< the block of strings that the choice lists point to
    ppd_file_s *ppdFile = nullptr;                   ///< the host's parsed PPD; not owned
    pde::HostCallback *callbackObject = nullptr;     ///< the host's callback; not owned
    std::uint8_t onTiger = 0;                        ///< 1: the host is too old to have a parsed PPD; in practice 0
    std::array<char, kPPDPathSize> ppdPath{};        ///< path of the printer's PPD file; empty: unknown
    std::int32_t inkFirstLine = 0;                   ///< top of the first ink row, in pixels; -1: not measured
    std::int32_t inkLastLine = 0;                    ///< top of the last ink row, in pixels
    std::int32_t inkRowHeight = 0;                   ///< height of an ink row, in pixels
    std::int32_t optionFlagD = 0;                    ///< 0: no Ghostscript, its check box shows unticked

    PanelContext();
    ~PanelContext();
    PanelContext(const PanelContext &) = delete;
    PanelContext &operator=(const PanelContext &) = delete;
};

} // namespace tessarin

#endif
