// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/worker_thread.h"

#include <QMetaObject>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace tessarin::host {

namespace {

constexpr std::chrono::milliseconds kPatience(500);

} // namespace

/// Shared by the thread and its owner; all of it is guarded by the mutex.
struct WorkerThread::State {
    std::mutex mutex{};
    std::condition_variable changed{};
    std::deque<Work> waiting{};
    QObject *receiver = nullptr; ///< borrowed; null: the owner is gone
    bool hasEnded = false;

    void run()
    {
        const HandOver handOver = [this](std::function<void()> hear) {
            const std::lock_guard lock(mutex);
            if (receiver) {
                QMetaObject::invokeMethod(receiver, std::move(hear), Qt::QueuedConnection);
            }
        };
        std::unique_lock lock(mutex);
        for (;;) {
            changed.wait(lock, [this] { return !receiver || !waiting.empty(); });
            if (!receiver) {
                break;
            }
            Work work = std::move(waiting.front());
            waiting.pop_front();
            lock.unlock();
            work(handOver);
            work = nullptr; // what it holds goes on this thread
            lock.lock();
        }
        hasEnded = true;
        changed.notify_all();
    }
};

WorkerThread::WorkerThread(QObject *receiver) : state_(std::make_shared<State>())
{
    state_->receiver = receiver;
    thread_ = std::thread([state = state_] { state->run(); });
}

WorkerThread::~WorkerThread()
{
    std::deque<Work> dropped; // their contents go without the lock
    std::unique_lock lock(state_->mutex);
    state_->receiver = nullptr;
    dropped.swap(state_->waiting);
    state_->changed.notify_all();
    if (state_->changed.wait_for(lock, kPatience, [this] { return state_->hasEnded; })) {
        lock.unlock();
        thread_.join();
    } else {
        thread_.detach();
    }
}

void WorkerThread::start(Work work)
{
    const std::lock_guard lock(state_->mutex);
    state_->waiting.push_back(std::move(work));
    state_->changed.notify_all();
}

} // namespace tessarin::host
