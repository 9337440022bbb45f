// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "printing/job_follower.h"

#include "printing/background_work.h"
#include "printing/cups_connection.h"
#include "printing/text.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>
#include <utility>

namespace tessarin::host {

namespace {

constexpr std::chrono::milliseconds kAskAgain = std::chrono::seconds(1);
constexpr int kConnectionsKept = 8; // a server takes only so many of one person (by default 100)

/// One job's following, on the thread that does it.
class Pursuit {
public:
    using Tell = std::function<void(const JobReport &report)>;

    Pursuit(BackgroundWork &work, QueueName queue, int jobId, Tell tell)
        : work_(work), queue_(std::move(queue)), jobId_(jobId), tell_(std::move(tell))
    {
        ++running_;
    }
    ~Pursuit() { --running_; }
    Pursuit(const Pursuit &) = delete;
    Pursuit &operator=(const Pursuit &) = delete;

    void run()
    {
        while (!work_.abandoned()) {
            report(askOnce());
            if (last_ && isFinal(last_->state)) {
                return;
            }
            if (running_ > kConnectionsKept) {
                connection_.reset();
            }
            work_.rest(kAskAgain, !cancelSent_);
        }
    }

private:
    JobReport askOnce()
    {
        if (!connection_) {
            Outcome<CupsConnection> connection = connectToPrintServer({.cancelled = &work_.abandoned()});
            if (!connection.ok()) {
                return noAnswer(connection.reason());
            }
            connection_ = connection.take();
        }
        const bool cancels = work_.isAsked() && !cancelSent_;
        const QString refused = cancels ? cancelJobOnServer(connection_.get(), queue_, jobId_) : QString();
        const Outcome<JobReport> answer = askForJob(connection_.get(), queue_, jobId_);
        if (!answer.ok()) {
            connection_.reset(); // a cancelling that got no answer is tried again on the next one
            return noAnswer(answer.reason());
        }
        cancelSent_ = cancelSent_ || cancels;
        if (cancels) {
            refused_ = refused.isEmpty()
                           ? QString()
                           : TessarinPrint::tr("the print server does not cancel it: %1").arg(refused);
        }
        JobReport result = answer.value();
        if (!refused_.isEmpty() && !isFinal(result.state)) {
            result.message = refused_;
        }
        return result;
    }

    /// The state that was known last, with what is wrong now.
    JobReport noAnswer(const QString &why) const
    {
        return {.state = last_ ? last_->state : JobState::Pending, .message = why};
    }

    void report(const JobReport &report)
    {
        if (!last_ || report.state != last_->state || report.message != last_->message) {
            last_ = report;
            tell_(report);
        }
    }

    static inline std::atomic<int> running_ = 0; ///< pursuits in this program

    BackgroundWork &work_;
    QueueName queue_;
    int jobId_;
    Tell tell_;
    CupsConnection connection_{};
    std::optional<JobReport> last_{};
    bool cancelSent_ = false;
    QString refused_{}; ///< why the server does not cancel the job; empty: it was not asked, or did
};

} // namespace

JobFollower::~JobFollower()
{
    if (work_) {
        work_->abandon();
    }
}

void JobFollower::start(const QueueName &queue, int jobId)
{
    if (work_) {
        work_->abandon();
    }
    work_ = BackgroundWork::start(this, [this, queue, jobId](BackgroundWork &work) {
        const auto tell = [this, &work](const JobReport &report) {
            work.handOver([this, report] { emit stateChanged(report.state, report.message); });
        };
        Pursuit(work, queue, jobId, tell).run();
    });
}

void JobFollower::cancelJob()
{
    if (work_) {
        work_->ask();
    }
}

} // namespace tessarin::host
