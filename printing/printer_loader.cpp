// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/printer_loader.h"

#include "printing/background_work.h"

namespace tessarin::host {

PrinterLoader::~PrinterLoader()
{
    cancel();
}

void PrinterLoader::start(const QueueName &queue)
{
    cancel();
    work_ = BackgroundWork::start(this, [this, queue](BackgroundWork &work) {
        const Outcome<std::shared_ptr<HostPrinter>> result = HostPrinter::fromQueue(queue);
        work.handOver([this, result] {
            work_.reset();
            if (result.ok()) {
                emit loaded(result.value());
            } else {
                emit failed(result.reason());
            }
        });
    });
}

void PrinterLoader::cancel()
{
    if (work_) {
        work_->abandon();
        work_.reset();
    }
}

} // namespace tessarin::host
