// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/log_output.h"

#include "tests/host/host_test_support.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

TEST(LogOutput, LeavesThePlugInsDefaultAlone)
{
    for (const QString &destination : {QString(), u"syslog"_s}) {
        const auto sink = logSinkFor(destination);
        ASSERT_TRUE(sink.ok());
        EXPECT_FALSE(sink.value().has_value());
    }
}

TEST(LogOutput, DropsEveryLineForNone)
{
    const auto sink = logSinkFor(u"none"_s);
    ASSERT_TRUE(sink.ok());
    ASSERT_TRUE(sink.value().has_value());
    (*sink.value())("gone\n");
}

TEST(LogOutput, AddsLinesToAFile)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"log"_s);
    test::writeFile(path, "old\n");
    const auto sink = logSinkFor(path);
    ASSERT_TRUE(sink.ok()) << sink.reason().toStdString();
    (*sink.value())("one\n");
    (*sink.value())("%n%s\n");
    EXPECT_EQ(test::readFile(path), QByteArray("old\none\n%n%s\n"));
}

TEST(LogOutput, WritesToStandardError)
{
    const auto sink = logSinkFor(u"stderr"_s);
    ASSERT_TRUE(sink.ok());
    testing::internal::CaptureStderr();
    (*sink.value())("to stderr\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "to stderr\n");
}

TEST(LogOutput, SaysWhichFileCannotBeOpened)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"no/such/log"_s);
    EXPECT_EQ(logSinkFor(path).reason(), u"log file %1: %2"_s.arg(path, qt_error_string(ENOENT)));
}

TEST(LogOutput, SaysOnceThatAFullDiskTakesNoMore)
{
    const auto sink = logSinkFor(u"/dev/full"_s);
    ASSERT_TRUE(sink.ok()) << sink.reason().toStdString();
    testing::internal::CaptureStderr();
    (*sink.value())("one\n");
    (*sink.value())("two\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              u"tessarin-print: log /dev/full: %1\n"_s.arg(qt_error_string(ENOSPC)).toStdString());
}

} // namespace
} // namespace tessarin::host
