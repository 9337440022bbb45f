// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/ppd/ppd_test_support.h"

#include "plugin/context_lifecycle.h"

#include <QFile>

#include <algorithm>
#include <cstdio>

namespace tessarin::test {

TestContext::TestContext() : context_(MyCreateCustomContext()) {}

TestContext::TestContext(RecordingHost &host) : TestContext()
{
    context_->ppdFile = host.ppdFile();
    context_->callbackObject = &host;
}

TestContext::~TestContext()
{
    MyReleaseCustomContext(context_);
}

TextFile::TextFile(std::string_view text) : path_(folder_.filePath(QStringLiteral("test.ppd")).toStdString())
{
    QFile file(QString::fromStdString(path_));
    const auto size = static_cast<qint64>(text.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), size) != size) {
        qFatal("cannot write %s", path_.c_str());
    }
}

std::string ppdText(const std::vector<OptionText> &options, std::string_view moreLines)
{
    std::string text = "*PPD-Adobe: \"4.3\"\n"
                       "*FormatVersion: \"4.3\"\n"
                       "*LanguageVersion: English\n"
                       "*LanguageEncoding: ISOLatin1\n"
                       "*ModelName: \"Test\"\n";
    for (const OptionText &option : options) {
        text += "*OpenUI *" + option.keyword + "/" + option.keyword + ": PickOne\n";
        if (!option.defaultChoice.empty()) {
            text += "*Default" + option.keyword + ": " + option.defaultChoice + "\n";
        }
        for (const std::string &choice : option.choices) {
            text += "*" + option.keyword + " " + choice + ": \"\"\n";
        }
        text += "*CloseUI: *" + option.keyword + "\n";
    }
    return text.append(moreLines);
}

std::vector<std::string> numberedChoices(int count, const std::string &prefix)
{
    std::vector<std::string> choices;
    for (int n = 1; n <= count; ++n) {
        std::array<char, 40> text{};
        std::snprintf(text.data(), text.size(), "%03dx/Text %d", n, n);
        choices.push_back(prefix + text.data());
    }
    return choices;
}

Lines logged(const Lines &messages)
{
    Lines lines;
    std::transform(messages.begin(), messages.end(), std::back_inserter(lines),
                   [](const std::string &message) { return "LOG " + message; });
    return lines;
}

Lines logged(std::initializer_list<std::string> messages)
{
    return logged(Lines(messages));
}

Pairs pairsOf(const PPDOptionTable &table, int row)
{
    const ChoiceRow &places = table.choiceLists.at(static_cast<std::size_t>(row));
    Pairs pairs;
    for (std::size_t slot = 1; places.at(slot) != nullptr; slot += 2) {
        pairs.emplace_back(places.at(slot), places.at(slot + 1));
    }
    return pairs;
}

Groups groupsOf(const PPDOptionTable &table)
{
    Groups groups;
    for (std::size_t slot = 0; table.constraints.at(slot) >= 0; slot += 4) {
        groups.push_back({table.constraints.at(slot), table.constraints.at(slot + 1),
                          table.constraints.at(slot + 2), table.constraints.at(slot + 3)});
    }
    return groups;
}

void fillRow(PPDOptionTable &table, int row, std::initializer_list<std::pair<const char *, const char *>> pairs)
{
    ChoiceRow &places = table.choiceLists.at(static_cast<std::size_t>(row));
    places.fill(nullptr);
    std::size_t slot = 1;
    for (const auto &[key, text] : pairs) {
        places.at(slot++) = key;
        places.at(slot++) = text;
    }
}

void setGroups(PPDOptionTable &table, const Groups &groups)
{
    std::size_t slot = 0;
    for (const Group &group : groups) {
        for (const int value : group) {
            table.constraints.at(slot++) = value;
        }
    }
    table.constraints.at(slot) = -1;
}

} // namespace tessarin::test
