// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/delivery.h"

#include "printing/ticket_output.h"

#include "tests/host/host_test_support.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

JobTicket someTicket()
{
    JobTicket ticket;
    ticket.set(u"vornMediaType"_s, u"Photo6"_s);
    return ticket;
}

TEST(WriteTicket, ReplacesAFileWhole)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"ticket"_s);
    test::writeFile(path, "old and much longer than what comes\n");
    EXPECT_EQ(writeTicket(someTicket(), path), QString());
    EXPECT_EQ(test::readFile(path), QByteArray("vornMediaType=Photo6\n"));
}

TEST(WriteTicket, GoesToStandardOutputWithoutAFile)
{
    for (const QString &name : {QString(), u"-"_s}) {
        testing::internal::CaptureStdout();
        EXPECT_EQ(writeTicket(someTicket(), name), QString());
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "vornMediaType=Photo6\n");
    }
}

TEST(WriteTicket, NamesTheFileThatCannotBeWritten)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"no/such/ticket"_s);
    const QString failure = writeTicket(someTicket(), path);
    EXPECT_TRUE(failure.startsWith(u"ticket file %1: "_s.arg(path))) << failure.toStdString();
}

TEST(TicketDelivery, ReportsItsEndOnce)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"ticket"_s);
    TicketDelivery delivery(path);
    QStringList ends;
    delivery.start(someTicket(), [&](const QString &failure) { ends << failure; });
    EXPECT_EQ(ends, QStringList{QString()});
    EXPECT_EQ(test::readFile(path), QByteArray("vornMediaType=Photo6\n"));
}

class QueueDeliveryTest : public testing::Test {
protected:
    void SetUp() override
    {
        qputenv("CUPS_SERVER", "localhost:1");
        test::writeFile(document_.path, "hello");
    }

    QTemporaryDir folder_{};
    JobDocument document_{.path = folder_.filePath(u"a.txt"_s), .name = u"a.txt"_s};
};

TEST_F(QueueDeliveryTest, ReportsAnUnreachableServerAndMayBeStartedAgain)
{
    QueueDelivery delivery(QueueName::fromText(u"office"_s), {document_}, QString());
    QStringList ends;
    for (int attempt = 1; attempt <= 2; ++attempt) {
        delivery.start(someTicket(), [&](const QString &failure) { ends << failure; });
        ASSERT_TRUE(test::waitFor([&] { return ends.size() == attempt; }));
        EXPECT_EQ(ends.back(), u"print server localhost:1: it cannot be reached: nothing answers there"_s);
    }
    EXPECT_EQ(delivery.jobId(), 0);
}

TEST_F(QueueDeliveryTest, WritesTheTicketBesideSending)
{
    const QString path = folder_.filePath(u"ticket"_s);
    QueueDelivery delivery(QueueName::fromText(u"office"_s), {document_}, path);
    bool ended = false;
    delivery.start(someTicket(), [&](const QString &) { ended = true; });
    EXPECT_TRUE(test::waitFor([&] { return ended; }));
    EXPECT_EQ(test::readFile(path), QByteArray("vornMediaType=Photo6\n"));
}

TEST_F(QueueDeliveryTest, SendsNothingWhenTheTicketCannotBeWritten)
{
    const QString path = folder_.filePath(u"no/such/ticket"_s);
    QueueDelivery delivery(QueueName::fromText(u"office"_s), {document_}, path);
    QStringList ends;
    delivery.start(someTicket(), [&](const QString &failure) { ends << failure; });
    ASSERT_EQ(ends.size(), 1);
    EXPECT_TRUE(ends[0].startsWith(u"ticket file "_s)) << ends[0].toStdString();
}

TEST_F(QueueDeliveryTest, MayBeDestroyedWhileItRuns)
{
    bool ended = false;
    {
        QueueDelivery delivery(QueueName::fromText(u"office"_s), {document_}, QString());
        delivery.start(someTicket(), [&](const QString &) { ended = true; });
    }
    QApplication::processEvents();
    EXPECT_FALSE(ended);
}

TEST(SubmitJob, RefusesAJobWithoutDocument)
{
    const std::atomic<bool> cancelled = false;
    const auto job = submitJob({.queue = QueueName::fromText(u"office"_s)}, cancelled);
    EXPECT_EQ(job.reason(), u"queue office: there is no document to print"_s);
}

} // namespace
} // namespace tessarin::host
