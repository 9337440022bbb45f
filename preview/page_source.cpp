// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/page_source.h"

#include "preview/page_formats.h"
#include "printing/text.h"

#include <QFile>
#include <QFileInfo>
#include <QRectF>

#include <algorithm>
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

OpenedPages cannotShow(const QString &path, const QString &why)
{
    return OpenedPages::failed(TessarinPrint::tr("%1: %2").arg(QFileInfo(path).fileName(), why));
}

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

QRectF fitted(const QSizeF &size, const QRectF &room)
{
    const QSizeF scaled = size.scaled(room.size(), Qt::KeepAspectRatio);
    return {room.center() - QPointF(scaled.width() / 2, scaled.height() / 2), scaled};
}

QSize fittedPixels(const QSizeF &size, const QSize &room)
{
    if (size.isEmpty() || room.isEmpty()) {
        return {};
    }
    return size.scaled(QSizeF(room), Qt::KeepAspectRatio).toSize().expandedTo(QSize(1, 1)).boundedTo(room);
}

} // namespace tessarin::host
