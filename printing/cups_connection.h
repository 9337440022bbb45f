// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A connection to the print server that never waits without end.

#ifndef TESSARIN_PRINTING_CUPS_CONNECTION_H
#define TESSARIN_PRINTING_CUPS_CONNECTION_H

#include "printing/outcome.h"

#include <QString>

#include <atomic>
#include <memory>

#include <cups/cups.h>

namespace tessarin::host {

/// How long the calls on a connection wait for an answer, and who may end their waiting.
struct Patience {
    const std::atomic<bool> *cancelled = nullptr; ///< borrowed while the connection lives; null: nobody's
    int answerMilliseconds = 15000;               ///< of silence, from 1
};

class ServerWait;

struct ConnectionCloser {
    std::shared_ptr<ServerWait> wait{}; ///< used by the connection as long as it is open
    void operator()(http_t *http) const { httpClose(http); }
};
using CupsConnection = std::unique_ptr<http_t, ConnectionCloser>;

struct DestinationFreer {
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
using CupsDestination = std::unique_ptr<cups_dest_t, DestinationFreer>;

/// Connects to the user's print server (CUPS_SERVER, client.conf, or the local one) for use on the calling thread.
/// Waits a few seconds at most, here and for each answer later. A server that asks for a password is answered
/// with none: libcups would else ask on the terminal. The reason of a failure names the server.
Outcome<CupsConnection> connectToPrintServer(const Patience &patience = {});

/// The server's name as a person would write it: a socket's path, or host and port.
QString printServerName();

/// Looks a queue up, with its own and the user's saved options. `instance` may be empty. The reason of a failure
/// names the queue.
Outcome<CupsDestination> findQueue(http_t *http, const QString &name, const QString &instance);

/// Why the last libcups call on this thread failed.
QString lastCupsError();

} // namespace tessarin::host

#endif
