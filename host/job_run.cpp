// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "host/job_run.h"

#include "printing/text.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace tessarin::host {

QString jobStateText(int id, JobState state, const QString &message)
{
    QString text;
    switch (state) {
    case JobState::Pending:
        text = TessarinPrint::tr("waiting");
        break;
    case JobState::Held:
        text = TessarinPrint::tr("held");
        break;
    case JobState::Printing:
        text = TessarinPrint::tr("printing");
        break;
    case JobState::Stopped:
        text = TessarinPrint::tr("stopped");
        break;
    case JobState::Done:
        text = TessarinPrint::tr("done");
        break;
    case JobState::Cancelled:
        text = TessarinPrint::tr("cancelled");
        break;
    case JobState::Aborted:
        text = TessarinPrint::tr("given up by the print server");
        break;
    }
    //: %1 is a job's number, %2 what it is doing
    const QString line = TessarinPrint::tr("Job %1: %2").arg(QString::number(id), text);
    return message.isEmpty() ? line : TessarinPrint::tr("%1 – %2").arg(line, message);
}

JobRun::JobRun(std::unique_ptr<Delivery> delivery, QueueName queue)
    : delivery_(std::move(delivery)), queue_(std::move(queue))
{
    delivery_->setProgressObserver([this](qint64 done, qint64 total) { emit progressed(done, total); });
}

void JobRun::start(const JobTicket &ticket)
{
    stopping_ = false;
    canStartAgain_ = false;
    for (const auto &job : jobs_) {
        if (isFinal(job->state)) {
            ended_ << job->id;
        }
    }
    jobs_.clear();
    delivery_->start(ticket, [this](const QString &failure) { delivered(failure); });
}

bool JobRun::isHandedOver() const
{
    return std::any_of(jobs_.begin(), jobs_.end(), [](const auto &job) { return !isFinal(job->state); });
}

void JobRun::cancel()
{
    stopping_ = true;
    if (jobs_.empty()) {
        delivery_->cancel();
        return;
    }
    for (const auto &job : jobs_) {
        if (!isFinal(job->state)) {
            job->follower->cancelJob();
        }
    }
}

void JobRun::delivered(const QString &failure)
{
    if (!failure.isEmpty()) {
        canStartAgain_ = true;
        if (stopping_) {
            emit cancelled(failure);
        } else {
            emit failed(failure);
        }
        return;
    }
    QList<int> ids = delivery_->jobIds();
    ids.removeIf([this](int id) { return ended_.contains(id); });
    if (queue_.queue.isEmpty() || ids.isEmpty()) {
        emit ended();
        return;
    }
    for (const int id : ids) {
        auto job = std::make_unique<Job>();
        job->id = id;
        job->follower = std::make_unique<JobFollower>();
        Job *watched = job.get();
        connect(job->follower.get(), &JobFollower::stateChanged, this,
                [this, watched](JobState state, const QString &message) { jobChanged(*watched, state, message); });
        jobs_.push_back(std::move(job));
    }
    emit handedOver();
    for (const auto &job : jobs_) {
        job->follower->start(queue_, job->id);
    }
    if (stopping_) {
        cancel(); // asked for in the moment between the last byte and the server's answer
    }
}

void JobRun::jobChanged(Job &job, JobState state, const QString &message)
{
    if (isFinal(job.state)) {
        return;
    }
    job.state = state;
    job.message = message;
    emit told(jobStateText(job.id, state, message));
    finishWhenAllHave();
}

void JobRun::finishWhenAllHave()
{
    if (std::any_of(jobs_.begin(), jobs_.end(), [](const auto &job) { return !isFinal(job->state); })) {
        return;
    }
    QStringList aborted;
    QStringList taken;
    QList<int> lost;
    for (const auto &job : jobs_) {
        if (job->state == JobState::Aborted) {
            aborted << jobStateText(job->id, job->state, job->message);
        } else if (job->state == JobState::Cancelled) {
            taken << jobStateText(job->id, job->state, job->message);
        } else {
            continue;
        }
        lost << job->id;
    }
    canStartAgain_ = delivery_->sendAgain(lost);
    if (!aborted.isEmpty()) {
        emit failed(aborted.join(u'\n'));
    } else if (!taken.isEmpty()) {
        emit cancelled(taken.join(u'\n'));
    } else {
        emit ended();
    }
}

} // namespace tessarin::host
