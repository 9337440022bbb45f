// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ink/counter_reader.h"

#include "ink/channel_table.h"
#include "ink/extra_data.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "plugin/log.h"
#include "ppd/ppd_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace tessarin {

namespace {

constexpr std::string_view kTotalKeyword = "TotalInk_";
constexpr std::string_view kLastKeyword = "LastInk_";

bool isLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

char *getLineFromStream(char *buffer, int size, std::FILE *stream)
{
    int length = 0;
    while (length < size - 1) {
        const int c = std::getc(stream);
        if (c == EOF) {
            break;
        }
        buffer[length++] = static_cast<char>(c);
        if (c == '\n') {
            break;
        }
        if (c == '\r' && length < size - 1) {
            const int next = std::getc(stream);
            if (next == '\n') {
                buffer[length++] = '\n';
            } else if (next != EOF) {
                std::ungetc(next, stream);
            }
            break;
        }
    }
    buffer[length] = '\0';
    return length > 0 ? buffer : nullptr;
}

char *getLineFromMemory(char *buffer, int size, const char **cursor, std::size_t *remaining)
{
    if (*remaining == 0) {
        return nullptr;
    }
    const auto take = [cursor, remaining] {
        --*remaining;
        return *(*cursor)++;
    };
    int length = 0;
    while (length < size - 1 && *remaining > 0 && **cursor != '\0' && !isLineEnd(**cursor)) {
        buffer[length++] = take();
    }
    buffer[length] = '\0';
    if (*remaining > 0 && **cursor == '\0') {
        take(); // a NUL ends a line as well; leaving it there would give empty lines for ever
    }
    while (*remaining > 0 && isLineEnd(**cursor)) {
        take();
    }
    return buffer;
}

struct InkRecord {
    bool total;
    std::size_t channel;
    std::int32_t value;
};

std::optional<InkRecord> parseRecord(std::string_view line)
{
    std::string_view keyword = kTotalKeyword;
    std::size_t at = line.find(keyword);
    if (at == std::string_view::npos) {
        keyword = kLastKeyword;
        at = line.find(keyword);
    }
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view record = line.substr(at + keyword.size());
    std::string_view code = record.substr(0, 2);
    if (code.size() == 2 && (code[1] == ' ' || code[1] == '=')) {
        code.remove_suffix(1);
    }
    const int channel = findInkChannel(code);
    const std::size_t equals = record.find('=');
    if (channel < 0 || equals == std::string_view::npos) {
        return std::nullopt;
    }
    const std::optional<std::int32_t> value = readInteger(record.substr(equals + 1));
    if (!value) {
        return std::nullopt;
    }
    return InkRecord{keyword == kTotalKeyword, static_cast<std::size_t>(channel), *value};
}

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

char *myGets(char *buffer, int size, std::FILE *stream, const char **cursor, std::size_t *remaining)
{
    return stream != nullptr ? getLineFromStream(buffer, size, stream)
                             : getLineFromMemory(buffer, size, cursor, remaining);
}

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
        if (const std::optional<InkRecord> record = parseRecord(line.data())) {
            storeRecord(settings, *record);
        }
    }
    numberChannels(settings);
}

} // namespace tessarin
