// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Every slider of the panel, as a person meets it: range, shown texts, and the values that reach the job.

#include "controls/control_tables.h"
#include "controls/sliders.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

#include <map>

namespace tessarin::test {
namespace {

struct SliderCase {
    int number;
    const char *keyword;
    int least, greatest;
    const char *atLeast, *atMinusOne, *atZero, *atGreatest; ///< null: no such position
    const char *leastValue, *greatestValue;                 ///< in the job
};

const std::vector<SliderCase> kSliders{
    {0, "vornBrightness", -10, 10, "50%", "95%", "100%", "200%", "-50", "50"},
    {1, "vornContrast", -10, 10, "50%", "95%", "100%", "200%", "-50", "50"},
    {2, "vornRefLight", 0, 6, "D50", nullptr, "D50", "D80", "50", "80"},
    {3, "vornGamut", -5, 5, "50%", "90%", "100%", "200%", "-50", "50"},
    {4, "vornShadows", -5, 5, "50%", "90%", "100%", "200%", "-50", "50"},
    {5, "vornGreyToneA", -10, 10, "-50", "-5", "+0", "+50", "-50", "50"},
    {6, "vornGreyToneB", -10, 10, "-50", "-5", "+0", "+50", "-50", "50"},
    {7, "vornUCR", -5, 5, "0%", "40%", "50%", "100%", "-50", "50"},
    {8, "vornBrightC", -5, 5, "0%", "40%", "50%", "100%", "-50", "50"},
    {9, "vornBrightM", -5, 5, "0%", "40%", "50%", "100%", "-50", "50"},
    {10, "vornTAC", -5, 5, "200%", "280%", "300%", "400%", "-50", "50"},
    {11, "vornIntensity", -8, 0, "80%", "10%", "0%", "0%", "-80", "0"},
    {12, "vornInklimitK", -5, 5, "50%", "90%", "100%", "200%", "-50", "50"},
    {13, "vornInklimitC", -5, 5, "50%", "90%", "100%", "200%", "-50", "50"},
    {14, "vornInklimitM", -5, 5, "50%", "90%", "100%", "200%", "-50", "50"},
    {15, "vornInklimitY", -5, 5, "50%", "90%", "100%", "200%", "-50", "50"},
    {16, "vornColorK", -10, 10, "-50%", "-5%", "0%", "50%", "-50", "50"},
    {17, "vornColorC", -10, 10, "-50%", "-5%", "0%", "50%", "-50", "50"},
    {18, "vornColorM", -10, 10, "-50%", "-5%", "0%", "50%", "-50", "50"},
    {19, "vornColorY", -10, 10, "-50%", "-5%", "0%", "50%", "-50", "50"},
};

class EverySlider : public testing::TestWithParam<SliderCase> {
protected:
    EverySlider()
    {
        session.open();
        slider = session.slider(GetParam().number);
        text = session.sliderText(GetParam().number);
    }

    std::string saved()
    {
        session.host->changes.clear();
        session.panel->saveValuesAndReturnError(nullptr);
        std::string value = "(not sent)";
        for (const auto &[key, choice] : session.host->changes) {
            if (key == GetParam().keyword) {
                value = choice;
            }
        }
        return value;
    }

    PanelSession session{samplePPD()};
    QSlider *slider = nullptr;
    QLabel *text = nullptr;
};

TEST_P(EverySlider, HasItsRangeAndSingleSteps)
{
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->minimum(), GetParam().least);
    EXPECT_EQ(slider->maximum(), GetParam().greatest);
    EXPECT_EQ(slider->singleStep(), 1);
}

TEST_P(EverySlider, ShowsItsValueWhenAPersonMovesIt)
{
    ASSERT_NE(text, nullptr);
    const SliderCase &row = GetParam();
    const std::vector<std::pair<int, const char *>> shown{
        {row.least, row.atLeast}, {-1, row.atMinusOne}, {0, row.atZero}, {row.greatest, row.atGreatest}};
    for (const auto &[position, expected] : shown) {
        if (expected != nullptr) {
            slide(slider, row.least == position ? row.greatest : row.least); // so that it moves
            slide(slider, position);
            EXPECT_EQ(text->text(), QLatin1String(expected)) << position;
        }
    }
}

TEST_P(EverySlider, ReachesTheJobWithItsEnds)
{
    const SliderCase &row = GetParam();
    slide(slider, row.least);
    EXPECT_EQ(saved(), row.leastValue);
    EXPECT_EQ(session.settings().sliderValues[static_cast<std::size_t>(row.number)], row.least);
    slide(slider, row.greatest);
    EXPECT_EQ(saved(), row.greatestValue);
    EXPECT_EQ(session.settings().sliderValues[static_cast<std::size_t>(row.number)], row.greatest);
}

TEST_P(EverySlider, ComesBackFromTheJobAtEveryPosition)
{
    const SliderCase &row = GetParam();
    for (int position = row.least; position <= row.greatest; ++position) {
        slide(slider, position);
        const QString shown = text->text();
        session.panel->saveValuesAndReturnError(nullptr);
        slide(slider, position == row.greatest ? row.least : row.greatest);
        session.panel->restoreValuesAndReturnError(nullptr);
        EXPECT_EQ(slider->value(), position);
        EXPECT_EQ(text->text(), shown) << position;
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, EverySlider, testing::ValuesIn(kSliders),
                         [](const testing::TestParamInfo<SliderCase> &row) {
                             return std::string(row.param.keyword);
                         });

TEST(SliderRows, AreTwenty)
{
    EXPECT_EQ(kSliders.size(), 20U);
    EXPECT_EQ(sliderRow(20), nullptr);
    EXPECT_EQ(sliderRow(-1), nullptr);
    for (const SliderCase &row : kSliders) {
        ASSERT_NE(sliderRow(row.number), nullptr);
        EXPECT_STREQ(sliderRow(row.number)->keyword, row.keyword);
    }
}

} // namespace
} // namespace tessarin::test
