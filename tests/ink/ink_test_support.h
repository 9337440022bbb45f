// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the ink tests share: blocks written as attributes and read back, broken ones included, and texts of
// counters.

#ifndef TESSARIN_TESTS_INK_INK_TEST_SUPPORT_H
#define TESSARIN_TESTS_INK_INK_TEST_SUPPORT_H

#include "pde/print_dialog_extension.h"
#include "plugin/string_helpers.h"
#include "tests/ppd/ppd_test_support.h"

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::test {

/// What `action` writes to standard error.
std::string standardErrorOf(const std::function<void()> &action);

/// How much processor time `action` takes, in seconds.
double processorSeconds(const std::function<void()> &action);

/// One attribute of a stored block; `value` without quotes.
struct Entry {
    std::string name;
    std::string value;

    bool operator==(const Entry &) const = default;
};
using Entries = std::vector<Entry>;

/// What ppdxWriteData() writes for a block.
std::string writtenBlock(std::string_view block, const char *name = "EXData");
/// The lines of a written block, without their line ends.
Lines linesOf(const std::string &output);
/// The attributes that a print system stores for a written block.
Entries storedEntries(const std::string &output);

/// A zlib stream of the bytes, of the compression level that blocks have.
std::string zlibStream(std::string_view bytes);
/// A stream cut into base64 attributes of `chunkSize` bytes, with the terminator. Full chunks are without their
/// "=".
Entries chunkedEntries(std::string_view stream, std::size_t chunkSize = 158);

/// The text of the minimal PPD with attributes behind it.
std::string ppdTextWith(const Entries &entries);
/// The minimal PPD with the attributes of a block.
std::string ppdTextWithBlock(std::string_view block);

/// What ppdxReadData() gives for a PPD with the attributes: nothing when it gives no buffer. Fails the test when no
/// NUL follows the bytes.
std::optional<std::string> readEntries(const Entries &entries, const char *name = "EXData");
/// A block written and read back.
std::optional<std::string> roundTrip(std::string_view block);

/// Bytes that do not compress, always the same ones.
std::string randomBytes(std::size_t count);
/// A beginning of randomBytes() whose zlib stream has exactly `size` bytes.
std::string bytesWithStreamOf(std::size_t size);

/// A bundle that translates by a table, and every other text into itself between angle brackets. It is the bundle
/// of all localised texts for the length of its scope.
class BracketBundle : public pde::Bundle {
public:
    explicit BracketBundle(std::map<QString, QString> texts = {});
    ~BracketBundle() override;

    QString identifier() const override { return QStringLiteral("org.tessarin.test"); }
    QString localizedString(const QString &key) const override;

private:
    std::map<QString, QString> texts_;
    pde::Bundle *previous_;
};

} // namespace tessarin::test

#endif
