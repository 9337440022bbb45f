// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "plugin/log.h"

#include "platform/log_sink.h"
#include "tests/support/captured_log.h"

#include <gtest/gtest.h>

#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace tessarin::test {
namespace {

using Lines = std::vector<std::string>;

const ObjectText kNone{};

TEST(MethodLog, TagsEntryExitAndMessage)
{
    const CapturedLog log;
    const ObjectText self{"<PasswordPDE: 0x7f>"};
    _PDEProlog(self, "willShow:");
    _PDEEpilog(self, "willShow:=void");
    _PDELog(self, "message");
    EXPECT_EQ(log.lines(),
              (Lines{"BEGIN self(<PasswordPDE: 0x7f>) willShow:", "END self(<PasswordPDE: 0x7f>) willShow:=void",
                     "LOG self(<PasswordPDE: 0x7f>) message"}));
}

TEST(MethodLog, WithoutAnObjectHasTagAndMessageOnly)
{
    const CapturedLog log;
    _PDEProlog(kNone, "begin");
    _PDEEpilog(kNone, "end");
    _PDELog(kNone, "message");
    EXPECT_EQ(log.lines(), (Lines{"BEGIN begin", "END end", "LOG message"}));
}

TEST(MethodLog, AppliesTheArgumentsToItsFormat)
{
    const CapturedLog log;
    const void *nowhere = nullptr;
    _PDELog(kNone, "%@ %p %p %d", ObjectText{"object"}, reinterpret_cast<const void *>(0xab), nowhere, 5);
    _PDELog(ObjectText{"me"}, "%@", kNone);
    EXPECT_EQ(log.lines(), (Lines{"LOG object 0xab 0x0 5", "LOG self(me) (null)"}));
}

TEST(MethodLog, DoesNotRewriteItsFormat)
{
    const CapturedLog log;
    _PDELog(kNone, "%s", "zero-terminated");
    _PDEProlog(kNone, "%S", "text");
    EXPECT_EQ(log.lines(), (Lines{"LOG zero-terminated", "BEGIN %S"}));
}

TEST(MethodLog, TakesTheObjectsDescriptionAsPartOfTheFormat)
{
    const CapturedLog log;
    _PDELog(ObjectText{"50%d"}, "then %d", 1, 2);
    _PDEProlog(ObjectText{"100%%"}, "text");
    _PDEEpilog(ObjectText{"%n%s"}, "text");
    EXPECT_EQ(log.lines(), (Lines{"LOG self(501) then 2", "BEGIN self(100%) text", "END self(%n%s) text"}));
}

TEST(MethodLog, DoesNotCutItsFormat)
{
    const CapturedLog log;
    _PDELog(kNone, std::string(300, 'x'));
    EXPECT_EQ(log.lines(), Lines{"LOG " + std::string(300, 'x')});
}

TEST(VerboseLog, WritesAZeroTerminatedStringForACapitalS)
{
    const CapturedLog log;
    _VERBOSE("PRINTERNAME:    '%S'\n", "sample");
    EXPECT_EQ(log.lines(), Lines{"LOG PRINTERNAME:    'sample'\n"});
}

TEST(VerboseLog, WritesAnObjectForASmallS)
{
    const CapturedLog log;
    _VERBOSE("Textstring = %s\n", makeString(std::string("Black")));
    _VERBOSE("(%s) (%s)", ObjectText{"object"}, StringRef());
    EXPECT_EQ(log.lines(), (Lines{"LOG Textstring = Black\n", "LOG (object) ((null))"}));
}

TEST(VerboseLog, WritesNoObjectForACapitalS)
{
    const CapturedLog log;
    _VERBOSE("%S", ObjectText{"object"});
    _VERBOSE("%s", "zero-terminated");
    EXPECT_EQ(log.lines(), (Lines{"LOG %s", "LOG %@"})) << "neither fits the argument it is given";
}

TEST(VerboseLog, WritesAZeroTerminatedStringForAConversionWithAPrecision)
{
    const CapturedLog log;
    _VERBOSE("*****parse PPD-File: %.200s\n", "/etc/x.ppd");
    _VERBOSE("%.3s|%.100s", "abcdef", "abc");
    EXPECT_EQ(log.lines(), (Lines{"LOG *****parse PPD-File: /etc/x.ppd\n", "LOG abc|abc"}));
}

TEST(VerboseLog, RewritesItsFormat)
{
    struct Case {
        const char *format;
        const char *rewritten;
    };
    constexpr Case cases[] = {
        {"%s", "%@"},
        {"%S", "%s"},
        {"%S%s%S", "%s%@%s"},
        {"%s%s%s", "%@%@%@"},
        {"%%s", "%%@"},
        {"%%S", "%%s"},
        {"%.200s %5s %-S", "%.200s %5s %-S"},
        {"%d %p %f %@ S s", "%d %p %f %@ S s"},
        {"no conversion", "no conversion"},
        {"", ""},
    };
    for (const Case &entry : cases) {
        EXPECT_EQ(rewriteVerboseFormat(entry.format), entry.rewritten) << entry.format;
    }
}

TEST(VerboseLog, TakesAPercentSignBeforeAnSForAConversionEvenWhenItIsDoubled)
{
    const CapturedLog log;
    _VERBOSE("100%%s");
    EXPECT_EQ(log.lines(), Lines{"LOG 100%@"});
}

TEST(VerboseLog, KeepsTheFirst255CharactersOfItsFormat)
{
    const CapturedLog log;
    _VERBOSE(std::string(255, 'a'));
    _VERBOSE(std::string(256, 'b'));
    _VERBOSE(std::string(300, 'c'));
    EXPECT_EQ(log.lines(), (Lines{"LOG " + std::string(255, 'a'), "LOG " + std::string(255, 'b'),
                                  "LOG " + std::string(255, 'c')}));
}

TEST(VerboseLog, CutsBeforeItRewrites)
{
    const CapturedLog log;
    const std::string filler(253, 'x');
    _VERBOSE(filler + "%S", "in");
    _VERBOSE(filler + "x%S", "out");
    _VERBOSE(filler + "%S and more", "in");
    EXPECT_EQ(log.lines(), (Lines{"LOG " + filler + "in", "LOG " + filler + "x%", "LOG " + filler + "in"}));
}

TEST(VerboseLog, DoesNotCutItsArguments)
{
    const CapturedLog log;
    const std::string text(1000, 'x');
    _VERBOSE("%S", text);
    EXPECT_EQ(log.lines(), Lines{"LOG " + text});
}

TEST(VerboseLog, KeepsLineEndsAsTheyAre)
{
    const CapturedLog log;
    _VERBOSE("\n!!!leading");
    _VERBOSE("trailing\n");
    _VERBOSE("both\n\n");
    _VERBOSE("none");
    _VERBOSE("\n");
    _VERBOSE("");
    EXPECT_EQ(log.lines(),
              (Lines{"LOG \n!!!leading", "LOG trailing\n", "LOG both\n\n", "LOG none", "LOG \n", "LOG "}));
}

TEST(VerboseLog, DoesNotCountItsArguments)
{
    const CapturedLog log;
    _VERBOSE("%S %d %s");
    _VERBOSE("%d", 1, 2, 3);
    EXPECT_EQ(log.lines(), (Lines{"LOG %s %d %@", "LOG 1"}));
}

TEST(VerboseLog, WritesArgumentsThatLookLikeFormatsAsTheyAre)
{
    const CapturedLog log;
    _VERBOSE("%S", "50% of %d %s %n %@");
    EXPECT_EQ(log.lines(), Lines{"LOG 50% of %d %s %n %@"});
}

TEST(Printlog, TakesTheTextItselfAsTheFormat)
{
    const CapturedLog log;
    Printlog("Setting inkChannels\n");
    Printlog("100%%");
    EXPECT_EQ(log.lines(), (Lines{"LOG Setting inkChannels\n", "LOG 100%"}));
}

TEST(Printlog, SurvivesAnyPercentSign)
{
    const CapturedLog log;
    Printlog("%d%n%p%999999999d%");
    Printlog("%s %S");
    EXPECT_EQ(log.lines(), (Lines{"LOG %d%n%p%999999999d%", "LOG %@ %s"}));
}

TEST(Printlog, CutsLikeEveryFormat)
{
    const CapturedLog log;
    Printlog(std::string(300, 'x').c_str());
    EXPECT_EQ(log.lines(), Lines{"LOG " + std::string(255, 'x')});
}

TEST(Printlog, OfATextMadeBeforehandReadsTheConversionsOfC)
{
    const CapturedLog log;
    printlogFormatted("colmode=%d\n", 3);
    printlogFormatted("colmodename=%s\n", "CMYKproof");
    const char *none = nullptr;
    printlogFormatted("RGB-Mode - %s\n", none);
    EXPECT_EQ(log.lines(), (Lines{"LOG colmode=3\n", "LOG colmodename=CMYKproof\n", "LOG RGB-Mode - (null)\n"}));
}

TEST(Printlog, OfATextMadeBeforehandTakesTheResultForAFormatAgain)
{
    const CapturedLog log;
    printlogFormatted("colmodename=%s\n", "50%d %s %n");
    EXPECT_EQ(log.lines(), Lines{"LOG colmodename=50%d %@ %n\n"});
}

TEST(Printlog, OfATextMadeBeforehandGoesThroughABufferOf128Bytes)
{
    const CapturedLog log;
    printlogFormatted("%s", std::string(127, 'a').c_str());
    printlogFormatted("%s", std::string(128, 'b').c_str());
    EXPECT_EQ(log.lines(), (Lines{"LOG " + std::string(127, 'a'), "LOG " + std::string(127, 'b')}));
}

TEST(Log, HandsEachLineOverInOneCallOnAnyThread)
{
    std::mutex mutex;
    std::multiset<std::string> lines;
    setLogSink([&](std::string_view line) {
        const std::lock_guard<std::mutex> guard(mutex);
        lines.emplace(line);
    });
    constexpr int threads = 4;
    constexpr int calls = 200;
    std::vector<std::thread> running;
    running.reserve(threads);
    for (int thread = 0; thread < threads; ++thread) {
        running.emplace_back([thread] {
            for (int call = 0; call < calls; ++call) {
                _VERBOSE("thread %d says '%S'\n", thread, "something");
            }
        });
    }
    for (std::thread &thread : running) {
        thread.join();
    }
    setLogSink([](std::string_view) {});
    EXPECT_EQ(lines.size(), static_cast<std::size_t>(threads * calls));
    for (int thread = 0; thread < threads; ++thread) {
        EXPECT_EQ(lines.count("LOG thread " + std::to_string(thread) + " says 'something'\n"),
                  static_cast<std::size_t>(calls));
    }
}

} // namespace
} // namespace tessarin::test
