// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/delivery.h"

#include "printing/text.h"
#include "printing/ticket_output.h"

#include <QFileInfo>

#include <algorithm>
#include <cstddef>
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
            fault_ = DeliveryFault::Output;
            finished(failure);
            return;
        }
    }
    if (worker_.joinable()) {
        worker_.join();
    }
    cancelled_ = false;
    worker_ = std::thread([this, ticket, documents = documents_, finished = std::move(finished)] {
        Sent sent = sendAll(ticket, documents);
        QMetaObject::invokeMethod(
            &receiver_,
            [this, sent = std::move(sent), finished] {
                for (const SentJob &job : sent.jobs) {
                    documents_.erase(documents_.begin(),
                                     documents_.begin() + static_cast<std::ptrdiff_t>(job.documents.size()));
                    sent_.push_back(job);
                }
                fault_ = sent.fault;
                finished(withDocuments(sent.failure));
            },
            Qt::QueuedConnection);
    });
}

QList<int> QueueDelivery::jobIds() const
{
    QList<int> ids;
    for (const SentJob &job : sent_) {
        ids << job.id;
    }
    return ids;
}

bool QueueDelivery::sendAgain(const QList<int> &jobIds)
{
    std::vector<JobDocument> again;
    std::erase_if(sent_, [&](const SentJob &job) {
        const bool taken = jobIds.contains(job.id);
        if (taken) {
            again.insert(again.end(), job.documents.begin(), job.documents.end());
        }
        return taken;
    });
    documents_.insert(documents_.begin(), again.begin(), again.end());
    return !again.empty();
}

QStringList QueueDelivery::unsent() const
{
    QStringList names;
    for (const JobDocument &document : documents_) {
        names << document.name;
    }
    return names;
}

QString QueueDelivery::withDocuments(const QString &failure) const
{
    QStringList printed;
    for (const SentJob &job : sent_) {
        for (const JobDocument &document : job.documents) {
            printed << document.name;
        }
    }
    if (failure.isEmpty() || printed.isEmpty()) {
        return failure;
    }
    return TessarinPrint::tr("%1\nPrinted already: %2\nNot printed: %3")
        .arg(failure, printed.join(QStringLiteral(", ")), unsent().join(QStringLiteral(", ")));
}

QString QueueDelivery::titleOf(const std::vector<JobDocument> &documents) const
{
    const bool named = separate_ && !title_.isEmpty() && !documents.empty();
    return named ? title_ + QStringLiteral(" – ") + documents.front().name : title_;
}

QueueDelivery::Sent QueueDelivery::sendAll(const JobTicket &ticket, const std::vector<JobDocument> &documents)
{
    constexpr qint64 steps = 200; // finer progress would only keep the user interface busy
    qint64 total = 0;
    for (const JobDocument &document : documents) {
        total += QFileInfo(document.path).size();
    }
    qint64 done = 0; // of all jobs together
    qint64 told = -1;
    const std::function<void(qint64)> observer = [this, total, &done, &told](qint64 bytes) {
        done += bytes;
        if (const qint64 step = total > 0 ? done * steps / total : 0; step != told) {
            told = step;
            QMetaObject::invokeMethod(
                &receiver_, [this, done, total] { tellProgress(done, total); }, Qt::QueuedConnection);
        }
    };
    const std::size_t perJob = separate_ ? 1 : documents.size();
    Sent sent;
    std::size_t next = 0;
    do {
        const auto first = documents.begin() + static_cast<std::ptrdiff_t>(next);
        const auto count = static_cast<std::ptrdiff_t>(std::min(perJob, documents.size() - next));
        JobRequest request{
            .queue = queue_, .documents = {first, first + count}, .ticket = ticket, .sent = observer};
        request.title = titleOf(request.documents);
        const Outcome<int> job = submitJob(request, cancelled_);
        if (!job.ok()) {
            const bool isReadable =
                std::all_of(request.documents.begin(), request.documents.end(),
                            [](const JobDocument &document) { return QFileInfo(document.path).isReadable(); });
            sent.fault = isReadable ? DeliveryFault::Printer : DeliveryFault::Document;
            sent.failure = job.reason();
            return sent;
        }
        sent.jobs.push_back({.id = job.value(), .documents = request.documents});
        next += static_cast<std::size_t>(count);
    } while (next < documents.size());
    return sent;
}

void QueueDelivery::cancel()
{
    cancelled_ = true;
}

} // namespace tessarin::host
