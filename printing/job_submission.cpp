// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/job_submission.h"

#include "printing/cups_connection.h"
#include "printing/text.h"

#include <QFile>

#include <array>
#include <memory>

namespace tessarin::host {

namespace {

constexpr std::size_t kBlock = 65536;
constexpr int kTakeBackMilliseconds = 5000; // somebody may be waiting for the dialog to go

struct InfoFreer {
    void operator()(cups_dinfo_t *info) const { cupsFreeDestInfo(info); }
};
using DestinationInfo = std::unique_ptr<cups_dinfo_t, InfoFreer>;

/// Everything that sending needs of the server, in the order of its making.
struct Transfer {
    CupsConnection connection{};
    CupsDestination destination{};
    DestinationInfo info{};
    int jobId = 0; ///< as the server numbers jobs, from 1; 0: none yet
};

QString queueBecause(const JobRequest &request, const QString &why)
{
    return TessarinPrint::tr("queue %1: %2").arg(request.queue.text(), why);
}

/// Connects and looks the queue up afresh: the server may have restarted since the dialog opened. Answers what went
/// wrong; an empty text when nothing did.
QString prepare(const JobRequest &request, Transfer &transfer, const std::atomic<bool> &cancelled)
{
    Outcome<CupsConnection> connection = connectToPrintServer({.cancelled = &cancelled});
    if (!connection.ok()) {
        return connection.reason();
    }
    transfer.connection = connection.take();
    http_t *http = transfer.connection.get();
    Outcome<CupsDestination> destination = findQueue(http, request.queue.queue, request.queue.instance);
    if (!destination.ok()) {
        return destination.reason();
    }
    transfer.destination = destination.take();
    transfer.info.reset(cupsCopyDestInfo(http, transfer.destination.get()));
    return transfer.info ? QString() : queueBecause(request, lastCupsError());
}

/// Standard attributes that say by another name what options of a PPD say.
constexpr std::array kOverruling = {
    "media",         "sides",     "print-color-mode",      "output-mode",
    "print-quality", "number-up", "page-ranges",           "page-set",
    "landscape",     "copies",    "orientation-requested", "multiple-document-handling",
    "ColorModel",
};

/// Print servers drop a title with control characters in it.
QString titleOf(const JobRequest &request)
{
    QString title = request.title.isEmpty() ? request.documents.front().name : request.title;
    for (QChar &character : title) {
        if (character.category() == QChar::Other_Control) {
            character = u' ';
        }
    }
    return title;
}

QString createJob(const JobRequest &request, Transfer &transfer)
{
    cups_dest_t *destination = transfer.destination.get();
    CupsOptions options = jobOptionsOf(destination->num_options, destination->options);
    for (const char *name : kOverruling) {
        options.remove(QLatin1String(name));
    }
    options.addAll(request.ticket.toCupsOptions());
    const QByteArray title = titleOf(request).toUtf8();
    const ipp_status_t status =
        cupsCreateDestJob(transfer.connection.get(), destination, transfer.info.get(), &transfer.jobId,
                          title.constData(), options.count(), options.data());
    if (status == IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS) {
        return queueBecause(request, TessarinPrint::tr("it is not accepting jobs"));
    }
    if (status > IPP_STATUS_OK_EVENTS_COMPLETE || transfer.jobId <= 0) {
        return queueBecause(request, TessarinPrint::tr("it does not take the job: %1").arg(lastCupsError()));
    }
    return {};
}

/// Sends one document. Answers what went wrong; an empty text when nothing did.
QString sendDocument(const JobDocument &document, bool last, const JobRequest &request, Transfer &transfer,
                     const std::atomic<bool> &cancelled)
{
    QFile file(document.path);
    if (!file.open(QIODevice::ReadOnly)) {
        return TessarinPrint::tr("document %1: %2").arg(document.path, file.errorString());
    }
    http_t *http = transfer.connection.get();
    const auto refused = [&] {
        return queueBecause(
            request, TessarinPrint::tr("it does not take the document %1: %2").arg(document.name, lastCupsError()));
    };
    if (cupsStartDestDocument(http, transfer.destination.get(), transfer.info.get(), transfer.jobId,
                              document.name.toUtf8().constData(), CUPS_FORMAT_AUTO, 0, nullptr,
                              last ? 1 : 0) != HTTP_STATUS_CONTINUE) {
        return refused();
    }
    const auto block = std::make_unique<std::array<char, kBlock>>();
    for (;;) {
        if (cancelled) {
            return TessarinPrint::tr("cancelled");
        }
        const qint64 count = file.read(block->data(), static_cast<qint64>(block->size()));
        if (count < 0) {
            return TessarinPrint::tr("document %1: %2").arg(document.path, file.errorString());
        }
        if (count == 0) {
            break;
        }
        if (cupsWriteRequestData(http, block->data(), static_cast<size_t>(count)) != HTTP_STATUS_CONTINUE) {
            return refused();
        }
        if (request.sent) {
            request.sent(count);
        }
    }
    const ipp_status_t status = cupsFinishDestDocument(http, transfer.destination.get(), transfer.info.get());
    return status > IPP_STATUS_OK_EVENTS_COMPLETE ? refused() : QString();
}

/// Takes a begun job back, over a connection of its own: the first one may be in the middle of a document. Answers
/// a sentence to add to the failure when the job stays.
QString takeBack(const JobRequest &request, int jobId)
{
    const Outcome<CupsConnection> connection = connectToPrintServer({.answerMilliseconds = kTakeBackMilliseconds});
    QString why = connection.reason();
    if (connection.ok()) {
        const ipp_status_t status =
            cupsCancelJob2(connection.value().get(), request.queue.queue.toUtf8().constData(), jobId, 0);
        why = status > IPP_STATUS_OK_EVENTS_COMPLETE ? lastCupsError() : QString();
    }
    return why.isEmpty()
               ? QString()
               : TessarinPrint::tr(" (job %1 may remain on the server: %2)").arg(QString::number(jobId), why);
}

QString send(const JobRequest &request, Transfer &transfer, const std::atomic<bool> &cancelled)
{
    if (QString why = prepare(request, transfer, cancelled); !why.isEmpty()) {
        return why;
    }
    if (cancelled) {
        return TessarinPrint::tr("cancelled");
    }
    if (QString why = createJob(request, transfer); !why.isEmpty()) {
        return why;
    }
    for (const JobDocument &document : request.documents) {
        const bool last = &document == &request.documents.back();
        if (QString why = sendDocument(document, last, request, transfer, cancelled); !why.isEmpty()) {
            return why;
        }
    }
    return {};
}

} // namespace

Outcome<int> submitJob(const JobRequest &request, const std::atomic<bool> &cancelled)
{
    if (request.documents.empty()) {
        return Outcome<int>::failed(queueBecause(request, TessarinPrint::tr("there is no document to print")));
    }
    Transfer transfer;
    QString why = send(request, transfer, cancelled);
    if (why.isEmpty()) {
        return transfer.jobId;
    }
    if (cancelled) {
        why = TessarinPrint::tr("cancelled"); // whatever the call said that was cut short by it
    }
    if (transfer.jobId > 0) {
        why += takeBack(request, transfer.jobId);
    }
    return Outcome<int>::failed(why);
}

} // namespace tessarin::host
