// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/pdf_delivery.h"

#include <utility>

namespace tessarin::host {

PdfDelivery::PdfDelivery(PdfRequest request, QStringList documents)
    : request_(std::move(request)), documents_(std::move(documents))
{}

PdfDelivery::~PdfDelivery()
{
    cancelled_ = true;
    if (worker_.joinable()) {
        worker_.join();
    }
}

void PdfDelivery::start(const JobTicket &, DeliveryFinished finished)
{
    if (worker_.joinable()) {
        worker_.join();
    }
    cancelled_ = false;
    worker_ = std::thread([this, finished = std::move(finished)] {
        const auto progress = [this](int done, int total) {
            QMetaObject::invokeMethod(
                &receiver_, [this, done, total] { tellProgress(done, total); }, Qt::QueuedConnection);
        };
        const Outcome<int> pages = writePdf(documents_, request_, cancelled_, progress);
        QMetaObject::invokeMethod(
            &receiver_, [failure = pages.reason(), finished] { finished(failure); }, Qt::QueuedConnection);
    });
}

void PdfDelivery::cancel()
{
    cancelled_ = true;
}

} // namespace tessarin::host
