// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/context_lifecycle.h"

#include "controls/sliders.h"
#include "tests/plugin/plugin_test_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace tessarin::test {
namespace {

/// The value formats of the slider table, row by row.
constexpr std::array<const char *, 20> kFormats{
    "%d%%", "%d%%", "D%d",  "%d%%", "%d%%", "%+d",  "%+d",  "%d%%", "%d%%", "%d%%",
    "%d%%", "%d%%", "%d%%", "%d%%", "%d%%", "%d%%", "%d%%", "%d%%", "%d%%", "%d%%",
};

class ContextRecord : public testing::Test {
protected:
    static void clearFormatStrings()
    {
        for (ScrollRow &row : Scrolls) {
            row.formatString = nullptr;
        }
    }

    static int releases(std::size_t row) { return Scrolls.at(row).formatString->releaseCount(); }

    SharedTables tables_;
};

template <typename Handles>
bool allEmpty(const Handles &handles)
{
    return std::all_of(handles.begin(), handles.end(), [](const ControlHandle &handle) { return handle.isNull(); });
}

template <typename Values>
bool allZero(const Values &values)
{
    return std::all_of(values.begin(), values.end(), [](auto value) { return value == 0; });
}

TEST_F(ContextRecord, StartsWithoutControls)
{
    const TestContext context;
    const ControlsStruct &controls = context->controls;
    for (const ControlHandle *handle :
         {&controls.noPrintCheckBox, &controls.psInterpreterCheckBox, &controls.colorGammaCheckBox,
          &controls.spareControl1, &controls.spareControl2, &controls.spareControl3, &controls.spareControl4,
          &controls.tabView, &controls.photoControl, &controls.brightCyanIcon, &controls.cyanPane,
          &controls.magentaPane, &controls.brightUsageLabel, &controls.summaryControl}) {
        EXPECT_TRUE(handle->isNull());
    }
    for (const ControlSlots *handles :
         {&controls.sliderControls, &controls.sliderAuxControls, &controls.lastInkBars, &controls.totalInkBars,
          &controls.lastInkValues, &controls.totalInkValues, &controls.lastInkNames, &controls.totalInkNames}) {
        EXPECT_TRUE(allEmpty(*handles));
    }
    EXPECT_TRUE(allEmpty(controls.extraControls));
    EXPECT_TRUE(allEmpty(controls.popupControls));
    EXPECT_EQ(controls.controlsInt, 0);
}

TEST_F(ContextRecord, StartsWithSettingsOfZero)
{
    const TestContext context;
    const PanelSettings &settings = context->settings;
    EXPECT_TRUE(allZero(settings.checkBoxStates));
    EXPECT_TRUE(allZero(settings.inkFilePath));
    EXPECT_TRUE(allZero(settings.popupSelections));
    EXPECT_TRUE(allZero(settings.sliderValues));
    EXPECT_TRUE(allZero(settings.inkLast));
    EXPECT_TRUE(allZero(settings.inkTotal));
    EXPECT_TRUE(allZero(settings.inkSeen));
    EXPECT_EQ(settings.inkChannelCount, 0);
}

TEST_F(ContextRecord, StartsWithoutReferencesAndPaths)
{
    const TestContext context;
    EXPECT_TRUE(context->embedObject.isNull());
    EXPECT_TRUE(allEmpty(context->tabObjects));
    EXPECT_TRUE(context->availabilityObject.isNull());
    EXPECT_EQ(context->availabilityInt1, 0);
    EXPECT_EQ(context->availabilityInt2, 0);
    EXPECT_EQ(context->ppdScanBuffer, nullptr);
    EXPECT_EQ(context->ppdFile, nullptr);
    EXPECT_EQ(context->callbackObject, nullptr);
    EXPECT_EQ(context->onTiger, 0);
    EXPECT_TRUE(allZero(context->ppdPath));
    EXPECT_EQ(context->inkFirstLine, 0) << "not -1: only the embedding says that nothing is measured";
    EXPECT_EQ(context->inkLastLine, 0);
    EXPECT_EQ(context->inkRowHeight, 0);
    EXPECT_EQ(context->optionFlagD, 0);
}

TEST_F(ContextRecord, HasTheRoomThatItsFieldsState)
{
    const TestContext context;
    EXPECT_EQ(context->controls.sliderControls.size(), 21U);
    EXPECT_EQ(context->controls.popupControls.size(), 12U);
    EXPECT_EQ(context->controls.extraControls.size(), 8U);
    EXPECT_EQ(context->tabObjects.size(), 6U);
    EXPECT_EQ(context->settings.checkBoxStates.size(), 4U);
    EXPECT_EQ(context->settings.inkFilePath.size(), 150U);
    EXPECT_EQ(context->settings.popupSelections.size(), 12U);
    EXPECT_EQ(context->settings.sliderValues.size(), 21U);
    EXPECT_EQ(context->settings.inkSeen.size(), 21U);
    EXPECT_EQ(context->ppdPath.size(), 256U);
}

TEST_F(ContextRecord, OwnsAnEmptyOptionTable)
{
    const TestContext first;
    const TestContext second;
    ASSERT_NE(first->ppdOptions, nullptr);
    EXPECT_NE(first->ppdOptions, second->ppdOptions);
    for (const ChoiceRow &row : first.table().choiceLists) {
        EXPECT_TRUE(std::all_of(row.begin(), row.end(), [](const char *slot) { return slot == nullptr; }));
    }
    EXPECT_TRUE(allZero(first.table().constraints));
}

TEST_F(ContextRecord, MakesAFormatStringForEverySliderRow)
{
    clearFormatStrings();
    const TestContext context;
    for (std::size_t row = 0; row < kFormats.size(); ++row) {
        ASSERT_NE(Scrolls.at(row).formatString, nullptr) << row;
        EXPECT_EQ(Scrolls.at(row).formatString->text(), kFormats.at(row)) << row;
        EXPECT_EQ(releases(row), 0) << row;
    }
    EXPECT_EQ(Scrolls.at(20).formatString, nullptr) << "the end row has none";
}

TEST_F(ContextRecord, WalksTheSliderTableUpToTheFirstNegativeNumber)
{
    clearFormatStrings();
    Scrolls.at(5).number = -7;
    const TestContext context;
    for (std::size_t row = 0; row < Scrolls.size(); ++row) {
        EXPECT_EQ(Scrolls.at(row).formatString != nullptr, row < 5) << row;
    }
}

TEST_F(ContextRecord, TakesFormatsAsASCII)
{
    clearFormatStrings();
    Scrolls.at(3).format = "%d \xC2\xB0";
    const TestContext context;
    EXPECT_EQ(Scrolls.at(3).formatString, nullptr);
    EXPECT_NE(Scrolls.at(4).formatString, nullptr);
}

TEST_F(ContextRecord, OverwritesTheFormatStringsOfAnEarlierOneWithoutReleasingThem)
{
    const TestContext first;
    std::array<StringRef, 20> former;
    std::transform(Scrolls.begin(), Scrolls.end() - 1, former.begin(),
                   [](const ScrollRow &row) { return row.formatString; });
    const TestContext second;
    for (std::size_t row = 0; row < former.size(); ++row) {
        EXPECT_NE(Scrolls.at(row).formatString, former.at(row)) << row;
        EXPECT_EQ(former.at(row)->releaseCount(), 0) << row;
        EXPECT_EQ(former.at(row)->text(), kFormats.at(row)) << row;
    }
}

TEST_F(ContextRecord, WhoseTableIsEmptyMakesNoFormatStrings)
{
    clearFormatStrings();
    Scrolls.at(0).number = -1;
    PanelContext *context = MyCreateCustomContext();
    ASSERT_NE(context, nullptr);
    for (const ScrollRow &row : Scrolls) {
        EXPECT_EQ(row.formatString, nullptr);
    }
    const StringRef left = makeString(std::string("left by another"));
    Scrolls.at(7).formatString = left;
    Scrolls.at(19).formatString = left;
    MyReleaseCustomContext(context);
    EXPECT_EQ(left->releaseCount(), 2) << "the release visits 20 rows all the same";
}

TEST_F(ContextRecord, ReleasesTheFormatStringsOf20RowsAndKeepsTheirPlaces)
{
    PanelContext *context = MyCreateCustomContext();
    const StringRef beyond = makeString(std::string("of the end row"));
    Scrolls.at(20).formatString = beyond;
    MyReleaseCustomContext(context);
    for (std::size_t row = 0; row < 20; ++row) {
        ASSERT_NE(Scrolls.at(row).formatString, nullptr) << row;
        EXPECT_EQ(releases(row), 1) << row;
    }
    EXPECT_EQ(beyond->releaseCount(), 0);
}

TEST_F(ContextRecord, ReleasesRowsBehindAnEarlyEndOfTheTable)
{
    PanelContext *context = MyCreateCustomContext();
    Scrolls.at(5).number = -1;
    MyReleaseCustomContext(context);
    EXPECT_EQ(releases(4), 1);
    EXPECT_EQ(releases(5), 1);
    EXPECT_EQ(releases(19), 1);
}

TEST_F(ContextRecord, PassesOverMissingFormatStringsOnRelease)
{
    PanelContext *context = MyCreateCustomContext();
    Scrolls.at(3).formatString = nullptr;
    MyReleaseCustomContext(context);
    EXPECT_EQ(Scrolls.at(3).formatString, nullptr);
    EXPECT_EQ(releases(4), 1);
}

TEST_F(ContextRecord, LeavesItsScanBufferBehindOnRelease)
{
    PanelContext *context = MyCreateCustomContext();
    context->ppdScanBuffer.reset(new char[6]{"alive"});
    const char *strings = context->ppdScanBuffer.get();
    MyReleaseCustomContext(context);
    EXPECT_STREQ(strings, "alive");
}

TEST_F(ContextRecord, ReleasesTheLatestFormatStringsWhoeverMadeThem)
{
    PanelContext *first = MyCreateCustomContext();
    PanelContext *second = MyCreateCustomContext();
    MyReleaseCustomContext(first);
    EXPECT_EQ(releases(0), 1) << "made by the second one";
    MyReleaseCustomContext(second);
    EXPECT_EQ(releases(0), 2);
    EXPECT_EQ(releases(19), 2);
}

TEST_F(ContextRecord, StillShowsValuesWithFormatStringsThatAnotherReleased)
{
    PanelContext *released = MyCreateCustomContext();
    const TestContext living;
    MyReleaseCustomContext(released);
    ASSERT_EQ(releases(0), 1);
    EXPECT_EQ(CreateScrollValueCFString(0, -1)->text(), "95%");
    EXPECT_EQ(CreateScrollValueCFString(5, 1)->text(), "+5");
}

} // namespace
} // namespace tessarin::test
