// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Sending a job to the print server.

#ifndef TESSARIN_PRINTING_JOB_SUBMISSION_H
#define TESSARIN_PRINTING_JOB_SUBMISSION_H

#include "printing/cups_queue.h"
#include "printing/documents.h"
#include "printing/outcome.h"
#include "printing/ticket.h"

#include <QString>

#include <atomic>
#include <functional>
#include <vector>

namespace tessarin::host {

/// A job to send: copies only, so that it can be sent on any thread.
struct JobRequest {
    QueueName queue{};
    std::vector<JobDocument> documents{}; ///< at least one; they become one job in this order
    JobTicket ticket{};
    QString title{}; ///< of the job; empty: the first document's name
    /// Hears of each piece that went out, on the sending thread; or empty.
    std::function<void(qint64 bytes)> sent{};
};

/// Sends a job and waits until the print server has taken all of it. The job's options are the queue's and the
/// user's saved ones with the ticket's over them, each sent explicitly. Saved attributes that would overrule
/// options of the ticket by another name (a saved colour mode, paper or side) are left out where the ticket does
/// not set them itself. The result is the job's number. When it fails, or `cancelled` becomes true on the way, the
/// begun job is taken back; the reason names queue or document. A stopped queue takes the job, which waits there;
/// one that rejects jobs is a failure.
Outcome<int> submitJob(const JobRequest &request, const std::atomic<bool> &cancelled);

} // namespace tessarin::host

#endif
