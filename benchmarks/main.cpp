// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs the benchmarks and ends with the table of ratios. All options of the benchmark library go.

#include "benchmarks/ratio_table.h"
#include "platform/log_sink.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // The offscreen platform mentions at each window what it cannot do.
    setenv("QT_LOGGING_RULES", "default.warning=false", 0);
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    tessarin::setLogSink([](std::string_view) {});
    tessarin::bench::MedianReporter reporter;
    if (benchmark::RunSpecifiedBenchmarks(&reporter) == 0) {
        return 1;
    }
    std::printf("\n%s", tessarin::bench::ratioTable(reporter).c_str());
    return 0;
}
