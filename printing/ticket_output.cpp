// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/ticket_output.h"

#include "printing/text.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>

#include <fcntl.h>
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

/// Opens what is no regular file, without waiting for somebody to read from a pipe; the reason of a failure is in
/// errno.
bool openDevice(const QString &fileName, QFile &file)
{
    const int descriptor =
        ::open(QFile::encodeName(fileName).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) {
        return false;
    }
    fcntl(descriptor, F_SETFL, 0); // who reads slowly is waited for
    return file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
}

} // namespace

QString writeTicket(const JobTicket &ticket, const QString &fileName)
{
    const QByteArray text = ticket.toLines();
    if (fileName.isEmpty() || fileName == QLatin1String("-")) {
        return writeToStandardOutput(text);
    }
    const auto failed = [&fileName](const QString &why) {
        return TessarinPrint::tr("ticket file %1: %2").arg(fileName, why);
    };
    if (QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile()) {
        // A pipe or device is written to; a file would be put in its place.
        QFile file;
        const bool written = openDevice(fileName, file) && file.write(text) == text.size();
        return written ? QString() : failed(file.isOpen() ? file.errorString() : qt_error_string(errno));
    }
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        return failed(file.errorString());
    }
    return {};
}

} // namespace tessarin::host
