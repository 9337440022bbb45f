// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/host_printer.h"

#include "tests/host/host_test_support.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

TEST(PpdFilePrinter, IsDescribedByTheFileAsItWasNamed)
{
    const QString path = test::fixture("minimal.ppd");
    const auto printer = HostPrinter::fromPpdFile(path);
    ASSERT_TRUE(printer.ok()) << printer.reason().toStdString();
    EXPECT_EQ(printer.value()->kind(), PrinterKind::PpdFile);
    EXPECT_EQ(printer.value()->descriptionPath(QLatin1String(pde::kPPDDescriptionType)), path);
    EXPECT_EQ(printer.value()->descriptionPath(u"other"_s), std::nullopt);
    EXPECT_EQ(printer.value()->identifier(), u"minimal"_s);
    EXPECT_EQ(printer.value()->displayName(), u"Tessarin Test minimal, 1.0"_s);
}

TEST(SamplePrinter, HasItsOwnIdentifier)
{
    const auto printer = HostPrinter::sample(QStringLiteral(TESSARIN_SAMPLE_PPD));
    ASSERT_TRUE(printer.ok()) << printer.reason().toStdString();
    EXPECT_EQ(printer.value()->kind(), PrinterKind::Sample);
    EXPECT_EQ(printer.value()->identifier(), u"sample"_s);
}

TEST(PpdFilePrinter, HasThePpdsDefaultsMarked)
{
    const auto printer = test::minimalPrinter();
    ASSERT_TRUE(printer);
    const ppd_choice_t *choice = ppdFindMarkedChoice(printer->ppd(), "vornMediaType");
    ASSERT_TRUE(choice);
    EXPECT_STREQ(choice->choice, "Photo6");
}

TEST(PpdFilePrinter, NamesAFileWithoutNicknameByItsIdentifier)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"my.printer.ppd"_s);
    QByteArray text = test::readFile(test::fixture("minimal.ppd"));
    text.replace("*NickName: \"Tessarin Test minimal, 1.0\"\n", "");
    text.replace("*ModelName: \"Tessarin Test minimal\"\n", "");
    test::writeFile(path, text);
    const auto printer = HostPrinter::fromPpdFile(path);
    ASSERT_TRUE(printer.ok()) << printer.reason().toStdString();
    EXPECT_EQ(printer.value()->displayName(), u"my.printer"_s);
}

TEST(PpdFilePrinter, ReadsANicknameInLatin1)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"p.ppd"_s);
    test::writeFile(path, test::readFile(test::fixture("minimal.ppd")).replace("minimal, 1.0", "gr\xfcn"));
    const auto printer = HostPrinter::fromPpdFile(path);
    ASSERT_TRUE(printer.ok()) << printer.reason().toStdString();
    EXPECT_EQ(printer.value()->displayName(), u"Tessarin Test grün"_s);
}

void expectRefused(const QString &path, const QString &why)
{
    const auto printer = HostPrinter::fromPpdFile(path);
    EXPECT_FALSE(printer.ok());
    EXPECT_EQ(printer.reason(), u"PPD file "_s + path + u": "_s + why);
}

TEST(PpdFilePrinter, SaysThatAFileIsMissing)
{
    expectRefused(test::fixture("no-such-file.ppd"), qt_error_string(ENOENT));
}

TEST(PpdFilePrinter, SaysThatAFileIsEmpty)
{
    expectRefused(test::fixture("empty.ppd"), u"the file is empty"_s);
}

TEST(PpdFilePrinter, SaysThatAFileIsADirectory)
{
    QTemporaryDir folder;
    expectRefused(folder.path(), u"it is a directory, not a PPD file"_s);
}

TEST(PpdFilePrinter, DoesNotWaitForAPipe)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"pipe"_s);
    ASSERT_EQ(::mkfifo(qPrintable(path), 0600), 0);
    expectRefused(path, u"it is not a regular file"_s);
}

TEST(PpdFilePrinter, SaysThatAFileIsUnreadable)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"secret.ppd"_s);
    test::writeFile(path, "*PPD-Adobe: \"4.3\"\n");
    ASSERT_EQ(::chmod(qPrintable(path), 0), 0);
    // The superuser may read everything, so it looks with the eyes of somebody else.
    const uid_t self = ::geteuid();
    if (self == 0) {
        ASSERT_EQ(::seteuid(65534), 0);
    }
    expectRefused(path, qt_error_string(EACCES));
    if (self == 0) {
        ASSERT_EQ(::seteuid(self), 0);
    }
}

TEST(PpdFilePrinter, NamesTheLineThatIsTooLong)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"long.ppd"_s);
    test::writeFile(path, "*PPD-Adobe: \"4.3\"\n\n*FormatVersion: \"4.3\"\n*" + QByteArray(300, 'x') + ": \"\"\n");
    const auto printer = HostPrinter::fromPpdFile(path);
    EXPECT_FALSE(printer.ok());
    const QString begin = u"PPD file %1: line 4: "_s.arg(path);
    EXPECT_TRUE(printer.reason().startsWith(begin)) << printer.reason().toStdString();
    EXPECT_GT(printer.reason().size(), begin.size());
}

TEST(PpdFilePrinter, RefusesALineOf256Characters)
{
    EXPECT_TRUE(HostPrinter::fromPpdFile(test::fixture("line-255.ppd")).ok());
    EXPECT_FALSE(HostPrinter::fromPpdFile(test::fixture("long-line.ppd")).ok());
}

TEST(PpdFilePrinter, SaysThatAFileIsNoPpd)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"text.ppd"_s);
    test::writeFile(path, "hello\n");
    const auto printer = HostPrinter::fromPpdFile(path);
    EXPECT_FALSE(printer.ok());
    EXPECT_TRUE(printer.reason().startsWith(u"PPD file %1: line 1: "_s.arg(path)))
        << printer.reason().toStdString();
}

TEST(PpdFilePrinter, SurvivesEveryFixtureCutAnywhere)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"cut.ppd"_s);
    const QByteArray text = test::readFile(test::fixture("minimal.ppd"));
    for (qsizetype length = 1; length < text.size(); length += 997) {
        test::writeFile(path, text.left(length));
        const auto printer = HostPrinter::fromPpdFile(path);
        EXPECT_TRUE(printer.ok() || printer.reason().contains(path)) << length;
    }
}

TEST(QueueName, SplitsOffTheInstance)
{
    EXPECT_EQ(QueueName::fromText(u"office"_s).queue, u"office"_s);
    EXPECT_EQ(QueueName::fromText(u"office"_s).instance, QString());
    EXPECT_EQ(QueueName::fromText(u"office/draft"_s).queue, u"office"_s);
    EXPECT_EQ(QueueName::fromText(u"office/draft"_s).instance, u"draft"_s);
    EXPECT_EQ(QueueName::fromText(u"office/draft"_s).text(), u"office/draft"_s);
}

TEST(QueuePrinter, SaysThatThePrintServerDoesNotAnswer)
{
    qputenv("CUPS_SERVER", "localhost:1");
    const auto printer = HostPrinter::fromQueue(QueueName::fromText(u"office"_s));
    EXPECT_FALSE(printer.ok());
    EXPECT_EQ(printer.reason(), u"print server localhost:1: it cannot be reached: nothing answers there"_s);
}

} // namespace
} // namespace tessarin::host
