// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The program with arguments and files that cannot be: what it says, and what it takes to find out.

#include "tests/host/host_test_support.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

struct Ended {
    int code = -1;
    QString output{};
    QString errors{};
};

/// Runs the program without a display and without a print server, in a folder of its own.
class Program {
public:
    Program()
    {
        for (const auto &name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"TESSARIN_BUNDLE"_s}) {
            environment_.remove(name);
        }
        environment_.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment_.insert(u"CUPS_SERVER"_s, u"localhost:1"_s);
        // A sanitizer would keep what was freed, and memory is measured here.
        environment_.insert(u"ASAN_OPTIONS"_s, environment_.value(u"ASAN_OPTIONS"_s) + u":quarantine_size_mb=1"_s);
        environment_.insert(u"XDG_CONFIG_HOME"_s, path(u"config"_s));
        test::writeFile(path(u"a.txt"_s), "hello");
        QDir(folder_.path()).mkdir(u"folder"_s);
    }

    QString path(const QString &name) const { return folder_.filePath(name); }

    Ended run(const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment_);
        process.setWorkingDirectory(folder_.path());
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(QStringLiteral(TESSARIN_TEST_BIN "/tessarin-print"),
                      QStringList{u"--bundle"_s, QStringLiteral(TESSARIN_TEST_BUNDLE)} + arguments);
        if (!process.waitForFinished(300000) || process.exitStatus() != QProcess::NormalExit) {
            ADD_FAILURE() << "the program did not end by itself: " << process.errorString().toStdString();
            process.kill();
        }
        return {.code = process.exitCode(),
                .output = QString::fromUtf8(process.readAllStandardOutput()),
                .errors = QString::fromUtf8(process.readAllStandardError())};
    }

private:
    QTemporaryDir folder_{};
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

struct BadArguments {
    const char *name;
    QStringList arguments;
    int code;
    QString message;

    friend void PrintTo(const BadArguments &row, std::ostream *out) { *out << row.name; }
};

class BadUsage : public testing::TestWithParam<BadArguments> {};

TEST_P(BadUsage, IsToldOnceAndPrintsNothing)
{
    const Program program;
    const Ended ended = program.run(GetParam().arguments);
    EXPECT_EQ(ended.code, GetParam().code);
    EXPECT_EQ(ended.output, QString());
    EXPECT_EQ(ended.errors.count(u"tessarin-print: "_s), 1) << ended.errors.toStdString();
    EXPECT_TRUE(ended.errors.contains(GetParam().message)) << ended.errors.toStdString();
}

QStringList withSample(const QStringList &arguments)
{
    return QStringList{u"--ppd"_s, test::fixture("minimal.ppd"), u"--no-dialog"_s, u"a.txt"_s} + arguments;
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, BadUsage,
    testing::Values(
        BadArguments{"option_without_key", withSample({u"-o"_s, u"=1"_s}), 2, u"-o =1: there is no key"_s},
        BadArguments{"empty_option", withSample({u"-o"_s, u""_s}), 2, u"there is no key before the \"=\""_s},
        BadArguments{"option_without_value", withSample({u"-o"_s}), 2, u"usage: Missing value after '-o'"_s},
        BadArguments{"unknown_choice", withSample({u"-o"_s, u"vornMediaType=Unheard"_s}), 2,
                     u"not possible on this printer: vornMediaType=Unheard"_s},
        BadArguments{"word_for_a_number", withSample({u"-o"_s, u"vornBrightness=abc"_s}), 2,
                     u"not possible on this printer: vornBrightness=abc"_s},
        BadArguments{"number_beyond_the_slider", withSample({u"-o"_s, u"vornBrightness=99999999999999"_s}), 2,
                     u"not possible on this printer: vornBrightness=99999999999999"_s},
        BadArguments{"newline_in_a_choice", withSample({u"-o"_s, u"vornMediaType=Photo6\nPlain0"_s}), 2,
                     u"not possible on this printer: vornMediaType=Photo6\nPlain0"_s},
        BadArguments{"no_copies", withSample({u"-n"_s, u"0"_s}), 2, u"-n 0: not a number of copies"_s},
        BadArguments{"fewer_than_no_copies", withSample({u"-n"_s, u"-1"_s}), 2, u"-n -1: not a number of copies"_s},
        BadArguments{"too_many_copies", withSample({u"-n"_s, u"10000"_s}), 2, u"-n 10000: not a number"_s},
        BadArguments{"copies_beyond_every_number", withSample({u"-n"_s, u"99999999999999999999"_s}), 2,
                     u"-n 99999999999999999999: not a number of copies"_s},
        BadArguments{"copies_with_a_letter", withSample({u"-n"_s, u"2x"_s}), 2, u"-n 2x: not a number of copies"_s},
        BadArguments{"copies_as_an_option", withSample({u"-o"_s, u"copies=-1"_s}), 2, u"copies=-1"_s},
        BadArguments{"pages_backwards", withSample({u"-P"_s, u"3-1"_s}), 2, u"-P 3-1: page ranges: "_s},
        BadArguments{"unheard_pages_on_a_sheet", withSample({u"-o"_s, u"number-up=3"_s}), 2, u"number-up=3"_s},
        BadArguments{"unknown_preset", withSample({u"--preset"_s, u"nowhere"_s}), 2, u"preset nowhere: "_s},
        BadArguments{"summary_of_another_form", withSample({u"--summary=xml"_s}), 2,
                     u"--summary xml: not a form"_s},
        BadArguments{"unknown_language", withSample({u"--language"_s, u"xx"_s}), 5, u"\"xx\""_s},
        BadArguments{"folder_for_a_ticket", withSample({u"--ticket"_s, u"folder"_s}), 2, u"ticket file folder: "_s},
        BadArguments{"folder_as_document", withSample({u"folder"_s}), 4, u"document folder: it is a directory"_s},
        BadArguments{"missing_document", withSample({u"missing"_s}), 4, u"document missing: "_s},
        BadArguments{"folder_as_printer", {u"--ppd"_s, u"folder"_s}, 3, u"folder: it is a directory"_s},
        BadArguments{
            "queue_without_a_name", {u"-d"_s, u"/"_s, u"a.txt"_s}, 2, u"--printer /: no name of a queue"_s},
        BadArguments{
            "two_kinds_of_printer", {u"--sample"_s, u"-d"_s, u"x"_s, u"a.txt"_s}, 2, u"one printer at a time"_s},
        BadArguments{"printing_and_not", withSample({u"--summary"_s}), 2, u"--no-dialog prints, which"_s}),
    [](const testing::TestParamInfo<BadArguments> &row) { return std::string(row.param.name); });

/// Writes a compressed file: a PPD, then `piece` again and again.
void writeBomb(const QString &path, const QByteArray &piece, qint64 bytes)
{
    gzFile file = gzopen(QFile::encodeName(path).constData(), "wb6");
    ASSERT_NE(file, nullptr);
    const QByteArray start = test::readFile(test::fixture("minimal.ppd"));
    ASSERT_EQ(gzwrite(file, start.constData(), static_cast<unsigned>(start.size())), start.size());
    const QByteArray block = piece.repeated((1 << 20) / piece.size());
    for (qint64 written = 0; written < bytes; written += block.size()) {
        ASSERT_EQ(gzwrite(file, block.constData(), static_cast<unsigned>(block.size())), block.size());
    }
    ASSERT_EQ(gzclose(file), Z_OK);
}

struct Bomb {
    const char *name;
    QByteArray piece;

    friend void PrintTo(const Bomb &row, std::ostream *out) { *out << row.name; }
};

class CompressedBomb : public testing::TestWithParam<Bomb> {};

TEST_P(CompressedBomb, IsRefusedInLessMemoryThanItUnfoldsTo)
{
    constexpr qint64 kUnfolded = 300'000'000;
    const Program program;
    const QString path = program.path(u"bomb.ppd"_s);
    ASSERT_NO_FATAL_FAILURE(writeBomb(path, GetParam().piece, kUnfolded));
    EXPECT_LT(QFileInfo(path).size(), 3'000'000);
    const Ended ended = program.run({u"--ppd"_s, path, u"--summary"_s});
    EXPECT_EQ(ended.code, 3);
    EXPECT_TRUE(ended.errors.contains(u"bomb.ppd: it is larger than 24 MiB, or damaged"_s))
        << ended.errors.toStdString();
    struct rusage children = {};
    ASSERT_EQ(getrusage(RUSAGE_CHILDREN, &children), 0);
    EXPECT_LT(children.ru_maxrss * 1024, kUnfolded);
}

INSTANTIATE_TEST_SUITE_P(Contents, CompressedBomb,
                         testing::Values(Bomb{"zero_bytes", QByteArray(64, '\0')},
                                         Bomb{"one_line", QByteArray(64, 'x')}, Bomb{"attributes", "*A: \"\"\n"},
                                         Bomb{"empty_lines", "\n"}),
                         [](const testing::TestParamInfo<Bomb> &row) { return std::string(row.param.name); });

TEST(TicketToAPipe, ThatNobodyReadsIsToldAtOnce)
{
    const Program program;
    const QString path = program.path(u"pipe"_s);
    ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
    const Ended ended = program.run(withSample({u"--ticket"_s, path}));
    EXPECT_EQ(ended.code, 2);
    EXPECT_TRUE(ended.errors.contains(u"ticket file %1: "_s.arg(path))) << ended.errors.toStdString();
}

TEST(TicketToAPipe, LeavesThePipeThere)
{
    const Program program;
    const QByteArray path = program.path(u"pipe"_s).toUtf8();
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    const int reader = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    const Ended ended = program.run(withSample({u"--ticket"_s, QString::fromUtf8(path)}));
    EXPECT_EQ(ended.code, 0) << ended.errors.toStdString();
    QByteArray ticket(4096, '\0');
    const ssize_t size = read(reader, ticket.data(), static_cast<std::size_t>(ticket.size()));
    close(reader);
    EXPECT_TRUE(ticket.left(std::max<ssize_t>(size, 0)).contains("vornMediaType=")) << ticket.constData();
    struct stat status = {};
    ASSERT_EQ(stat(path.constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

} // namespace
} // namespace tessarin::host
