// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Delivery into a PDF file.

#ifndef TESSARIN_HOST_PDF_DELIVERY_H
#define TESSARIN_HOST_PDF_DELIVERY_H

#include "preview/pdf_writer.h"
#include "printing/delivery.h"

#include <QObject>
#include <QStringList>

#include <atomic>
#include <thread>

namespace tessarin::host {

/// Writes the pages of documents into a PDF file on a thread of its own. A file that could not be finished is not
/// left behind.
class PdfDelivery final : public Delivery {
public:
    PdfDelivery(PdfRequest request, QStringList documents);
    /// Stops a running delivery without reporting its end.
    ~PdfDelivery() override;

    void start(const JobTicket &ticket, DeliveryFinished finished) override;
    void cancel() override;

private:
    PdfRequest request_;
    QStringList documents_;
    std::atomic<bool> cancelled_ = false;
    QObject receiver_{}; ///< lives on the user-interface thread; the worker reports through it
    std::thread worker_{};
};

} // namespace tessarin::host

#endif
