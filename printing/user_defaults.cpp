// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/user_defaults.h"

#include "printing/cups_connection.h"
#include "printing/text.h"

#include <QDir>
#include <QFile>
#include <QStringList>

namespace tessarin::host {

namespace {

struct DestinationList {
    int count = 0;
    cups_dest_t *list = nullptr;

    explicit DestinationList(http_t *http) { count = cupsGetDests2(http, &list); }
    ~DestinationList() { cupsFreeDests(count, list); }
    DestinationList(const DestinationList &) = delete;
    DestinationList &operator=(const DestinationList &) = delete;

    cups_dest_t *find(const QueueName &queue) const
    {
        const QByteArray instance = queue.instance.toUtf8();
        return cupsGetDest(queue.queue.toUtf8().constData(),
                           queue.instance.isEmpty() ? nullptr : instance.constData(), count, list);
    }
};

bool isKept(const cups_option_t &option)
{
    return qstrcmp(option.name, "copies") != 0;
}

/// The names of options that a fresh look at the queue does not show as they were asked for.
QStringList missingFrom(const DestinationList &destinations, const QueueName &queue, const CupsOptions &options)
{
    QStringList missing;
    const cups_dest_t *destination = destinations.find(queue);
    for (int i = 0; i < options.count(); ++i) {
        const cups_option_t &option = options.data()[i];
        const char *now =
            destination ? cupsGetOption(option.name, destination->num_options, destination->options) : nullptr;
        if (isKept(option) && qstrcmp(now, option.value) != 0) {
            missing << QString::fromUtf8(option.name);
        }
    }
    return missing;
}

/// Copies a file over another. Answers what went wrong; an empty text when nothing did.
QString copyOver(const QString &from, const QString &to)
{
    QFile source(from);
    if (QFile::exists(to) && !QFile::remove(to)) {
        return TessarinPrint::tr("file %1: it cannot be replaced").arg(to);
    }
    return source.copy(to) ? QString() : TessarinPrint::tr("file %1: %2").arg(to, source.errorString());
}

} // namespace

QString userOptionsFile()
{
    return QDir::homePath() + QStringLiteral("/.cups/lpoptions");
}

Outcome<QString> makeUserDefaults(const QueueName &queue, const CupsOptions &options)
{
    using Result = Outcome<QString>;
    const Outcome<CupsConnection> connection = connectToPrintServer();
    if (!connection.ok()) {
        return Result::failed(connection.reason());
    }
    http_t *http = connection.value().get();
    DestinationList destinations(http);
    cups_dest_t *destination = destinations.find(queue);
    if (!destination) {
        return Result::failed(
            TessarinPrint::tr("queue %1: the print server has no queue of this name").arg(queue.text()));
    }
    for (int i = 0; i < options.count(); ++i) {
        const cups_option_t &option = options.data()[i];
        if (isKept(option)) {
            destination->num_options =
                cupsAddOption(option.name, option.value, destination->num_options, &destination->options);
        }
    }
    const QString file = userOptionsFile();
    const QString backup = file + QStringLiteral(".backup");
    const bool hadFile = QFile::exists(file);
    if (hadFile) {
        if (const QString failure = copyOver(file, backup); !failure.isEmpty()) {
            return Result::failed(failure);
        }
    }
    if (cupsSetDests2(http, destinations.count, destinations.list) != 0) {
        return Result::failed(TessarinPrint::tr("file %1: it cannot be written: %2").arg(file, lastCupsError()));
    }
    const QStringList missing = missingFrom(DestinationList(http), queue, options);
    if (missing.isEmpty()) {
        return file;
    }
    QString why = TessarinPrint::tr("file %1: these options could not be kept: %2")
                      .arg(file, missing.join(QStringLiteral(", ")));
    const QString undone = hadFile ? copyOver(backup, file) : QString();
    if (!hadFile && !QFile::remove(file)) {
        why += TessarinPrint::tr("; it could not be removed again");
    } else if (!undone.isEmpty()) {
        why += TessarinPrint::tr("; the earlier ones are in %1").arg(backup);
    }
    return Result::failed(why);
}

} // namespace tessarin::host
