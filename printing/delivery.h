// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What Print does with the finished ticket. The dialog starts a delivery and hears of its end; it knows nothing of
// files or print servers.

#ifndef TESSARIN_PRINTING_DELIVERY_H
#define TESSARIN_PRINTING_DELIVERY_H

#include "printing/job_submission.h"
#include "printing/ticket.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <thread>
#include <utility>
#include <vector>

namespace tessarin::host {

/// Hears of the end of a delivery: an empty text when all went well, else what went wrong. Called once per start,
/// on the user-interface thread, possibly before start() returns.
using DeliveryFinished = std::function<void(const QString &failure)>;

/// What kept a delivery from its end.
enum class DeliveryFault {
    Printer,  ///< the queue, its server, or the way there
    Document, ///< a document that cannot be read
    Output,   ///< the file that the ticket is to be written to
};

/// Hears how far a delivery is, on the user-interface thread; the unit is the delivery's own. A total of 0:
/// unknown.
using ProgressObserver = std::function<void(qint64 done, qint64 total)>;

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
    /// The numbers of the jobs that came of the last delivery, as the print server counts them; empty: none did.
    virtual QList<int> jobIds() const { return {}; }
    /// Has the next start send the documents of these jobs again, which came to nothing. Answers whether it will.
    virtual bool sendAgain(const QList<int> & /*jobIds*/) { return false; }
    /// Of the last delivery that failed.
    virtual DeliveryFault fault() const { return DeliveryFault::Printer; }
    void setProgressObserver(ProgressObserver observer) { observer_ = std::move(observer); }

protected:
    void tellProgress(qint64 done, qint64 total) const
    {
        if (observer_) {
            observer_(done, total);
        }
    }

private:
    ProgressObserver observer_{};
};

/// Writes the ticket to a file or to standard output.
class TicketDelivery final : public Delivery {
public:
    /// `fileName` as for writeTicket().
    explicit TicketDelivery(QString fileName);

    void start(const JobTicket &ticket, DeliveryFinished finished) override;
    void cancel() override {}
    DeliveryFault fault() const override { return DeliveryFault::Output; }

private:
    QString fileName_;
};

/// Sends documents to a queue on a thread of its own, after writing the ticket where that is asked for too. A
/// ticket that cannot be written holds the job back, so that trying again prints once. Progress is told in bytes.
///
/// All documents are one job, or each is one. When a job of several fails, the ones before it are printed, and the
/// next start sends only the others.
class QueueDelivery final : public Delivery {
public:
    /// `ticketFile` as for writeTicket(), but empty for no ticket file.
    QueueDelivery(QueueName queue, std::vector<JobDocument> documents, QString ticketFile);
    /// Stops a running delivery without reporting its end.
    ~QueueDelivery() override;

    void start(const JobTicket &ticket, DeliveryFinished finished) override;
    void cancel() override;
    /// Makes each document a job of its own. To be called before the first start.
    void setSeparateJobs(bool separate) { separate_ = separate; }
    /// The jobs' title; empty: each has its first document's name. Separate jobs have their document's name behind
    /// the title. To be called before the first start.
    void setTitle(const QString &title) { title_ = title; }
    /// The names of the documents that are still to be sent.
    QStringList unsent() const;
    /// The number of the last job that was sent; 0: none yet.
    int jobId() const { return sent_.empty() ? 0 : sent_.back().id; }
    QList<int> jobIds() const override;
    bool sendAgain(const QList<int> &jobIds) override;
    DeliveryFault fault() const override { return fault_; }

private:
    struct SentJob {
        int id = 0;
        std::vector<JobDocument> documents{};
    };
    /// What a worker did, handed over to the user-interface thread at its end.
    struct Sent {
        std::vector<SentJob> jobs{};
        QString failure{};
        DeliveryFault fault = DeliveryFault::Printer;
    };

    QString withDocuments(const QString &failure) const;
    QString titleOf(const std::vector<JobDocument> &documents) const;
    Sent sendAll(const JobTicket &ticket, const std::vector<JobDocument> &documents);

    QueueName queue_;
    std::vector<JobDocument> documents_; ///< those that are still to be sent
    QString ticketFile_;
    bool separate_ = false;
    QString title_{};
    std::atomic<bool> cancelled_ = false;
    std::vector<SentJob> sent_{};
    DeliveryFault fault_ = DeliveryFault::Printer;
    QObject receiver_{}; ///< lives on the user-interface thread; the worker's end is reported through it
    std::thread worker_{};
};

} // namespace tessarin::host

#endif
