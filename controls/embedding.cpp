// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/embedding.h"

#include "controls/availability.h"
#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "controls/popup_filling.h"
#include "controls/sliders.h"
#include "ink/counter_reader.h"
#include "ink/level_display.h"
#include "platform/view_tags.h"
#include "plugin/log.h"
#include "ppd/constraints.h"
#include "ppd/option_table.h"

#include <cstdio>

namespace tessarin {

std::array<const char *, 2> ghostscriptPaths{"/Library/Printers/Tessarin/gs/bin/gs", "/usr/local/bin/gs"};

namespace {

int findControl(QWidget *view, std::int32_t id, ControlHandle *control)
{
    return GetControlByID(view, {.signature = kControlSignature, .id = id}, control);
}

/// Looks up the control of one position of an ink id table; false when there should be one and it is not there.
bool findInkControl(QWidget *view, const InkIDs &ids, std::size_t position, ControlSlots &controls)
{
    return ids[position] == 0 || findControl(view, ids[position], &controls[position]) == 0;
}

void findNameControl(QWidget *view, const InkIDs &ids, std::size_t position, ControlSlots &controls)
{
    if (!findInkControl(view, ids, position, controls)) {
        _VERBOSE("Embed: Namecontrol #%d not found!****++++\n", position + 1);
    }
}

void embedInkControls(PanelContext *context, QWidget *view)
{
    ControlsStruct &controls = context->controls;
    for (std::size_t position = 0; position < kInkIDCount; ++position) {
        findInkControl(view, LastInkBarID, position, controls.lastInkBars);
        findInkControl(view, TotalInkBarID, position, controls.totalInkBars);
        findInkControl(view, LastInkValueID, position, controls.lastInkValues);
        findInkControl(view, TotalInkValueID, position, controls.totalInkValues);
        findNameControl(view, LastInkNameID, position, controls.lastInkNames);
        findNameControl(view, TotalInkNameID, position, controls.totalInkNames);
    }
    context->inkFirstLine = -1;
    context->inkLastLine = 0;
    context->inkRowHeight = 0;
    ReloadInkCounters(context);
}

void embedPopUps(PanelContext *context, QWidget *view, std::int32_t pageMask)
{
    _VERBOSE("Init popuplists - pageidx = %d\n", pageMask);
    _VERBOSE("---- INIT POPUP ----\n");
    for (std::size_t row = 0; row < kPopUpCount; ++row) {
        if ((pops[row].page & pageMask) == 0) {
            continue;
        }
        ControlHandle found;
        if (findControl(view, pops[row].controlId, &found) != 0) {
            _VERBOSE("NO STRINGS PRESENT!!!\n");
            continue;
        }
        context->controls.popupControls[row] = found;
        _VERBOSE("--- found #%d: controlid=%d\n", row, pops[row].controlId);
        _VERBOSE("FillPopUp #%d - id = %d\n", row, pops[row].controlId);
        FillPopup(found, choiceList(*context->ppdOptions, static_cast<int>(row)), {},
                  context->settings.popupSelections[row]);
    }
}

/// With one cartridge there is nothing to choose: its pop-up goes, and Dithering takes its place up to the edge
/// that Media Type has.
void hideCartridge(PanelContext *context, QWidget *view)
{
    _VERBOSE("HIDE CARTRIDGE POPUP\n");
    const auto &popups = context->controls.popupControls;
    SetControlVisibility(popups[kPopCartridge], false);
    ControlRect media;
    ControlRect dithering;
    GetControlBounds(popups[kPopMediaType], &media);
    GetControlBounds(popups[kPopDithering], &dithering);
    _VERBOSE("\nCONTROL BOUNDS Mediatype: %d,%d-%d,%d\n", media.left, media.top, media.right, media.bottom);
    _VERBOSE("\nCONTROL BOUNDS Dithering: %d,%d-%d,%d\n", dithering.left, dithering.top, dithering.right,
             dithering.bottom);
    dithering.right = media.right;
    SetControlBounds(popups[kPopDithering], dithering);
    ControlHandle caption;
    findControl(view, kCartridgeCaptionID, &caption);
    SetControlVisibility(caption, false);
}

void applyConstraintsAndModes(PanelContext *context)
{
    checkConstraintsForMenu(context, kPopMediaType);
    checkConstraintsForMenu(context, kPopResolution);
    checkAvailabilityForMenus(context, kPopIntent);
    checkAvailabilityForMenus(context, kPopColorModel);
}

bool opensForReading(const char *path)
{
    std::FILE *file = std::fopen(path, "re");
    if (file == nullptr) {
        return false;
    }
    std::fclose(file);
    return true;
}

void probeGhostscript(PanelContext *context)
{
    QWidget *checkBox = context->controls.psInterpreterCheckBox;
    if (opensForReading(ghostscriptPaths[0]) || opensForReading(ghostscriptPaths[1])) {
        context->optionFlagD = 1;
    } else {
        context->optionFlagD = 0;
        DisableControl(checkBox);
        _VERBOSE("no Ghostscript available\n");
    }
    SetCheckButtonValue(checkBox, context->settings.checkBoxStates[1] != 0 && context->optionFlagD != 0 ? 1 : 0);
}

void embedSliders(PanelContext *context, QWidget *view, std::int32_t pageMask)
{
    std::int32_t row = 0;
    for (; Scrolls[static_cast<std::size_t>(row)].number >= 0; ++row) {
        const ScrollRow &slider = Scrolls[static_cast<std::size_t>(row)];
        const auto number = static_cast<std::size_t>(slider.number);
        // Found into a local first: once embedded, a slider's tag is its text field's handle and the id is gone.
        ControlHandle found;
        if ((slider.page & pageMask) == 0 || findControl(view, slider.sliderId, &found) != 0) {
            continue;
        }
        context->controls.sliderControls[number] = found;
        ControlHandle &textField = context->controls.sliderAuxControls[number];
        findControl(view, slider.textId, &textField);
        SetControlProperty(textField, kControlSignature, kValueTextProperty, sizeof row, &row);
        const qintptr handle = handleOf(textField);
        SetControlProperty(found, kControlSignature, kValueTextProperty, sizeof handle, &handle);
        _VERBOSE("SCROLL-TEXT-Ref = %d\n", row);
        SetSliderMinimum(found, slider.minimum);
        SetSliderMaximum(found, slider.maximum);
        SetSliderControlValue(found, context->settings.sliderValues[number]);
        SetScrollValue(found);
    }
    context->controls.controlsInt = row;
}

void embedInkUsage(PanelContext *context, QWidget *view)
{
    ControlsStruct &controls = context->controls;
    findControl(view, kBrightCyanIconID, &controls.brightCyanIcon);
    findControl(view, kPhotoID, &controls.photoControl);
    controls.brightUsageLabel.clear();
    findControl(view, kBrightUsageLabelID, &controls.brightUsageLabel);
    _VERBOSE("iconid_brcyan=%p photo=%p magentapane=%p cyanpane=%p\n", controls.brightCyanIcon.data(),
             controls.photoControl.data(), controls.magentaPane.data(), controls.cyanPane.data());
    if (controls.cyanPane) {
        ControlRect cyan;
        GetControlBounds(controls.cyanPane, &cyan);
        context->availabilityInt1 = cyan.left;
        if (controls.magentaPane) {
            ControlRect magenta;
            GetControlBounds(controls.magentaPane, &magenta);
            context->availabilityInt2 = (magenta.left - cyan.left) / 2;
        }
    }
    checkControlAvailability(context, 0);
    if (controls.colorGammaCheckBox) {
        SetCheckButtonValue(controls.colorGammaCheckBox, context->settings.checkBoxStates[2]);
        enableColControls(context, context->settings.checkBoxStates[2]);
    }
}

} // namespace

std::int32_t MyEmbedCustomControls(std::int32_t pageMask, PanelContext *context, std::int32_t /*extra*/,
                                   QWidget *view)
{
    _VERBOSE("\n!!!MyEmbedControls!!! - idx=%d - window=%d\n\n", pageMask,
             HandleNumber{reinterpret_cast<qintptr>(view)});
    if (context == nullptr) {
        return 0;
    }
    ControlsStruct &controls = context->controls;
    context->embedObject = view;
    for (std::size_t bit = 0; bit < kTabCount; ++bit) {
        if ((pageMask & (1 << bit)) != 0) {
            context->tabObjects[bit] = view;
        }
    }
    InitOSSpecificItems();
    controls.summaryControl = GetControlOwner(view);
    if ((pageMask & kPageInkConsumption) != 0) {
        embedInkControls(context, view);
    }
    embedPopUps(context, view, pageMask);
    if ((pageMask & kPageColor) != 0) {
        ShowCurrentInputMode(context);
    }
    if ((pageMask & kPageGeneral) != 0) {
        if (pairKey(choiceList(*context->ppdOptions, kPopCartridge), 2) == nullptr) {
            hideCartridge(context, view);
        }
        applyConstraintsAndModes(context);
    }
    if ((pageMask & kPageInkConsumption) != 0 && findControl(view, kNoPrintID, &controls.noPrintCheckBox) == 0) {
        SetCheckButtonValue(controls.noPrintCheckBox, context->settings.checkBoxStates[0]);
    }
    if ((pageMask & kPageGeneral) != 0) {
        findControl(view, kPSInterpreterID, &controls.psInterpreterCheckBox);
    }
    if ((pageMask & kPageCorrection) != 0) {
        findControl(view, kColorGammaID, &controls.colorGammaCheckBox);
    }
    if ((pageMask & kPageGeneral) != 0) {
        probeGhostscript(context);
    }
    embedSliders(context, view, pageMask);
    if ((pageMask & kPageInkUsage) != 0) {
        embedInkUsage(context, view);
    }
    Draw1Control(controls.tabView);
    return 0;
}

} // namespace tessarin
