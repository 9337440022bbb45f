// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the tests of the PPD model share: records of their own, PPD texts, and readings of the option table that go
// straight to its slots.

#ifndef TESSARIN_TESTS_PPD_PPD_TEST_SUPPORT_H
#define TESSARIN_TESTS_PPD_PPD_TEST_SUPPORT_H

#include "controls/control_tables.h"
#include "plugin/panel_context.h"
#include "ppd/option_table.h"
#include "ppd/ppd_file.h"
#include "tests/support/recording_host.h"

#include <QTemporaryDir>

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessarin::test {

using Lines = std::vector<std::string>;
using Pairs = std::vector<std::pair<std::string, std::string>>;
using Group = std::array<int, 4>;
using Groups = std::vector<Group>;

/// The separator's pair as a list holds it.
inline const std::pair<std::string, std::string> kSeparatorPair{"---separator---", "---separator---"};

/// The tables that all panels share, as they were, for the length of a scope.
class SharedTables {
public:
    SharedTables() = default;
    ~SharedTables()
    {
        Scrolls = scrolls_;
        pops = pops_;
        checkboxes = checkboxes_;
    }
    SharedTables(const SharedTables &) = delete;
    SharedTables &operator=(const SharedTables &) = delete;

private:
    decltype(Scrolls) scrolls_ = Scrolls;
    decltype(pops) pops_ = pops;
    decltype(checkboxes) checkboxes_ = checkboxes;
};

/// A context record for the length of a scope, which leaves the shared tables as they were.
class TestContext {
public:
    /// Without a host: neither a parsed PPD nor a callback.
    TestContext();
    /// With the host's parsed PPD and the host as callback.
    explicit TestContext(RecordingHost &host);
    ~TestContext();
    TestContext(const TestContext &) = delete;
    TestContext &operator=(const TestContext &) = delete;

    operator PanelContext *() const { return context_; }
    PanelContext *operator->() const { return context_; }
    PPDOptionTable &table() const { return *context_->ppdOptions; }

private:
    SharedTables tables_;
    PanelContext *context_;
};

/// A file with a text in a folder of its own.
class TextFile {
public:
    explicit TextFile(std::string_view text);
    const std::string &path() const { return path_; }

private:
    QTemporaryDir folder_;
    std::string path_;
};

/// An option of a PPD text. A choice is "Key/Text" or "Key"; an empty default gives no default line.
struct OptionText {
    std::string keyword;
    std::string defaultChoice;
    std::vector<std::string> choices;
};

/// A PPD text that the print library takes: the options, then further lines.
std::string ppdText(const std::vector<OptionText> &options, std::string_view moreLines = {});

/// `count` choices "<prefix>001/Text 1", "<prefix>002/Text 2" and so on; the keys end in "x", so that none is
/// marked.
std::vector<std::string> numberedChoices(int count, const std::string &prefix);

/// The messages as log lines, in order.
Lines logged(std::initializer_list<std::string> messages);
Lines logged(const Lines &messages);

/// The pairs of a row, read from its slots up to the null key.
Pairs pairsOf(const PPDOptionTable &table, int row);
/// The groups up to the end mark.
Groups groupsOf(const PPDOptionTable &table);

/// Writes pairs into the slots of a row. The texts must outlive the table.
void fillRow(PPDOptionTable &table, int row, std::initializer_list<std::pair<const char *, const char *>> pairs);
/// Writes groups and the end mark.
void setGroups(PPDOptionTable &table, const Groups &groups);

} // namespace tessarin::test

#endif
