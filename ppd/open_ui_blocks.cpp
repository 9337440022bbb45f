// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/open_ui_blocks.h"

#include "controls/control_tables.h"
#include "platform/numbers.h"
#include "ppd/keyword_scanner.h"
#include "ppd/option_table.h"
#include "ppd/popup_choices.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <utility>

namespace tessarin {

namespace {

constexpr std::size_t kStringBlockSize = 10000; // bytes for all keys and display texts
constexpr int kStringBlockFill = 0x40;
constexpr std::size_t kLongestDefaultKeyword = 120; // characters
constexpr std::size_t kStringLimit = 128;           // bytes of a key or display text, terminator included
constexpr std::size_t kLastKeywordColumn = 4; // a choice line's keyword begins within the first five characters

using Line = std::array<char, kScanLineSize>;

bool readLine(std::FILE *file, Line &line)
{
    return std::fgets(line.data(), static_cast<int>(line.size()), file) != nullptr;
}

bool contains(std::string_view line, std::string_view text)
{
    return line.find(text) != std::string_view::npos;
}

std::string defaultKeyword(const char *keywordWithoutItsStar)
{
    return (std::string("*Default") + keywordWithoutItsStar).substr(0, kLongestDefaultKeyword);
}

/// What follows the default keyword and its colon, counted from the start of the line wherever the keyword stands.
std::string_view textAfterDefault(std::string_view line, const std::string &keyword)
{
    return line.substr(std::min(keyword.size() + 1, line.size()));
}

std::string firstWord(std::string_view text)
{
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const std::size_t start = std::min(text.find_first_not_of(blanks), text.size());
    const std::size_t end = std::min(text.find_first_of(blanks, start), text.size());
    return std::string(text.substr(start, end - start));
}

/// Converts ISO Latin-1 to UTF-8, cut at a character so that it fits with its terminator into kStringLimit bytes.
std::string utf8FromLatin1(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (result.size() + (code < 0x80 ? 1 : 2) >= kStringLimit) {
            break;
        }
        if (code < 0x80) {
            result += c;
        } else {
            result += static_cast<char>(0xC0 | (code >> 6));
            result += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return result;
}

struct ChoiceLine {
    std::string_view key;
    std::string_view text;
};

/// The key and display text of a choice line of the option; nothing for another line.
std::optional<ChoiceLine> parseChoiceLine(std::string_view line, std::string_view keyword)
{
    const std::size_t at = line.find(keyword);
    if (at > kLastKeywordColumn) {
        return std::nullopt;
    }
    std::string_view choice = line.substr(at + keyword.size());
    choice.remove_prefix(std::min(choice.find_first_not_of(' '), choice.size()));
    const std::size_t colon = choice.find(':');
    if (colon == std::string_view::npos) {
        return std::nullopt;
    }
    choice = choice.substr(0, colon);
    const std::size_t slash = choice.find('/');
    if (slash == std::string_view::npos) {
        return ChoiceLine{choice, choice};
    }
    return ChoiceLine{choice.substr(0, slash), choice.substr(slash + 1)};
}

} // namespace

OpenUIBlockReader::OpenUIBlockReader(PanelContext &context) : context_(context)
{
    context.ppdScanBuffer.reset(new (std::nothrow) char[kStringBlockSize]);
    if (context.ppdScanBuffer) {
        next_ = context.ppdScanBuffer.get();
        remaining_ = kStringBlockSize;
        std::memset(next_, kStringBlockFill, remaining_);
    }
}

bool OpenUIBlockReader::takeBlock(const char *line, std::FILE *file)
{
    if (!contains(line, "*OpenUI")) {
        return false;
    }
    // Pop-ups first: a slider's keyword may be the beginning of a pop-up's.
    for (int row = 0; pops[static_cast<std::size_t>(row)].keyword != nullptr; ++row) {
        if (contains(line, pops[static_cast<std::size_t>(row)].keyword)) {
            readPopUpBlock(file, row);
            return true;
        }
    }
    for (std::size_t row = 0; row < kSliderCount; ++row) {
        if (contains(line, Scrolls[row].keyword)) {
            readIntegerBlock(file, Scrolls[row].keyword, Scrolls[row].ppdDefault);
            return true;
        }
    }
    for (std::size_t row = 0; row < kCheckBoxCount; ++row) {
        if (contains(line, checkboxes[row].keyword)) {
            readIntegerBlock(file, checkboxes[row].keyword, checkboxes[row].value);
            return true;
        }
    }
    return true;
}

void OpenUIBlockReader::readIntegerBlock(std::FILE *file, const char *keyword, std::int32_t &target)
{
    const std::string wanted = defaultKeyword(keyword);
    Line line{};
    while (readLine(file, line) && !contains(line.data(), "*CloseUI")) {
        if (contains(line.data(), wanted)) {
            target = readInteger(textAfterDefault(line.data(), wanted)).value_or(target);
        }
    }
}

void OpenUIBlockReader::readPopUpBlock(std::FILE *file, int row)
{
    PopRow &pop = pops[static_cast<std::size_t>(row)];
    const std::string wanted = defaultKeyword(keywordWithoutStar(pop));
    pop.defaultIndex = 1;
    std::string defaultKey;
    bool separated = false;
    bool full = false;
    Line line{};
    while (readLine(file, line) && !contains(line.data(), "*CloseUI")) {
        if (contains(line.data(), wanted)) {
            // A line without a word keeps the key of an earlier one, as a number that is none keeps its option's.
            if (std::string word = firstWord(textAfterDefault(line.data(), wanted)); !word.empty()) {
                defaultKey = std::move(word);
            }
        }
        const std::optional<ChoiceLine> choice = parseChoiceLine(line.data(), pop.keyword);
        if (!choice || full) {
            continue;
        }
        const std::string key = utf8FromLatin1(choice->key);
        if (!separated && startsSeparatedChoices(row, key.c_str())) {
            separated = true;
            full = !addPair(row, kSeparatorText, kSeparatorText);
        }
        const std::string mark = isMarkedMedia(row, key) ? " *" : "";
        full = full || !addPair(row, key, utf8FromLatin1(choice->text) + mark);
        if (!full && choice->key == defaultKey) {
            pop.defaultIndex = pairCount(choiceList(*context_.ppdOptions, row));
        }
    }
}

/// Adds a pair whole or not at all; false when the row or the block is full.
bool OpenUIBlockReader::addPair(int row, std::string_view key, std::string_view text)
{
    const int pairs = pairCount(choiceList(*context_.ppdOptions, row));
    if (key.size() + text.size() + 2 > remaining_ || static_cast<std::size_t>(pairs) >= kMostPairs) {
        return false;
    }
    const char *storedKey = store(key);
    return appendPair(*context_.ppdOptions, row, storedKey, store(text));
}

const char *OpenUIBlockReader::store(std::string_view text)
{
    char *start = next_;
    std::copy(text.begin(), text.end(), start);
    start[text.size()] = '\0';
    next_ += text.size() + 1;
    remaining_ -= text.size() + 1;
    return start;
}

} // namespace tessarin
