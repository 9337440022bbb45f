// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Clearing of a panel's menus and lists when the panel goes.

#include "platform/popup_button.h"
#include "plugin/context_lifecycle.h"
#include "ppd/keyword_scanner.h"
#include "tests/plugin/plugin_test_support.h"

#include <QLabel>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

namespace tessarin::test {
namespace {

/// A record with a pop-up of n + 1 items at each place n.
class CleanUp : public testing::Test {
protected:
    CleanUp()
    {
        for (std::size_t place = 0; place < popups_.size(); ++place) {
            popups_.at(place) = std::make_unique<PopUpButton>();
            for (std::size_t item = 0; item <= place; ++item) {
                popups_.at(place)->addItem(QStringLiteral("item"));
            }
            context_->controls.popupControls.at(place) = popups_.at(place).get();
        }
    }

    TestContext context_;
    std::array<std::unique_ptr<PopUpButton>, 12> popups_;
};

TEST_F(CleanUp, EmptiesTheMenusOfTheFirstElevenPopUps)
{
    myCleanup(context_);
    for (std::size_t place = 0; place <= 10; ++place) {
        EXPECT_EQ(popups_.at(place)->count(), 0) << place;
    }
}

TEST_F(CleanUp, LeavesTheTwelfthPopUpAlone)
{
    myCleanup(context_);
    EXPECT_EQ(popups_.at(11)->count(), 12);
}

TEST_F(CleanUp, TellsHowManyItemsEachMenuHad)
{
    const CapturedLog log;
    myCleanup(context_);
    Lines expected;
    for (int count = 1; count <= 11; ++count) {
        expected.push_back("LOG Remove all Items - count=" + std::to_string(count) + "\n");
    }
    EXPECT_EQ(log.lines(), expected);
}

TEST_F(CleanUp, IsHarmlessASecondTime)
{
    context_->ppdScanBuffer.reset(new char[10]);
    myCleanup(context_);
    EXPECT_EQ(context_->ppdScanBuffer, nullptr);
    const CapturedLog log;
    myCleanup(context_);
    EXPECT_EQ(context_->ppdScanBuffer, nullptr);
    EXPECT_EQ(log.lines(), Lines(11, "LOG Remove all Items - count=0\n"));
    EXPECT_EQ(popups_.at(11)->count(), 12);
}

TEST_F(CleanUp, RaisesNoEvents)
{
    int events = 0;
    QObject::connect(popups_.at(5).get(), &QComboBox::activated, [&events] { ++events; });
    QObject::connect(popups_.at(5).get(), &QComboBox::currentIndexChanged, [&events] { ++events; });
    popups_.at(5)->setCurrentIndex(2);
    ASSERT_EQ(events, 1);
    myCleanup(context_);
    EXPECT_EQ(events, 1);
}

TEST_F(CleanUp, PassesOverPopUpsThatAreMissingOrGone)
{
    context_->controls.popupControls.at(3) = nullptr;
    popups_.at(4).reset();
    const CapturedLog log;
    myCleanup(context_);
    EXPECT_EQ(popups_.at(3)->count(), 4) << "not known to the record";
    EXPECT_EQ(popups_.at(5)->count(), 0);
    EXPECT_EQ(log.lines().size(), 9U);
}

TEST_F(CleanUp, PassesOverControlsThatAreNoPopUps)
{
    QLabel label(QStringLiteral("text"));
    context_->controls.popupControls.at(3) = &label;
    const CapturedLog log;
    myCleanup(context_);
    EXPECT_EQ(label.text(), QStringLiteral("text"));
    EXPECT_EQ(log.lines().size(), 10U);
}

TEST_F(CleanUp, KeepsTheHandlesTheSettingsAndTheOptionTable)
{
    setGroups(context_.table(), {{0, 1, 1, 2}});
    context_->settings.popupSelections.at(2) = 3;
    context_->settings.sliderValues.at(4) = -5;
    const PPDOptionTable *table = context_->ppdOptions.get();
    myCleanup(context_);
    EXPECT_EQ(context_->ppdOptions.get(), table);
    EXPECT_EQ(groupsOf(context_.table()), (Groups{{0, 1, 1, 2}}));
    EXPECT_EQ(context_->settings.popupSelections.at(2), 3);
    EXPECT_EQ(context_->settings.sliderValues.at(4), -5);
    EXPECT_EQ(context_->controls.popupControls.at(0), popups_.at(0).get());
}

TEST_F(CleanUp, ReleasesNoFormatStrings)
{
    myCleanup(context_);
    for (std::size_t row = 0; row < 20; ++row) {
        EXPECT_EQ(Scrolls.at(row).formatString->releaseCount(), 0) << row;
    }
}

TEST(CleanUpWithoutPopUps, OnlyFreesTheScanBuffer)
{
    const TestContext context;
    context->ppdScanBuffer.reset(new char[10]);
    const CapturedLog log;
    myCleanup(context);
    EXPECT_EQ(context->ppdScanBuffer, nullptr);
    EXPECT_EQ(log.lines(), Lines{});
    myCleanup(context);
    EXPECT_EQ(context->ppdScanBuffer, nullptr);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(CleanUpOfChoiceLists, EmptiesThemWithTheirStrings)
{
    RecordingHost host(ppdFixture("minimal"));
    const TestContext context(host);
    ParsePPDFile(ppdFixture("minimal").c_str(), context);
    ASSERT_EQ(pairsOf(context.table(), 1).size(), 4U);
    const Groups groups = groupsOf(context.table());
    myCleanup(context);
    for (int row = 0; row < 15; ++row) {
        EXPECT_EQ(pairsOf(context.table(), row), Pairs{}) << row;
    }
    EXPECT_EQ(groupsOf(context.table()), groups) << "the constraints hold no strings";
}

} // namespace
} // namespace tessarin::test
