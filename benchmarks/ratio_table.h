// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The table of ratios that a run of the benchmarks ends with.

#ifndef TESSARIN_BENCHMARKS_RATIO_TABLE_H
#define TESSARIN_BENCHMARKS_RATIO_TABLE_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace tessarin::bench {

/// One measurement in terms of another one of the same run.
struct Ratio {
    const char *what;
    const char *measured; ///< name of the benchmark
    const char *against;  ///< name of the benchmark that is 1
    double scale;         ///< how many times the work of `against` the measured one does
    double goal;          ///< largest ratio that is good
};

/// Shows the runs as they come, and keeps the median time of each.
class MedianReporter : public benchmark::ConsoleReporter {
public:
    MedianReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run> &runs) override;

    /// In nanoseconds; negative for a benchmark that was not run.
    double median(const std::string &name) const;

private:
    std::map<std::string, double> medians_;
};

/// The rows that were measured, as a Markdown table.
std::string ratioTable(const MedianReporter &reporter);

} // namespace tessarin::bench

#endif
