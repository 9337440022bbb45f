// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The queues that a print server offers.

#ifndef TESSARIN_PRINTING_DESTINATIONS_H
#define TESSARIN_PRINTING_DESTINATIONS_H

#include "printing/cups_queue.h"
#include "printing/outcome.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>

namespace tessarin::host {

class BackgroundWork;

enum class QueueState { Idle, Printing, Stopped };

/// A queue, or one of the user's instances of it, as the server described it last.
struct Destination {
    QueueName name{};
    QString info{};         ///< the description for people; may be empty
    QString location{};     ///< may be empty
    QString makeAndModel{}; ///< may be empty
    QueueState state = QueueState::Idle;
    QStringList reasons{}; ///< why it is in this state, as the server's keywords; empty: nothing to tell
    bool accepting = true; ///< takes new jobs
    bool isDefault = false;
};

/// Place and state in words: "Studio 2  ·  idle", "stopped (paused)  ·  takes no jobs".
QString destinationDetail(const Destination &destination);

/// Asks the print server for its queues, in its order, on the calling thread. A server that cannot be reached or
/// does not answer is given up after some seconds, or soon after `cancelled` becomes true. A server without queues
/// is an empty list. The reason of a failure names the server.
Outcome<QList<Destination>> listDestinations(const std::atomic<bool> &cancelled);

/// Asks for the queues in the background. Of several questions only the last is answered, by exactly one signal,
/// and none after cancel(). May be destroyed at any time, without waiting.
class DestinationFinder final : public QObject {
    Q_OBJECT

public:
    DestinationFinder() = default;
    ~DestinationFinder() override;

    void start();
    void cancel();

signals:
    void found(const QList<tessarin::host::Destination> &destinations);
    void failed(const QString &reason);

private:
    std::shared_ptr<BackgroundWork> work_{}; ///< the question that runs; null: none does
};

} // namespace tessarin::host

#endif
