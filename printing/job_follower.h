// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What becomes of a job after the print server has it.

#ifndef TESSARIN_PRINTING_JOB_FOLLOWER_H
#define TESSARIN_PRINTING_JOB_FOLLOWER_H

#include "printing/cups_queue.h"
#include "printing/job_report.h"

#include <QObject>
#include <QString>

#include <memory>

namespace tessarin::host {

class BackgroundWork;

/// Asks for a job about once a second, in the background, until it has ended. A server that goes away is told with
/// the state that was known last, and asked again until it answers. May be destroyed at any time, without waiting;
/// the job goes on.
class JobFollower final : public QObject {
    Q_OBJECT

public:
    JobFollower() = default;
    ~JobFollower() override;

    /// Follows a job, and no longer the one before.
    void start(const QueueName &queue, int jobId);
    /// Takes the job back from the server, as soon as that answers; the job's end is told as any other. A server
    /// that refuses is told as a message.
    void cancelJob();

signals:
    /// The state or the message is another one now. Nothing follows a final state.
    void stateChanged(tessarin::host::JobState state, const QString &message);

private:
    std::shared_ptr<BackgroundWork> work_{}; ///< null: no job is followed
};

} // namespace tessarin::host

#endif
