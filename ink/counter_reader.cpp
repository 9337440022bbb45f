// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ink/counter_reader.h"

#include "ink/channel_table.h"
#include "ink/counter_text.h"
#include "ink/extra_data.h"
#include "platform/files.h"
#include "plugin/log.h"
#include "ppd/ppd_file.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tessarin {

namespace {

void storeRecord(PanelSettings &settings, const InkRecord &record)
{
    settings.inkSeen[record.channel] = 1;
    (record.total ? settings.inkTotal : settings.inkLast)[record.channel] = record.value;
    _VERBOSE("%S Value for '%S' = %d\n", record.total ? "Total" : "Last", inklevels[record.channel].code,
             record.value);
}

/// Hides plain black beside a special black, and gives the shown channels their places.
void numberChannels(PanelSettings &settings)
{
    const auto isSeen = [&settings](std::size_t channel) { return settings.inkSeen[channel] != 0; };
    if (std::any_of(kSpecialBlacks.begin(), kSpecialBlacks.end(), isSeen)) {
        settings.inkSeen[kPlainBlack] = 0;
    }
    std::int32_t count = 0;
    for (std::size_t channel = 0; channel < kInkChannelCount; ++channel) {
        if (isSeen(channel)) {
            settings.inkSeen[channel] = ++count;
        }
    }
    settings.inkChannelCount = count;
    _VERBOSE("HAVE %d inkchannels\n", count);
}

} // namespace

void ParseInkData(const char *path, PanelContext *context)
{
    PanelSettings &settings = context->settings;
    std::size_t remaining = 0;
    ExtraData extra;
    if (const PPDHandle ppd = openPPD(context->ppdPath.data())) {
        extra.reset(ppdxReadData(ppd.get(), kInkExtraDataName, &remaining));
    }
    std::fill_n(settings.inkLast.begin(), kInkChannelCount, 0);
    std::fill_n(settings.inkTotal.begin(), kInkChannelCount, 0);
    std::fill_n(settings.inkSeen.begin(), kInkChannelCount, 0);

    const FileHandle file = openForReading(path);
    if (file) {
        _VERBOSE("Using direct inkfile-data\n");
    } else if (extra) {
        _VERBOSE("Using PPD-EXDATA from ppdfilepath:%S\n", context->ppdPath.data());
    } else {
        _VERBOSE("Inkdata-File not found:%S\n", path);
        return;
    }
    Printlog("Start ink-data-Scan\n");
    std::array<char, kInkLineSize> line{};
    const char *cursor = extra.get();
    while (myGets(line.data(), kInkLineSize, file.get(), &cursor, &remaining) != nullptr) {
        _VERBOSE("Got Line:%S\n", line.data());
        if (const std::optional<InkRecord> record = parseInkRecord(line.data())) {
            storeRecord(settings, *record);
        }
    }
    numberChannels(settings);
}

} // namespace tessarin
