// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Opening a queue without making anybody wait.

#ifndef TESSARIN_PRINTING_PRINTER_LOADER_H
#define TESSARIN_PRINTING_PRINTER_LOADER_H

#include "printing/host_printer.h"

#include <QObject>
#include <QString>

#include <memory>

namespace tessarin::host {

class BackgroundWork;

/// Opens a queue in the background. Of several calls only the last is answered, by exactly one signal, and none
/// after cancel(). May be destroyed at any time, without waiting.
class PrinterLoader final : public QObject {
    Q_OBJECT

public:
    PrinterLoader() = default;
    ~PrinterLoader() override;

    void start(const QueueName &queue);
    void cancel();

signals:
    void loaded(const std::shared_ptr<tessarin::host::HostPrinter> &printer);
    void failed(const QString &reason);

private:
    std::shared_ptr<BackgroundWork> work_{}; ///< the call that runs; null: none does
};

} // namespace tessarin::host

#endif
