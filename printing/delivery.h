// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What Print does with the finished ticket. The dialog starts a delivery and hears of its end; it knows nothing of
// files or print servers.

#ifndef TESSARIN_PRINTING_DELIVERY_H
#define TESSARIN_PRINTING_DELIVERY_H

#include "printing/job_submission.h"
#include "printing/ticket.h"

#include <QObject>
#include <QString>

#include <atomic>
#include <functional>
#include <thread>

namespace tessarin::host {

/// Hears of the end of a delivery: an empty text when all went well, else what went wrong. Called once per start,
/// on the user-interface thread, possibly before start() returns.
using DeliveryFinished = std::function<void(const QString &failure)>;

class Delivery {
public:
    Delivery() = default;
    virtual ~Delivery() = default;
    Delivery(const Delivery &) = delete;
    Delivery &operator=(const Delivery &) = delete;

    /// Begins to deliver. May be called again after the end of an earlier delivery that failed.
    virtual void start(const JobTicket &ticket, DeliveryFinished finished) = 0;
    /// Asks a running delivery to stop; its end is still reported.
    virtual void cancel() = 0;
};

/// Writes the ticket to a file or to standard output.
class TicketDelivery final : public Delivery {
public:
    /// `fileName` as for writeTicket().
    explicit TicketDelivery(QString fileName);

    void start(const JobTicket &ticket, DeliveryFinished finished) override;
    void cancel() override {}

private:
    QString fileName_;
};

/// Sends documents to a queue on a thread of its own, after writing the ticket where that is asked for too. A
/// ticket that cannot be written holds the job back, so that trying again prints once.
class QueueDelivery final : public Delivery {
public:
    /// `ticketFile` as for writeTicket(), but empty for no ticket file.
    QueueDelivery(QueueName queue, std::vector<JobDocument> documents, QString ticketFile);
    /// Stops a running delivery without reporting its end.
    ~QueueDelivery() override;

    void start(const JobTicket &ticket, DeliveryFinished finished) override;
    void cancel() override;
    /// The number of the job that was sent; 0: none yet.
    int jobId() const { return jobId_; }

private:
    QueueName queue_;
    std::vector<JobDocument> documents_;
    QString ticketFile_;
    std::atomic<bool> cancelled_ = false;
    int jobId_ = 0;
    QObject receiver_{}; ///< lives on the user-interface thread; the worker's end is reported through it
    std::thread worker_{};
};

} // namespace tessarin::host

#endif
