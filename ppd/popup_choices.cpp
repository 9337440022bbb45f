// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/popup_choices.h"

#include "controls/control_tables.h"
#include "cups/ppd_library.h"
#include "platform/numbers.h"
#include "plugin/log.h"
#include "ppd/option_access.h"
#include "ppd/option_table.h"

#include <cstring>
#include <new>

namespace tessarin {

namespace {

// A list is cut to 79 choices when it has more than 81; 80 and 81 pass whole.
constexpr int kMostUncutChoices = 81;
constexpr int kCutChoices = 79;

constexpr int kFirstSeparatedColorspace = 1000;
constexpr std::string_view kCustomMediaPrefix = "Custom";
constexpr std::string_view kMediaMark = " *";

int usedChoiceCount(const ppd_option_t &option)
{
    return option.num_choices > kMostUncutChoices ? kCutChoices : option.num_choices;
}

/// Writes strings one after the other into a block; without a block it only counts.
class StringBlock {
public:
    explicit StringBlock(char *block) : next_(block) {}

    const char *append(std::string_view text, std::string_view suffix = {})
    {
        used_ += text.size() + suffix.size() + 1;
        if (next_ == nullptr) {
            return nullptr;
        }
        char *start = next_;
        std::memcpy(next_, text.data(), text.size());
        next_ += text.size();
        if (!suffix.empty()) {
            std::memcpy(next_, suffix.data(), suffix.size());
            next_ += suffix.size();
        }
        *next_++ = '\0';
        return start;
    }
    bool isCounting() const { return next_ == nullptr; }
    std::size_t used() const { return used_; }

private:
    char *next_;
    std::size_t used_ = 0;
};

void addChoices(PPDOptionTable &table, int row, const ppd_option_t &option, StringBlock &block)
{
    bool separated = false;
    const int count = usedChoiceCount(option);
    for (int i = 0; i < count; ++i) {
        const ppd_choice_t &choice = option.choices[i];
        // Once the separator is in, neither test is made again: later media keys get no mark.
        const bool marked = !separated && isMarkedMedia(row, choice.choice);
        const bool needsSeparator = !separated && startsSeparatedChoices(row, choice.choice);
        if (needsSeparator) {
            separated = true;
            const char *text = block.append(kSeparatorText);
            if (!block.isCounting()) {
                appendPair(table, row, text, text);
                _VERBOSE("--- SEPARATOR added ---\n");
            }
        }
        const char *key = block.append(choice.choice);
        const char *text = block.append(choice.text, marked ? kMediaMark : std::string_view());
        if (!block.isCounting()) {
            appendPair(table, row, key, text);
        }
    }
}

/// One pass over all rows; answers how many bytes the strings take.
std::size_t buildLists(PanelContext *context, char *memory)
{
    StringBlock block(memory);
    for (int row = 0; pops[static_cast<std::size_t>(row)].keyword != nullptr; ++row) {
        const char *keyword = keywordWithoutStar(pops[static_cast<std::size_t>(row)]);
        _VERBOSE("getComboPPDFeature for %S\n", keyword);
        if (const ppd_option_t *option = ppdFindOption(context->ppdFile, keyword)) {
            addChoices(*context->ppdOptions, row, *option, block);
        }
    }
    return block.used();
}

} // namespace

bool startsSeparatedChoices(int row, const char *key)
{
    if (row == kPopMediaType) {
        return std::string_view(key).starts_with(kCustomMediaPrefix);
    }
    if (row == kPopColorspace || row == kPopCMYKspace) {
        return readInteger(key).value_or(0) >= kFirstSeparatedColorspace;
    }
    return false;
}

bool isMarkedMedia(int row, std::string_view key)
{
    return row == kPopMediaType && !key.empty() && key.back() == '0';
}

int getPPDComboOptions(PanelContext *context)
{
    _VERBOSE("getPPDComboOptions\n");
    const std::size_t size = buildLists(context, nullptr);
    context->ppdScanBuffer.reset(new (std::nothrow) char[size]);
    if (context->ppdScanBuffer) {
        buildLists(context, context->ppdScanBuffer.get());
    }
    return 0;
}

int getPPDComboSelections(PanelContext *context)
{
    for (int row = 0; pops[static_cast<std::size_t>(row)].keyword != nullptr; ++row) {
        const char *keyword = keywordWithoutStar(pops[static_cast<std::size_t>(row)]);
        _VERBOSE("getComboPPDSelection for %S\n", keyword);
        const ppd_choice_t *choice = ppdFindMarkedChoice(context->ppdFile, keyword);
        if (choice == nullptr) {
            _VERBOSE("!!! no choice marked - using default value\n");
            ppd_option_t *option = ppdFindOption(context->ppdFile, keyword);
            choice = option != nullptr ? ppdFindChoice(option, option->defchoice) : nullptr;
        }
        int selection = 0;
        if (choice != nullptr) {
            const ChoiceList list = choiceList(*context->ppdOptions, row);
            selection = static_cast<int>(myFindPPDSelection(list, choice->choice)) + 1;
        }
        context->settings.popupSelections[static_cast<std::size_t>(row)] = selection;
        _VERBOSE("current selection is #%d\n", selection);
    }
    return 0;
}

} // namespace tessarin
