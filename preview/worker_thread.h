// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A thread whose owner never waits for it long.

#ifndef TESSARIN_PREVIEW_WORKER_THREAD_H
#define TESSARIN_PREVIEW_WORKER_THREAD_H

#include <QObject>

#include <functional>
#include <memory>
#include <thread>

namespace tessarin::host {

/// Does one piece of work after the other on a thread of its own. The work must not touch the thread's owner but
/// through HandOver: a file on a server that hangs keeps the thread, never the owner.
class WorkerThread {
public:
    /// Calls a function on the owner's thread, unless the owner is gone by then.
    using HandOver = std::function<void(std::function<void()> hear)>;
    using Work = std::function<void(const HandOver &handOver)>;

    /// `receiver`: the object on whose thread results are heard; borrowed, it outlives this one.
    explicit WorkerThread(QObject *receiver);
    /// Drops what has not begun and gives what runs half a second to end; after that the thread ends by itself.
    ~WorkerThread();
    WorkerThread(const WorkerThread &) = delete;
    WorkerThread &operator=(const WorkerThread &) = delete;

    /// Appends a piece of work.
    void start(Work work);

private:
    struct State;

    std::shared_ptr<State> state_;
    std::thread thread_;
};

} // namespace tessarin::host

#endif
