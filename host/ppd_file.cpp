// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/ppd_file.h"

#include "host/text.h"

#include <QFile>
#include <QStringDecoder>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessarin::host {

namespace {

/// Why an open file cannot be a PPD; an empty text when it may be one.
QString unusable(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0) {
        return qt_error_string(errno);
    }
    if (S_ISDIR(status.st_mode)) {
        return TessarinPrint::tr("it is a directory, not a PPD file");
    }
    if (!S_ISREG(status.st_mode)) {
        return TessarinPrint::tr("it is not a regular file");
    }
    return status.st_size == 0 ? TessarinPrint::tr("the file is empty") : QString();
}

} // namespace

Outcome<PpdHandle> openPpd(const QString &path)
{
    const auto failed = [&path](const QString &why) {
        return Outcome<PpdHandle>::failed(TessarinPrint::tr("PPD file %1: %2").arg(path, why));
    };
    // Without O_NONBLOCK a pipe without a writer would hold the dialog back for ever.
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return failed(qt_error_string(errno));
    }
    if (const QString why = unusable(descriptor); !why.isEmpty()) {
        ::close(descriptor);
        return failed(why);
    }
    PpdHandle ppd(ppdOpenFd(descriptor)); // closes the descriptor
    if (!ppd) {
        int line = 0;
        const QString why = QString::fromUtf8(ppdErrorString(ppdLastError(&line)));
        return failed(TessarinPrint::tr("line %1: %2").arg(QString::number(line), why));
    }
    ppdMarkDefaults(ppd.get());
    return ppd;
}

QString ppdNickname(const ppd_file_t &ppd)
{
    const char *name = ppd.nickname ? ppd.nickname : ppd.modelname;
    if (!name) {
        return {};
    }
    // libcups hands the text on as it stands in the file, which is often Latin-1.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(QByteArrayView(name));
    return (decoder.hasError() ? QString::fromLatin1(name) : text).simplified();
}

} // namespace tessarin::host
