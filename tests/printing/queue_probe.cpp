// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A program that uses the room printing/ as the dialog does, for scripts that watch it against a print server:
//
//   queue_probe list
//   queue_probe open QUEUE
//   queue_probe follow [--cancel-when FILE] QUEUE JOB
//   queue_probe send [--separate] [--title TITLE] [--retry-after COMMAND] [-o KEY=VALUE]... QUEUE FILE...
//   queue_probe defaults [-o KEY=VALUE]... QUEUE
//
// What is answered goes to standard output, one line each; 0: it went well, 1: it failed, with "failed: REASON".

#include "printing/delivery.h"
#include "printing/destinations.h"
#include "printing/job_follower.h"
#include "printing/printer_loader.h"
#include "printing/user_defaults.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTextStream>
#include <QTimer>

#include <array>

using namespace tessarin::host;
using namespace Qt::StringLiterals;

namespace {

void say(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

int fail(const QString &reason)
{
    say(u"failed: "_s + reason);
    return 1;
}

/// The "-o KEY=VALUE" of the command line.
JobTicket ticketOf(const QCommandLineParser &line)
{
    JobTicket ticket;
    for (const QString &option : line.values(u"o"_s)) {
        const qsizetype equals = option.indexOf(u'=');
        ticket.set(option.left(equals), option.mid(equals + 1));
    }
    return ticket;
}

int list(QCoreApplication &application)
{
    DestinationFinder finder;
    QObject::connect(&finder, &DestinationFinder::found, &application, [](const QList<Destination> &destinations) {
        for (const Destination &destination : destinations) {
            say(QStringList{destination.name.text(), destination.info, destination.makeAndModel,
                            destination.isDefault ? u"default"_s : QString(), destinationDetail(destination)}
                    .join(u'|'));
        }
        QCoreApplication::exit(0);
    });
    QObject::connect(&finder, &DestinationFinder::failed, &application,
                     [](const QString &reason) { QCoreApplication::exit(fail(reason)); });
    finder.start();
    return QCoreApplication::exec();
}

int openQueue(QCoreApplication &application, const QString &queue)
{
    PrinterLoader loader;
    QObject::connect(&loader, &PrinterLoader::loaded, &application,
                     [](const std::shared_ptr<HostPrinter> &printer) {
                         say(printer->identifier().value_or(QString()) + u": "_s + printer->displayName());
                         QCoreApplication::exit(0);
                     });
    QObject::connect(&loader, &PrinterLoader::failed, &application,
                     [](const QString &reason) { QCoreApplication::exit(fail(reason)); });
    loader.start(QueueName::fromText(queue));
    return QCoreApplication::exec();
}

int follow(QCoreApplication &application, const QStringList &words, const QString &cancelFile)
{
    constexpr std::array kNames = {"pending", "held", "printing", "stopped", "done", "cancelled", "aborted"};
    JobFollower follower;
    QObject::connect(&follower, &JobFollower::stateChanged, &application,
                     [&kNames](JobState state, const QString &message) {
                         say(QLatin1String(kNames.at(static_cast<std::size_t>(state))) + u": "_s + message);
                         if (isFinal(state)) {
                             QCoreApplication::exit(0);
                         }
                     });
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &application, [&] {
        if (!cancelFile.isEmpty() && QFile::exists(cancelFile)) {
            timer.stop();
            follower.cancelJob();
        }
    });
    timer.start(100);
    follower.start(QueueName::fromText(words.value(1)), words.value(2).toInt());
    return QCoreApplication::exec();
}

int send(const QCommandLineParser &line)
{
    const QStringList words = line.positionalArguments();
    std::vector<JobDocument> documents;
    for (const QString &path : words.mid(2)) {
        documents.push_back({.path = path, .name = QFileInfo(path).fileName()});
    }
    QueueDelivery delivery(QueueName::fromText(words.value(1)), documents, QString());
    delivery.setSeparateJobs(line.isSet(u"separate"_s));
    delivery.setTitle(line.value(u"title"_s));
    int calls = 0;
    QString progress;
    delivery.setProgressObserver([&](qint64 done, qint64 total) {
        ++calls;
        progress = u"progress: %1 of %2"_s.arg(done).arg(total);
    });
    QString command = line.value(u"retry-after"_s);
    const JobTicket ticket = ticketOf(line);
    DeliveryFinished finished = [&](const QString &failure) {
        QStringList ids;
        for (const int id : delivery.jobIds()) {
            ids << QString::number(id);
        }
        say(progress + (calls <= 202 ? u""_s : u", in too many steps"_s));
        say(u"jobs: "_s + ids.join(u' '));
        say(u"unsent: "_s + delivery.unsent().join(u' '));
        if (failure.isEmpty()) {
            QCoreApplication::exit(0);
            return;
        }
        fail(failure);
        if (command.isEmpty()) {
            QCoreApplication::exit(1);
            return;
        }
        QProcess::execute(u"sh"_s, {u"-c"_s, std::exchange(command, QString())});
        delivery.start(ticket, finished);
    };
    delivery.start(ticket, finished);
    return QCoreApplication::exec();
}

int defaults(const QCommandLineParser &line)
{
    const QueueName queue = QueueName::fromText(line.positionalArguments().value(1));
    const Outcome<QString> file = makeUserDefaults(queue, ticketOf(line).toCupsOptions());
    if (!file.ok()) {
        return fail(file.reason());
    }
    say(file.value());
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser line;
    line.addOptions({{u"o"_s, QString(), u"option"_s},
                     {u"separate"_s, QString()},
                     {u"title"_s, QString(), u"title"_s},
                     {u"retry-after"_s, QString(), u"command"_s},
                     {u"cancel-when"_s, QString(), u"file"_s}});
    line.process(application);
    const QStringList words = line.positionalArguments();
    const QString task = words.value(0);
    if (task == u"list"_s) {
        return list(application);
    }
    if (task == u"open"_s) {
        return openQueue(application, words.value(1));
    }
    if (task == u"follow"_s) {
        return follow(application, words, line.value(u"cancel-when"_s));
    }
    if (task == u"send"_s) {
        return send(line);
    }
    return task == u"defaults"_s ? defaults(line) : fail(u"no such task: "_s + task);
}
