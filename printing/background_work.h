// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Work on a thread of its own that its owner need not wait for.

#ifndef TESSARIN_PRINTING_BACKGROUND_WORK_H
#define TESSARIN_PRINTING_BACKGROUND_WORK_H

#include <QMetaObject>
#include <QObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

namespace tessarin::host {

/// What an object and the thread that works for it share, and all that the thread may touch: a print server that
/// hangs keeps the thread for a while, but never the object. Held by both; the object calls abandon() before it
/// goes or wants nothing more of the work.
class BackgroundWork : public std::enable_shared_from_this<BackgroundWork> {
public:
    /// Starts `run` on a thread of its own. `receiver`: the object whose thread results are handed to; borrowed
    /// until abandon().
    static std::shared_ptr<BackgroundWork> start(QObject *receiver, std::function<void(BackgroundWork &)> run)
    {
        std::shared_ptr<BackgroundWork> work(new BackgroundWork(receiver));
        std::thread([work, run = std::move(run)] { run(*work); }).detach();
        return work;
    }

    /// Ends the work as soon as it can: nothing is handed over any more, not even what is already on its way. On
    /// the receiver's thread.
    void abandon()
    {
        const std::lock_guard lock(mutex_);
        receiver_ = nullptr;
        abandoned_ = true;
        wakeUp_.notify_all();
    }

    const std::atomic<bool> &abandoned() const { return abandoned_; }

    /// Calls `hear` on the receiver's thread, unless the work is abandoned before its turn. On any thread.
    void handOver(std::function<void()> hear)
    {
        const std::lock_guard lock(mutex_);
        if (receiver_) {
            QMetaObject::invokeMethod(
                receiver_,
                [work = shared_from_this(), hear = std::move(hear)] {
                    if (!work->abandoned_) {
                        hear();
                    }
                },
                Qt::QueuedConnection);
        }
    }

    /// Asks the thread for something; it hears of it through isAsked(). On any thread.
    void ask()
    {
        const std::lock_guard lock(mutex_);
        asked_ = true;
        wakeUp_.notify_all();
    }
    /// Whether ask() was called.
    bool isAsked() const { return asked_; }

    /// Lets the thread rest until something happens: `time` is over, the work is abandoned, or, when `untilAsked`,
    /// something is asked for.
    void rest(std::chrono::milliseconds time, bool untilAsked)
    {
        std::unique_lock lock(mutex_);
        wakeUp_.wait_for(lock, time, [&] { return abandoned_ || (untilAsked && asked_); });
    }

private:
    explicit BackgroundWork(QObject *receiver) : receiver_(receiver) {}

    std::mutex mutex_{};
    std::condition_variable wakeUp_{};
    QObject *receiver_; ///< borrowed; null: abandoned
    std::atomic<bool> abandoned_ = false;
    std::atomic<bool> asked_ = false;
};

} // namespace tessarin::host

#endif
