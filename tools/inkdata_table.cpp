// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/inkdata_table.h"

#include "ink/channel_table.h"
#include "ink/counter_text.h"

#include <array>
#include <cstdio>

namespace tessarin::tools {

namespace {

std::string numberOr(const std::optional<std::int32_t> &number, const char *otherwise)
{
    return number ? std::to_string(*number) : otherwise;
}

} // namespace

std::vector<InkTableRow> readInkTable(std::string_view text)
{
    std::array<InkTableRow, kInkChannelCount> channels;
    std::array<char, kInkLineSize> line{};
    const char *cursor = text.data();
    std::size_t remaining = text.size();
    while (myGets(line.data(), kInkLineSize, nullptr, &cursor, &remaining) != nullptr) {
        if (const std::optional<InkRecord> record = parseInkRecord(line.data())) {
            InkTableRow &row = channels[record->channel];
            (record->total ? row.total : row.last) = record->value;
        }
    }
    std::vector<InkTableRow> rows;
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        if (channels[channel].last || channels[channel].total) {
            channels[channel].code = inklevels[channel].code;
            channels[channel].name = inklevels[channel].name;
            rows.push_back(channels[channel]);
        }
    }
    return rows;
}

std::string inkTableText(const std::vector<InkTableRow> &rows)
{
    std::array<char, 128> line{};
    const auto format = [&line](const std::string &code, const std::string &name, const std::string &last,
                                const std::string &total) {
        const int length = std::snprintf(line.data(), line.size(), "%-4s  %-12s  %11s  %11s\n", code.c_str(),
                                         name.c_str(), last.c_str(), total.c_str());
        return std::string(line.data(), static_cast<std::size_t>(length));
    };
    std::string text = format("Code", "Channel", "Last job", "Total");
    for (const InkTableRow &row : rows) {
        text += format(row.code, row.name, numberOr(row.last, "-"), numberOr(row.total, "-"));
    }
    return text;
}

std::string inkTableJson(const std::vector<InkTableRow> &rows)
{
    // Codes and names come from the channel table and need no escapes.
    std::string json = "[";
    const char *separator = "\n";
    for (const InkTableRow &row : rows) {
        json += separator;
        json += R"(  {"code": ")" + row.code + R"(", "name": ")" + row.name + R"(", "last": )" +
                numberOr(row.last, "null") + R"(, "total": )" + numberOr(row.total, "null") + "}";
        separator = ",\n";
    }
    return json + (rows.empty() ? "]\n" : "\n]\n");
}

} // namespace tessarin::tools
