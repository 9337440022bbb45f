// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/restore.h"

#include "controls/availability.h"
#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "controls/sliders.h"
#include "platform/bounded_copy.h"
#include "platform/printing_services.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"
#include "ppd/constraints.h"
#include "ppd/keyword_scanner.h"

#include <string>
#include <string_view>

namespace tessarin {

namespace {

constexpr std::size_t kPPDPathConversionSize = 255; // bytes, terminator included: one less than the buffer holds
constexpr std::size_t kLongestInkName = 128;        // characters of the printer name in the ink counter path

void showCheckBoxes(PanelContext *context)
{
    const ControlsStruct &controls = context->controls;
    const auto &states = context->settings.checkBoxStates;
    SetCheckButtonValue(controls.noPrintCheckBox, states[0]);
    SetCheckButtonValue(controls.psInterpreterCheckBox, states[1] != 0 && context->optionFlagD != 0 ? 1 : 0);
    if (controls.colorGammaCheckBox) {
        SetCheckButtonValue(controls.colorGammaCheckBox, states[2]);
        enableColControls(context, states[2]);
    }
}

void showPopUps(PanelContext *context)
{
    for (std::size_t row = 0; row < kPopUpCount; ++row) {
        QWidget *popup = context->controls.popupControls[row];
        if (popup == nullptr) {
            _VERBOSE("!!! Control not found for ppditem: %S\n", pops[row].keyword);
        } else if (row != kPopMediaType && row != kPopResolution) { // the constraint checks show these two
            const std::int32_t selection = context->settings.popupSelections[row];
            SetComboControlValue(popup, selection);
            _VERBOSE("Setting Combo '%S' to '%d'\n", pops[row].keyword, selection);
        }
    }
}

void showSliders(PanelContext *context)
{
    for (int number = 0; number < static_cast<int>(kSliderCount); ++number) {
        const ScrollRow *row = sliderRow(number);
        QWidget *slider = context->controls.sliderControls[static_cast<std::size_t>(number)];
        if (row != nullptr && slider != nullptr) {
            SetSliderControlValue(slider, context->settings.sliderValues[static_cast<std::size_t>(number)]);
            SetScrollValue(slider);
        }
    }
}

} // namespace

bool RunningOn105OrLater()
{
    _PDELog({}, "(64-bit) Mac OS X 10.5 or later");
    return true;
}

OptionDictionary *myGetPPDDict()
{
    return nullptr;
}

void enterPPDPathIntoContext(PanelContext *context, const char *path)
{
    copyBounded(context->ppdPath, path);
    context->ppdPath.back() = '\0'; // behind a shorter path too
}

void processPPDFile(PanelContext *context, ppd_file_s *hostPPD, const char *ppdPath, const char *printerName,
                    pde::HostCallback *callback, pde::Bundle *bundle, unsigned char onTiger)
{
    _VERBOSE("ProcessPPD\n");
    context->onTiger = onTiger;
    context->ppdFile = hostPPD;
    mybundle = bundle;
    const std::string inkPath = std::string(kInkFilePrefix) +
                                std::string(std::string_view(printerName).substr(0, kLongestInkName)) +
                                kInkFileSuffix;
    copyBounded(context->settings.inkFilePath, inkPath);
    context->callbackObject = callback;
    context->ppdFile =
        callback != nullptr ? callback->ppdFile() : nullptr; // in every case, whatever was given above
    context->ppdScanBuffer.reset();
    ParsePPDFile(ppdPath, context);
}

void MyRestoreValues(PanelContext *context)
{
    if (context->onTiger == 0) {
        _VERBOSE("Restore Values on 105 or later\n");
        getPPDOptionSelections(context);
        MyUpdatePaneFromSettings(context);
        return;
    }
    _VERBOSE("Restore Values on Tiger\n");
    if constexpr (sizeof(void *) == 4) {
        MySyncPaneFromTigerTicket(context);
    }
}

int MySyncPaneFromTigerTicket(PanelContext * /*context*/)
{
    return 0;
}

void MyUpdatePaneFromSettings(PanelContext *context)
{
    showCheckBoxes(context);
    showPopUps(context);
    if (context->controls.popupControls[kPopResolution]) {
        checkConstraintsForMenu(context, kPopMediaType);
        checkConstraintsForMenu(context, kPopResolution);
        checkAvailabilityForMenus(context, kPopIntent);
        checkAvailabilityForMenus(context, kPopColorModel);
    }
    // After the check boxes: showing a slider's value enables it, also those of a colour correction that is off.
    showSliders(context);
    ShowCurrentInputMode(context);
}

void findPPDPath(pde::HostCallback *callback, char *path)
{
    path[0] = '\0';
    pde::Printer *printer = nullptr;
    StringRef url;
    if (PMSessionGetCurrentPrinter(callback != nullptr ? callback->printSession() : nullptr, &printer) != 0 ||
        PMPrinterCopyDescriptionURL(printer, pde::kPPDDescriptionType, &url) != 0) {
        return;
    }
    const StringRef urlPath = CFURLCopyPath(url);
    myCFRelease(url);
    myCFStringGetCString(urlPath, path, kPPDPathConversionSize, kEncodingASCII);
    myCFRelease(urlPath);
    _VERBOSE("*****parse PPD-File: %.200s\n", path);
}

void findPrinterName(pde::HostCallback *callback, char *name)
{
    name[0] = '\0';
    const StringRef identifier = PMPrinterGetID(callback != nullptr ? callback->PMPrinter() : nullptr);
    myCFStringGetCString(identifier, name, kPrinterNameSize, kEncodingPrinterID);
    name[kPrinterNameSize - 1] = '\0';
}

} // namespace tessarin
