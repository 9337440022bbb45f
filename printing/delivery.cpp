// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/delivery.h"

#include "printing/ticket_output.h"

#include <utility>

namespace tessarin::host {

TicketDelivery::TicketDelivery(QString fileName) : fileName_(std::move(fileName)) {}

void TicketDelivery::start(const JobTicket &ticket, DeliveryFinished finished)
{
    finished(writeTicket(ticket, fileName_));
}

QueueDelivery::QueueDelivery(QueueName queue, std::vector<JobDocument> documents, QString ticketFile)
    : queue_(std::move(queue)), documents_(std::move(documents)), ticketFile_(std::move(ticketFile))
{}

QueueDelivery::~QueueDelivery()
{
    cancelled_ = true;
    if (worker_.joinable()) {
        worker_.join();
    }
}

void QueueDelivery::start(const JobTicket &ticket, DeliveryFinished finished)
{
    if (!ticketFile_.isEmpty()) {
        if (const QString failure = writeTicket(ticket, ticketFile_); !failure.isEmpty()) {
            finished(failure);
            return;
        }
    }
    if (worker_.joinable()) {
        worker_.join();
    }
    cancelled_ = false;
    JobRequest request{.queue = queue_, .documents = documents_, .ticket = ticket};
    worker_ = std::thread([this, request = std::move(request), finished = std::move(finished)] {
        const Outcome<int> result = submitJob(request, cancelled_);
        const int jobId = result.ok() ? result.value() : 0;
        QMetaObject::invokeMethod(
            &receiver_,
            [this, jobId, failure = result.reason(), finished] {
                jobId_ = jobId;
                finished(failure);
            },
            Qt::QueuedConnection);
    });
}

void QueueDelivery::cancel()
{
    cancelled_ = true;
}

} // namespace tessarin::host
