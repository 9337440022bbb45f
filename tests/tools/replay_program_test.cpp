// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The replay tool's arguments and exit status.

#include "tests/support/recording_host.h"
#include "tests/tools/run_program.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::test {
namespace {

ProgramRun replay(const QStringList &arguments, const QByteArray &script = {})
{
    return runProgram(QStringLiteral("tessarin-replay"), arguments, script);
}

QStringList withPPD(const QStringList &more = {})
{
    return QStringList{QStringLiteral("--ppd"), QString::fromStdString(ppdFixture("minimal"))} + more;
}

bool holds(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

TEST(ReplayProgram, AnEmptyScriptShowsTheFactoryAlone)
{
    const ProgramRun run = replay(withPPD({"--stable"}));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, "{\"log\":\"BEGIN self(<TessarinPDEPlugIn: 0xP>) initWithBundle:(<Bundle: 0xP>, 0xP)\"}\n"
                          "{\"log\":\"END self(<TessarinPDEPlugIn: 0xP>) initWithBundle:=BOOL(YES)\"}\n");
}

TEST(ReplayProgram, RefusesUnusableArguments)
{
    struct Case {
        QStringList arguments;
        const char *reason;
    };
    const std::vector<Case> cases{
        {{}, "--ppd FILE is missing"},
        {withPPD({"--unknown"}), "Unknown option 'unknown'"},
        {withPPD({"a", "b"}), "more than one script"},
        {withPPD({"--language", "xx"}), "no translation into \"xx\""},
        {withPPD({"--language", ""}), "--language needs a language code"},
        {withPPD({"--language", "../de"}), "no translation into \"../de\""},
        {withPPD({"--bundle", "/nonexistent"}), "/nonexistent"},
        {withPPD({"/nonexistent/script"}), "/nonexistent/script"},
    };
    for (const Case &c : cases) {
        const ProgramRun run = replay(c.arguments);
        EXPECT_EQ(run.status, 2) << c.reason;
        EXPECT_TRUE(holds(run.errors, c.reason)) << run.errors;
    }
}

TEST(ReplayProgram, StopsAtALineThatIsNotUnderstood)
{
    struct Case {
        const char *line;
        const char *reason;
    };
    const std::vector<Case> cases{
        {"{\"do\":\"dance\"}", "line 2: unknown command \"dance\""},
        {"{\"do\":\"tab\"}", "line 2: \"tab\" needs the field \"position\""},
        {"{\"do\":\"tab\",\"position\":\"1\"}", "line 2: the field \"position\" of \"tab\" is of the wrong type"},
        {"{\"do\":\"tab\",\"position\":1.5}", "line 2: the field \"position\" of \"tab\" is of the wrong type"},
        {"{\"do\":\"check\",\"id\":1,\"on\":1}", "line 2: the field \"on\" of \"check\" is of the wrong type"},
        {"{\"do\":\"mark\",\"key\":null,\"choice\":\"a\"}", "line 2: the field \"key\" of \"mark\""},
        {"{\"do\":\"panels\",\"type\":null}", "line 2: the field \"type\" of \"panels\""},
        {"{\"do\":7}", "line 2: no text field \"do\""},
        {"[]", "line 2: not a JSON object"},
        {"{\"do\":\"panels\"", "line 2: "},
    };
    for (const Case &c : cases) {
        const QByteArray script = QByteArray("\n") + c.line + "\n{\"do\":\"newPanel\"}\n";
        const ProgramRun run = replay(withPPD({"--quiet-log"}), script);
        EXPECT_EQ(run.status, 2) << c.line;
        EXPECT_EQ(run.output, "") << c.line;
        EXPECT_TRUE(holds(run.errors, c.reason)) << run.errors;
    }
}

TEST(ReplayProgram, RunsTheLinesBeforeOneThatIsNotUnderstood)
{
    const ProgramRun run = replay(withPPD({"--quiet-log"}), "{\"do\":\"panels\"}\nnonsense\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "{\"do\":\"panels\"}\n{\"result\":\"panels\",\"value\":1}\n");
}

TEST(ReplayProgram, AcceptsNullWhereAnArgumentMayBeAbsent)
{
    const ProgramRun run =
        replay(withPPD(), "{\"do\":\"panels\"}\n{\"do\":\"hostChange\",\"key\":null,\"choice\":null}");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(holds(run.output, "LOG PPDOptionKeyValueDidChange:((null)) ppdChoice:((null))\"}"));
}

TEST(ReplayProgram, GivesTheSameStableTraceTwice)
{
    const QByteArray script =
        "{\"do\":\"panels\"}\n{\"do\":\"panelView\"}\n{\"do\":\"restore\"}\n{\"do\":\"state\"}\n";
    const ProgramRun first = replay(withPPD({"--stable"}), script);
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(first.output, replay(withPPD({"--stable"}), script).output);
}

TEST(ReplayProgram, SpeaksTheLanguageItIsAskedFor)
{
    const QByteArray script = "{\"do\":\"panels\"}\n{\"do\":\"panelName\"}\n";
    EXPECT_TRUE(holds(replay(withPPD({"--quiet-log"}), script).output, "\"Tessarin Settings\""));
    qputenv("LANGUAGE", "de");
    EXPECT_TRUE(holds(replay(withPPD({"--quiet-log"}), script).output, "\"Tessarin Settings\""));
    qunsetenv("LANGUAGE");
}

TEST(ReplayProgram, ReadsAScriptFileAndStandardInputAlike)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("script"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\"do\":\"newPanel\"}");
    file.close();
    const std::string expected = "{\"do\":\"newPanel\"}\n{\"result\":\"newPanel\",\"value\":1}\n";
    EXPECT_EQ(replay(withPPD({"--quiet-log", path})).output, expected);
    EXPECT_EQ(replay(withPPD({"--quiet-log", "-"}), "{\"do\":\"newPanel\"}").output, expected);
}

TEST(ReplayProgram, APPDThatCannotBeOpenedStillGivesItsPath)
{
    const QStringList arguments{"--ppd", "/nonexistent/printer.ppd", "--quiet-log"};
    const ProgramRun run = replay(arguments, "{\"do\":\"panels\"}\n{\"do\":\"state\"}\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(holds(run.output, "\"ppdPath\":\"/nonexistent/printer.ppd\""));
    EXPECT_TRUE(holds(run.output, "\"choices\":[[],[],[],[],[],[],[],[]],\"constraints\":[]"));
}

} // namespace
} // namespace tessarin::test
