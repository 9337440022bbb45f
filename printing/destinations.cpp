// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/destinations.h"

#include "printing/background_work.h"
#include "printing/cups_connection.h"
#include "printing/destination_list.h"
#include "printing/state_reasons.h"
#include "printing/text.h"

namespace tessarin::host {

namespace {

constexpr int kStateProcessing = 4; // printer-state as IPP numbers it
constexpr int kStateStopped = 5;

QString optionText(const cups_dest_t &destination, const char *name)
{
    const char *text = cupsGetOption(name, destination.num_options, destination.options);
    return text ? QString::fromUtf8(text) : QString();
}

Destination described(const cups_dest_t &from)
{
    Destination destination;
    destination.name = {.queue = QString::fromUtf8(from.name), .instance = QString::fromUtf8(from.instance)};
    destination.info = optionText(from, "printer-info");
    destination.location = optionText(from, "printer-location");
    destination.makeAndModel = optionText(from, "printer-make-and-model");
    const int state = optionText(from, "printer-state").toInt();
    destination.state = state == kStateStopped      ? QueueState::Stopped
                        : state == kStateProcessing ? QueueState::Printing
                                                    : QueueState::Idle;
    for (const QString &reason : optionText(from, "printer-state-reasons").split(u',', Qt::SkipEmptyParts)) {
        if (reason != QLatin1String("none")) {
            destination.reasons << reason;
        }
    }
    destination.accepting = optionText(from, "printer-is-accepting-jobs") != QLatin1String("false");
    destination.isDefault = from.is_default != 0;
    return destination;
}

/// Why the server's queues cannot be told; empty when it has none. libcups' list is empty for both.
QString whyNone(http_t *http)
{
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "printer-name");
    ippDelete(cupsDoRequest(http, request, "/")); // frees the request
    const ipp_status_t status = cupsLastError();
    const bool answered = status <= IPP_STATUS_OK_EVENTS_COMPLETE || status == IPP_STATUS_ERROR_NOT_FOUND;
    return answered ? QString() : lastCupsError();
}

} // namespace

QString destinationDetail(const Destination &destination)
{
    QString state;
    switch (destination.state) {
    case QueueState::Idle:
        state = TessarinPrint::tr("idle");
        break;
    case QueueState::Printing:
        state = TessarinPrint::tr("printing");
        break;
    case QueueState::Stopped:
        state = TessarinPrint::tr("stopped");
        break;
    }
    if (const QString reasons = stateReasonsText(destination.reasons); !reasons.isEmpty()) {
        //: %1 is a printer's state, %2 lists the reasons
        state = TessarinPrint::tr("%1 (%2)").arg(state, reasons);
    }
    QStringList parts;
    for (const QString &part :
         {destination.info == destination.name.queue ? QString() : destination.info, destination.location, state}) {
        if (!part.isEmpty()) {
            parts << part;
        }
    }
    if (!destination.accepting) {
        parts << TessarinPrint::tr("takes no jobs");
    }
    return parts.join(QStringLiteral("  ·  "));
}

Outcome<QList<Destination>> listDestinations(const std::atomic<bool> &cancelled)
{
    using Result = Outcome<QList<Destination>>;
    const Outcome<CupsConnection> connection = connectToPrintServer({.cancelled = &cancelled});
    if (!connection.ok()) {
        return Result::failed(connection.reason());
    }
    http_t *http = connection.value().get();
    QList<Destination> destinations;
    for (const cups_dest_t &destination : DestinationList(http)) {
        destinations << described(destination);
    }
    if (destinations.isEmpty() && !cancelled) {
        if (const QString why = whyNone(http); !why.isEmpty()) {
            return Result::failed(
                TessarinPrint::tr("print server %1: it does not list its queues: %2").arg(printServerName(), why));
        }
    }
    return cancelled ? Result::failed(TessarinPrint::tr("cancelled")) : destinations;
}

DestinationFinder::~DestinationFinder()
{
    cancel();
}

void DestinationFinder::start()
{
    cancel();
    work_ = BackgroundWork::start(this, [this](BackgroundWork &work) {
        const Outcome<QList<Destination>> result = listDestinations(work.abandoned());
        work.handOver([this, result] {
            work_.reset();
            if (result.ok()) {
                emit found(result.value());
            } else {
                emit failed(result.reason());
            }
        });
    });
}

void DestinationFinder::cancel()
{
    if (work_) {
        work_->abandon();
        work_.reset();
    }
}

} // namespace tessarin::host
