// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/documents.h"

#include "printing/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <array>
#include <cerrno>

#include <unistd.h>

namespace tessarin::host {

namespace {

constexpr std::size_t kBlock = 65536;

QString because(const QString &name, const QString &why)
{
    return TessarinPrint::tr("document %1: %2").arg(name, why);
}

/// Why a file cannot be printed; an empty text when it can.
QString unprintable(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        return TessarinPrint::tr("it is a directory");
    }
    if (info.exists() && !info.isFile()) {
        return TessarinPrint::tr("it is not a regular file");
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    return file.size() == 0 ? TessarinPrint::tr("the file is empty") : QString();
}

/// Copies standard input to its end. Answers why that failed; an empty text when it did not.
QString spoolStandardInput(QTemporaryFile &file)
{
    if (!file.open()) {
        return file.errorString();
    }
    std::array<char, kBlock> block = {};
    for (;;) {
        const ssize_t count = ::read(STDIN_FILENO, block.data(), block.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return qt_error_string(errno);
        }
        if (count == 0) {
            break;
        }
        if (file.write(block.data(), count) != count) {
            return file.errorString();
        }
    }
    if (!file.flush()) {
        return file.errorString();
    }
    return file.size() == 0 ? TessarinPrint::tr("there is nothing in it") : QString();
}

} // namespace

Outcome<Documents> prepareDocuments(const QStringList &names)
{
    Documents documents;
    for (const QString &name : names) {
        if (name != QLatin1String("-")) {
            if (const QString why = unprintable(name); !why.isEmpty()) {
                return Outcome<Documents>::failed(because(name, why));
            }
            documents.list.push_back({.path = name, .name = QFileInfo(name).fileName()});
            continue;
        }
        const QString shown = TessarinPrint::tr("standard input");
        if (documents.spool) {
            return Outcome<Documents>::failed(because(shown, TessarinPrint::tr("it can be printed only once")));
        }
        documents.spool =
            std::make_unique<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/tessarin-document-XXXXXX"));
        if (const QString why = spoolStandardInput(*documents.spool); !why.isEmpty()) {
            return Outcome<Documents>::failed(because(shown, why));
        }
        documents.list.push_back({.path = documents.spool->fileName(), .name = shown});
    }
    return documents;
}

} // namespace tessarin::host
