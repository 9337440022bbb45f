// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What several tests of the dialog need.

#ifndef TESSARIN_TESTS_HOST_HOST_TEST_SUPPORT_H
#define TESSARIN_TESTS_HOST_HOST_TEST_SUPPORT_H

#include "printing/host_printer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <functional>
#include <memory>
#include <ostream>

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace tessarin::test {

inline QString fixture(const char *name)
{
    return QStringLiteral(TESSARIN_FIXTURES "/ppd/") + QLatin1String(name);
}

/// The printer of tests/fixtures/ppd/minimal.ppd; null, which the caller checks, when it cannot be opened.
inline std::shared_ptr<host::HostPrinter> minimalPrinter()
{
    const auto printer = host::HostPrinter::fromPpdFile(fixture("minimal.ppd"));
    return printer.ok() ? printer.value() : nullptr;
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

/// Runs the event loop until `done` or a few seconds have passed; answers whether it was done.
inline bool waitFor(const std::function<bool()> &done)
{
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < 10000) {
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    return done();
}

} // namespace tessarin::test

#endif
