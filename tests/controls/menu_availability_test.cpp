// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Which rendering intents and colour modes the media mode allows.

#include "controls/availability.h"
#include "controls/control_layer.h"
#include "controls/popup_filling.h"
#include "tests/controls/controls_test_support.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

constexpr int kMedia = 1;
constexpr int kIntent = 3;
constexpr int kColorMode = 4;

TEST(MediaMode, IsTheLastCharacterOfTheKeyAsADigit)
{
    const std::vector<std::pair<const char *, int>> cases{{"Photo6", 6},   {"Photo15", 5},
                                                          {"Custom10", 0}, {"0", 0},
                                                          {"9", 9},        {"Plain", 0},
                                                          {"6a", 0},       {"-", 0},
                                                          {"Photo6 ", 0},  {"M/", 0},
                                                          {"M:", 0},       {"7Photo7", 7},
                                                          {"5\xb2", 0},    {"---separator---", 0}};
    for (const auto &[key, mode] : cases) {
        EXPECT_EQ(StringPropertyNumber(key), mode) << key;
    }
    EXPECT_EQ(StringPropertyNumber(nullptr), 0);
    EXPECT_EQ(StringPropertyNumber(""), 0);
}

/// A record whose media type has mode 2 and whose pop-up of a row holds the choices.
class MenuAvailability : public testing::Test {
protected:
    void setMedia(const char *key)
    {
        record.setChoices(kMedia, {{key, "Media"}});
        record->settings.popupSelections[kMedia] = 1;
    }

    void setRow(int row, std::initializer_list<Pair> pairs, int selected)
    {
        record.setChoices(row, pairs);
        FillPopup(&popup, choiceList(*record->ppdOptions, row), {}, selected);
        SetComboControlValue(&popup, selected);
        record->controls.popupControls[static_cast<std::size_t>(row)] = &popup;
        record->settings.popupSelections[static_cast<std::size_t>(row)] = -77;
        log.clear();
    }

    Record record;
    PopUpButton popup;
    CapturedLog log;
};

struct Vector {
    const char *available; ///< one digit per item
    int current;           ///< the pop-up's value
    int moved;             ///< what is stored
    int shown;             ///< the item that the pop-up shows
};

TEST_F(MenuAvailability, MovesTheSelectionToTheNearestEarlierEntryElseToTheNext)
{
    const std::vector<Vector> vectors{{"000", 1, 4, 1},  {"000", 3, 4, 3},  {"010", 3, 2, 2}, {"001", 1, 3, 3},
                                      {"001", 2, 3, 3},  {"100", 3, 1, 1},  {"011", 1, 2, 2}, {"111", 0, 0, 0},
                                      {"111", 2, 2, 2},  {"110", 3, 2, 2},  {"101", 2, 1, 1}, {"000", 2, 4, 2},
                                      {"0000", 1, 5, 1}, {"0001", 1, 4, 4}, {"1001", 3, 1, 1}};
    for (const Vector &vector : vectors) {
        SCOPED_TRACE(std::string(vector.available) + ", " + std::to_string(vector.current));
        Record own;
        own.setChoices(kMedia, {{"M2", "Media"}});
        own->settings.popupSelections[kMedia] = 1;
        std::vector<bool> hidden;
        for (const char *flag = vector.available; *flag != '\0'; ++flag) {
            own.setChoices(kIntent, {{*flag == '1' ? "Intent2" : "Intent3", "Text"}});
            hidden.push_back(*flag != '1');
        }
        PopUpButton menu;
        FillPopup(&menu, choiceList(*own->ppdOptions, kIntent), {}, 1);
        SetComboControlValue(&menu, vector.current);
        own->controls.popupControls[kIntent] = &menu;
        checkAvailabilityForMenus(own, kIntent);
        EXPECT_EQ(own->settings.popupSelections[kIntent], vector.moved);
        EXPECT_EQ(menu.currentIndex() + 1, vector.shown);
        EXPECT_EQ(hiddenOf(menu), hidden);
    }
}

TEST_F(MenuAvailability, KeepsIntentsWhoseNumberIsNotAboveTheMediaMode)
{
    for (int mode = 0; mode <= 9; ++mode) {
        Record own;
        const std::string media = "M" + std::to_string(mode);
        own.setChoices(kMedia, {{media, "Media"}});
        own->settings.popupSelections[kMedia] = 1;
        own.setChoices(kIntent,
                       {{"I0", "0"}, {"I2", "2"}, {"I4", "4"}, {"I6", "6"}, {"I9", "9"}, {"Auto", "Auto"}});
        PopUpButton menu;
        FillPopup(&menu, choiceList(*own->ppdOptions, kIntent), {}, 1);
        own->controls.popupControls[kIntent] = &menu;
        checkAvailabilityForMenus(own, kIntent);
        EXPECT_EQ(hiddenOf(menu), (std::vector<bool>{false, mode < 2, mode < 4, mode < 6, mode < 9, false}))
            << mode;
    }
}

TEST_F(MenuAvailability, KeepsTwoColorModesOfAnIncompleteProfileAndAllOfTheOthers)
{
    for (int mode = 0; mode <= 9; ++mode) {
        Record own;
        const std::string media = "M" + std::to_string(mode);
        own.setChoices(kMedia, {{media, "Media"}});
        own->settings.popupSelections[kMedia] = 1;
        own.setChoices(kColorMode, {{"RGB", ""},
                                    {"RGBphoto", ""},
                                    {"rgb", ""},
                                    {"CMYK", ""},
                                    {"CMYKproof", ""},
                                    {"CMYKProof", ""},
                                    {"Gray9", ""}});
        PopUpButton menu;
        FillPopup(&menu, choiceList(*own->ppdOptions, kColorMode), {}, 1);
        own->controls.popupControls[kColorMode] = &menu;
        checkAvailabilityForMenus(own, kColorMode);
        const bool off = mode == 2;
        EXPECT_EQ(hiddenOf(menu), (std::vector<bool>{false, off, off, off, false, off, off})) << mode;
    }
}

TEST_F(MenuAvailability, AllowsEverythingInOtherRows)
{
    setMedia("M2");
    setRow(5, {{"Ordered9", "Ordered"}, {"Diffusion", "Diffusion"}}, 1);
    checkAvailabilityForMenus(record, 5);
    EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{false, false}));
    EXPECT_EQ(record->settings.popupSelections[5], 1);
}

TEST_F(MenuAvailability, LogsMediaAndModeAndSelection)
{
    setMedia("Photo4");
    setRow(kIntent, {{"I0", "0"}, {"I6", "6"}}, 2);
    checkAvailabilityForMenus(record, kIntent);
    EXPECT_EQ(log.lines(), logged({
                               "checkAvailabilityforMenus: item=kPOP_MEDIATYPE, selection=1\n",
                               "got MediaMode: 4 - Photo4\n",
                               "+++ tag of selected item: 2\n",
                               "Availabilitycheck - Mediamode = 4\n",
                               "SetComboControlValue to #1 of 2\n",
                           }));
    EXPECT_EQ(record->settings.popupSelections[kIntent], 1);
}

TEST_F(MenuAvailability, StopsWithoutAMenuAndLeavesTheRowsSelection)
{
    setMedia("Photo4");
    record->settings.popupSelections[kIntent] = 9;
    log.clear();
    checkAvailabilityForMenus(record, kIntent);
    EXPECT_EQ(log.lines(), logged({"checkAvailabilityforMenus: item=kPOP_MEDIATYPE, selection=1\n",
                                   "got MediaMode: 4 - Photo4\n"}));
    EXPECT_EQ(record->settings.popupSelections[kIntent], 9);
}

TEST_F(MenuAvailability, StoresTheFirstMediaTypeWhenNoneIsSelected)
{
    record.setChoices(kMedia, {{"Photo4", "Photo"}, {"M6", "Six"}});
    record->settings.popupSelections[kMedia] = 0;
    log.clear();
    checkAvailabilityForMenus(record, kIntent); // there is no pop-up
    EXPECT_EQ(record->settings.popupSelections[kMedia], 1);
    EXPECT_TRUE(log.contains("LOG checkAvailabilityforMenus: item=kPOP_MEDIATYPE, selection=1\n"));
    EXPECT_TRUE(log.contains("LOG got MediaMode: 4 - Photo4\n"));

    Record empty;
    log.clear();
    checkAvailabilityForMenus(empty, kColorMode);
    EXPECT_EQ(empty->settings.popupSelections[kMedia], 1) << "for an empty list too";
    EXPECT_TRUE(log.contains("LOG got MediaMode: 0 - (null)\n"));
}

TEST_F(MenuAvailability, TakesAMediaSelectionThatNamesNoPairForModeZero)
{
    setMedia("Photo6");
    setRow(kIntent, {{"I1", "1"}, {"I0", "0"}}, 1);
    for (const int selection : {123, 2, -1}) {
        record->settings.popupSelections[kMedia] = selection;
        checkAvailabilityForMenus(record, kIntent);
        EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{true, false})) << selection;
        EXPECT_EQ(record->settings.popupSelections[kMedia], selection);
    }
}

TEST_F(MenuAvailability, CutsALongKeyInTheLog)
{
    const std::string key = std::string(99, 'k') + "12";
    setMedia(key.c_str());
    log.clear();
    checkAvailabilityForMenus(record, kIntent);
    EXPECT_TRUE(log.contains("LOG got MediaMode: 2 - " + std::string(99, 'k') + "1\n"));
}

TEST_F(MenuAvailability, StoresWhatThePopUpShowsNotWhatTheSettingsHeld)
{
    setMedia("M6");
    setRow(kIntent, {{"I0", "0"}, {"I1", "1"}, {"I2", "2"}}, 1);
    record->settings.popupSelections[kIntent] = 2;
    SetComboControlValue(&popup, 3); // a person's choice that nothing has stored yet
    checkAvailabilityForMenus(record, kIntent);
    EXPECT_EQ(record->settings.popupSelections[kIntent], 3);
    EXPECT_EQ(popup.currentIndex(), 2);
}

TEST_F(MenuAvailability, UnhidesWhenTheModeAllowsAgainButLeavesTheSelection)
{
    record.setChoices(kMedia, {{"M2", "Two"}, {"M6", "Six"}});
    record->settings.popupSelections[kMedia] = 1;
    setRow(kColorMode, {{"RGB", "RGB"}, {"CMYK", "CMYK"}}, 2);
    checkAvailabilityForMenus(record, kColorMode);
    EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{false, true}));
    EXPECT_EQ(record->settings.popupSelections[kColorMode], 1);
    record->settings.popupSelections[kMedia] = 2;
    checkAvailabilityForMenus(record, kColorMode);
    EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{false, false}));
    EXPECT_EQ(choosableOf(popup), (std::vector<bool>{true, true}));
    EXPECT_EQ(record->settings.popupSelections[kColorMode], 1) << "the old mode does not come back";
}

TEST_F(MenuAvailability, LeavesDisabledEntriesDisabled)
{
    record.setChoices(kMedia, {{"M2", "Two"}, {"M6", "Six"}});
    record->settings.popupSelections[kMedia] = 1;
    setRow(kColorMode, {{"RGB", "RGB"}, {"*CMYK", "CMYK"}}, 1);
    checkAvailabilityForMenus(record, kColorMode);
    record->settings.popupSelections[kMedia] = 2;
    checkAvailabilityForMenus(record, kColorMode);
    EXPECT_EQ(tagsOf(popup), (std::vector<int>{1, -2}));
    EXPECT_EQ(hiddenOf(popup), (std::vector<bool>{false, false}));
    EXPECT_EQ(choosableOf(popup), (std::vector<bool>{true, false}));
}

TEST_F(MenuAvailability, RaisesNoEvent)
{
    setMedia("M2");
    setRow(kColorMode, {{"RGB", "RGB"}, {"CMYK", "CMYK"}}, 2);
    const QSignalSpy activated(&popup, &QComboBox::activated);
    const QSignalSpy changed(&popup, &QComboBox::currentIndexChanged);
    checkAvailabilityForMenus(record, kColorMode);
    EXPECT_EQ(popup.currentIndex(), 0);
    EXPECT_EQ(activated.count(), 0);
    EXPECT_EQ(changed.count(), 0);
}

} // namespace
} // namespace tessarin::test
