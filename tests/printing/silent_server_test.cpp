// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Print servers that take a connection and say nothing, or take none.

#include "printing/delivery.h"
#include "printing/destinations.h"
#include "printing/job_follower.h"
#include "printing/printer_loader.h"
#include "tests/printing/silent_server.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

namespace tessarin::host {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kSilenceMilliseconds = 25000; // the deadlines are 5 and 15 seconds, and the machine may be busy
constexpr qint64 kAtOnceMilliseconds = 5000;

bool waitUntil(const std::function<bool()> &done, qint64 milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < milliseconds) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    return done();
}

class SilentServerTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_NE(server_.port(), 0);
        name_ = u"127.0.0.1:%1"_s.arg(server_.port());
        qputenv("CUPS_SERVER", name_.toUtf8());
        QFile file(document_.path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("hello") == 5);
    }

    QString silence() const { return u"print server %1: it cannot be reached: it does not answer"_s.arg(name_); }
    QString refusal() const { return u"print server %1: it cannot be reached: nothing answers there"_s.arg(name_); }

    SilentServer server_{};
    QString name_{};
    QTemporaryDir folder_{};
    JobDocument document_{.path = folder_.filePath(u"a.txt"_s), .name = u"a.txt"_s};
    QueueName queue_{.queue = u"office"_s};
};

TEST_F(SilentServerTest, IsGivenUpByEverybody)
{
    QStringList finder;
    QStringList loader;
    QStringList follower;
    QStringList delivery;
    DestinationFinder finding;
    QObject::connect(&finding, &DestinationFinder::failed, [&](const QString &why) { finder << why; });
    PrinterLoader loading;
    QObject::connect(&loading, &PrinterLoader::failed, [&](const QString &why) { loader << why; });
    JobFollower following;
    QObject::connect(&following, &JobFollower::stateChanged, [&](JobState state, const QString &why) {
        EXPECT_EQ(state, JobState::Pending);
        follower << why;
    });
    QueueDelivery sending(queue_, {document_}, QString());
    finding.start();
    loading.start(queue_);
    following.start(queue_, 1);
    sending.start(JobTicket(), [&](const QString &why) { delivery << why; });
    EXPECT_TRUE(waitUntil(
        [&] { return !finder.isEmpty() && !loader.isEmpty() && !follower.isEmpty() && !delivery.isEmpty(); },
        kSilenceMilliseconds));
    for (const QStringList &told : {finder, loader, follower, delivery}) {
        EXPECT_EQ(told, QStringList{silence()});
    }
}

TEST_F(SilentServerTest, HoldsNobodyBackWhoWantsToGo)
{
    QElapsedTimer timer;
    timer.start();
    {
        DestinationFinder finder;
        PrinterLoader loader;
        JobFollower follower;
        QueueDelivery delivery(queue_, {document_}, QString());
        const auto never = [] { ADD_FAILURE() << "something was told after its end"; };
        QObject::connect(&finder, &DestinationFinder::failed, never);
        QObject::connect(&loader, &PrinterLoader::failed, never);
        QObject::connect(&follower, &JobFollower::stateChanged, never);
        finder.start();
        loader.start(queue_);
        follower.start(queue_, 1);
        delivery.start(JobTicket(), [never](const QString &) { never(); });
        waitUntil([&] { return timer.elapsed() > 500; }, kAtOnceMilliseconds);
        timer.restart();
    }
    EXPECT_LT(timer.elapsed(), kAtOnceMilliseconds);
    waitUntil([] { return false; }, 500);
}

TEST_F(SilentServerTest, EndsACancelledDeliverySoon)
{
    QueueDelivery delivery(queue_, {document_}, QString());
    QStringList ends;
    delivery.start(JobTicket(), [&](const QString &why) { ends << why; });
    waitUntil([] { return false; }, 500);
    delivery.cancel();
    EXPECT_TRUE(waitUntil([&] { return !ends.isEmpty(); }, kAtOnceMilliseconds));
    EXPECT_EQ(ends, QStringList{u"cancelled"_s});
    EXPECT_EQ(delivery.unsent(), QStringList{u"a.txt"_s});
}

TEST_F(SilentServerTest, IsForgottenByAFinderThatLooksAgain)
{
    DestinationFinder finder;
    QStringList failures;
    QObject::connect(&finder, &DestinationFinder::failed, [&](const QString &why) { failures << why; });
    finder.start();
    waitUntil([] { return false; }, 500);
    server_.close();
    finder.start();
    EXPECT_TRUE(waitUntil([&] { return !failures.isEmpty(); }, kAtOnceMilliseconds));
    waitUntil([] { return false; }, 1000); // in which the first search hears of its end
    EXPECT_EQ(failures, QStringList{refusal()});
}

TEST_F(SilentServerTest, TellsNothingAfterCancel)
{
    server_.close();
    DestinationFinder finder;
    PrinterLoader loader;
    QStringList failures;
    QObject::connect(&finder, &DestinationFinder::failed, [&](const QString &why) { failures << why; });
    QObject::connect(&loader, &PrinterLoader::failed, [&](const QString &why) { failures << why; });
    finder.start();
    loader.start(queue_);
    finder.cancel();
    loader.cancel();
    waitUntil([] { return false; }, 1000);
    EXPECT_EQ(failures, QStringList());
    loader.start(queue_);
    EXPECT_TRUE(waitUntil([&] { return !failures.isEmpty(); }, kAtOnceMilliseconds));
    EXPECT_EQ(failures, QStringList{refusal()});
}

} // namespace
} // namespace tessarin::host
