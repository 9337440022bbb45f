// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// One choice at a time: a person's into the ticket, and the host's into the panel.

#include "ppd/ticket.h"

#include "controls/menu_items.h"
#include "platform/popup_button.h"
#include "plugin/string_helpers.h"
#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using Changes = std::vector<Change>;

/// Media types Plain0, Photo6, (separator), Custom1; resolutions of odd names.
class TicketChoice : public testing::Test {
protected:
    TicketChoice()
    {
        fillRow(
            context.table(), 1,
            {{"Plain0", "Plain"}, {"Photo6", "Photo"}, {"---separator---", "---separator---"}, {"Custom1", "c"}});
        fillRow(context.table(), 2, {{"%n%s", "%d"}, {"&", "<b>"}, {"<b>", "&"}, {"\xFF\xFE", "no UTF-8"}});
        context->settings.popupSelections[1] = 1;
        context->settings.popupSelections[2] = 1;
    }

    int selection(std::size_t row = 1) const { return context->settings.popupSelections[row]; }
    /// Answers and log of one call that ends in the host's refusal or acceptance.
    bool save(int row, int number) { return MySaveSettingToTicket(context, row, number); }

    RecordingHost host;
    TestContext context{host};
    CapturedLog log;
};

using ChoiceToTicket = TicketChoice;

TEST_F(ChoiceToTicket, IsSentWithoutTheStarAndStoredWhenAccepted)
{
    EXPECT_TRUE(save(1, 2));
    EXPECT_EQ(host.changes, (Changes{{"vornMediaType", "Photo6"}}));
    EXPECT_EQ(selection(), 2);
    EXPECT_EQ(log.lines(), logged({"SetOption 'vornMediaType'='Photo6' result = 1\n",
                                   "##### setting vornMediaType to Photo6 : result = TRUE\n"}));
}

TEST_F(ChoiceToTicket, IsStoredOnlyAfterTheHostsAnswer)
{
    int during = 0;
    host.onChange = [&](const Change &) { during = selection(); };
    EXPECT_TRUE(save(1, 4));
    EXPECT_EQ(during, 1);
    EXPECT_EQ(selection(), 4);
}

TEST_F(ChoiceToTicket, IsNotStoredWhenRefused)
{
    host.refusedKeys = {"vornMediaType"};
    EXPECT_FALSE(save(1, 2));
    EXPECT_EQ(selection(), 1);
    EXPECT_EQ(log.lines(), logged({"SetOption 'vornMediaType'='Photo6' result = 0\n",
                                   "##### setting vornMediaType to Photo6 : result = FALSE\n"}));
}

TEST_F(ChoiceToTicket, IsRefusedWithoutAHost)
{
    context->callbackObject = nullptr;
    EXPECT_FALSE(save(1, 2));
    EXPECT_EQ(selection(), 1);
    EXPECT_EQ(log.lines().back(), "LOG ##### setting vornMediaType to Photo6 : result = FALSE\n");
}

TEST_F(ChoiceToTicket, ThatNamesNoPairIsRefusedWithoutAsking)
{
    for (const int number : {0, -1, 5, 123, 2147483647}) {
        log.clear();
        EXPECT_FALSE(save(1, number)) << number;
        EXPECT_EQ(log.lines(), logged({"No PPD Options for feature available\n"})) << number;
    }
    EXPECT_FALSE(save(3, 1)) << "an empty list";
    EXPECT_EQ(host.changes, Changes{});
    EXPECT_EQ(selection(), 1);
}

TEST_F(ChoiceToTicket, MayBeTheSeparator)
{
    EXPECT_TRUE(save(1, 3));
    EXPECT_EQ(host.changes, (Changes{{"vornMediaType", "---separator---"}}));
    EXPECT_EQ(selection(), 3);
}

TEST_F(ChoiceToTicket, OnAnOldHostIsAcceptedButNeitherSentNorStored)
{
    context->onTiger = 1;
    EXPECT_TRUE(save(1, 2));
    EXPECT_TRUE(save(1, 99));
    EXPECT_EQ(host.changes, Changes{});
    EXPECT_EQ(selection(), 1);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST_F(ChoiceToTicket, WithAnOddNameIsSentAsItIs)
{
    EXPECT_TRUE(save(2, 1));
    EXPECT_TRUE(save(2, 2));
    EXPECT_TRUE(save(2, 3));
    EXPECT_EQ(host.changes,
              (Changes{{"vornResolution", "%n%s"}, {"vornResolution", "&"}, {"vornResolution", "<b>"}}));
    EXPECT_TRUE(log.contains("LOG SetOption 'vornResolution'='%n%s' result = 1\n"));
    EXPECT_TRUE(log.contains("LOG ##### setting vornResolution to %n%s : result = TRUE\n"));
}

TEST_F(ChoiceToTicket, WithANameThatIsNoUtf8IsNotSent)
{
    EXPECT_FALSE(save(2, 4));
    EXPECT_EQ(host.changes, Changes{});
    EXPECT_EQ(selection(2), 1);
    EXPECT_EQ(log.lines().size(), 2U);
}

TEST_F(ChoiceToTicket, StripsOneStarOfTheKeyword)
{
    pops[1].keyword = "**vornMediaType";
    EXPECT_TRUE(save(1, 2));
    pops[1].keyword = "vornMediaType";
    EXPECT_TRUE(save(1, 2));
    EXPECT_EQ(host.changes, (Changes{{"*vornMediaType", "Photo6"}, {"vornMediaType", "Photo6"}}));
}

class HostChange : public TicketChoice {
protected:
    HostChange()
    {
        for (const int tag : {1, -2, 123, 4}) {
            AddMenuItem(&media, "item", tag);
        }
        media.setCurrentIndex(0);
        context->controls.popupControls[1] = &media;
        log.clear();
    }

    void change(const QString &option, const QString &choice)
    {
        MyPPDOptionHasChanged(context, makeString(option), makeString(choice));
    }

    PopUpButton media;
};

TEST_F(HostChange, SelectsAndStoresTheChoice)
{
    change(QStringLiteral("vornMediaType"), QStringLiteral("Custom1"));
    EXPECT_EQ(media.currentIndex(), 3);
    EXPECT_EQ(selection(), 4);
    EXPECT_EQ(log.lines(), logged({"PPDOptionKeyValueDidChange:(vornMediaType) ppdChoice:(Custom1)",
                                   "SetComboControlValue to #4 of 4\n",
                                   "### System changed PPDitem 'vornMediaType' to selection 'Custom1'\n ###"}));
}

TEST_F(HostChange, IsNotSentBackAndChecksNothing)
{
    setGroups(context.table(), {{1, 3, 2, 0}});
    change(QStringLiteral("vornMediaType"), QStringLiteral("Custom1"));
    EXPECT_EQ(host.changes, Changes{});
    EXPECT_EQ(selection(2), 1) << "a constraint would have moved it";
    EXPECT_FALSE(log.contains("LOG -- check contraints --\n"));
}

TEST_F(HostChange, SelectsAForbiddenEntryToo)
{
    change(QStringLiteral("vornMediaType"), QStringLiteral("Photo6"));
    EXPECT_EQ(media.currentIndex(), 1);
    EXPECT_EQ(selection(), 2);
}

TEST_F(HostChange, ToTheSeparatorIsStoredButNotShown)
{
    change(QStringLiteral("vornMediaType"), QStringLiteral("---separator---"));
    EXPECT_EQ(selection(), 3);
    EXPECT_EQ(media.currentIndex(), 0);
}

TEST_F(HostChange, WithoutAControlIsStored)
{
    context->controls.popupControls[1] = nullptr;
    change(QStringLiteral("vornMediaType"), QStringLiteral("Custom1"));
    EXPECT_EQ(selection(), 4);
    EXPECT_EQ(media.currentIndex(), 0);
}

TEST_F(HostChange, TakesTheFirstOfEqualKeys)
{
    fillRow(context.table(), 1, {{"A", "a"}, {"B", "b"}, {"C", "c"}, {"B", "again"}});
    change(QStringLiteral("vornMediaType"), QStringLiteral("B"));
    EXPECT_EQ(selection(), 2);
}

TEST_F(HostChange, OfWhatIsNoPopUpsOptionOrChoiceChangesNothing)
{
    const std::vector<std::pair<const char *, const char *>> table{{"*vornMediaType", "Custom1"},
                                                                   {"vornmediatype", "Custom1"},
                                                                   {"vornMediaTyp", "Custom1"},
                                                                   {"vornMediaType ", "Custom1"},
                                                                   {"", "Custom1"},
                                                                   {"vornMediaType", "Velvet7"},
                                                                   {"vornMediaType", "custom1"},
                                                                   {"vornMediaType", "c"},
                                                                   {"vornMediaType", ""},
                                                                   {"vornBrightness", "50"},
                                                                   {"vornNoPrint", "1"},
                                                                   {"ColorModel", "RGB"},
                                                                   {"vornIntent", "Custom1"}};
    for (const auto &[option, choice] : table) {
        log.clear();
        change(QString::fromUtf8(option), QString::fromUtf8(choice));
        EXPECT_EQ(log.lines(),
                  logged({std::string("PPDOptionKeyValueDidChange:(") + option + ") ppdChoice:(" + choice + ")"}));
        EXPECT_EQ(selection(), 1);
        EXPECT_EQ(media.currentIndex(), 0);
    }
    EXPECT_EQ(host.changes, Changes{});
}

TEST_F(HostChange, WithoutOptionOrChoiceIsOnlyLogged)
{
    MyPPDOptionHasChanged(context, nullptr, makeString(std::string("Custom1")));
    MyPPDOptionHasChanged(context, makeString(std::string("vornMediaType")), nullptr);
    MyPPDOptionHasChanged(context, nullptr, nullptr);
    EXPECT_EQ(log.lines(), logged({"PPDOptionKeyValueDidChange:((null)) ppdChoice:(Custom1)",
                                   "PPDOptionKeyValueDidChange:(vornMediaType) ppdChoice:((null))",
                                   "PPDOptionKeyValueDidChange:((null)) ppdChoice:((null))"}));
    EXPECT_EQ(selection(), 1);
}

TEST_F(HostChange, TakesTextsOfUpTo63Bytes)
{
    const std::string longest(63, 'k');
    const std::string tooLong(64, 'k');
    fillRow(context.table(), 1, {{tooLong.c_str(), "64"}, {longest.c_str(), "63"}});
    change(QStringLiteral("vornMediaType"), QString::fromStdString(tooLong));
    EXPECT_EQ(selection(), 1) << "not even the key that it equals";
    change(QStringLiteral("vornMediaType"), QString::fromStdString(longest));
    EXPECT_EQ(selection(), 2);
    context->settings.popupSelections[1] = 1;
    pops[1].keyword = tooLong.c_str();
    change(QString::fromStdString(tooLong), QString::fromStdString(longest));
    EXPECT_EQ(selection(), 1);
    pops[1].keyword = longest.c_str();
    change(QString::fromStdString(longest), QString::fromStdString(longest));
    EXPECT_EQ(selection(), 2);
}

TEST_F(HostChange, OfTextsBeyondAsciiIsFollowed)
{
    fillRow(context.table(), 1,
            {{"A", "a"},
             {"Gr\xC3\xB6\xC3\x9F"
              "e7",
              "b"}});
    change(QStringLiteral("vornMediaType"), QString::fromUtf8("Gr\xC3\xB6\xC3\x9F"
                                                              "e7"));
    EXPECT_EQ(selection(), 2);
}

TEST_F(HostChange, OfOddTextsIsLoggedAsItIs)
{
    change(QStringLiteral("%n%s%@"), QStringLiteral("%d%S"));
    change(QStringLiteral("vornResolution"), QStringLiteral("%n%s"));
    EXPECT_EQ(log.lines(), logged({"PPDOptionKeyValueDidChange:(%n%s%@) ppdChoice:(%d%S)",
                                   "PPDOptionKeyValueDidChange:(vornResolution) ppdChoice:(%n%s)",
                                   "### System changed PPDitem 'vornResolution' to selection '%n%s'\n ###"}));
    EXPECT_EQ(selection(2), 1);
}

TEST_F(HostChange, IsFollowedOnAnOldHostToo)
{
    context->onTiger = 1;
    change(QStringLiteral("vornMediaType"), QStringLiteral("Custom1"));
    EXPECT_EQ(selection(), 4);
}

} // namespace
} // namespace tessarin::test
