// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/printer_loader.h"

#include <QtConcurrentRun>

namespace tessarin::host {

PrinterLoader::~PrinterLoader()
{
    cancel();
}

void PrinterLoader::start(const QueueName &queue)
{
    cancel();
    auto cancelled = std::make_shared<std::atomic<bool>>(false);
    cancelled_ = cancelled;
    QtConcurrent::run([queue] {
        return HostPrinter::fromQueue(queue);
    }).then(this, [this, cancelled](const Outcome<std::shared_ptr<HostPrinter>> &result) {
        if (*cancelled) {
            return;
        }
        cancelled_.reset();
        if (result.ok()) {
            emit loaded(result.value());
        } else {
            emit failed(result.reason());
        }
    });
}

void PrinterLoader::cancel()
{
    if (cancelled_) {
        *cancelled_ = true;
        cancelled_.reset();
    }
}

} // namespace tessarin::host
