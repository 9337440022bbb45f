// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/command_line.h"

#include "tests/host/host_test_support.h"

#include <gtest/gtest.h>

#include <array>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

Outcome<CommandLine> parse(const QStringList &arguments)
{
    return parseCommandLine(QStringList{u"tessarin-print"_s} + arguments);
}

TEST(CommandLine, AsksForNothingByDefault)
{
    const auto line = parse({});
    ASSERT_TRUE(line.ok()) << line.reason().toStdString();
    EXPECT_TRUE(line.value().ppdFile.isEmpty());
    EXPECT_TRUE(line.value().queue.isEmpty());
    EXPECT_TRUE(line.value().picturesDirectory.isEmpty());
    EXPECT_TRUE(line.value().documents.isEmpty());
}

TEST(CommandLine, ReadsEveryOption)
{
    const auto line =
        parse({u"--printer"_s, u"office/draft"_s, u"--ticket"_s, u"t.txt"_s, u"--log=stderr"_s, u"--bundle"_s,
               u"b"_s, u"--language"_s, u"pt_BR"_s, u"--pictures"_s, u"p"_s, u"a.pdf"_s, u"-"_s});
    ASSERT_TRUE(line.ok()) << line.reason().toStdString();
    EXPECT_EQ(line.value().queue, u"office/draft"_s);
    EXPECT_EQ(line.value().ticketFile, u"t.txt"_s);
    EXPECT_EQ(line.value().log, u"stderr"_s);
    EXPECT_EQ(line.value().bundle, u"b"_s);
    EXPECT_EQ(line.value().language, u"pt_BR"_s);
    EXPECT_EQ(line.value().picturesDirectory, u"p"_s);
    EXPECT_EQ(line.value().documents, (QStringList{u"a.pdf"_s, u"-"_s}));
}

TEST(CommandLine, KnowsTheShortNameOfPrinter)
{
    const auto line = parse({u"-d"_s, u"office"_s, u"a.pdf"_s});
    ASSERT_TRUE(line.ok());
    EXPECT_EQ(line.value().queue, u"office"_s);
}

TEST(CommandLine, TakesWhatFollowsTwoDashesForDocuments)
{
    const auto line = parse({u"--"_s, u"--ppd"_s});
    ASSERT_TRUE(line.ok());
    EXPECT_EQ(line.value().documents, QStringList{u"--ppd"_s});
}

TEST(CommandLine, NeedsNoDocumentForPicturesOfAQueue)
{
    EXPECT_TRUE(parse({u"-d"_s, u"office"_s, u"--pictures"_s, u"p"_s}).ok());
}

struct WrongUsage {
    const char *name;
    QStringList arguments;
    QString mentions;

    friend void PrintTo(const WrongUsage &row, std::ostream *out) { *out << row.name; }
};

class CommandLineWrong : public testing::TestWithParam<WrongUsage> {};

TEST_P(CommandLineWrong, IsRefusedWithAReason)
{
    const auto line = parse(GetParam().arguments);
    EXPECT_FALSE(line.ok());
    EXPECT_TRUE(line.reason().startsWith(u"usage: "_s)) << line.reason().toStdString();
    EXPECT_TRUE(line.reason().contains(GetParam().mentions)) << line.reason().toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Usage, CommandLineWrong,
    testing::Values(WrongUsage{"two_printers", {u"--ppd"_s, u"a"_s, u"--printer"_s, u"b"_s, u"c"_s}, u"--ppd"_s},
                    WrongUsage{"queue_without_document", {u"-d"_s, u"office"_s}, u"no document"_s},
                    WrongUsage{"unknown_option", {u"--nope"_s}, u"nope"_s},
                    WrongUsage{"missing_value", {u"--ppd"_s}, u"ppd"_s},
                    WrongUsage{"empty_value", {u"--ppd="_s}, u"--ppd"_s},
                    WrongUsage{"empty_document", {u""_s}, u"empty name"_s},
                    WrongUsage{"standard_input_twice", {u"-"_s, u"-"_s}, u"only once"_s},
                    WrongUsage{"language_that_leaves_its_folder", {u"--language"_s, u"../de"_s}, u"../de"_s}),
    [](const testing::TestParamInfo<WrongUsage> &row) { return std::string(row.param.name); });

TEST(CommandLine, FindsHelpAndVersionAnywhereBeforeTwoDashes)
{
    const std::array<const char *, 4> help = {"p", "--nope", "--help", "x"};
    EXPECT_TRUE(asksForHelp(4, help.data()));
    EXPECT_FALSE(asksForVersion(4, help.data()));
    const std::array<const char *, 3> version = {"p", "-v", "x"};
    EXPECT_TRUE(asksForVersion(3, version.data()));
    const std::array<const char *, 3> document = {"p", "--", "-h"};
    EXPECT_FALSE(asksForHelp(3, document.data()));
}

TEST(CommandLine, NamesEveryOptionAndExitCodeInTheHelpText)
{
    const QString text = helpText();
    for (const char *word : {"--ppd", "--printer", "--ticket", "--log", "--bundle", "--language", "--pictures",
                             "--summary", "--help", "--version", "5 plug-in"}) {
        EXPECT_TRUE(text.contains(QLatin1String(word))) << word;
    }
}

} // namespace
} // namespace tessarin::host
