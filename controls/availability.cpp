// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/availability.h"

#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "controls/menu_items.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"
#include "ppd/option_table.h"

#include <string_view>

namespace tessarin {

const std::array<int, 7> disablepopups{kPopResolution, kPopIntent, kPopDithering, kPopCartridge, kPopCMYKspace,
                                       kPopColorspace, -1};
const std::array<int, 7> disablesliders{
    kSliderBrightness, kSliderContrast, kSliderGamut, kSliderRefLight, kSliderGreyToneA, kSliderGreyToneB, -1};

namespace {

constexpr int kFirstRestrictedTab = 3; // 1-based
constexpr int kLastRestrictedTab = 6;

const char *selectedMediaKey(const PanelContext &context)
{
    return pairKey(choiceList(*context.ppdOptions, kPopMediaType), context.settings.popupSelections[kPopMediaType]);
}

bool isAvailable(int row, const char *key, int mediaMode)
{
    if (row == kPopIntent) {
        return StringPropertyNumber(key) <= mediaMode;
    }
    if (row == kPopColorModel && mediaMode == kIncompleteProfileMode) {
        const std::string_view name = key != nullptr ? key : "";
        return name == "RGB" || name == "CMYKproof";
    }
    return true;
}

void enableSliderNumber(const PanelContext &context, int number, bool enabled)
{
    SetControlEnabled(context.controls.sliderControls[static_cast<std::size_t>(number)], enabled);
}

} // namespace

int selectedMediaMode(const PanelContext &context)
{
    return StringPropertyNumber(selectedMediaKey(context));
}

int StringPropertyNumber(const char *text)
{
    const std::string_view key = text != nullptr ? text : "";
    return !key.empty() && key.back() >= '0' && key.back() <= '9' ? key.back() - '0' : 0;
}

void checkAvailabilityForMenus(PanelContext *context, int row)
{
    std::int32_t &mediaSelection = context->settings.popupSelections[kPopMediaType];
    if (mediaSelection == 0) {
        mediaSelection = 1;
    }
    printlogFormatted("checkAvailabilityforMenus: item=kPOP_MEDIATYPE, selection=%d\n", mediaSelection);
    const char *mediaKey = selectedMediaKey(*context);
    const int mediaMode = StringPropertyNumber(mediaKey);
    _VERBOSE("got MediaMode: %d - %.100s\n", mediaMode, mediaKey);

    QWidget *popup = context->controls.popupControls[static_cast<std::size_t>(row)];
    int current = GetComboControlValue(popup);
    MenuHandle menu = nullptr;
    GetComboMenu(popup, &menu);
    if (menu == nullptr) {
        return;
    }
    _VERBOSE("Availabilitycheck - Mediamode = %d\n", mediaMode);
    const ChoiceList list = choiceList(*context->ppdOptions, row);
    int lastAvailable = 0;
    const int count = CountMenuItems(menu);
    for (int item = 1; item <= count; ++item) {
        if (isAvailable(row, pairKey(list, item), mediaMode)) {
            ChangeMenuItemAttributes(menu, item, 0, kMenuItemHidden);
            lastAvailable = item;
            continue;
        }
        ChangeMenuItemAttributes(menu, item, kMenuItemHidden, 0);
        if (item == current) {
            // The next entry may be hidden in its turn, when the walk reaches it.
            current = lastAvailable != 0 ? lastAvailable : current + 1;
        }
    }
    SetComboControlValue(popup, current);
    context->settings.popupSelections[static_cast<std::size_t>(row)] = current;
}

void checkControlAvailability(PanelContext *context, int eventId)
{
    const int mode = selectedMediaMode(*context);
    const ControlsStruct &controls = context->controls;

    enableSliderNumber(*context, kSliderBrightCyan, mode >= 5);
    enableSliderNumber(*context, kSliderBrightMagenta, mode >= 6);
    enableSliderNumber(*context, kSliderUCR, mode >= 4);
    enableSliderNumber(*context, kSliderRefLight, mode >= 3);
    enableSliderNumber(*context, kSliderGamut, mode >= 3);

    const bool oneForAll = mode == kBrightInksMode;
    SetControlVisibility(controls.magentaPane, !oneForAll);
    const StringRef usage = localizedText(oneForAll ? "Bright Inks\nUsage:" : "Bright Cyan\nUsage:");
    SetControlVisibility(controls.brightCyanIcon, !oneForAll);
    SetControlVisibility(controls.photoControl, oneForAll);

    ControlRect pane;
    GetControlBounds(controls.cyanPane, &pane);
    MoveControl(controls.cyanPane, context->availabilityInt1 + (oneForAll ? context->availabilityInt2 : 0),
                pane.top);
    Draw1Control(controls.cyanPane);
    if (controls.brightUsageLabel) {
        SetTextControl(controls.brightUsageLabel, usage);
        Draw1Control(controls.brightUsageLabel);
    }

    const bool complete = mode != kIncompleteProfileMode;
    for (int tab = kFirstRestrictedTab; tab <= kLastRestrictedTab; ++tab) {
        SetTabEnabled(controls.tabView, tab, complete);
    }
    Draw1Control(controls.tabView);
    for (int i = 0; disablepopups[static_cast<std::size_t>(i)] >= 0; ++i) {
        const auto row = static_cast<std::size_t>(disablepopups[static_cast<std::size_t>(i)]);
        SetControlEnabled(controls.popupControls[row], complete);
    }
    // After the thresholds above, so that modes 0 and 1 end with reference light and gamut enabled.
    for (int i = 0; disablesliders[static_cast<std::size_t>(i)] >= 0; ++i) {
        enableSliderNumber(*context, disablesliders[static_cast<std::size_t>(i)], complete);
    }
    if (eventId == kMediaTypeID && !complete) {
        MyShowAlert(context->availabilityObject);
    }
}

int MyShowAlert(QWidget *parent)
{
    const StringRef message = localizedText("You have chosen an incomplete media profile without color data!\n"
                                            "This profile should only be used for printing color charts!");
    std::int16_t pressed = 0;
    return MyStdAlert(parent, false, localizedText("Attention:"), message, &pressed) != 0 ? -1 : 0;
}

} // namespace tessarin
