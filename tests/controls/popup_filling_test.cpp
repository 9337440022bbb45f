// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Filling of a pop-up from a choice list.

#include "controls/popup_filling.h"

#include "controls/control_layer.h"
#include "controls/menu_items.h"
#include "tests/controls/controls_test_support.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

const Choices kThree{{"KeyA", "Text A"}, {"KeyB", "Text B"}, {"KeyC", "Text C"}};

class PopUpFilling : public testing::Test {
protected:
    PopUpButton popup;
    CapturedLog log;
};

TEST_F(PopUpFilling, GivesItemNPairNAndSelectsTheActiveOne)
{
    EXPECT_EQ(FillPopup(&popup, kThree, {}, 2), 0);
    EXPECT_EQ(titlesOf(popup), (std::vector<std::string>{"Text A", "Text B", "Text C"}));
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(choosableOf(popup), (std::vector<bool>{true, true, true}));
    EXPECT_EQ(GetComboControlValue(&popup), 2);
}

TEST_F(PopUpFilling, LogsEveryStep)
{
    FillPopup(&popup, kThree, {}, 2);
    EXPECT_EQ(log.lines(), logged({
                               "\nFILLPOPUP - active = 2 / 'Text B'\n",
                               "Remove all Items - count=0\n",
                               "AppendMenuItem: Text A=1\n",
                               "Adding to PopUpButton: 'Text A'\n",
                               "AppendMenuItem: Text B=2\n",
                               "Adding to PopUpButton: 'Text B'\n",
                               "Fillpopup - setactive item to #2/n",
                               "AppendMenuItem: Text C=3\n",
                               "Adding to PopUpButton: 'Text C'\n",
                               "FillPOPUP -> activeidx = 2\n",
                               "SetComboControlValue to #2 of 3\n",
                           }));
}

TEST_F(PopUpFilling, ReplacesWhatWasThere)
{
    FillPopup(&popup, kThree, {}, 3);
    log.clear();
    FillPopup(&popup, Choices{{"New", "New Text"}}, {}, 1);
    EXPECT_EQ(titlesOf(popup), (std::vector<std::string>{"New Text"}));
    EXPECT_EQ(log.lines(), logged(fillMessages(3, {"New Text"}, 1)));
}

TEST_F(PopUpFilling, SelectsTheFirstItemWhenNoneIsActive)
{
    for (const int active : {0, 4, 123, -1}) {
        log.clear();
        FillPopup(&popup, kThree, {}, active);
        EXPECT_EQ(GetComboControlValue(&popup), 1) << active;
        EXPECT_TRUE(log.contains("LOG FillPOPUP -> activeidx = 1\n"));
        EXPECT_EQ(log.countStarting("LOG Fillpopup - setactive"), 0);
        EXPECT_TRUE(log.contains("LOG \nFILLPOPUP - active = " + std::to_string(active) + " / '(null)'\n"));
    }
}

TEST_F(PopUpFilling, EmptiesThePopUpForAnEmptyList)
{
    FillPopup(&popup, kThree, {}, 2);
    log.clear();
    EXPECT_EQ(FillPopup(&popup, {}, {}, 0), 0);
    EXPECT_EQ(popup.count(), 0);
    EXPECT_EQ(popup.currentIndex(), -1);
    EXPECT_EQ(log.lines(), logged({"\nFILLPOPUP - active = 0 / '(null)'\n", "Remove all Items - count=3\n",
                                   "FillPOPUP -> activeidx = 1\n", "SetComboControlValue to #1 of 0\n"}));
}

TEST_F(PopUpFilling, MakesASeparatorOfTheSeparatorsKey)
{
    const Choices list{{"A", "Text A"}, kSeparatorPair, {"B", "Text B"}};
    FillPopup(&popup, list, {}, 3);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{1, 123, 3})) << "it counts as an item";
    EXPECT_TRUE(menuItemIsSeparator(&popup, 1));
    EXPECT_EQ(choosableOf(popup), (std::vector<bool>{true, false, true}));
    EXPECT_EQ(log.lines(), logged({
                               "\nFILLPOPUP - active = 3 / 'Text B'\n",
                               "Remove all Items - count=0\n",
                               "AppendMenuItem: Text A=1\n",
                               "Adding to PopUpButton: 'Text A'\n",
                               "Adding separator to popup\n",
                               "AppendMenuItem: Text B=3\n",
                               "Adding to PopUpButton: 'Text B'\n",
                               "Fillpopup - setactive item to #3/n",
                               "FillPOPUP -> activeidx = 3\n",
                               "SetComboControlValue to #3 of 3\n",
                           }));
}

TEST_F(PopUpFilling, SelectsASeparatorThatIsActive)
{
    FillPopup(&popup, Choices{{"A", "Text A"}, kSeparatorPair}, {}, 2);
    EXPECT_EQ(popup.currentIndex(), 1);
    EXPECT_EQ(GetComboControlValue(&popup), 123);
    EXPECT_TRUE(log.contains("LOG \nFILLPOPUP - active = 2 / '---separator---'\n"));
    EXPECT_TRUE(log.contains("LOG Fillpopup - setactive item to #2/n"));
}

TEST_F(PopUpFilling, LooksForTheSeparatorsKeyNotItsText)
{
    const Choices list{{"---separator---", "Separator by Key"}, {"Key", "---separator---"}};
    FillPopup(&popup, list, {}, 2);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{123, 2}));
    EXPECT_EQ(popup.itemText(1), QStringLiteral("---separator---"));
    EXPECT_FALSE(menuItemIsSeparator(&popup, 1));
}

TEST_F(PopUpFilling, ShowsPairsWithoutTheirFlagAsDisabled)
{
    const std::vector<int> flags{1, 0, 2};
    FillPopup(&popup, kThree, flags, 2);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{1, -2, 3}));
    EXPECT_EQ(titlesOf(popup), (std::vector<std::string>{"Text A", "Text B", "Text C"}));
    EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{false, false, false})) << "disabled, not hidden";
    EXPECT_EQ(choosableOf(popup), (std::vector<bool>{true, false, true}));
    EXPECT_EQ(log.lines(), logged({
                               "\nFILLPOPUP - active = 2 / 'Text B'\n",
                               "Remove all Items - count=0\n",
                               "AppendMenuItem: Text A=1\n",
                               "Adding to PopUpButton: 'Text A'\n",
                               "AppendMenuItem: Text B=-2\n",
                               "--- INVISIBLE --- 'Text B'\n",
                               "Fillpopup - setactive item to #2/n",
                               "AppendMenuItem: Text C=3\n",
                               "Adding to PopUpButton: 'Text C'\n",
                               "FillPOPUP -> activeidx = 2\n",
                               "SetComboControlValue to #2 of 3\n",
                           }));
    EXPECT_EQ(GetComboControlValue(&popup), 2) << "a disabled pair can be active";
}

TEST_F(PopUpFilling, MakesAnOrdinaryItemOfASeparatorWithoutItsFlag)
{
    const Choices list{{"A", "Text A"}, kSeparatorPair, {"B", "Text B"}};
    FillPopup(&popup, list, std::vector<int>{1, 0, 1}, 1);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{1, -2, 3}));
    EXPECT_EQ(popup.itemText(1), QStringLiteral("---separator---"));
    EXPECT_FALSE(menuItemIsSeparator(&popup, 1));
    EXPECT_TRUE(log.contains("LOG --- INVISIBLE --- '---separator---'\n"));

    FillPopup(&popup, list, std::vector<int>{0, 1, 0}, 1);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{-1, 123, -3})) << "with its flag it is one";
    EXPECT_TRUE(menuItemIsSeparator(&popup, 1));
}

TEST_F(PopUpFilling, DisablesPairsWhoseKeyBeginsWithAStar)
{
    const Choices list{{"*Star", "Star Key"}, {"Key", "*Star Text"}, {"K*", "Star Behind"}};
    FillPopup(&popup, list, {}, 3);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{-1, 2, 3})) << "the key counts, not the text";
    EXPECT_TRUE(log.contains("LOG AppendMenuItem: Star Key=1\n"));
    EXPECT_TRUE(log.contains("LOG Adding to PopUpButton: 'Star Key'\n"));
}

TEST_F(PopUpFilling, DisablesAStarKeyOnceWhetherOrNotItHasItsFlag)
{
    const Choices list{{"*A", "Text A"}, {"*B", "Text B"}};
    FillPopup(&popup, list, std::vector<int>{1, 0}, 1);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{-1, -2}));
    EXPECT_EQ(log.countStarting("LOG Adding to PopUpButton"), 1);
    EXPECT_EQ(log.countStarting("LOG --- INVISIBLE ---"), 1);
}

TEST_F(PopUpFilling, ShowsTextsAsTheyAreAndKeepsThemOutOfFormats)
{
    const Choices list{{"%n", "100% %s %d %@ & <b>"}};
    FillPopup(&popup, list, {}, 1);
    EXPECT_EQ(titlesOf(popup), (std::vector<std::string>{"100% %s %d %@ & <b>"}));
    EXPECT_TRUE(log.contains("LOG Adding to PopUpButton: '100% %s %d %@ & <b>'\n"));
}

TEST_F(PopUpFilling, RaisesNoEvent)
{
    const QSignalSpy activated(&popup, &QComboBox::activated);
    const QSignalSpy changed(&popup, &QComboBox::currentIndexChanged);
    FillPopup(&popup, kThree, {}, 2);
    FillPopup(&popup, kThree, std::vector<int>{0, 0, 1}, 3);
    FillPopup(&popup, {}, {}, 1);
    EXPECT_EQ(activated.count(), 0);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(PopUpFilling, CountsNoSelectionThatTheToolkitMadeByItself)
{
    FillPopup(&popup, kThree, {}, 3);
    FillPopup(&popup, Choices{{"*A", "Text A"}, {"B", "Text B"}}, {}, 2);
    EXPECT_EQ(GetComboControlValue(&popup), 2);
    EXPECT_EQ(popup.currentText(), QStringLiteral("Text B"));
}

TEST_F(PopUpFilling, UnhidesWhatWasHidden)
{
    FillPopup(&popup, kThree, {}, 1);
    ChangeMenuItemAttributes(&popup, 2, kMenuItemHidden, 0);
    FillPopup(&popup, kThree, {}, 1);
    EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{false, false, false})) << "the items are new";
}

TEST_F(PopUpFilling, TakesNoPopUpForNothing)
{
    QLabel label(QStringLiteral("text"));
    EXPECT_EQ(FillPopup(nullptr, kThree, {}, 1), 0);
    EXPECT_EQ(FillPopup(&label, kThree, {}, 1), 0);
    EXPECT_EQ(label.text(), QStringLiteral("text"));
}

} // namespace
} // namespace tessarin::test
