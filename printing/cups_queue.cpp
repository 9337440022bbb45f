// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/cups_queue.h"

#include "printing/cups_connection.h"
#include "printing/text.h"

#include "cups/ppd_library.h"

#include <QDir>
#include <QFile>

#include <array>
#include <cstring>

namespace tessarin::host {

namespace {

constexpr std::size_t kPathBytes = 1024; // as libcups' own path buffers

/// What stands for the description of a printer whose queue has no driver: nothing that could be chosen.
bool writeBarePpd(const QString &path)
{
    static const QByteArray text = "*PPD-Adobe: \"4.3\"\n"
                                   "*FormatVersion: \"4.3\"\n"
                                   "*FileVersion: \"1.0\"\n"
                                   "*LanguageVersion: English\n"
                                   "*LanguageEncoding: ISOLatin1\n"
                                   "*PCFileName: \"NODRIVER.PPD\"\n"
                                   "*Manufacturer: \"None\"\n"
                                   "*Product: \"(None)\"\n"
                                   "*ModelName: \"Printer without a driver\"\n"
                                   "*ShortNickName: \"Printer without a driver\"\n"
                                   "*NickName: \"Printer without a driver\"\n";
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush();
}

} // namespace

QueueName QueueName::fromText(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    return {.queue = slash < 0 ? text : text.left(slash), .instance = slash < 0 ? QString() : text.mid(slash + 1)};
}

QString QueueName::text() const
{
    return instance.isEmpty() ? queue : queue + u'/' + instance;
}

Outcome<QueueDescription> describeQueue(const QueueName &name)
{
    using Result = Outcome<QueueDescription>;
    const Outcome<CupsConnection> connection = connectToPrintServer();
    if (!connection.ok()) {
        return Result::failed(connection.reason());
    }
    http_t *http = connection.value().get();
    const Outcome<CupsDestination> destination = findQueue(http, name.queue, name.instance);
    if (!destination.ok()) {
        return Result::failed(destination.reason());
    }
    QueueDescription queue;
    queue.name = name;
    queue.savedOptions = jobOptionsOf(destination.value()->num_options, destination.value()->options);

    queue.directory = std::make_shared<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/tessarin-print-XXXXXX"));
    if (!queue.directory->isValid()) {
        return Result::failed(TessarinPrint::tr("folder for the PPD of queue %1: %2")
                                  .arg(name.text(), queue.directory->errorString()));
    }
    queue.ppdPath = queue.directory->filePath(QStringLiteral("printer.ppd"));
    const QByteArray path = QFile::encodeName(queue.ppdPath);
    std::array<char, kPathBytes> buffer = {};
    if (static_cast<std::size_t>(path.size()) >= buffer.size()) {
        return Result::failed(TessarinPrint::tr("folder for the PPD of queue %1: the path %2 is too long")
                                  .arg(name.text(), queue.ppdPath));
    }
    std::memcpy(buffer.data(), path.constData(), static_cast<std::size_t>(path.size()));
    time_t modified = 0;
    const http_status_t status =
        cupsGetPPD3(http, name.queue.toUtf8().constData(), &modified, buffer.data(), buffer.size());
    if (status == HTTP_STATUS_NOT_FOUND) {
        if (!writeBarePpd(queue.ppdPath)) {
            return Result::failed(TessarinPrint::tr("file %1: it cannot be written").arg(queue.ppdPath));
        }
    } else if (status != HTTP_STATUS_OK) {
        return Result::failed(
            TessarinPrint::tr("queue %1: its PPD file cannot be fetched: %2").arg(name.text(), lastCupsError()));
    }
    return queue;
}

} // namespace tessarin::host
