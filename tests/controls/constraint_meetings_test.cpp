// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Where forbidden entries, separators and media modes meet in an event or a save.

#include "controls/control_layer.h"
#include "controls/event_dispatch.h"
#include "controls/menu_items.h"
#include "controls/popup_filling.h"
#include "ppd/constraints.h"
#include "ppd/ticket.h"
#include "tests/controls/controls_test_support.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

bool wasSent(const RecordingHost &host, const std::string &key)
{
    return std::any_of(host.changes.begin(), host.changes.end(),
                       [&key](const Change &change) { return change.first == key; });
}

std::string lastSent(const RecordingHost &host, const std::string &key)
{
    std::string value = "(not sent)";
    for (const Change &change : host.changes) {
        value = change.first == key ? change.second : value;
    }
    return value;
}

/// A record with pop-ups of its own in the rows 0 to 4, and a host that accepts everything.
class Forbidden : public testing::Test {
protected:
    Forbidden()
    {
        record->callbackObject = &host;
        record.setChoices(0, {{"Photo", "Photo"}, {"Matte", "Matte"}});
        for (std::size_t row = 0; row < popups.size(); ++row) {
            record->controls.popupControls[row] = &popups[row];
        }
    }

    /// Fills the pop-ups with what the settings select.
    void show(std::array<std::int32_t, 12> selections)
    {
        record->settings.popupSelections = selections;
        for (std::size_t row = 0; row < popups.size(); ++row) {
            FillPopup(&popups[row], choiceList(*record->ppdOptions, static_cast<int>(row)), {}, selections[row]);
        }
    }

    /// Writes constraint groups (row, choice index, row, choice index) and the end mark.
    void forbid(std::initializer_list<std::array<int, 4>> groups)
    {
        std::size_t slot = 0;
        for (const auto &group : groups) {
            std::copy(group.begin(), group.end(), record->ppdOptions->constraints.begin() + slot);
            slot += group.size();
        }
        record->ppdOptions->constraints[slot] = -1;
    }

    int stored(std::size_t row) { return record->settings.popupSelections[row]; }

    RecordingHost host;
    Record record;
    std::array<PopUpButton, 5> popups;
    CapturedLog log;
    AlertRecorder alerts;
};

TEST_F(Forbidden, MediaTypesAllOfThemLeaveTheFirstSelected)
{
    record.setChoices(1, {{"X4", "X"}, {"Y6", "Y"}});
    record.setChoices(2, {{"600", "600"}});
    forbid({{0, 1, 1, 0}, {0, 1, 1, 1}});
    show({1, 2, 1});
    choose(&popups[0], 2);
    EXPECT_EQ(processEvent(record, 1, 4507), 0);
    EXPECT_EQ(tagsOf(popups[1]), (std::vector<int>{-1, -2}));
    EXPECT_EQ(popups[1].currentIndex(), 0);
    EXPECT_EQ(stored(1), 1) << "0 after the check, then the first";
    EXPECT_TRUE(log.contains("LOG got MediaMode: 4 - X4\n"));
    MySyncTicketFromPane(record);
    EXPECT_EQ(lastSent(host, "vornMediaType"), "X4") << "forbidden, and sent all the same";
}

TEST_F(Forbidden, ResolutionsAllOfThemStayUnselectedUntilTheSave)
{
    record.setChoices(1, {{"X4", "X"}});
    record.setChoices(2, {{"600", "600"}, {"1200", "1200"}});
    forbid({{0, 1, 2, 0}, {1, 0, 2, 1}});
    show({1, 1, 2});
    choose(&popups[0], 2);
    EXPECT_EQ(processEvent(record, 1, 4507), 0);
    EXPECT_EQ(stored(2), 0);
    EXPECT_EQ(popups[2].currentIndex(), 0);
    MySyncTicketFromPane(record);
    EXPECT_EQ(stored(2), 1);
    EXPECT_EQ(lastSent(host, "vornResolution"), "600");
}

TEST_F(Forbidden, MediaTypeGivesItsPlaceAndItsModeToTheNext)
{
    record.setChoices(1, {{"A6", "A"}, {"B2", "B"}});
    record.setChoices(2, {{"600", "600"}, {"1200", "1200"}});
    record.setChoices(4, {{"RGB", "RGB"}, {"CMYK", "CMYK"}});
    forbid({{0, 1, 1, 0}, {1, 1, 2, 0}});
    show({1, 1, 1, 0, 2});
    choose(&popups[0], 2);
    EXPECT_EQ(processEvent(record, 1, 4507), 0);
    EXPECT_EQ(stored(1), 2) << "moved by the cartridge";
    EXPECT_EQ(stored(2), 2) << "moved by the moved media type";
    EXPECT_EQ(stored(4), 1) << "by its mode";
    EXPECT_FALSE(isOn(&popups[2]));
    EXPECT_TRUE(alerts.shown.empty()) << "nobody chose this media type";
    EXPECT_EQ(host.changes, (Changes{{"vornCartridgeType", "Matte"}})) << "no move is sent";
}

TEST_F(Forbidden, SelectionRestsOnAnEntryWhoseKeyBeginsWithAStar)
{
    record.setChoices(1, {{"*A6", "A"}, {"B6", "B"}});
    forbid({{0, 0, 1, 1}});
    show({1, 2});
    checkConstraintsForMenu(record, 1);
    EXPECT_EQ(stored(1), 1) << "the check takes it for enabled";
    EXPECT_EQ(tagsOf(popups[1]), (std::vector<int>{-1, -2}));
    EXPECT_EQ(popups[1].currentIndex(), 0);
    record->settings.popupSelections[0] = 2;
    checkConstraintsForMenu(record, 1);
    EXPECT_EQ(tagsOf(popups[1]), (std::vector<int>{-1, 2}));
}

TEST_F(Forbidden, EntriesOfLaterRowsAreNeverDisabled)
{
    record.setChoices(1, {{"A6", "A"}});
    record.setChoices(3, {{"I0", "0"}, {"I1", "1"}});
    forbid({{0, 1, 3, 0}, {1, 0, 4, 0}});
    record.setChoices(4, {{"RGB", "RGB"}});
    show({1, 1, 0, 1, 1});
    choose(&popups[0], 2);
    EXPECT_EQ(processEvent(record, 1, 4507), 0);
    EXPECT_EQ(tagsOf(popups[3]), (std::vector<int>{1, 2}));
    EXPECT_EQ(tagsOf(popups[4]), (std::vector<int>{1}));
    EXPECT_EQ(stored(3), 1);
}

/// The cartridge forbids the selected media type, the last before the separator.
class PushedOntoTheSeparator : public testing::Test {
protected:
    PushedOntoTheSeparator() : session(ppdFixture("separator-after-disabled")) {}

    int stored() { return session.settings().popupSelections[1]; }

    CapturedLog log;
    PanelSession session;
};

TEST_F(PushedOntoTheSeparator, IsNotCheckedBeforeTheView)
{
    EXPECT_EQ(stored(), 3);
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(lastSent(*session.host, "vornMediaType"), "Gloss7") << "forbidden, but nothing has looked";
}

TEST_F(PushedOntoTheSeparator, HasModeZero)
{
    session.open();
    EXPECT_EQ(stored(), 4);
    EXPECT_EQ(tagsOf(*session.popup(1)), (std::vector<int>{1, 2, -3, 123, 5, 6}));
    EXPECT_EQ(session.popup(1)->currentIndex(), 3);
    EXPECT_TRUE(log.contains("LOG got MediaMode: 0 - ---separator---\n"));
    EXPECT_FALSE(isOn(session.slider(7)));
}

TEST_F(PushedOntoTheSeparator, EndsOnTheLastEntryWithTheNextEvent)
{
    session.open();
    log.clear();
    choose(session.popup(2), 2);
    EXPECT_TRUE(log.contains("LOG +++ tag of selected item: 123\n"));
    EXPECT_EQ(stored(), 6);
    EXPECT_EQ(session.popup(1)->currentIndex(), 5);
    EXPECT_FALSE(wasSent(*session.host, "vornMediaType"));
}

TEST_F(PushedOntoTheSeparator, SendsNothingWithASave)
{
    session.open();
    log.clear();
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(stored(), 123);
    EXPECT_FALSE(wasSent(*session.host, "vornMediaType"));
    EXPECT_TRUE(log.contains("LOG Setting Object:vornMediaType to Selection:(null)\n"));
    choose(session.popup(2), 2);
    EXPECT_EQ(stored(), 6);
}

TEST_F(PushedOntoTheSeparator, SendsItsTextWithASaveWithoutThePopUp)
{
    session.open();
    session.context()->controls.popupControls[1] = nullptr;
    session.panel->saveValuesAndReturnError(nullptr);
    EXPECT_EQ(lastSent(*session.host, "vornMediaType"), "---separator---");
}

TEST_F(PushedOntoTheSeparator, HappensInSilence)
{
    session.open();
    choose(session.popup(0), 2); // which forbids nothing
    choose(session.popup(1), 3);
    EXPECT_EQ(session.host->marked("vornMediaType"), "Gloss7");
    choose(session.popup(0), 1);
    EXPECT_EQ(stored(), 4);
    EXPECT_EQ(session.host->marked("vornMediaType"), "Gloss7") << "the host is not told";
    session.panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(stored(), 4) << "read again, moved again";
    EXPECT_EQ(session.popup(1)->currentIndex(), 3);
}

TEST(SeparatorAsFirstEntry, IsWhatEveryUnknownMediaTypeSelects)
{
    CapturedLog log;
    PanelSession session(ppdFixture("custom-first"));
    EXPECT_TRUE(std::string(pairKey(choiceList(*session.context()->ppdOptions, 1), 1)) == "---separator---");
    session.settings().popupSelections[1] = 0;
    log.clear();
    session.open();
    EXPECT_EQ(session.settings().popupSelections[1], 1);
    EXPECT_EQ(session.popup(1)->currentIndex(), 0);
    EXPECT_TRUE(menuItemIsSeparator(session.popup(1), 0));
    EXPECT_EQ(GetComboControlValue(session.popup(1)), 123);
    EXPECT_TRUE(log.contains("LOG got MediaMode: 0 - ---separator---\n"));
}

} // namespace
} // namespace tessarin::test
