// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the ink rows lie: measuring, centring and moving.

#include "ink/level_display.h"
#include "tests/ink/ink_rows.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

struct Layout {
    int shown;   ///< channels
    int block;   ///< height of all rows
    int start;   ///< top of the first row
    int spacing; ///< from one row to the next
};

class InkLayout : public InkDisplay {
protected:
    /// All rows of a box lie in their lines: values and names in the line, bars one lower.
    static void expectRows(const RowViews &rows, int start, int spacing)
    {
        for (std::size_t row = 0; row < 12; ++row) {
            const int line = start + static_cast<int>(row) * spacing;
            EXPECT_EQ(rows.names[row]->geometry(), QRect(10, line, 100, 16)) << row;
            EXPECT_EQ(rows.bars[row]->geometry(), QRect(120, line + 1, 102, 14)) << row;
            EXPECT_EQ(rows.values[row]->geometry(), QRect(230, line, 60, 16)) << row;
        }
    }
    int startLine(const CapturedLog &log) const
    {
        for (const std::string &line : log.lines()) {
            if (line.starts_with("LOG startline=")) {
                return std::stoi(line.substr(14));
            }
        }
        return -9999;
    }
};

// First top 10, last top 230, height 16.
TEST_F(InkLayout, CentresTheRowsOfEveryNumberOfChannels)
{
    const std::vector<Layout> layouts{
        {0, 0, 128, 16},   {1, 16, 120, 16},  {2, 40, 108, 24},  {3, 64, 96, 24},   {4, 88, 84, 24},
        {5, 112, 72, 24},  {6, 136, 60, 24},  {7, 160, 48, 24},  {8, 184, 36, 24},  {9, 208, 24, 24},
        {10, 223, 16, 23}, {11, 226, 15, 21}, {12, 225, 15, 19}, {13, 232, 12, 18}, {14, 224, 16, 16},
        {15, 240, 8, 16},  {16, 241, 8, 15},  {17, 240, 8, 14},  {18, 254, 1, 14},  {19, 250, 3, 13},
        {20, 244, 6, 12},
    };
    for (const Layout &layout : layouts) {
        SCOPED_TRACE(layout.shown);
        showFirst(static_cast<std::size_t>(layout.shown));
        const CapturedLog log;
        SetInkValues(context_);
        expectRows(last_, layout.start, layout.spacing);
        expectRows(total_, layout.start, layout.spacing);
        EXPECT_EQ(log.count("LOG allheight=" + std::to_string(layout.block) + "\n"), 2);
        EXPECT_EQ(log.count("LOG startline=" + std::to_string(layout.start) + "\n"), 2);
        EXPECT_EQ(log.count("LOG spacing=" + std::to_string(layout.spacing) + "\n"), 2);
    }
}

TEST_F(InkLayout, MeasuresTheLastJobsLabels)
{
    showFirst(4);
    SetInkValues(context_);
    EXPECT_EQ(context_->inkFirstLine, 10);
    EXPECT_EQ(context_->inkLastLine, 230);
    EXPECT_EQ(context_->inkRowHeight, 16);
}

TEST_F(InkLayout, ServesBothBoxesWithOneMeasure)
{
    for (std::size_t row = 0; row < 12; ++row) {
        total_.names[row]->setGeometry(0, 500 + 40 * static_cast<int>(row), 50, 30);
    }
    showFirst(4);
    SetInkValues(context_);
    EXPECT_EQ(context_->inkFirstLine, 10);
    for (std::size_t row = 0; row < 12; ++row) {
        EXPECT_EQ(total_.names[row]->geometry(), QRect(0, 84 + 24 * static_cast<int>(row), 50, 30));
    }
}

TEST_F(InkLayout, MeasuresOnceAndKeepsTheResult)
{
    showFirst(4);
    SetInkValues(context_);
    for (int k = 0; k < 3; ++k) {
        SetInkValues(context_);
        expectRows(last_, 84, 24);
        expectRows(total_, 84, 24);
    }
    showFirst(1);
    SetInkValues(context_);
    expectRows(last_, 120, 16);
}

TEST_F(InkLayout, MovesHiddenRowsToo)
{
    showFirst(0);
    SetInkValues(context_);
    EXPECT_TRUE(shownRows(last_).empty());
    EXPECT_TRUE(shownRows(total_).empty());
    expectRows(last_, 128, 16);
    expectRows(total_, 128, 16);
}

// With each new set-up the moved labels are measured.
TEST_F(InkLayout, DriftsWhenTheViewIsSetUpAgain)
{
    struct Case {
        std::size_t shown;
        std::vector<int> starts;
        std::vector<int> spacings;
    };
    const std::vector<Case> cases{
        {1, {120, 208, 296}, {16, 16, 16}},
        {4, {84, 180, 276, 372}, {24, 24, 24, 24}},
        {8, {36, 84, 132}, {24, 24, 24}},
        {12, {15, 20, 25, 25, 25}, {19, 18, 17, 17, 17}},
    };
    for (const Case &c : cases) {
        last_ = RowViews();
        total_ = RowViews();
        embed();
        showFirst(c.shown);
        for (std::size_t k = 0; k < c.starts.size(); ++k) {
            SCOPED_TRACE(testing::Message() << c.shown << " rows, time " << k);
            context_->inkFirstLine = -1;
            context_->inkRowHeight = 0;
            SetInkValues(context_);
            expectRows(last_, c.starts[k], c.spacings[k]);
        }
    }
}

TEST_F(InkLayout, TakesAMissingFirstLabelForOneAtTheTop)
{
    context_->controls.lastInkNames[0] = nullptr;
    showFirst(4);
    SetInkValues(context_);
    EXPECT_EQ(context_->inkFirstLine, 0);
    EXPECT_EQ(context_->inkRowHeight, 1);
    EXPECT_EQ(context_->inkLastLine, 230);
    expectRows(total_, 101, 9); // gap 8, block 28
}

TEST_F(InkLayout, SqueezesTheRowsWithoutTheLastLabel)
{
    context_->controls.lastInkNames[11] = nullptr;
    showFirst(4);
    SetInkValues(context_);
    EXPECT_EQ(context_->inkFirstLine, 10);
    EXPECT_EQ(context_->inkLastLine, 0);
    expectRows(total_, -7, 8); // gap -8, block 40
    showFirst(2);
    SetInkValues(context_);
    expectRows(total_, 1, 8); // block 24
}

TEST_F(InkLayout, TakesALineAboveTheBoxForNotMeasured)
{
    for (std::size_t row = 0; row < 12; ++row) {
        last_.names[row]->move(10, -5 + 20 * static_cast<int>(row));
        total_.names[row]->move(10, 30 + 20 * static_cast<int>(row));
    }
    showFirst(4);
    SetInkValues(context_);
    EXPECT_EQ(context_->inkFirstLine, 30);
    EXPECT_EQ(context_->inkLastLine, 250);
    expectRows(last_, 69, 24); // -5 and 215: gap 8, block 88
    expectRows(total_, 104, 24);
}

TEST_F(InkLayout, HalvesTowardZero)
{
    context_->inkFirstLine = 10;
    context_->inkRowHeight = 16;
    showFirst(1);
    for (const auto &[lastLine, start] : {std::pair{10, 10}, {11, 10}, {12, 11}, {9, 10}, {8, 9}, {7, 9}, {6, 8}}) {
        context_->inkLastLine = lastLine;
        SetInkValues(context_);
        EXPECT_EQ(last_.names[0]->y(), start) << lastLine;
    }
}

TEST_F(InkLayout, LimitsTheGapToEightPixels)
{
    context_->inkRowHeight = 16;
    context_->inkFirstLine = 0;
    showFirst(2);
    // (last + 1 - 16) / 2
    for (const auto &[lastLine, spacing] : {std::pair{33, 24},
                                            {31, 24},
                                            {30, 23},
                                            {29, 23},
                                            {17, 17},
                                            {16, 16},
                                            {15, 16},
                                            {14, 16},
                                            {13, 15},
                                            {-1, 8},
                                            {-2, 8},
                                            {-100, 8}}) {
        context_->inkLastLine = lastLine;
        SetInkValues(context_);
        EXPECT_EQ(last_.names[1]->y() - last_.names[0]->y(), spacing) << lastLine;
    }
}

// An ink event before there is a view: nothing was measured, and there is nothing to move.
TEST_F(InkLayout, SetsNothingWithoutControls)
{
    context_->controls = ControlsStruct();
    context_->inkFirstLine = 0;
    showFirst(1);
    const CapturedLog log;
    SetInkValues(context_);
    EXPECT_EQ(context_->inkFirstLine, 0);
    EXPECT_EQ(context_->inkLastLine, 0);
    EXPECT_EQ(context_->inkRowHeight, 0);
    EXPECT_EQ(log.count("LOG Control missing!\n"), 24);
    EXPECT_EQ(startLine(log), 0);
    expectRows(last_, 10, 20);
}

TEST_F(InkLayout, MeasuresNothingWithoutLabels)
{
    context_->controls = ControlsStruct();
    const CapturedLog log;
    SetInkValues(context_);
    EXPECT_EQ(context_->inkFirstLine, 0);
    EXPECT_EQ(context_->inkRowHeight, 1);
}

TEST_F(InkLayout, TakesLabelsOfAnyHeight)
{
    for (const int height : {1, 24, 40}) {
        last_ = RowViews(10, height);
        embed();
        context_->inkFirstLine = -1;
        showFirst(1);
        SetInkValues(context_);
        EXPECT_EQ(context_->inkRowHeight, height);
        EXPECT_EQ(last_.names[0]->height(), height);
        EXPECT_EQ(last_.bars[0]->height(), height == 1 ? 0 : height - 2) << height;
        EXPECT_EQ(last_.bars[0]->y(), last_.names[0]->y() + 1);
    }
}

} // namespace
} // namespace tessarin::test
