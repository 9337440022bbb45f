// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ink/counter_text.h"

#include "ink/channel_table.h"
#include "platform/numbers.h"

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

} // namespace

char *myGets(char *buffer, int size, std::FILE *stream, const char **cursor, std::size_t *remaining)
{
    return stream != nullptr ? getLineFromStream(buffer, size, stream)
                             : getLineFromMemory(buffer, size, cursor, remaining);
}

std::optional<InkRecord> parseInkRecord(std::string_view line)
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

} // namespace tessarin
