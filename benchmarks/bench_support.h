// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What several benchmarks need.

#ifndef TESSARIN_BENCHMARKS_BENCH_SUPPORT_H
#define TESSARIN_BENCHMARKS_BENCH_SUPPORT_H

#include <QWidget>

#include <string>

namespace tessarin::bench {

/// Shows a widget, in a window of its own size, and returns once it has been painted.
void showUntilPainted(QWidget &window);

/// Ends the process with a text; for what a benchmark cannot go on without.
[[noreturn]] void giveUp(const std::string &text);

/// A file that is there as long as this object.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string &content);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    const std::string &path() const { return path_; }

private:
    std::string path_;
};

} // namespace tessarin::bench

#endif
