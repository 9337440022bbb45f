// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Which channels the rows show, in which order, with which names and colours; and rows that lack a control.

#include "ink/counter_reader.h"
#include "ink/level_display.h"
#include "tests/ink/ink_rows.h"
#include "tests/ink/ink_test_support.h"
#include "tests/support/captured_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class InkRowsShown : public InkDisplay {};

struct ShownChannel {
    std::size_t channel;
    const char *name;
    QRgb colour;
};

// In the order of the rows.
const std::vector<ShownChannel> kShownChannels{
    {0, "Black", qRgb(0, 0, 0)},
    {1, "Photo Black", qRgb(0, 0, 0)},
    {16, "PG Black", qRgb(0, 0, 0)},
    {17, "Matte Black", qRgb(0, 0, 0)},
    {18, "Photo Black", qRgb(0, 0, 0)},
    {2, "Grey", qRgb(100, 100, 100)},
    {3, "bright Grey", qRgb(150, 150, 150)},
    {19, "dark Grey", qRgb(50, 50, 50)},
    {4, "Yellow", qRgb(255, 255, 0)},
    {9, "br. Yellow", qRgb(255, 255, 100)},
    {5, "Magenta", qRgb(255, 0, 255)},
    {7, "bright Mag.", qRgb(255, 150, 255)},
    {6, "Cyan", qRgb(0, 255, 255)},
    {8, "bright Cyan", qRgb(160, 255, 255)},
    {10, "Red", qRgb(255, 0, 0)},
    {11, "Green", qRgb(0, 255, 0)},
    {12, "Blue", qRgb(0, 0, 255)},
    {13, "Optimizer", qRgb(150, 150, 150)},
    {14, "Orange", qRgb(255, 128, 0)},
    {15, "Violet", qRgb(255, 0, 128)},
};

TEST_F(InkRowsShown, HaveNameAndColourOfTheChannel)
{
    for (const ShownChannel &expected : kShownChannels) {
        clearChannels();
        showChannel(expected.channel, 70, 12345);
        SetInkValues(context_);
        EXPECT_THAT(shownNames(last_), ElementsAre(expected.name));
        EXPECT_THAT(shownNames(total_), ElementsAre(expected.name));
        EXPECT_EQ(last_.bars[0]->color().rgba(), expected.colour) << expected.channel;
        EXPECT_EQ(total_.bars[0]->color().rgba(), expected.colour) << expected.channel;
    }
}

TEST_F(InkRowsShown, AreInDisplayOrder)
{
    for (std::size_t first = 0; first + 12 <= kShownChannels.size(); ++first) {
        clearChannels();
        Lines names;
        for (std::size_t place = first; place < first + 12; ++place) {
            showChannel(kShownChannels[place].channel);
            names.emplace_back(kShownChannels[place].name);
        }
        SetInkValues(context_);
        EXPECT_EQ(shownNames(last_), names);
        EXPECT_EQ(shownNames(total_), names);
    }
}

TEST_F(InkRowsShown, HaveEachItsChannelsCounters)
{
    showChannel(6, 700, 70000);
    showChannel(4, 500, 50000);
    showChannel(16, 1000, 100000);
    SetInkValues(context_);
    EXPECT_THAT(shownRows(last_),
                ElementsAre(Row{"PG Black", "10", 100}, Row{"Yellow", "5", 50}, Row{"Cyan", "7", 70}));
    EXPECT_THAT(shownRows(total_),
                ElementsAre(Row{"PG Black", "100", 10}, Row{"Yellow", "50", 5}, Row{"Cyan", "70", 7}));
}

TEST_F(InkRowsShown, AreTheFirstTwelveOfMoreChannels)
{
    showFirst(14);
    SetInkValues(context_);
    EXPECT_THAT(shownNames(last_),
                ElementsAre("Black", "Photo Black", "PG Black", "Matte Black", "Photo Black", "Grey", "bright Grey",
                            "dark Grey", "Yellow", "br. Yellow", "Magenta", "bright Mag."));
    EXPECT_EQ(shownNames(total_), shownNames(last_));
}

TEST_F(InkRowsShown, LeavePlainBlackOutWhenEveryCodeIsReported)
{
    std::string text;
    for (const char *code : {"K", "KP", "K3", "K4", "Y", "M", "C", "M2", "C2", "Y2", "R", "G", "B", "O", "OR", "KR",
                             "KM", "KG", "K2"}) {
        text += std::string("LastInk_") + code + "=100\n";
    }
    const TextFile file(text);
    ParseInkData(file.path().c_str(), context_);
    SetInkValues(context_);
    EXPECT_THAT(shownNames(last_),
                ElementsAre("Photo Black", "PG Black", "Matte Black", "Photo Black", "Grey", "bright Grey",
                            "dark Grey", "Yellow", "br. Yellow", "Magenta", "bright Mag.", "Cyan"));
    EXPECT_EQ(last_.names[0]->y(), 1); // 18 channels: start 1, spacing 14
    EXPECT_EQ(last_.names[1]->y(), 15);
    EXPECT_EQ(last_.sum->text(), "19");
}

TEST_F(InkRowsShown, AreNoneWithoutChannels)
{
    context_->settings.inkLast[5] = 300;
    context_->settings.inkTotal[6] = 7000;
    SetInkValues(context_);
    EXPECT_THAT(shownRows(last_), IsEmpty());
    EXPECT_THAT(shownRows(total_), IsEmpty());
    EXPECT_EQ(last_.sum->text(), "3");
    EXPECT_EQ(total_.sum->text(), "7");
}

TEST_F(InkRowsShown, ComeBackAfterTheyWereHidden)
{
    showFirst(3);
    SetInkValues(context_);
    EXPECT_EQ(shownRows(last_).size(), 3U);
    showFirst(1);
    SetInkValues(context_);
    EXPECT_EQ(shownRows(last_).size(), 1U);
    showFirst(12);
    SetInkValues(context_);
    EXPECT_EQ(shownRows(last_).size(), 12U);
    EXPECT_EQ(shownRows(total_).size(), 12U);
}

TEST_F(InkRowsShown, AreBlankAndBlackWhereUnused)
{
    showChannel(6, 100, 0);
    SetInkValues(context_);
    for (std::size_t k = 1; k < 12; ++k) {
        EXPECT_EQ(row(last_, k), (Row{" ", " ", -2000})) << k; // -2000 * 100 / 100
        EXPECT_EQ(row(total_, k), (Row{" ", " ", -1})) << k;
        EXPECT_EQ(last_.bars[k]->color().rgba(), qRgb(0, 0, 0));
        EXPECT_EQ(total_.bars[k]->color().rgba(), qRgb(0, 0, 0));
        EXPECT_FALSE(isShown(last_, k));
    }
}

TEST_F(InkRowsShown, TakeChannelsSeenOnlyInTotal)
{
    const TextFile file("TotalInk_C=25000\nLastInk_M=10\n");
    ParseInkData(file.path().c_str(), context_);
    SetInkValues(context_);
    EXPECT_THAT(shownRows(last_), ElementsAre(Row{"Magenta", "0", 100}, Row{"Cyan", "0", 0}));
    EXPECT_THAT(shownRows(total_), ElementsAre(Row{"Magenta", "0", 0}, Row{"Cyan", "25", 3}));
}

TEST_F(InkRowsShown, HaveLocalisedNames)
{
    const BracketBundle bundle;
    showChannel(6);
    const CapturedLog log;
    SetInkValues(context_);
    EXPECT_EQ(row(last_, 0).name, "<Cyan>");
    EXPECT_EQ(row(last_, 1).name, "< >");
    EXPECT_EQ(log.count("LOG Textstring = <Cyan>\n"), 2);
}

TEST_F(InkRowsShown, PassAChannelOnWhereTheValueIsMissing)
{
    context_->controls.lastInkValues[1] = nullptr;
    last_.names[1]->setText("former");
    last_.names[1]->hide();
    last_.bars[1]->setLevel(33);
    showChannel(4, 100);
    showChannel(5, 200);
    showChannel(6, 300);
    const CapturedLog log;
    SetInkValues(context_);
    EXPECT_EQ(row(last_, 0), (Row{"Yellow", "1", 33}));
    EXPECT_EQ(row(last_, 2), (Row{"Magenta", "2", 66}));
    EXPECT_EQ(row(last_, 3), (Row{"Cyan", "3", 100}));
    EXPECT_THAT(shownNames(total_), ElementsAre("Yellow", "Magenta", "Cyan"));

    // Name and bar of the row stay as and where they were.
    EXPECT_EQ(last_.names[1]->text(), "former");
    EXPECT_EQ(last_.names[1]->y(), 30);
    EXPECT_TRUE(last_.names[1]->isHidden());
    EXPECT_EQ(last_.bars[1]->y(), 31);
    EXPECT_EQ(last_.bars[1]->level(), 33);
    EXPECT_FALSE(last_.bars[1]->isHidden());

    const long at = log.indexOf("LOG Zeile #1 mit Kanal #5\n");
    ASSERT_GE(at, 0);
    EXPECT_EQ(log.lines()[static_cast<std::size_t>(at) + 1], "LOG Control missing!\n");
    EXPECT_EQ(log.lines()[static_cast<std::size_t>(at) + 2], "LOG Zeile #2 mit Kanal #5\n");
    EXPECT_EQ(log.count("LOG Control missing!\n"), 1);
}

TEST_F(InkRowsShown, DoWithoutABar)
{
    context_->controls.lastInkBars[0] = nullptr;
    showChannel(6, 100);
    const CapturedLog log;
    SetInkValues(context_);
    EXPECT_EQ(last_.names[0]->text(), "Cyan");
    EXPECT_EQ(last_.values[0]->text(), "1");
    EXPECT_FALSE(last_.values[0]->isHidden());
    EXPECT_EQ(last_.bars[0]->level(), 50);
    EXPECT_EQ(log.count("LOG Set bar to 100\n"), 0);
    EXPECT_EQ(log.count("LOG Set barcounter to 100\n"), 1);
}

TEST_F(InkRowsShown, DoWithoutAName)
{
    context_->controls.lastInkNames[3] = nullptr;
    showFirst(5);
    const CapturedLog log;
    SetInkValues(context_);
    EXPECT_EQ(last_.names[3]->text(), "");
    EXPECT_FALSE(last_.bars[3]->isHidden());
    EXPECT_EQ(last_.names[4]->text(), "Photo Black");
    EXPECT_EQ(log.count("LOG Namecontrol not found!\n"), 1);
    EXPECT_EQ(log.countStarting("LOG Textstring = "), 23);
    const long at = log.indexOf("LOG Namecontrol not found!\n");
    EXPECT_EQ(log.lines()[static_cast<std::size_t>(at) - 1], "LOG Set bar to 0\n");
}

TEST_F(InkRowsShown, DoWithoutSums)
{
    context_->controls.lastInkValues[12] = nullptr;
    context_->controls.totalInkValues[12] = nullptr;
    showChannel(6, 100, 1000);
    SetInkValues(context_);
    EXPECT_EQ(last_.sum->text(), "");
    EXPECT_THAT(shownRows(total_), ElementsAre(Row{"Cyan", "1", 0}));
}

} // namespace
} // namespace tessarin::test
