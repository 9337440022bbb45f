// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/log_output.h"

#include "printing/text.h"

#include <QFile>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace tessarin::host {

namespace {

class LogFile {
public:
    LogFile(int descriptor, QString name) : descriptor_(descriptor), name_(std::move(name)) {}
    ~LogFile()
    {
        if (descriptor_ != STDERR_FILENO) {
            ::close(descriptor_);
        }
    }
    LogFile(const LogFile &) = delete;
    LogFile &operator=(const LogFile &) = delete;

    void write(std::string_view line)
    {
        ssize_t written = -1;
        do {
            written = ::write(descriptor_, line.data(), line.size());
        } while (written < 0 && errno == EINTR);
        const bool whole = written >= 0 && static_cast<size_t>(written) == line.size();
        if (!whole && !complained_.exchange(true)) {
            const QString why = written < 0 ? qt_error_string(errno) : TessarinPrint::tr("a line was cut short");
            const QByteArray text = TessarinPrint::tr("log %1: %2").arg(name_, why).toLocal8Bit();
            std::fprintf(stderr, "tessarin-print: %s\n", text.constData());
        }
    }

private:
    int descriptor_; ///< owned unless it is standard error's
    QString name_;
    std::atomic<bool> complained_ = false;
};

} // namespace

Outcome<std::optional<pde::LogSink>> logSinkFor(const QString &destination)
{
    using Sink = std::optional<pde::LogSink>;
    if (destination.isEmpty() || destination == QLatin1String("syslog")) {
        return Sink();
    }
    if (destination == QLatin1String("none")) {
        return Sink([](std::string_view) {});
    }
    int descriptor = STDERR_FILENO;
    if (destination != QLatin1String("stderr")) {
        descriptor =
            ::open(QFile::encodeName(destination).constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
        if (descriptor < 0) {
            return Outcome<Sink>::failed(
                TessarinPrint::tr("log file %1: %2").arg(destination, qt_error_string(errno)));
        }
    }
    const auto file = std::make_shared<LogFile>(descriptor, destination);
    return Sink([file](std::string_view line) { file->write(line); });
}

} // namespace tessarin::host
