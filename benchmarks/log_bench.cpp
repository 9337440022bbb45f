// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// One line of the diagnostic log as the controls write it, against the C library's formatting of the same text.

#include "platform/log_sink.h"
#include "plugin/log.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>

#include <syslog.h>

namespace {

constexpr const char *kKeyword = "vornMediaType";
constexpr const char *kChoice = "ArtPaper03";

void logOneLine(int number)
{
    tessarin::_VERBOSE("getPPDOptionSelections: option=%S, choice=%S, number=%d\n", kKeyword, kChoice, number);
}

void logLine(benchmark::State &state)
{
    int number = 0;
    for ([[maybe_unused]] auto round : state) {
        logOneLine(++number);
    }
}

void snprintfLine(benchmark::State &state)
{
    int number = 0;
    std::array<char, 512> line{};
    for ([[maybe_unused]] auto round : state) {
        std::snprintf(line.data(), line.size(), "LOG getPPDOptionSelections: option=%s, choice=%s, number=%d\n",
                      kKeyword, kChoice, ++number);
        benchmark::DoNotOptimize(line);
    }
}

void logLineSyslog(benchmark::State &state)
{
    tessarin::setLogSink({});
    logLine(state);
    tessarin::setLogSink([](std::string_view) {});
}

void syslogLine(benchmark::State &state)
{
    int number = 0;
    for ([[maybe_unused]] auto round : state) {
        syslog(LOG_USER | LOG_DEBUG, "LOG getPPDOptionSelections: option=%s, choice=%s, number=%d\n", kKeyword,
               kChoice, ++number);
    }
}

} // namespace

BENCHMARK(logLine)->Name("log_line");
BENCHMARK(snprintfLine)->Name("snprintf_line");
BENCHMARK(logLineSyslog)->Name("log_line_syslog");
BENCHMARK(syslogLine)->Name("syslog_line");
