// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A print queue as the dialog needs it before printing: its PPD and its saved options.

#ifndef TESSARIN_PRINTING_CUPS_QUEUE_H
#define TESSARIN_PRINTING_CUPS_QUEUE_H

#include "printing/cups_options.h"
#include "printing/outcome.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace tessarin::host {

/// The name by which a person asks for a queue: "queue" or "queue/instance".
struct QueueName {
    QString queue{};
    QString instance{}; ///< one of the user's named sets of options for the queue; empty: none

    static QueueName fromText(const QString &text);
    QString text() const;
};

/// What the print server told about a queue.
struct QueueDescription {
    QueueName name{};
    QString ppdPath{};                          ///< a copy in `directory`, or a link to the server's own file
    CupsOptions savedOptions{};                 ///< the queue's and the user's defaults
    std::shared_ptr<QTemporaryDir> directory{}; ///< holds the PPD; removed with this record
};

/// Asks the print server for a queue. The reason of a failure names the server or the queue.
Outcome<QueueDescription> describeQueue(const QueueName &name);

} // namespace tessarin::host

#endif
