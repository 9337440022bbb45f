// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Scanning as on a host without a parsed PPD, where the scanner reads the options' blocks itself.

#ifndef TESSARIN_TESTS_PPD_OLD_HOST_SCAN_H
#define TESSARIN_TESTS_PPD_OLD_HOST_SCAN_H

#include "ppd/keyword_scanner.h"
#include "tests/ppd/ppd_test_support.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tessarin::test {

class OldHostScan : public testing::Test {
protected:
    OldHostScan()
    {
        context->onTiger = 1;
        // None of the values that a scan would write.
        for (PopRow &row : pops) {
            row.defaultIndex = 77;
        }
        for (ScrollRow &row : Scrolls) {
            row.ppdDefault = 77;
        }
        for (CheckBoxRow &row : checkboxes) {
            row.value = 77;
        }
    }

    void scan(std::string_view text)
    {
        const TextFile file(text);
        ParsePPDFile(file.path().c_str(), context);
    }

    /// The lines of an option's block with its first and last line.
    static std::string block(const std::string &keyword, const std::string &lines)
    {
        return "*OpenUI *" + keyword + "/Some Text: PickOne\n" + lines + "*CloseUI: *" + keyword + "\n";
    }

    /// The pairs of a row after a scan of its one block.
    Pairs scanBlock(int row, const std::string &keyword, const std::string &lines)
    {
        scan(block(keyword, lines));
        return pairsOf(context.table(), row);
    }

    /// The same for the media type; each line is one choice line without its keyword.
    Pairs scanMedia(const std::vector<std::string> &choices)
    {
        std::string lines;
        for (const std::string &choice : choices) {
            lines += "*vornMediaType " + choice + "\n";
        }
        return scanBlock(1, "vornMediaType", lines);
    }

    TestContext context;
};

} // namespace tessarin::test

#endif
