// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/soak/record_size.h"

#include "ppd/option_table.h"
#include "tests/soak/counted_heap.h"

#include <bit>
#include <cstring>
#include <set>

namespace tessarin::test {

namespace {

using Blocks = std::set<const void *>;

/// The block that all handles of one control share, where the toolkit notes whether the control is still there; it
/// is what a handle begins with.
const void *noteOf(const ControlHandle &handle)
{
    const void *note = nullptr;
    std::memcpy(&note, &handle, sizeof note);
    return note;
}

void collect(const ControlHandle &handle, Blocks &blocks)
{
    if (const void *note = noteOf(handle)) {
        blocks.insert(note);
    }
}

template <std::size_t count>
void collect(const std::array<ControlHandle, count> &handles, Blocks &blocks)
{
    for (const ControlHandle &handle : handles) {
        collect(handle, blocks);
    }
}

Blocks notesOf(const PanelContext &context)
{
    const ControlsStruct &c = context.controls;
    Blocks notes;
    const auto all = [&notes](const auto &...handles) { (collect(handles, notes), ...); };
    all(c.noPrintCheckBox, c.psInterpreterCheckBox, c.colorGammaCheckBox, c.spareControl1, c.spareControl2,
        c.spareControl3, c.sliderControls, c.sliderAuxControls, c.tabView, c.extraControls, c.popupControls,
        c.lastInkBars, c.totalInkBars, c.lastInkValues, c.totalInkValues, c.lastInkNames, c.totalInkNames,
        c.spareControl4, c.photoControl, c.brightCyanIcon, c.cyanPane, c.magentaPane, c.brightUsageLabel,
        c.summaryControl);
    all(context.embedObject, context.tabObjects, context.availabilityObject);
    return notes;
}

} // namespace

std::size_t recordBytes(const PanelContext &context)
{
    std::size_t bytes = heapShare(&context) + heapShare(context.ppdOptions.get());
    for (const void *note : notesOf(context)) {
        bytes += heapShare(note);
    }
    return bytes;
}

std::size_t registryBytes(std::size_t records)
{
    return records == 0 ? 0 : std::bit_ceil(records) * sizeof(PanelContext *); // it doubles when full
}

} // namespace tessarin::test
