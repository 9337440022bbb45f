// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/ticket_output.h"

#include "printing/text.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

#include <unistd.h>

namespace tessarin::host {

namespace {

QString writeToStandardOutput(const QByteArray &text)
{
    qsizetype done = 0;
    while (done < text.size()) {
        const ssize_t written =
            ::write(STDOUT_FILENO, text.constData() + done, static_cast<size_t>(text.size() - done));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return TessarinPrint::tr("ticket on standard output: %1").arg(qt_error_string(errno));
        }
        done += written;
    }
    return {};
}

} // namespace

QString writeTicket(const JobTicket &ticket, const QString &fileName)
{
    const QByteArray text = ticket.toLines();
    if (fileName.isEmpty() || fileName == QLatin1String("-")) {
        return writeToStandardOutput(text);
    }
    const auto failed = [&fileName](const QFileDevice &file) {
        return TessarinPrint::tr("ticket file %1: %2").arg(fileName, file.errorString());
    };
    if (QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile()) {
        // A pipe or device is written to; a file would be put in its place.
        QFile file(fileName);
        const bool written =
            file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
        return written ? QString() : failed(file);
    }
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        return failed(file);
    }
    return {};
}

} // namespace tessarin::host
