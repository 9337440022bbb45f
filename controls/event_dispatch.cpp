// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/event_dispatch.h"

#include "controls/availability.h"
#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "controls/sliders.h"
#include "ink/level_display.h"
#include "plugin/log.h"
#include "ppd/constraints.h"
#include "ppd/ticket.h"

namespace tessarin {

namespace {

void storePopUpValue(PanelContext *context, std::size_t row)
{
    context->settings.popupSelections[row] = GetComboControlValue(context->controls.popupControls[row]);
}

/// A new choice in one of the pop-ups that others depend on.
std::int32_t changePopUp(PanelContext *context, int row, std::int32_t eventId)
{
    const auto place = static_cast<std::size_t>(row);
    QWidget *popup = context->controls.popupControls[place];
    if (!MySaveSettingToTicket(context, row, GetComboControlValue(popup))) {
        SetComboControlValue(popup, context->settings.popupSelections[place]);
        return kEventNotHandled;
    }
    storePopUpValue(context, kPopResolution);
    storePopUpValue(context, kPopCartridge);
    storePopUpValue(context, kPopMediaType);
    checkConstraintsForMenu(context, kPopMediaType);
    checkConstraintsForMenu(context, kPopResolution);
    checkAvailabilityForMenus(context, kPopIntent);
    checkAvailabilityForMenus(context, kPopColorModel);
    checkControlAvailability(context, eventId);
    return 0;
}

std::int32_t changeColorMode(PanelContext *context)
{
    constexpr int kLastGreyMode = 2; // pair number; whatever the modes are called
    storePopUpValue(context, kPopColorModel);
    SetPreviewColor(context, context->settings.popupSelections[kPopColorModel] > kLastGreyMode);
    ShowCurrentInputMode(context);
    return 0;
}

} // namespace

std::int32_t processEvent(PanelContext *context, int /*kind*/, std::int32_t eventId)
{
    if (context == nullptr) {
        return kEventNotHandled;
    }
    _VERBOSE("Handle event #%d\n", eventId);
    switch (eventId) {
    case kReloadInkID:
        ReloadInkCounters(context);
        return 0;
    case kMediaTypeID:
        return changePopUp(context, kPopMediaType, eventId);
    case kResolutionID:
        return changePopUp(context, kPopResolution, eventId);
    case kCartridgeID:
        return changePopUp(context, kPopCartridge, eventId);
    case kColorModelID:
        return changeColorMode(context);
    case kColorGammaID:
        enableColControls(context, GetCheckButtonValue(context->controls.colorGammaCheckBox));
        return 0;
    case kIdleEventID:
        return 0;
    default:
        return kEventNotHandled;
    }
}

} // namespace tessarin
