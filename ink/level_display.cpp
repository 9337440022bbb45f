// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ink/level_display.h"

#include "controls/control_layer.h"
#include "controls/control_tables.h"
#include "controls/sliders.h"
#include "ink/channel_table.h"
#include "ink/counter_reader.h"
#include "ink/level_box.h"
#include "platform/accessible_views.h"
#include "platform/numbers.h"
#include "platform/view_tags.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"

#include <algorithm>
#include <vector>

namespace tessarin {

namespace {

constexpr std::size_t kMostBars = 16;
constexpr std::size_t kLastRow = kInkRowCount - 1;
constexpr std::size_t kSumRow = kInkRowCount;
constexpr int kLargestGap = 8;

/// One box of rows.
struct InkBox {
    const ControlSlots &names;
    const ControlSlots &bars;
    const ControlSlots &values;
};

/// What both boxes are scaled by.
struct InkSums {
    std::int64_t last = 0;
    std::int64_t total = 0;
    std::int64_t largestLast = 1; ///< at least 1, so that it can divide
    int shown = 0;                ///< channels shown, also those beyond the last row
};

InkSums sumCounters(const PanelSettings &settings)
{
    InkSums sums;
    for (std::size_t channel = 0; channel < kInkChannelCount; ++channel) {
        sums.last += settings.inkLast[channel];
        sums.total += settings.inkTotal[channel];
        sums.largestLast = std::max<std::int64_t>(sums.largestLast, settings.inkLast[channel]);
        sums.shown += settings.inkSeen[channel] != 0 ? 1 : 0;
    }
    return sums;
}

void measureRows(PanelContext *context, const InkBox &box)
{
    ControlRect first;
    GetControlBounds(box.names[0], &first);
    context->inkFirstLine = first.top;
    // A rectangle's bottom lies above its top; of a zero rectangle it does not.
    const int height = first.bottom + 1 - first.top;
    context->inkRowHeight = height > 0 ? height : first.top + 1 - first.bottom;
    ControlRect last;
    GetControlBounds(box.names[kLastRow], &last);
    context->inkLastLine = last.top;
}

struct RowLayout {
    int start;   ///< top of the first row
    int spacing; ///< from one row to the next
};

RowLayout layOutRows(const PanelContext &context, int rows)
{
    const int first = context.inkFirstLine;
    const int last = context.inkLastLine;
    const int height = context.inkRowHeight;
    const int gap =
        rows > 1 ? std::clamp((last + 1 - first - height * (rows - 1)) / rows, -kLargestGap, kLargestGap) : 0;
    const int block = height * rows + gap * (rows - 1);
    const RowLayout layout{.start = (height - first + last - block) / 2 + first, .spacing = gap + height};
    _VERBOSE("firstline=%d\n", first);
    _VERBOSE("lastline=%d\n", last);
    _VERBOSE("allheight=%d\n", block);
    _VERBOSE("height=%d\n", height);
    _VERBOSE("startline=%d\n", layout.start);
    _VERBOSE("spacing=%d\n", layout.spacing);
    return layout;
}

void showBar(QWidget *bar, const InkChannel &channel, int line, std::int32_t level)
{
    if (bar == nullptr) {
        return;
    }
    _VERBOSE("Set bar to %d\n", level);
    CorrectControlPosition(bar, line + 1);
    SetBarControlValue(bar, level);
    SetBarColVal(bar, channel.red, channel.green, channel.blue);
    SetControlVisibility(bar, level >= 0);
}

void showName(QWidget *label, const InkChannel &channel, int line, std::int32_t level)
{
    if (label == nullptr) {
        _VERBOSE("Namecontrol not found!\n");
        return;
    }
    CorrectControlPosition(label, line);
    _VERBOSE("Set barcounter to %d\n", level);
    if (const StringRef name = myCFStringCreateWithCString(nullptr, channel.name, kEncodingUTF8)) {
        const StringRef shown = MyCFCopyLocalizedString(name, "");
        SetTextControl(label, shown);
        Draw1Control(label);
        _VERBOSE("Textstring = %s\n", shown);
        myCFRelease(name);
    } else {
        _VERBOSE("Error Create namestring!\n");
    }
    SetControlVisibility(label, level >= 0);
}

void fillBox(PanelContext *context, const InkBox &box, const InkSums &sums, bool total)
{
    const PanelSettings &settings = context->settings;
    if (context->inkFirstLine < 0) {
        measureRows(context, box);
    }
    const RowLayout layout = layOutRows(*context, sums.shown);
    std::size_t cursor = 0;
    for (std::size_t row = 0; row < kInkRowCount; ++row) {
        while (cursor < kInkChannelCount && settings.inkSeen[static_cast<std::size_t>(colorOrder[cursor])] == 0) {
            ++cursor;
        }
        const int channel = colorOrder[cursor];
        const auto place = static_cast<std::size_t>(channel);
        printlogFormatted("Zeile #%d mit Kanal #%d\n", row, channel);
        std::int64_t value =
            total ? (std::int64_t{settings.inkTotal[place]} + 5) / 10 : std::int64_t{settings.inkLast[place]};
        if (channel == kEndChannel) {
            _VERBOSE("emptys channel-!_!_!_!!_!_!_!\n");
            value = std::int64_t{channel} * -100;
        }
        if (box.values[row].isNull()) {
            _VERBOSE("Control missing!\n");
            continue; // the channel goes to the next row that has a value
        }
        const int line = static_cast<int>(row) * layout.spacing + layout.start;
        CorrectControlPosition(box.values[row], line);
        setValueText(box.values[row], clampToInt32((value + 50) / 100));
        const std::int32_t level = clampToInt32(total ? (value + 500) / 1000 : value * 100 / sums.largestLast);
        SetControlVisibility(box.values[row], level >= 0);
        showBar(box.bars[row], inklevels[place], line, level);
        showName(box.names[row], inklevels[place], line, level);
        if (level >= 0) {
            announceText(box.bars[row]);
        }
        cursor += cursor < kInkChannelCount ? 1 : 0;
    }
}

} // namespace

void enumLevelBoxes(QWidget *box, int firstTag)
{
    const QList<QWidget *> subviews =
        box != nullptr ? box->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly) : QList<QWidget *>();
    _VERBOSE("$$$$$ Subviews:%d\n", subviews.size());
    std::vector<QWidget *> bars;
    for (QWidget *view : subviews) {
        if (tagOf(view) == kNewLevelBoxTag && bars.size() < kMostBars) {
            bars.push_back(view);
        }
    }
    if (bars.size() < 2) {
        return;
    }
    std::stable_sort(bars.begin(), bars.end(), [](const QWidget *a, const QWidget *b) { return a->y() < b->y(); });
    for (std::size_t k = 0; k < bars.size(); ++k) {
        setTagOf(bars[k], firstTag + static_cast<int>(k));
    }
}

void SetInkValues(PanelContext *context)
{
    Printlog("Setting inkChannels\n");
    const ControlsStruct &controls = context->controls;
    const InkSums sums = sumCounters(context->settings);
    fillBox(context, {controls.lastInkNames, controls.lastInkBars, controls.lastInkValues}, sums, false);
    fillBox(context, {controls.totalInkNames, controls.totalInkBars, controls.totalInkValues}, sums, true);
    setValueText(controls.totalInkValues[kSumRow], clampToInt32((sums.total + 500) / 1000));
    setValueText(controls.lastInkValues[kSumRow], clampToInt32((sums.last + 50) / 100));
}

void ReloadInkCounters(PanelContext *context)
{
    ParseInkData(context->settings.inkFilePath.data(), context);
    SetInkValues(context);
}

} // namespace tessarin
