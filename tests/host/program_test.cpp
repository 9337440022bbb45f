// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The program itself, as a script meets it: exit codes, standard output, one clear message on standard error.

#include "tests/host/host_test_support.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

struct Ended {
    int code = -1;
    QString output{};
    QString errors{};
};

class ProgramTest : public testing::Test {
protected:
    void SetUp() override
    {
        environment_.remove(u"DISPLAY"_s);
        environment_.remove(u"WAYLAND_DISPLAY"_s);
        environment_.remove(u"TESSARIN_BUNDLE"_s);
        environment_.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment_.insert(u"CUPS_SERVER"_s, u"localhost:1"_s);
        environment_.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    }

    /// A bundle with one of the fake libraries.
    QString bundle(const char *library)
    {
        const QString directory = folder_.filePath(QLatin1String(library));
        QDir().mkpath(directory);
        test::writeFile(directory + u"/bundle.json"_s,
                        R"({"identifier": "org.tessarin.test.fake", "library": "p.so"})");
        QFile::copy(QStringLiteral(TESSARIN_FAKE_PLUGINS "/lib%1.so").arg(QLatin1String(library)),
                    directory + u"/p.so"_s);
        return directory;
    }

    Ended run(const QStringList &arguments)
    {
        QProcess process;
        process.setProcessEnvironment(environment_);
        process.setWorkingDirectory(folder_.path());
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(QStringLiteral(TESSARIN_TEST_BIN "/tessarin-print"), arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) {
            ADD_FAILURE() << "the program did not end by itself: " << process.errorString().toStdString();
            process.kill();
        }
        return {.code = process.exitCode(),
                .output = QString::fromUtf8(process.readAllStandardOutput()),
                .errors = QString::fromUtf8(process.readAllStandardError())};
    }

    QTemporaryDir folder_{};
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

TEST_F(ProgramTest, AnswersHelpAndVersionOnStandardOutput)
{
    const Ended help = run({u"--help"_s, u"--nope"_s});
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.output.contains(u"--printer"_s)) << help.output.toStdString();
    const Ended version = run({u"--version"_s});
    EXPECT_EQ(version.code, 0);
    EXPECT_TRUE(version.output.startsWith(u"tessarin-print "_s)) << version.output.toStdString();
}

TEST_F(ProgramTest, HasAnExitCodeForEachKindOfFailureAndSaysWhy)
{
    test::writeFile(folder_.filePath(u"a.txt"_s), "hello");
    struct Row {
        QStringList arguments;
        int code;
        QString message;
    };
    const QString minimal = test::fixture("minimal.ppd");
    const std::vector<Row> rows = {
        {{u"--ppd"_s, u"a"_s, u"-d"_s, u"b"_s}, 2, u"usage: --ppd and --printer cannot be given together"_s},
        {{u"-d"_s, u"office"_s}, 2, u"no document"_s},
        {{u"--log"_s, u"no/such/log"_s}, 2, u"log file no/such/log: "_s},
        {{u"--ppd"_s, u"missing.ppd"_s}, 3, u"PPD file missing.ppd: "_s},
        {{u"-d"_s, u"office"_s, u"--no-dialog"_s, u"a.txt"_s}, 3, u"print server localhost:1: "_s},
        {{u"missing.txt"_s}, 4, u"document missing.txt: "_s},
        {{u"-"_s}, 4, u"document standard input: "_s},
        {{u"--no-dialog"_s, u"--ppd"_s, minimal, u"--bundle"_s, u"missing"_s}, 5, u"plug-in missing: "_s},
        {{u"--no-dialog"_s, u"--ppd"_s, minimal, u"--bundle"_s, bundle("tessarin_fake_newer")}, 5, u"version 2"_s},
    };
    for (const Row &row : rows) {
        const Ended ended = run(row.arguments);
        const std::string shown = row.arguments.join(u' ').toStdString();
        EXPECT_EQ(ended.code, row.code) << shown;
        EXPECT_EQ(ended.output, QString()) << shown;
        EXPECT_EQ(ended.errors.count(u"tessarin-print: "_s), 1) << ended.errors.toStdString();
        EXPECT_TRUE(ended.errors.contains(row.message)) << ended.errors.toStdString();
    }
}

TEST_F(ProgramTest, MakesPicturesAndListsTheOptionsWhenAsked)
{
    const Ended ended = run({u"--ppd"_s, test::fixture("minimal.ppd"), u"--bundle"_s, bundle("tessarin_fake_good"),
                             u"--pictures"_s, u"shots"_s, u"--ticket"_s, u"ticket"_s});
    EXPECT_EQ(ended.code, 0) << ended.errors.toStdString();
    EXPECT_TRUE(ended.output.startsWith(u"vornMediaType=Photo6\nvornBrightness=-7\nvornNoPrint=0\n"_s));
    EXPECT_TRUE(ended.output.contains(u"\nPageSize=A4\n"_s)) << ended.output.toStdString();
    EXPECT_EQ(test::readFile(folder_.filePath(u"ticket"_s)), ended.output.toUtf8());
    EXPECT_TRUE(QFile::exists(folder_.filePath(u"shots/tessarin-page-1-General.png"_s)));
    EXPECT_TRUE(ended.errors.contains(u"nothing was printed"_s)) << ended.errors.toStdString();
}

TEST_F(ProgramTest, SaysHowToGetAWindowWithoutADisplay)
{
    environment_.remove(u"QT_QPA_PLATFORM"_s);
    const Ended ended =
        run({u"--ppd"_s, test::fixture("minimal.ppd"), u"--bundle"_s, bundle("tessarin_fake_good")});
    EXPECT_EQ(ended.code, 0) << ended.errors.toStdString();
    EXPECT_TRUE(ended.output.startsWith(u"vornMediaType="_s)) << ended.output.toStdString();
    EXPECT_TRUE(ended.errors.contains(u"xvfb-run"_s)) << ended.errors.toStdString();
    EXPECT_TRUE(QFile::exists(folder_.filePath(u"tessarin-pages/tessarin-page-1-General.png"_s)));
}

TEST_F(ProgramTest, SaysWhichFolderCannotHoldPictures)
{
    test::writeFile(folder_.filePath(u"file"_s), "x");
    const Ended ended = run({u"--ppd"_s, test::fixture("minimal.ppd"), u"--bundle"_s, bundle("tessarin_fake_good"),
                             u"--pictures"_s, u"file"_s});
    EXPECT_EQ(ended.code, 2);
    EXPECT_TRUE(ended.errors.contains(u"folder for pictures file: "_s)) << ended.errors.toStdString();
}

TEST_F(ProgramTest, SendsTheLogWhereItIsAsked)
{
    const Ended ended = run({u"--ppd"_s, test::fixture("minimal.ppd"), u"--bundle"_s, bundle("tessarin_fake_good"),
                             u"--pictures"_s, u"shots"_s, u"--log"_s, u"stderr"_s});
    EXPECT_TRUE(ended.errors.contains(u"openBundle\n"_s)) << ended.errors.toStdString();
}

} // namespace
} // namespace tessarin::host
