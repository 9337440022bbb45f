// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a print server says of a job.

#ifndef TESSARIN_PRINTING_JOB_REPORT_H
#define TESSARIN_PRINTING_JOB_REPORT_H

#include "printing/cups_queue.h"
#include "printing/outcome.h"

#include <QString>
#include <QStringList>

#include <cups/cups.h>

namespace tessarin::host {

enum class JobState { Pending, Held, Printing, Stopped, Done, Cancelled, Aborted };

/// True for the states that a job does not leave.
bool isFinal(JobState state);

/// A job as a person is told of it.
struct JobReport {
    JobState state = JobState::Pending;
    QString message{}; ///< why it waits or failed, or what it is doing; may be empty
};

/// The server's attributes of a job and of its printer.
struct JobFacts {
    int jobState = IPP_JSTATE_PENDING;
    QStringList jobReasons{};    ///< keywords
    QString printerMessage{};    ///< what the printer said of the job last
    int sheets = 0;              ///< that came out so far; 0: none, or not counted
    bool printerStopped = false; ///< as the following: asked for only where the job does not go on
    QStringList printerReasons{};
    QString printerStateMessage{};
};

/// Tells of a job. One that waits for a stopped printer is itself called stopped, so that a person learns why.
JobReport reportOf(const JobFacts &facts);

/// Asks for a job on a connection of connectToPrintServer(). A server that does not know the job keeps no record of
/// jobs that have ended: such a job is done, or given up when its queue is gone. Fails when the server does not
/// answer; the reason names the job.
Outcome<JobReport> askForJob(http_t *http, const QueueName &queue, int jobId);

/// Cancels a job. Answers what went wrong; an empty text when nothing did, or when the job had ended already.
QString cancelJobOnServer(http_t *http, const QueueName &queue, int jobId);

} // namespace tessarin::host

#endif
