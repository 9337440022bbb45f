// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/ticket_output.h"

#include "printing/text.h"

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
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        return TessarinPrint::tr("ticket file %1: %2").arg(fileName, file.errorString());
    }
    return {};
}

} // namespace tessarin::host
