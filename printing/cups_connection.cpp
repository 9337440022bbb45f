// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/cups_connection.h"

#include "printing/destination_list.h"
#include "printing/text.h"

#include <chrono>
#include <cstring>

namespace tessarin::host {

/// The waiting on one connection, in short steps between which it is seen whether to go on.
class ServerWait {
public:
    static constexpr std::chrono::milliseconds kStep = std::chrono::milliseconds(250);

    explicit ServerWait(const Patience &patience) : patience_(patience) {}

    /// After each step of silence: whether to wait on.
    bool goesOn()
    {
        const Clock::time_point now = Clock::now();
        if (now - lastStep_ > 2 * kStep) {
            began_ = now - kStep; // something came since the last step: this is another wait
        }
        lastStep_ = now;
        const bool cancelled = patience_.cancelled && *patience_.cancelled;
        return !cancelled && now - began_ < std::chrono::milliseconds(patience_.answerMilliseconds);
    }

private:
    using Clock = std::chrono::steady_clock;

    Patience patience_;
    Clock::time_point began_{};
    Clock::time_point lastStep_{};
};

namespace {

constexpr int kConnectMilliseconds = 5000;

/// Whether the server answers a small question in time. Some of libcups' calls open connections of their own, which
/// wait for minutes, so that none of them is made before this is known.
bool answers(http_t *http)
{
    ipp_t *response = cupsDoRequest(http, ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"); // frees the request
    const bool answered = response != nullptr;
    ippDelete(response);
    return answered;
}

Outcome<CupsConnection> unreachable(const QString &why)
{
    return Outcome<CupsConnection>::failed(
        TessarinPrint::tr("print server %1: it cannot be reached: %2").arg(printServerName(), why));
}

} // namespace

QString printServerName()
{
    const QString server = QString::fromUtf8(cupsServer());
    return server.startsWith(u'/') ? server : server + u':' + QString::number(ippPort());
}

QString lastCupsError()
{
    const QString text = QString::fromUtf8(cupsLastErrorString());
    if (text == QString::fromUtf8(std::strerror(0))) {
        return TessarinPrint::tr("the connection was lost"); // a broken connection leaves no other trace
    }
    return text.isEmpty() ? QString::fromUtf8(ippErrorString(cupsLastError())) : text;
}

Outcome<CupsConnection> connectToPrintServer(const Patience &patience)
{
    cupsSetPasswordCB2(
        [](const char *, http_t *, const char *, const char *, void *) -> const char * { return nullptr; },
        nullptr);
    CupsConnection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                           kConnectMilliseconds, nullptr),
                              {.wait = std::make_shared<ServerWait>(patience)});
    if (!connection) {
        // libcups says "host is down" of a server that refuses connections, too.
        const bool refused = cupsLastError() == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE;
        return unreachable(refused ? TessarinPrint::tr("nothing answers there") : lastCupsError());
    }
    httpSetTimeout(
        connection.get(), std::chrono::duration<double>(ServerWait::kStep).count(),
        [](http_t *, void *wait) { return static_cast<ServerWait *>(wait)->goesOn() ? 1 : 0; },
        connection.get_deleter().wait.get());
    if (!answers(connection.get())) {
        // After a silence libcups has no more to say than "internal error" and a stale system error.
        const ipp_status_t status = cupsLastError();
        const bool silent = status == IPP_STATUS_ERROR_INTERNAL || status == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE ||
                            status <= IPP_STATUS_OK_EVENTS_COMPLETE;
        return unreachable(silent ? TessarinPrint::tr("it does not answer") : lastCupsError());
    }
    return connection;
}

Outcome<CupsDestination> findQueue(http_t *http, const QString &name, const QString &instance)
{
    const QByteArray instanceName = instance.toUtf8();
    // libcups takes no name for the default queue, and makes up every instance that it is asked for.
    CupsDestination destination(name.isEmpty()
                                    ? nullptr
                                    : cupsGetNamedDest(http, name.toUtf8().constData(),
                                                       instance.isEmpty() ? nullptr : instanceName.constData()));
    ipp_status_t status = name.isEmpty() ? IPP_STATUS_ERROR_NOT_FOUND : cupsLastError();
    if (destination && instance.isEmpty()) {
        return destination;
    }
    if (destination) {
        const DestinationList all(http);
        if (all.find({.queue = name, .instance = instance}) != nullptr) {
            return destination;
        }
        status = all.count() > 0 ? IPP_STATUS_ERROR_NOT_FOUND : cupsLastError();
    }
    const bool unknown = status <= IPP_STATUS_OK_EVENTS_COMPLETE || status == IPP_STATUS_ERROR_NOT_FOUND;
    const QString why =
        unknown ? TessarinPrint::tr("the print server %1 has no queue of this name").arg(printServerName())
                : TessarinPrint::tr("the print server %1 says: %2").arg(printServerName(), lastCupsError());
    const QString shown = instance.isEmpty() ? name : name + u'/' + instance;
    return Outcome<CupsDestination>::failed(TessarinPrint::tr("queue %1: %2").arg(shown, why));
}

} // namespace tessarin::host
