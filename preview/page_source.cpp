// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_source.h"

#include "preview/page_formats.h"
#include "printing/text.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::host {

namespace {

constexpr qint64 kSniffed = 1024; // where readers of PDF look for the header

/// The beginning of a regular file; the reason of a failure does not name the file. A pipe without writer would
/// keep an ordinary open() waiting.
Outcome<QByteArray> beginningOf(const QString &path)
{
    using Result = Outcome<QByteArray>;
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return Result::failed(qt_error_string(errno));
    }
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return Result::failed(file.errorString());
    }
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0) {
        return Result::failed(qt_error_string(errno));
    }
    if (S_ISDIR(status.st_mode)) {
        return Result::failed(TessarinPrint::tr("it is a directory"));
    }
    if (!S_ISREG(status.st_mode)) {
        return Result::failed(TessarinPrint::tr("it is not a regular file"));
    }
    const QByteArray bytes = file.read(kSniffed);
    if (bytes.isEmpty()) {
        return Result::failed(file.error() == QFileDevice::NoError ? TessarinPrint::tr("the file is empty")
                                                                   : file.errorString());
    }
    return bytes;
}

/// Some producers put a few bytes before the header, which then still begins a line.
bool isPdf(const QByteArray &beginning)
{
    return beginning.startsWith("%PDF-") || beginning.startsWith("\xEF\xBB\xBF%PDF-") ||
           beginning.contains("\n%PDF-") || beginning.contains("\r%PDF-");
}

} // namespace

QString noPreviewReason()
{
    return TessarinPrint::tr("there is no preview of this kind of document");
}

OpenedPages openPages(const QString &path, TextExtent extent)
{
    const Outcome<QByteArray> beginning = beginningOf(path);
    if (!beginning.ok()) {
        return cannotShow(path, beginning.reason());
    }
    if (isPdf(beginning.value())) {
        return openPdf(path);
    }
    return isImage(path) ? openImage(path) : openText(path, extent);
}

} // namespace tessarin::host
