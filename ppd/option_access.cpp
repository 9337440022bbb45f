// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ppd/option_access.h"

#include "controls/control_tables.h"
#include "cups/ppd_library.h"
#include "pde/print_dialog_extension.h"
#include "platform/bounded_copy.h"
#include "platform/numbers.h"
#include "plugin/log.h"
#include "plugin/string_helpers.h"

#include <QStringDecoder>

#include <array>
#include <cstring>
#include <optional>
#include <string_view>

namespace tessarin {

namespace {

constexpr std::size_t kDictionaryText = 127; // bytes, terminator included

/// A text object for the host; nothing for null and for bytes that are not UTF-8.
std::optional<QString> hostText(const char *text)
{
    if (text == nullptr) {
        return std::nullopt;
    }
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString result = decode(text);
    if (decode.hasError()) {
        return std::nullopt;
    }
    return result.isNull() ? QStringLiteral("") : result;
}

bool askHost(PanelContext *context, const char *keyword, const char *choiceKey)
{
    const std::optional<QString> key = hostText(keyword);
    const std::optional<QString> choice = hostText(choiceKey);
    return context->callbackObject != nullptr && key && choice &&
           context->callbackObject->willChangePPDOptionKeyValue(*key, *choice);
}

} // namespace

const char *withoutStar(const char *keyword)
{
    return keyword != nullptr && keyword[0] == '*' ? keyword + 1 : keyword;
}

int findppdkey(const char *keyword)
{
    const std::string_view wanted = keyword != nullptr ? keyword : "";
    for (std::size_t row = 0; row < pops.size(); ++row) {
        if (pops[row].keyword != nullptr && wanted == pops[row].keyword) {
            return static_cast<int>(row);
        }
    }
    return -1;
}

int findppditem(const PPDOptionTable &choiceLists, int row, const char *choiceKey)
{
    const ChoiceList list = choiceList(choiceLists, row);
    const int pairs = pairCount(list);
    int index = 0;
    while (index < pairs && std::strcmp(pairKey(list, index + 1), choiceKey) != 0) {
        ++index;
    }
    // An unknown choice of a known option counts as the place after the last one: its constraint is kept and takes
    // a place, but matches no entry.
    return pairs == 0 ? -1 : index;
}

unsigned myFindPPDSelection(ChoiceList list, const char *choiceKey)
{
    const int pairs = pairCount(list);
    for (int n = 1; choiceKey != nullptr && n <= pairs; ++n) {
        if (std::strcmp(pairKey(list, n), choiceKey) == 0) {
            return static_cast<unsigned>(n - 1);
        }
    }
    return 0;
}

int getPPDOptionSelectionValue(PanelContext *context, const char *keyword, std::int32_t *intOut, char *textOut,
                               std::size_t textSize)
{
    ppd_option_t *option = ppdFindOption(context->ppdFile, keyword);
    if (option == nullptr) {
        return -1;
    }
    const ppd_choice_t *choice = ppdFindMarkedChoice(context->ppdFile, keyword);
    if (choice == nullptr) {
        choice = ppdFindChoice(option, option->defchoice);
    }
    if (choice == nullptr) {
        return -1;
    }
    if (textOut != nullptr) {
        _VERBOSE("ppdFindChoice returned choice #%d\n", choice - option->choices);
        copyBounded({textOut, textSize}, choice->choice);
        if (textSize > 0) {
            textOut[textSize - 1] = '\0'; // behind a shorter name too
        }
        return 0;
    }
    const std::optional<std::int32_t> number = readInteger(choice->choice);
    *intOut = number.value_or(0);
    return number ? 0 : -1;
}

int GetPPDValue(const OptionDictionary *dictionary, const char *keyword, ChoiceList list, int defaultValue)
{
    if (dictionary == nullptr) {
        return defaultValue;
    }
    const QVariant value = dictionary->value(QString::fromUtf8(keyword));
    std::array<char, kDictionaryText> text{};
    if (value.typeId() != QMetaType::QString ||
        !myCFStringGetCString(makeString(value.toString()), text.data(), text.size(), kEncodingUTF8)) {
        return defaultValue;
    }
    _VERBOSE("Key found for %S: = %S\n", keyword, text.data());
    if (list.empty()) {
        return readInteger(text.data()).value_or(defaultValue);
    }
    const int pairs = pairCount(list);
    for (int n = 1; n <= pairs; ++n) {
        if (std::strcmp(pairKey(list, n), text.data()) == 0) {
            _VERBOSE("Key found for %S: %d = %S\n", keyword, n, pairKey(list, n));
            return n;
        }
    }
    return defaultValue;
}

bool MySetPPDOption(PanelContext *context, const char *keyword, const char *choiceKey)
{
    const bool accepted = askHost(context, keyword, choiceKey);
    _VERBOSE("SetOption '%S'='%S' result = %d\n", keyword, choiceKey, accepted);
    return accepted;
}

void setPPDValue(PanelContext *context, int /*reserved*/, const char *keyword, const char *choiceKey)
{
    _VERBOSE("Setting Object:%S to Selection:%S\n", keyword, choiceKey);
    askHost(context, keyword, choiceKey);
}

void mySetPPDDictValue(OptionDictionary *dictionary, const char *key, const char *value)
{
    if (dictionary != nullptr && key != nullptr && value != nullptr) {
        dictionary->insert(QString::fromUtf8(key), QString::fromUtf8(value));
    }
}

} // namespace tessarin
