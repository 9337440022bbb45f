// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/user_defaults.h"

#include "printing/cups_connection.h"
#include "printing/destination_list.h"
#include "printing/options_file.h"
#include "printing/text.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSaveFile>
#include <QStringList>

#include <vector>

namespace tessarin::host {

namespace {

using Saved = QHash<QString, QString>; ///< options by lower-case name

/// A file as it was before.
struct Snapshot {
    QString path{};
    bool existed = false;
    QByteArray content{};

    static Snapshot of(const QString &path)
    {
        QFile file(path);
        Snapshot snapshot{.path = path, .existed = file.open(QIODevice::ReadOnly)};
        snapshot.content = snapshot.existed ? file.readAll() : QByteArray();
        return snapshot;
    }
    bool isChanged() const
    {
        const Snapshot now = of(path);
        return now.existed != existed || now.content != content;
    }
};

/// Writes a file whole or not at all. Answers what went wrong; an empty text when nothing did.
QString replaceFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        return TessarinPrint::tr("file %1: %2").arg(path, file.errorString());
    }
    return {};
}

/// Puts a file back as it was. Answers a sentence to add to a failure when that fails.
QString putBack(const Snapshot &snapshot)
{
    if (!snapshot.isChanged()) {
        return {};
    }
    if (!snapshot.existed) {
        return QFile::remove(snapshot.path) ? QString() : TessarinPrint::tr("; it could not be removed again");
    }
    return replaceFile(snapshot.path, snapshot.content).isEmpty()
               ? QString()
               : TessarinPrint::tr("; the earlier ones are in %1").arg(snapshot.path + QStringLiteral(".backup"));
}

bool isKept(const QString &name, const QString &value)
{
    return name.compare(QLatin1String("copies"), Qt::CaseInsensitive) != 0 && !value.isEmpty();
}

/// The options to keep. `refused`: takes the names of those that the file cannot hold.
Saved keptOptions(const CupsOptions &options, QStringList &refused)
{
    Saved kept;
    for (int i = 0; i < options.count(); ++i) {
        const QString name = QString::fromUtf8(options.data()[i].name);
        const QString value = QString::fromUtf8(options.data()[i].value);
        if (!isKept(name, value)) {
            continue;
        }
        kept.insert(name.toLower(), value);
        if (!survivesOptionsFile(name, value)) {
            refused << name;
        }
    }
    return kept;
}

/// What is saved for each destination, without what merely describes it.
QHash<QString, Saved> savedOptions(const DestinationList &list)
{
    QHash<QString, Saved> all;
    for (const cups_dest_t &destination : list) {
        const QueueName name{.queue = QString::fromUtf8(destination.name),
                             .instance = QString::fromUtf8(destination.instance)};
        const CupsOptions options = jobOptionsOf(destination.num_options, destination.options);
        Saved &saved = all[name.text().toLower()];
        for (int i = 0; i < options.count(); ++i) {
            saved.insert(QString::fromUtf8(options.data()[i].name).toLower(),
                         QString::fromUtf8(options.data()[i].value));
        }
    }
    return all;
}

/// Compares what libcups reads now with what it shall be. Answers what is wrong; an empty text when nothing is.
QString whatIsWrong(const QHash<QString, Saved> &expected, const QHash<QString, Saved> &now)
{
    for (auto queue = expected.begin(); queue != expected.end(); ++queue) {
        const Saved &saved = now.value(queue.key());
        QStringList wrong;
        for (auto option = queue->begin(); option != queue->end(); ++option) {
            // libcups does not write what differs from the server's own default in nothing but its case.
            if (saved.value(option.key()).compare(*option, Qt::CaseInsensitive) != 0) {
                wrong << option.key();
            }
        }
        if (!wrong.isEmpty()) {
            wrong.sort();
            return TessarinPrint::tr("these options of %1 could not be kept: %2")
                .arg(queue.key(), wrong.join(QStringLiteral(", ")));
        }
    }
    return {};
}

/// Lets libcups write the options and mends what it does to the rest of the file. Answers the file that it wrote.
Outcome<QString> writeThroughLibcups(http_t *http, const DestinationList &list, const QueueName &queue,
                                     const std::vector<Snapshot> &snapshots)
{
    using Result = Outcome<QString>;
    for (cups_dest_t &destination : list) {
        destination.is_default = 0; // or the server's default would become the user's; the merging keeps the user's
    }
    const QString usual = snapshots.front().path;
    if (cupsSetDests2(http, list.count(), list.begin()) != 0) {
        return Result::failed(TessarinPrint::tr("file %1: it cannot be written: %2").arg(usual, lastCupsError()));
    }
    for (const Snapshot &snapshot : snapshots) {
        if (!snapshot.isChanged()) {
            continue;
        }
        const QByteArray merged = mergedOptionsFile(snapshot.content, Snapshot::of(snapshot.path).content, queue);
        if (const QString failure = replaceFile(snapshot.path, merged); !failure.isEmpty()) {
            return Result::failed(failure);
        }
        return snapshot.path;
    }
    return usual; // it said the same before
}

} // namespace

QString userOptionsFile()
{
    return QDir::homePath() + QStringLiteral("/.cups/lpoptions");
}

Outcome<QString> makeUserDefaults(const QueueName &queue, const CupsOptions &options)
{
    using Result = Outcome<QString>;
    QStringList refused;
    const Saved kept = keptOptions(options, refused);
    if (!refused.isEmpty()) {
        return Result::failed(
            TessarinPrint::tr("queue %1: the values of these options cannot be kept as defaults: %2")
                .arg(queue.text(), refused.join(QStringLiteral(", "))));
    }
    const Outcome<CupsConnection> connection = connectToPrintServer();
    if (!connection.ok()) {
        return Result::failed(connection.reason());
    }
    http_t *http = connection.value().get();
    const DestinationList list(http);
    cups_dest_t *destination = list.find(queue);
    if (!destination) {
        return Result::failed(
            TessarinPrint::tr("queue %1: the print server has no queue of this name").arg(queue.text()));
    }
    QHash<QString, Saved> expected = savedOptions(list);
    expected[queue.text().toLower()].insert(kept);
    for (int i = 0; i < options.count(); ++i) {
        const cups_option_t &option = options.data()[i];
        const QString name = QString::fromUtf8(option.name);
        if (isKept(name, QString::fromUtf8(option.value))) {
            destination->num_options =
                cupsAddOption(option.name, option.value, destination->num_options, &destination->options);
        } else if (QByteArrayView(option.value).isEmpty()) {
            destination->num_options =
                cupsRemoveOption(option.name, destination->num_options, &destination->options);
            expected[queue.text().toLower()].insert(name.toLower(), QString());
        }
    }
    const QString ofAllUsers =
        qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups")) + QStringLiteral("/lpoptions");
    const std::vector<Snapshot> snapshots = {Snapshot::of(userOptionsFile()), Snapshot::of(ofAllUsers)};
    for (const Snapshot &snapshot : snapshots) {
        const bool writable = snapshot.existed && QFileInfo(snapshot.path).isWritable();
        const QString failure =
            writable ? replaceFile(snapshot.path + QStringLiteral(".backup"), snapshot.content) : QString();
        if (!failure.isEmpty()) {
            return Result::failed(failure);
        }
    }
    const Outcome<QString> file = writeThroughLibcups(http, list, queue, snapshots);
    QString why = file.reason();
    if (file.ok()) {
        if (const QString wrong = whatIsWrong(expected, savedOptions(DestinationList(http))); !wrong.isEmpty()) {
            why = TessarinPrint::tr("file %1: %2").arg(file.value(), wrong);
        }
    }
    if (why.isEmpty()) {
        return file.value() == ofAllUsers ? TessarinPrint::tr("%1, for all users").arg(ofAllUsers) : file.value();
    }
    for (const Snapshot &snapshot : snapshots) {
        why += putBack(snapshot);
    }
    return Result::failed(why);
}

} // namespace tessarin::host
