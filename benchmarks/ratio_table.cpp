// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benchmarks/ratio_table.h"

#include <array>
#include <cstdio>

namespace tessarin::bench {

namespace {

constexpr std::array<Ratio, 14> kRatios{{
    {"panel open / its interface file, `ppdOpenFile`, first paint", "panel_open", "panel_floor", 1, 1.25},
    {"panel open / `QPrintDialog`", "panel_open", "qt_print_dialog", 1, 1.0},
    {"media change / the same refills with bare toolkit calls", "media_change", "media_refills", 1, 1.5},
    {"the same, both until they are drawn", "media_change_drawn", "media_refills_drawn", 1, 1.5},
    {"scan and choice lists / `ppdOpenFile`, sample PPD", "scan_sample", "libcups_sample", 1, 0.3},
    {"scan of 4 MiB, per byte / 1 MiB", "scan_mib/4", "scan_mib/1", 4, 1.1},
    {"scan of 16 MiB, per byte / 1 MiB", "scan_mib/16", "scan_mib/1", 16, 1.1},
    {"scan of 64 MiB, per byte / 1 MiB", "scan_mib/64", "scan_mib/1", 64, 1.1},
    {"extra data of 64 KiB / bare decoding and inflating", "extra_data/65536", "bare_data/65536", 1, 1.15},
    {"extra data of 4 MiB / bare decoding and inflating", "extra_data/4194304", "bare_data/4194304", 1, 1.15},
    {"one log line to the null sink / `snprintf`", "log_line", "snprintf_line", 1, 4},
    {"one log line to the system log / `syslog` of a finished text", "log_line_syslog", "syslog_line", 1, 4},
    {"panel open, log to the system log / to the null sink", "panel_open_syslog", "panel_open", 1, 0},
    {"heap of a panel without its widgets, KiB", "panel_heap_kib", nullptr, 1, 64},
}};

double valueOf(const Ratio &ratio, const MedianReporter &reporter)
{
    const double measured = reporter.median(ratio.measured);
    if (ratio.against == nullptr) {
        return measured;
    }
    const double against = reporter.median(ratio.against);
    return measured < 0 || against <= 0 ? -1 : measured / against / ratio.scale;
}

} // namespace

void MedianReporter::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        const auto kib = run.counters.find("KiB");
        const double value = kib != run.counters.end() ? kib->second.value
                                                       : run.real_accumulated_time * 1e9 / double(run.iterations);
        // With repetitions the median is a run of its own; without, the only run is the median.
        if (run.run_type == Run::RT_Aggregate ? run.aggregate_name == "median" : run.repetitions <= 1) {
            medians_[run.run_name.function_name + (run.run_name.args.empty() ? "" : "/" + run.run_name.args)] =
                value;
        }
    }
}

double MedianReporter::median(const std::string &name) const
{
    const auto found = medians_.find(name);
    return found == medians_.end() ? -1 : found->second;
}

std::string ratioTable(const MedianReporter &reporter)
{
    std::string table = "| what | ratio | goal | |\n|---|---:|---:|---|\n";
    for (const Ratio &ratio : kRatios) {
        const double value = valueOf(ratio, reporter);
        if (value < 0) {
            continue;
        }
        std::array<char, 256> row{};
        if (ratio.goal > 0) {
            std::snprintf(row.data(), row.size(), "| %s | %.3g | %.3g | %s |\n", ratio.what, value, ratio.goal,
                          value <= ratio.goal ? "met" : "missed");
        } else {
            std::snprintf(row.data(), row.size(), "| %s | %.3g | | |\n", ratio.what, value);
        }
        table += row.data();
    }
    return table;
}

} // namespace tessarin::bench
