// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What becomes of a job after the print server has it.

#ifndef TESSARIN_PRINTING_JOB_FOLLOWER_H
#define TESSARIN_PRINTING_JOB_FOLLOWER_H

#include "printing/cups_queue.h"
#include "printing/outcome.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

namespace tessarin::host {

enum class JobState { Pending, Held, Printing, Stopped, Done, Cancelled, Aborted };

/// True for the states that a job does not leave.
bool isFinal(JobState state);

/// A job as the server described it.
struct JobReport {
    JobState state = JobState::Pending;
    QString message{}; ///< why it waits or failed, or what it is doing; may be empty
};

/// Asks the server for a job, on the calling thread, with the deadlines of connectToPrintServer().
Outcome<JobReport> askForJob(const QueueName &queue, int jobId);
/// Cancels a job, on the calling thread. Answers what went wrong; an empty text when nothing did.
QString cancelJobOnServer(const QueueName &queue, int jobId);

/// Asks for a job about once a second, in the background, until it has ended. A server that goes away is told with
/// the state that was known last, and asked again until it answers. May be destroyed at any time, without waiting;
/// the job goes on.
class JobFollower final : public QObject {
    Q_OBJECT

public:
    JobFollower();

    void start(const QueueName &queue, int jobId);
    /// Takes the job back from the server; its end is told as any other. A failure is told as a message.
    void cancelJob();

signals:
    /// The state or the message is another one now. Nothing follows a final state.
    void stateChanged(tessarin::host::JobState state, const QString &message);

private:
    void ask();
    void tell(const JobReport &report);

    QueueName queue_{};
    int jobId_ = 0;
    JobReport last_{};
    bool told_ = false;
    QTimer timer_{};
};

} // namespace tessarin::host

#endif
