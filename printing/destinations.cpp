// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/destinations.h"

#include "printing/cups_connection.h"
#include "printing/text.h"

#include <QtConcurrentRun>

namespace tessarin::host {

namespace {

constexpr int kStateProcessing = 4; // printer-state as IPP numbers it
constexpr int kStateStopped = 5;

struct DestinationList {
    int count = 0;
    cups_dest_t *list = nullptr;

    DestinationList() = default;
    ~DestinationList() { cupsFreeDests(count, list); }
    DestinationList(const DestinationList &) = delete;
    DestinationList &operator=(const DestinationList &) = delete;
};

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
    if (!destination.reasons.isEmpty()) {
        //: %1 is a printer's state, %2 lists the reasons
        state = TessarinPrint::tr("%1 (%2)").arg(state, destination.reasons.join(QStringLiteral(", ")));
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
    const Outcome<CupsConnection> connection = connectToPrintServer();
    if (!connection.ok()) {
        return Result::failed(connection.reason());
    }
    QList<Destination> destinations;
    if (cancelled) {
        return destinations;
    }
    DestinationList all;
    all.count = cupsGetDests2(connection.value().get(), &all.list);
    if (all.count == 0 && cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE &&
        cupsLastError() != IPP_STATUS_ERROR_NOT_FOUND) {
        return Result::failed(
            TessarinPrint::tr("the print server does not list its printers: %1").arg(lastCupsError()));
    }
    for (int i = 0; i < all.count; ++i) {
        destinations << described(all.list[i]);
    }
    return destinations;
}

DestinationFinder::~DestinationFinder()
{
    cancel();
}

void DestinationFinder::start()
{
    cancel();
    auto cancelled = std::make_shared<std::atomic<bool>>(false);
    cancelled_ = cancelled;
    QtConcurrent::run([cancelled] {
        return listDestinations(*cancelled);
    }).then(this, [this, cancelled](const Outcome<QList<Destination>> &result) {
        if (*cancelled) {
            return;
        }
        cancelled_.reset();
        if (result.ok()) {
            emit found(result.value());
        } else {
            emit failed(result.reason());
        }
    });
}

void DestinationFinder::cancel()
{
    if (cancelled_) {
        *cancelled_ = true;
        cancelled_.reset();
    }
}

} // namespace tessarin::host
