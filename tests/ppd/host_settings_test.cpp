// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The two calls that send a choice to the host.

#include "ppd/option_access.h"

#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

using Changes = std::vector<Change>;

class HostSettings : public testing::Test {
protected:
    RecordingHost host;
    TestContext context{host};
    CapturedLog log;
};

TEST_F(HostSettings, AskGivesTheHostsAnswer)
{
    host.refusedKeys = {"vornRefused"};
    EXPECT_TRUE(MySetPPDOption(context, "vornMediaType", "Photo6"));
    EXPECT_FALSE(MySetPPDOption(context, "vornRefused", "1"));
    EXPECT_EQ(host.changes, (Changes{{"vornMediaType", "Photo6"}, {"vornRefused", "1"}}));
    EXPECT_EQ(log.lines(), logged({"SetOption 'vornMediaType'='Photo6' result = 1\n",
                                   "SetOption 'vornRefused'='1' result = 0\n"}));
}

TEST_F(HostSettings, AskLogsAfterTheCall)
{
    std::size_t linesBefore = 99;
    host.onChange = [&](const Change &) { linesBefore = log.lines().size(); };
    MySetPPDOption(context, "a", "b");
    EXPECT_EQ(linesBefore, 0U);
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST_F(HostSettings, SendLogsBeforeTheCallAndIgnoresTheAnswer)
{
    host.refusedKeys = {"vornNoPrint"};
    Lines before;
    host.onChange = [&](const Change &) { before = log.lines(); };
    setPPDValue(context, 0, "vornNoPrint", "1");
    EXPECT_EQ(before, logged({"Setting Object:vornNoPrint to Selection:1\n"}));
    EXPECT_EQ(log.lines(), before);
    EXPECT_EQ(host.changes, (Changes{{"vornNoPrint", "1"}}));
}

TEST_F(HostSettings, SendDoesNotReadItsSecondArgument)
{
    setPPDValue(context, 12345, "a", "b");
    EXPECT_EQ(host.changes, (Changes{{"a", "b"}}));
}

TEST_F(HostSettings, NullKeywordOrChoiceMakesNoCallButIsLogged)
{
    setPPDValue(context, 0, nullptr, "1");
    setPPDValue(context, 0, "vornMediaType", nullptr);
    EXPECT_FALSE(MySetPPDOption(context, nullptr, "1"));
    EXPECT_FALSE(MySetPPDOption(context, "vornMediaType", nullptr));
    EXPECT_EQ(host.changes, Changes{});
    EXPECT_EQ(
        log.lines(),
        logged({"Setting Object:(null) to Selection:1\n", "Setting Object:vornMediaType to Selection:(null)\n",
                "SetOption '(null)'='1' result = 0\n", "SetOption 'vornMediaType'='(null)' result = 0\n"}));
}

TEST_F(HostSettings, WithoutAHostNothingIsAskedButAllIsLogged)
{
    context->callbackObject = nullptr;
    EXPECT_FALSE(MySetPPDOption(context, "vornMediaType", "Photo6"));
    setPPDValue(context, 0, "vornMediaType", "Photo6");
    EXPECT_EQ(host.changes, Changes{});
    EXPECT_EQ(log.lines(), logged({"SetOption 'vornMediaType'='Photo6' result = 0\n",
                                   "Setting Object:vornMediaType to Selection:Photo6\n"}));
}

TEST_F(HostSettings, TextsReachTheHostAsTheyAre)
{
    for (const char *choice : {"%n%s", "&", "<b>", "'\"\\\n", "",
                               "Gr\xC3\xB6\xC3\x9F"
                               "e",
                               "\xE7\xB4\x99", "\xF0\x9F\x96\xA8", "*Star", "---separator---"}) {
        host.changes.clear();
        EXPECT_TRUE(MySetPPDOption(context, "vornMediaType", choice)) << choice;
        setPPDValue(context, 0, "vornMediaType", choice);
        EXPECT_EQ(host.changes, (Changes{{"vornMediaType", choice}, {"vornMediaType", choice}})) << choice;
        EXPECT_TRUE(log.contains(std::string("LOG SetOption 'vornMediaType'='") + choice + "' result = 1\n"));
        EXPECT_TRUE(log.contains(std::string("LOG Setting Object:vornMediaType to Selection:") + choice + "\n"));
    }
}

TEST_F(HostSettings, EmptyTextIsNoAbsentText)
{
    class EmptyTextHost : public RecordingHost {
    public:
        bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override
        {
            sawNull = sawNull || key.isNull() || choice.isNull();
            return RecordingHost::willChangePPDOptionKeyValue(key, choice);
        }
        bool sawNull = false;
    };
    EmptyTextHost emptyTextHost;
    context->callbackObject = &emptyTextHost;
    setPPDValue(context, 0, "", "");
    EXPECT_EQ(emptyTextHost.changes, (Changes{{"", ""}}));
    EXPECT_FALSE(emptyTextHost.sawNull);
}

TEST_F(HostSettings, BytesThatAreNoUtf8AreNotSent)
{
    for (const char *text : {"\xFF",
                             "Gr\xF6\xDF"
                             "e",
                             "\xC3", "\xE7\xB4", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "ok\x80"}) {
        EXPECT_FALSE(MySetPPDOption(context, "vornMediaType", text));
        EXPECT_FALSE(MySetPPDOption(context, text, "Photo6"));
        setPPDValue(context, 0, "vornMediaType", text);
        setPPDValue(context, 0, text, "Photo6");
    }
    EXPECT_EQ(host.changes, Changes{});
    EXPECT_EQ(log.countStarting("LOG SetOption '"), 16);
    EXPECT_EQ(log.countStarting("LOG Setting Object:"), 16);
}

TEST_F(HostSettings, TextsOfAnyLengthAreSentWhole)
{
    const std::string longText(5000, 'x');
    EXPECT_TRUE(MySetPPDOption(context, longText.c_str(), longText.c_str()));
    EXPECT_EQ(host.changes, (Changes{{longText, longText}}));
}

} // namespace
} // namespace tessarin::test
