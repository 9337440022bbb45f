// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Collects the diagnostic log for the length of a scope.

#ifndef TESSARIN_TESTS_SUPPORT_CAPTURED_LOG_H
#define TESSARIN_TESTS_SUPPORT_CAPTURED_LOG_H

#include "platform/log_sink.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::test {

class CapturedLog {
public:
    CapturedLog()
    {
        setLogSink([this](std::string_view line) { lines_.emplace_back(line); });
    }
    ~CapturedLog()
    {
        setLogSink([](std::string_view) {}); // tests never write to the system log
    }
    CapturedLog(const CapturedLog &) = delete;
    CapturedLog &operator=(const CapturedLog &) = delete;

    const std::vector<std::string> &lines() const { return lines_; }
    void clear() { lines_.clear(); }
    /// How many lines are exactly `line`.
    long count(std::string_view line) const { return std::count(lines_.begin(), lines_.end(), line); }
    bool contains(std::string_view line) const { return count(line) > 0; }
    /// How many lines begin with `start`.
    long countStarting(std::string_view start) const
    {
        return std::count_if(lines_.begin(), lines_.end(),
                             [start](const std::string &line) { return line.starts_with(start); });
    }
    /// The place of the first line that is exactly `line`; -1 when there is none.
    long indexOf(std::string_view line) const
    {
        const auto found = std::find(lines_.begin(), lines_.end(), line);
        return found == lines_.end() ? -1 : found - lines_.begin();
    }

private:
    std::vector<std::string> lines_;
};

} // namespace tessarin::test

#endif
