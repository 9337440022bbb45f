// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/sliders.h"

#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "pde/print_dialog_extension.h"
#include "platform/accessible_views.h"
#include "platform/numbers.h"
#include "platform/view_tags.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"
#include "ppd/option_table.h"

#include <QAbstractSlider>

#include <string_view>

namespace tessarin {

namespace {

constexpr std::string_view kCMYKPrefix = "CMYK";

} // namespace

std::int32_t shownValue(const ScrollRow &slider, std::int32_t position)
{
    const float scaled = static_cast<float>(position) * slider.shownFactor;
    std::int32_t shown = clampToInt32(static_cast<std::int64_t>(scaled));
    if (slider.halveNegative == 1 && shown < 0) {
        shown >>= 1; // toward minus infinity
    }
    return clampToInt32(std::int64_t{shown} + slider.shownBase);
}

StringRef CreateScrollValueCFString(int row, std::int32_t position)
{
    if (row < 0 || static_cast<std::size_t>(row) >= kSliderCount) {
        return nullptr;
    }
    const ScrollRow &slider = Scrolls[static_cast<std::size_t>(row)];
    const std::int32_t shown = shownValue(slider, position);
    return myCFStringCreateWithFormat(nullptr, nullptr, slider.formatString, shown, shown);
}

void SetScrollValue(QWidget *slider)
{
    const auto *control = qobject_cast<const QAbstractSlider *>(slider);
    if (control == nullptr) {
        return;
    }
    _VERBOSE("SetScrollValue\n");
    qintptr handle = 0;
    GetControlProperty(slider, kControlSignature, kValueTextProperty, sizeof handle, &handle);
    _VERBOSE("SetScrollValue - CtrlProperty = %d\n", HandleNumber{handle});
    QWidget *textField = viewForHandle(handle);
    qintptr row = 0;
    GetControlProperty(textField, kControlSignature, kValueTextProperty, sizeof row, &row);
    _VERBOSE("SetScrollValue - CtrlRef = %d\n", static_cast<int>(row));
    _VERBOSE("min=%f max=%f\n", static_cast<double>(control->minimum()), static_cast<double>(control->maximum()));
    const std::int32_t position = GetSliderControlValue(slider);
    _VERBOSE("currentValue = %d\n", position);
    const StringRef text = CreateScrollValueCFString(static_cast<int>(row), position);
    EnableControl(slider);
    SetTextControl(textField, text);
    _VERBOSE("mark1\n");
    myCFRelease(text);
    _VERBOSE("mark2\n");
    Draw1Control(textField);
    _VERBOSE("mark3\n");
    announceText(slider);
}

void enableColControls(PanelContext *context, int on)
{
    for (int number = kSliderColorBlack; number <= kSliderColorYellow; ++number) {
        SetControlEnabled(context->controls.sliderControls[static_cast<std::size_t>(number)], on != 0);
    }
    _VERBOSE(on != 0 ? "colors enabled\n" : "colors disabled\n");
}

void enableSlider(QWidget *slider, bool on)
{
    SetControlEnabled(slider, on);
}

void ShowCurrentInputMode(PanelContext *context)
{
    const ChoiceList modes = choiceList(*context->ppdOptions, kPopColorModel);
    std::int32_t &selection = context->settings.popupSelections[kPopColorModel];
    while (selection >= 2 && pairKey(modes, selection) == nullptr) {
        --selection;
    }
    const char *key = pairKey(modes, selection);
    printlogFormatted("colmode=%d\n", selection);
    printlogFormatted("colmodename=%s\n", key);
    const bool isCMYK = key != nullptr && std::string_view(key).starts_with(kCMYKPrefix);
    SetControlVisibility(context->controls.popupControls[kPopColorspace], !isCMYK);
    SetControlVisibility(context->controls.popupControls[kPopCMYKspace], isCMYK);
    printlogFormatted(isCMYK ? "CMYK-Mode - %s\n" : "RGB-Mode - %s\n", key);
}

void SetPreviewColor(PanelContext *context, bool colour)
{
    if (context->callbackObject != nullptr) {
        context->callbackObject->willChangePPDOptionKeyValue(
            QStringLiteral("ColorModel"), colour ? QStringLiteral("RGB") : QStringLiteral("Gray"));
    }
}

void setValueText(QWidget *textField, std::int32_t value)
{
    const StringRef format = makeString(std::string(value < 0 ? " " : "%d"));
    const StringRef text = myCFStringCreateWithFormat(nullptr, nullptr, format, value);
    SetTextControl(textField, text);
    Draw1Control(textField);
    myCFRelease(text);
}

void CorrectControlPosition(QWidget *control, int top)
{
    ControlRect bounds;
    GetControlBounds(control, &bounds);
    bounds.bottom = clampToInt16(std::int64_t{top} + bounds.bottom - bounds.top);
    bounds.top = clampToInt16(top);
    SetControlBounds(control, bounds);
}

} // namespace tessarin
