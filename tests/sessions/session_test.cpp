// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Golden sessions: every NAME.script in this folder is replayed on the real plug-in, and its trace compared with
// NAME.trace.
//
// The first lines of a script may be remarks for this test:
//   # ppd: NAME            the fixture to open (tests/fixtures/ppd/NAME.ppd; "sample": the sample printer;
//                          anything with a "/" is taken as it stands)
//   # options: --stable    further options of the replay tool
//   # status: 2            the exit status, 0 without this line
//   # error: TEXT          a text that must stand on standard error

#include "tests/sessions/trace_match.h"
#include "tests/support/recording_host.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarin::test {
namespace {

QString folder()
{
    return QStringLiteral(TESSARIN_SOURCE_DIR) + QStringLiteral("/tests/sessions/");
}

QStringList readLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

/// The value of a remark of the script; `otherwise` when it has none.
QString remark(const QStringList &script, const QString &name, const QString &otherwise)
{
    const QString start = QStringLiteral("# %1: ").arg(name);
    for (const QString &line : script) {
        if (line.startsWith(start)) {
            return line.mid(start.size());
        }
    }
    return otherwise;
}

QString ppdPath(const QString &name)
{
    if (name == QLatin1String("sample")) {
        return QString::fromStdString(samplePPD());
    }
    return name.contains(QLatin1Char('/')) ? name : QString::fromStdString(ppdFixture(name.toStdString()));
}

std::vector<std::string> sessionNames()
{
    std::vector<std::string> names;
    const QStringList files = QDir(folder()).entryList({QStringLiteral("*.script")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        names.push_back(file.chopped(7).toStdString());
    }
    return names;
}

class GoldenSession : public testing::TestWithParam<std::string> {};

TEST_P(GoldenSession, GivesTheExpectedTrace)
{
    const QString name = folder() + QString::fromStdString(GetParam());
    const QStringList script = readLines(name + QStringLiteral(".script"));
    const QStringList expected = readLines(name + QStringLiteral(".trace"));
    ASSERT_FALSE(expected.isEmpty()) << "no expected trace: " << qPrintable(name) << ".trace";

    QStringList arguments{QStringLiteral("--ppd"),
                          ppdPath(remark(script, QStringLiteral("ppd"), QStringLiteral("sample")))};
    arguments += remark(script, QStringLiteral("options"), {}).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    arguments += name + QStringLiteral(".script");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess replay;
    replay.setProcessEnvironment(environment);
    replay.setWorkingDirectory(folder());
    replay.start(QStringLiteral(TESSARIN_TEST_BIN "/tessarin-replay"), arguments);
    ASSERT_TRUE(replay.waitForFinished(60000)) << qPrintable(replay.errorString());

    QStringList trace = QString::fromUtf8(replay.readAllStandardOutput()).split(QLatin1Char('\n'));
    trace.removeLast();
    const QString difference = compareTrace(trace, expected);
    EXPECT_TRUE(difference.isEmpty()) << qPrintable(difference);
    const QString errors = QString::fromUtf8(replay.readAllStandardError());
    EXPECT_EQ(replay.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(replay.exitCode(), remark(script, QStringLiteral("status"), QStringLiteral("0")).toInt())
        << qPrintable(errors);
    const QString error = remark(script, QStringLiteral("error"), {});
    EXPECT_TRUE(errors.contains(error)) << qPrintable(errors);
}

INSTANTIATE_TEST_SUITE_P(Sessions, GoldenSession, testing::ValuesIn(sessionNames()),
                         [](const testing::TestParamInfo<std::string> &session) {
                             std::string name = session.param;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(TraceMatch, FindsEachKindOfDifference)
{
    EXPECT_TRUE(compareTrace({"a", "b"}, {"# remark", "a", "", "b"}).isEmpty());
    EXPECT_TRUE(compareTrace({"a", "b", "c"}, {"a", "...", "c"}).isEmpty());
    EXPECT_TRUE(compareTrace({"a", "b"}, {"a", "..."}).isEmpty());
    EXPECT_FALSE(compareTrace({"a", "b"}, {"a"}).isEmpty());
    EXPECT_FALSE(compareTrace({"a"}, {"a", "b"}).isEmpty());
    EXPECT_FALSE(compareTrace({"a", "x"}, {"a", "b"}).isEmpty());
    EXPECT_FALSE(compareTrace({"a", "b"}, {"a", "...", "c"}).isEmpty());
}

TEST(TraceMatch, ComparesTheNamedPartOfAState)
{
    const QString state = QStringLiteral(R"({"state":{"a":[1,{"b":2,"c":3}],"d":[4,5]}})");
    EXPECT_TRUE(compareTrace({state}, {R"({"state":{"a":{"1":{"b":2}},"d":[4,5]}})"}).isEmpty());
    EXPECT_FALSE(compareTrace({state}, {R"({"state":{"a":{"1":{"b":3}}}})"}).isEmpty());
    EXPECT_FALSE(compareTrace({state}, {R"({"state":{"d":[4]}})"}).isEmpty());
    EXPECT_FALSE(compareTrace({state}, {R"({"state":{"d":{"2":5}}})"}).isEmpty());
    EXPECT_FALSE(compareTrace({state}, {R"({"state":{"x":1}})"}).isEmpty());
}

TEST(TraceMatch, ComparesALogLineByItsBeginning)
{
    const QString line = QStringLiteral(R"({"log":"LOG scrollCallback: id=0\n"})");
    EXPECT_TRUE(compareTrace({line}, {R"({"log":{"start":"LOG scrollCallback"}})"}).isEmpty());
    EXPECT_FALSE(compareTrace({line}, {R"({"log":{"start":"LOG other"}})"}).isEmpty());
}

} // namespace
} // namespace tessarin::test
