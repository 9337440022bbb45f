// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ink/summary.h"

#include "controls/control_tables.h"
#include "controls/sliders.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"
#include "ppd/option_table.h"
#include "ppd/ticket.h"

#include <algorithm>
#include <string_view>

namespace tessarin {

namespace {

constexpr int kOrderRoom = 45;

StringRef text(const char *utf8)
{
    return myCFStringCreateWithCString(nullptr, utf8, kEncodingUTF8);
}

/// Whether the selected media takes one setting for all bright inks: its key ends in "5".
bool hasOneBrightInkSetting(const PanelContext &context)
{
    const char *key =
        pairKey(choiceList(*context.ppdOptions, kPopMediaType), context.settings.popupSelections[kPopMediaType]);
    return key != nullptr && std::string_view(key).ends_with('5');
}

void addCheckBoxLines(PanelContext *context, pde::Summary &summary)
{
    const auto &states = context->settings.checkBoxStates;
    mySummaryEntry(summary, text("Postscript-Processor"), text(states[1] != 0 ? "Ghostscript" : "Mac OS"), true);
    mySummaryEntry(summary, text("Manual color correction"), text(states[2] != 0 ? "enabled" : "disabled"), true);
    _VERBOSE("###Check-ColorGamma = %d / %S\n", states[2], states[2] != 0 ? "an" : "aus");
}

void addSliderLine(int row, PanelContext *context, pde::Summary &summary)
{
    _VERBOSE("do Scroll.\n");
    const ScrollRow &slider = Scrolls[static_cast<std::size_t>(row)];
    StringRef label;
    if (slider.label[0] != '\0') {
        const StringRef title = myCFStringCreateWithCString(nullptr, slider.label, kEncodingASCII);
        label = myCFStringCreateCopy(nullptr, MyCFCopyLocalizedString(title, ""));
    }
    const StringRef value =
        CreateScrollValueCFString(row, context->settings.sliderValues[static_cast<std::size_t>(slider.number)]);
    const bool isBrightInk = row == kSliderBrightCyan || row == kSliderBrightMagenta;
    if (isBrightInk && hasOneBrightInkSetting(*context)) {
        label = row == kSliderBrightCyan ? MyCFCopyLocalizedString(text("Bright Inks Usage:"), "") : nullptr;
    }
    if (label) {
        _VERBOSE("Adding %s/%s to Dictionary\n", label, value);
        summary.entries.insert(toQString(label), toQString(value));
        myEnterArrayList(summary, toQString(label));
    }
    myCFRelease(value);
}

} // namespace

std::optional<pde::Summary> MyGetSummaryText(PanelContext *context)
{
    if (context == nullptr) {
        return std::nullopt;
    }
    pde::Summary summary;
    QStringList order;
    order.reserve(kOrderRoom);
    if (context->controls.summaryControl) {
        MySyncTicketFromPane(context);
    }
    summary.displayOrder = order;
    _VERBOSE("Summary\n");
    _VERBOSE("Summary2\n");
    const bool simulates = context->settings.checkBoxStates[0] != 0;
    mySummaryEntry(summary, text("Print Simulation"),
                   text(simulates ? "ON - printing is disabled" : "OFF - printing is enabled"), true);
    _VERBOSE("Summarybeforepop\n");
    for (int row = 0; row < static_cast<int>(kPopUpCount); ++row) {
        insertPopEntrySummary(row, context, summary);
    }
    addCheckBoxLines(context, summary);
    _VERBOSE("Summarybeforescroll\n");
    for (int row = 0; row < static_cast<int>(kSliderCount); ++row) {
        addSliderLine(row, context, summary);
    }
    return summary;
}

void mySummaryEntry(pde::Summary &dictionary, const StringRef &label, const StringRef &value, bool localiseValue)
{
    const StringRef shownLabel = MyCFCopyLocalizedString(label, "");
    const StringRef shownValue = localiseValue ? MyCFCopyLocalizedString(value, "") : value;
    dictionary.entries.insert(toQString(shownLabel), toQString(shownValue));
    _VERBOSE("Adding to summary: %s=%s\n", shownLabel, shownValue);
    myEnterArrayList(dictionary, toQString(shownLabel));
}

void insertPopEntrySummary(int row, PanelContext *context, pde::Summary &dictionary)
{
    const auto place = static_cast<std::size_t>(row);
    const int selection = std::max(context->settings.popupSelections[place], 1);
    if (const char *choice = pairText(choiceList(*context->ppdOptions, row), selection)) {
        mySummaryEntry(dictionary, text(pops[place].label), text(choice), false);
    }
}

void myEnterArrayList(pde::Summary &dictionary, const QString &label)
{
    if (dictionary.displayOrder) {
        dictionary.displayOrder->append(label);
    }
}

} // namespace tessarin
