// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Which entries of a pop-up the selections of earlier pop-ups forbid, and where its selection moves.

#include "ppd/constraints.h"

#include "controls/menu_items.h"
#include "platform/popup_button.h"
#include "ppd/keyword_scanner.h"
#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using Tags = std::vector<int>;

/// A cartridge that is selected, and a media type list of five entries in a pop-up.
class ConstraintCheck : public testing::Test {
protected:
    ConstraintCheck()
    {
        fillRow(context.table(), 0, {{"A", "Text A"}, {"B", "Text B"}});
        fillRow(context.table(), 1,
                {{"M1", "Text 1"}, {"M2", "Text 2"}, {"M3", "Text 3"}, {"M4", "Text 4"}, {"M5", "Text 5"}});
        context->settings.popupSelections[0] = 1;
        context->controls.popupControls[1] = &popup;
        setGroups(context.table(), {});
    }

    /// The media type's selection after a check that forbids the entries with these choice indices.
    int check(int selection, const std::vector<int> &forbidden)
    {
        Groups groups;
        for (const int choice : forbidden) {
            groups.push_back({0, 0, 1, choice});
        }
        setGroups(context.table(), groups);
        context->settings.popupSelections[1] = selection;
        checkConstraintsForMenu(context, 1);
        return context->settings.popupSelections[1];
    }

    Tags tags() const
    {
        Tags result;
        for (int index = 0; index < popup.count(); ++index) {
            result.push_back(menuItemTag(&popup, index));
        }
        return result;
    }

    PopUpButton popup;
    TestContext context;
};

TEST_F(ConstraintCheck, MovesTheSelectionOffForbiddenEntries)
{
    struct Row {
        int selection;
        std::vector<int> forbidden;
        int stored;
    };
    const std::vector<Row> table{
        {2, {1, 2}, 4},          // along a run of forbidden entries
        {2, {1, 2, 3, 4}, 1},    // none follows: back to the last enabled one before
        {5, {4}, 4},             // the last one
        {1, {0, 1, 2, 3, 4}, 0}, // all are forbidden
        {0, {}, 0},              // no selection stays none
        {123, {}, 5},            // beyond the list: the last enabled one
        {123, {4}, 4},
        {6, {}, 5},
        {3, {2, 3}, 5},
        {3, {}, 3},
        {3, {1, 3}, 3}, // allowed itself
        {0, {0, 1, 2, 3, 4}, 0},
        {1, {0}, 2},
        {4, {0, 1, 2}, 4},
        {2, {1}, 3},
    };
    for (const Row &row : table) {
        EXPECT_EQ(check(row.selection, row.forbidden), row.stored)
            << row.selection << " with " << testing::PrintToString(row.forbidden);
    }
}

TEST_F(ConstraintCheck, ShowsForbiddenEntriesDisabledAndTheRestEnabled)
{
    check(2, {1, 3});
    EXPECT_EQ(tags(), (Tags{1, -2, 3, -4, 5}));
    EXPECT_EQ(popup.currentIndex(), 2);
    check(2, {});
    EXPECT_EQ(tags(), (Tags{1, 2, 3, 4, 5}));
    EXPECT_EQ(popup.currentIndex(), 1);
}

TEST_F(ConstraintCheck, OfAllEntriesStoresNoSelectionButShowsTheFirst)
{
    EXPECT_EQ(check(3, {0, 1, 2, 3, 4}), 0);
    EXPECT_EQ(tags(), (Tags{-1, -2, -3, -4, -5}));
    EXPECT_EQ(popup.currentIndex(), 0);
}

TEST_F(ConstraintCheck, WithoutASelectionStoresNoneButShowsTheFirst)
{
    EXPECT_EQ(check(0, {0}), 0);
    EXPECT_EQ(popup.currentIndex(), 0);
}

TEST_F(ConstraintCheck, LogsItsStepsWithTheStarOfTheKeyword)
{
    fillRow(context.table(), 1, {{"M1", "Text 1"}, {"M2", "Text 2"}, {"M3", "Text 3"}});
    const CapturedLog log;
    check(2, {1});
    EXPECT_EQ(log.lines(),
              logged({"-- check contraints --\n", "Checking menu for *vornMediaType\n",
                      "\nFILLPOPUP - active = 3 / 'Text 3'\n", "Remove all Items - count=0\n",
                      "AppendMenuItem: Text 1=1\n", "Adding to PopUpButton: 'Text 1'\n",
                      "AppendMenuItem: Text 2=-2\n", "--- INVISIBLE --- 'Text 2'\n", "AppendMenuItem: Text 3=3\n",
                      "Adding to PopUpButton: 'Text 3'\n", "Fillpopup - setactive item to #3/n",
                      "FillPOPUP -> activeidx = 3\n", "SetComboControlValue to #3 of 3\n"}));
}

TEST_F(ConstraintCheck, AppliesAGroupOnlyWhileItsFirstChoiceIsSelected)
{
    setGroups(context.table(), {{0, 1, 1, 0}});
    for (const auto &[cartridge, firstTag] : std::vector<std::pair<int, int>>{{0, 1}, {1, 1}, {2, -1}, {3, 1}}) {
        context->settings.popupSelections[0] = cartridge;
        context->settings.popupSelections[1] = 3;
        checkConstraintsForMenu(context, 1);
        EXPECT_EQ(tags().front(), firstTag) << cartridge;
    }
}

TEST_F(ConstraintCheck, NeverForbidsEntriesOfTheFirstOption)
{
    PopUpButton cartridges;
    context->controls.popupControls[0] = &cartridges;
    setGroups(context.table(), {{0, 0, 1, 2}});
    context->settings.popupSelections[1] = 3; // the forbidden one is selected
    checkConstraintsForMenu(context, 0);
    EXPECT_EQ(menuItemTag(&cartridges, 0), 1);
    EXPECT_EQ(menuItemTag(&cartridges, 1), 2);
    EXPECT_EQ(context->settings.popupSelections[0], 1);
}

TEST_F(ConstraintCheck, IgnoresGroupsOfOtherRows)
{
    setGroups(context.table(), {{0, 0, 2, 0}, {0, 0, 3, 1}, {1, 0, 2, 0}});
    context->settings.popupSelections[1] = 1;
    checkConstraintsForMenu(context, 1);
    EXPECT_EQ(tags(), (Tags{1, 2, 3, 4, 5}));
}

TEST_F(ConstraintCheck, CombinesGroupsOfSeveralEarlierOptions)
{
    PopUpButton resolutions;
    context->controls.popupControls[2] = &resolutions;
    fillRow(context.table(), 2, {{"R1", "r1"}, {"R2", "r2"}, {"R3", "r3"}});
    setGroups(context.table(), {{0, 0, 2, 0}, {1, 3, 2, 1}, {1, 0, 2, 2}, {0, 0, 2, 0}});
    context->settings.popupSelections[1] = 4;
    context->settings.popupSelections[2] = 1;
    checkConstraintsForMenu(context, 2);
    EXPECT_EQ(context->settings.popupSelections[2], 3);
    EXPECT_EQ(menuItemTag(&resolutions, 0), -1);
    EXPECT_EQ(menuItemTag(&resolutions, 1), -2);
    EXPECT_EQ(menuItemTag(&resolutions, 2), 3);
}

TEST_F(ConstraintCheck, EndsAtTheFirstNegativeFirstRow)
{
    setGroups(context.table(), {{0, 0, 1, 0}});
    const std::array<int, 4> stale{0, 0, 1, 1}; // what is left of an earlier scan
    std::copy(stale.begin(), stale.end(), &context.table().constraints[8]);
    context->settings.popupSelections[1] = 3;
    checkConstraintsForMenu(context, 1);
    EXPECT_EQ(tags(), (Tags{-1, 2, 3, 4, 5}));
}

TEST_F(ConstraintCheck, SeesAllFiftyGroupsAndNoMore)
{
    Groups groups(49, Group{0, 1, 1, 0});
    groups.push_back({0, 0, 1, 4});
    setGroups(context.table(), groups);
    context->settings.popupSelections[1] = 5;
    checkConstraintsForMenu(context, 1);
    EXPECT_EQ(tags(), (Tags{1, 2, 3, 4, -5}));
    context.table().constraints[200] = 0; // the end mark is gone
    checkConstraintsForMenu(context, 1);
    EXPECT_EQ(tags(), (Tags{1, 2, 3, 4, -5}));
}

TEST_F(ConstraintCheck, TakesGroupsOfRowsBeyondTheTableAsNoMatch)
{
    setGroups(context.table(), {{12, 0, 1, 0}, {1000, 0, 1, 1}, {11, 0, 1, 2}});
    context->settings.popupSelections[11] = 0;
    context->settings.popupSelections[1] = 1;
    checkConstraintsForMenu(context, 1);
    EXPECT_EQ(tags(), (Tags{1, 2, 3, 4, 5}));
}

TEST_F(ConstraintCheck, OfAnUnknownChoiceForbidsNothing)
{
    setGroups(context.table(), {{0, 0, 1, 5}, {0, 2, 1, 0}});
    context->settings.popupSelections[1] = 5;
    checkConstraintsForMenu(context, 1);
    EXPECT_EQ(tags(), (Tags{1, 2, 3, 4, 5}));
    EXPECT_EQ(context->settings.popupSelections[1], 5);
}

TEST_F(ConstraintCheck, OfAnEmptyListStoresNoSelection)
{
    fillRow(context.table(), 1, {});
    const CapturedLog log;
    EXPECT_EQ(check(3, {0}), 0);
    EXPECT_EQ(popup.count(), 0);
    EXPECT_TRUE(log.contains("LOG FillPOPUP -> activeidx = 1\n"));
}

TEST_F(ConstraintCheck, WithoutAPopUpStoresTheSelectionAllTheSame)
{
    context->controls.popupControls[1] = nullptr;
    EXPECT_EQ(check(2, {1, 2}), 4);
}

TEST(ConstraintCheckOfARow, BeforeAnyScanDoesNotRunOn)
{
    const TestContext context; // zeros read as groups
    context->settings.popupSelections[1] = 4;
    checkConstraintsForMenu(context, 1);
    EXPECT_EQ(context->settings.popupSelections[1], 0);
}

TEST(ConstraintCheckOfARow, HandlesTheLongestList)
{
    PopUpButton popup;
    const TestContext context;
    while (appendPair(context.table(), 1, "key", "text")) {
    }
    setGroups(context.table(), {{0, 0, 1, 81}});
    context->settings.popupSelections[0] = 1;
    context->settings.popupSelections[1] = 82;
    context->controls.popupControls[1] = &popup;
    checkConstraintsForMenu(context, 1);
    EXPECT_EQ(context->settings.popupSelections[1], 81);
    EXPECT_EQ(popup.count(), 82);
    EXPECT_EQ(menuItemTag(&popup, 81), -82);
}

/// A scanned PPD with its selections read, and the media type's pop-up.
class ScannedPPD {
public:
    explicit ScannedPPD(const char *name) : host(ppdFixture(name)), context(host)
    {
        ParsePPDFile(ppdFixture(name).c_str(), context);
        getPPDOptionSelections(context);
        context->controls.popupControls[1] = &popup;
    }

    RecordingHost host;
    PopUpButton popup;
    TestContext context;
};

TEST(ConstraintCheckOfARow, CountsASeparatorAsAnEnabledEntry)
{
    const ScannedPPD ppd("separator-after-disabled");
    ASSERT_EQ(ppd.context->settings.popupSelections[1], 3);
    checkConstraintsForMenu(ppd.context, 1);
    EXPECT_EQ(ppd.context->settings.popupSelections[1], 4) << "the separator";
    EXPECT_EQ(menuItemTag(&ppd.popup, 2), -3);
    EXPECT_EQ(menuItemTag(&ppd.popup, 3), 123);
    EXPECT_TRUE(menuItemIsSeparator(&ppd.popup, 3));
    EXPECT_EQ(ppd.popup.currentIndex(), 3);
}

TEST(ConstraintCheckOfARow, WithAllMediaTypesForbiddenEndsOnTheirSeparator)
{
    const ScannedPPD ppd("all-constrained");
    checkConstraintsForMenu(ppd.context, 1);
    EXPECT_EQ(ppd.context->settings.popupSelections[1], 3);
}

TEST(ConstraintCheckOfARow, MakesAForbiddenSeparatorADisabledEntry)
{
    const ScannedPPD ppd("separator-after-disabled");
    setGroups(ppd.context.table(), {{0, 0, 1, 3}});
    ppd.context->settings.popupSelections[1] = 4;
    checkConstraintsForMenu(ppd.context, 1);
    EXPECT_EQ(ppd.context->settings.popupSelections[1], 5);
    EXPECT_EQ(menuItemTag(&ppd.popup, 3), -4);
    EXPECT_FALSE(menuItemIsSeparator(&ppd.popup, 3));
    EXPECT_EQ(ppd.popup.itemText(3), QStringLiteral("---separator---"));
}

TEST(ConstraintCheckOfARow, SendsNothingToTheHost)
{
    const ScannedPPD ppd("separator-after-disabled");
    checkConstraintsForMenu(ppd.context, 1);
    checkConstraintsForMenu(ppd.context, 2);
    EXPECT_TRUE(ppd.host.changes.empty());
    EXPECT_EQ(ppd.host.marked("vornMediaType"), "Gloss7");
}

} // namespace
} // namespace tessarin::test
