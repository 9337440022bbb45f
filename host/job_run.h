// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// One press of Print, from the ticket to the end of the job.

#ifndef TESSARIN_HOST_JOB_RUN_H
#define TESSARIN_HOST_JOB_RUN_H

#include "printing/cups_queue.h"
#include "printing/delivery.h"
#include "printing/job_follower.h"

#include <QList>
#include <QObject>
#include <QString>

#include <memory>
#include <vector>

namespace tessarin::host {

/// Delivers a ticket and, on a queue, follows the jobs that came of it until the last has ended. Every run ends
/// with exactly one of ended(), failed() and cancelled().
class JobRun final : public QObject {
    Q_OBJECT

public:
    /// `queue`: where the delivery's jobs are; with an empty name there is nothing to follow.
    JobRun(std::unique_ptr<Delivery> delivery, QueueName queue);

    void start(const JobTicket &ticket);
    /// Stops the delivery, or cancels the jobs that run.
    void cancel();
    /// True after a run that failed: starting again sends what is still to be sent, and nothing twice.
    bool canStartAgain() const { return canStartAgain_; }
    /// True when some of the jobs are with the server or were, and did not come to nothing.
    bool hasSentSome() const { return !delivery_->jobIds().isEmpty(); }
    /// True while the server has jobs that have not ended: closing the dialog leaves them there.
    bool isHandedOver() const;

signals:
    /// How far the documents are on their way, in bytes.
    void progressed(qint64 done, qint64 total);
    /// What a job is doing, for the user.
    void told(const QString &text);
    void handedOver();
    void ended();
    void failed(const QString &reason);
    void cancelled(const QString &reason);

private:
    struct Job {
        int id = 0;
        JobState state = JobState::Pending;
        QString message{};
        std::unique_ptr<JobFollower> follower{};
    };

    void delivered(const QString &failure);
    void jobChanged(Job &job, JobState state, const QString &message);
    void finishWhenAllHave();

    std::unique_ptr<Delivery> delivery_;
    QueueName queue_;
    std::vector<std::unique_ptr<Job>> jobs_{}; ///< those of the last start
    QList<int> ended_{};                       ///< numbers of jobs of earlier starts that have ended
    bool stopping_ = false;
    bool canStartAgain_ = false;
};

/// A job's state in words: "Job 12: printing".
QString jobStateText(int id, JobState state, const QString &message);

} // namespace tessarin::host

#endif
