// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The log of setting the ink rows, line by line.

#include "ink/level_display.h"
#include "tests/ink/ink_rows.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

class InkLog : public InkDisplay {
protected:
    static void addLayout(Lines &lines, const std::vector<std::pair<std::string, int>> &values)
    {
        for (const auto &[name, value] : values) {
            lines.push_back(name + "=" + std::to_string(value) + "\n");
        }
    }
    static void addRow(Lines &lines, int row, int channel, int level, const std::string &name)
    {
        lines.push_back("Zeile #" + std::to_string(row) + " mit Kanal #" + std::to_string(channel) + "\n");
        if (channel == 20) {
            lines.emplace_back("emptys channel-!_!_!_!!_!_!_!\n");
        }
        lines.push_back("Set bar to " + std::to_string(level) + "\n");
        lines.push_back("Set barcounter to " + std::to_string(level) + "\n");
        lines.push_back("Textstring = " + name + "\n");
    }
};

TEST_F(InkLog, TellsLayoutAndRowsOfBothBoxes)
{
    showChannel(6, 50, 12345);
    showChannel(4, 200, 1'004'995);
    const CapturedLog log;
    SetInkValues(context_);

    Lines expected{"Setting inkChannels\n"};
    for (const bool total : {false, true}) {
        addLayout(expected, {{"firstline", 10},
                             {"lastline", 230},
                             {"allheight", 40},
                             {"height", 16},
                             {"startline", 108},
                             {"spacing", 24}});
        addRow(expected, 0, 4, total ? 101 : 100, "Yellow");
        addRow(expected, 1, 6, total ? 1 : 25, "Cyan");
        for (int row = 2; row < 12; ++row) {
            addRow(expected, row, 20, total ? -1 : -1000, " ");
        }
    }
    EXPECT_EQ(log.lines(), logged(expected));
}

TEST_F(InkLog, TellsOfMissingControls)
{
    context_->controls.lastInkValues[0] = nullptr;
    context_->controls.lastInkBars[1] = nullptr;
    context_->controls.lastInkNames[1] = nullptr;
    for (std::size_t row = 2; row < 12; ++row) {
        context_->controls.lastInkValues[row] = nullptr;
    }
    showChannel(6, 50);
    const CapturedLog log;
    SetInkValues(context_);

    Lines expected{"Setting inkChannels\n"};
    addLayout(expected, {{"firstline", 10},
                         {"lastline", 230},
                         {"allheight", 16},
                         {"height", 16},
                         {"startline", 120},
                         {"spacing", 16}});
    expected.insert(expected.end(), {"Zeile #0 mit Kanal #6\n", "Control missing!\n", "Zeile #1 mit Kanal #6\n",
                                     "Namecontrol not found!\n"});
    for (int row = 2; row < 12; ++row) {
        expected.insert(expected.end(), {"Zeile #" + std::to_string(row) + " mit Kanal #20\n",
                                         "emptys channel-!_!_!_!!_!_!_!\n", "Control missing!\n"});
    }
    ASSERT_GE(log.lines().size(), expected.size());
    EXPECT_EQ(Lines(log.lines().begin(), log.lines().begin() + static_cast<std::ptrdiff_t>(expected.size())),
              logged(expected));
    EXPECT_EQ(log.lines()[expected.size()], "LOG firstline=10\n");
}

TEST_F(InkLog, TellsEveryRowBeyondTheControlsToo)
{
    context_->controls = ControlsStruct();
    context_->inkFirstLine = 0;
    showChannel(6, 50);
    const CapturedLog log;
    SetInkValues(context_);
    EXPECT_EQ(log.count("LOG Zeile #0 mit Kanal #6\n"), 2);
    EXPECT_EQ(log.count("LOG Zeile #11 mit Kanal #6\n"), 2); // nothing takes the channel
    EXPECT_EQ(log.lines().size(), 1U + 2 * (6 + 12 * 2));
}

} // namespace
} // namespace tessarin::test
