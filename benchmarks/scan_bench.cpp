// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The scan of a PPD with its choice lists: of the sample printer against libcups' reading of it, and of files of
// any size, which is to take time in proportion.

#include "benchmarks/bench_support.h"
#include "plugin/context_lifecycle.h"
#include "plugin/panel_context.h"
#include "ppd/keyword_scanner.h"
#include "tests/support/recording_host.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

using namespace tessarin;

namespace {

constexpr std::size_t kMiB = 1024UL * 1024;

void scan(const std::string &path, ppd_file_s *ppd)
{
    PanelContext *context = MyCreateCustomContext();
    context->ppdFile = ppd;
    ParsePPDFile(path.c_str(), context);
    getPPDOptionSelections(context);
    myCleanup(context);
    MyReleaseCustomContext(context);
}

void scanSample(benchmark::State &state)
{
    test::RecordingHost host(test::samplePPD());
    for ([[maybe_unused]] auto round : state) {
        scan(test::samplePPD(), host.ppdFile());
    }
}

void libcupsSample(benchmark::State &state)
{
    for ([[maybe_unused]] auto round : state) {
        ppdClose(ppdOpenFile(test::samplePPD().c_str()));
    }
}

/// The sample printer with as many options of others behind its own as make up a size.
std::string largePPD(std::size_t size)
{
    std::ifstream file(test::samplePPD(), std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    std::string ppd = text.str();
    ppd.reserve(size + 1024);
    const std::string block = "*OpenUI *Foreign#/Foreign: PickOne\n*DefaultForeign#: One\n"
                              "*Foreign# One/Choice One: \"<</Foreign /One>>setpagedevice\"\n"
                              "*Foreign# Two/Choice Two: \"<</Foreign /Two>>setpagedevice\"\n"
                              "*Foreign# Three/Choice Three: \"<</Foreign /Three>>setpagedevice\"\n"
                              "*CloseUI: *Foreign#\n*UIConstraints: *Foreign# Two *PageSize A4\n";
    for (int number = 0; ppd.size() < size; ++number) {
        const std::string name = std::to_string(number);
        for (const char letter : block) {
            ppd.append(letter == '#' ? name : std::string(1, letter));
        }
    }
    return ppd;
}

/// The parsed PPD is the sample's throughout: libcups would need gigabytes for the largest file, and the lists come
/// from the panel's own options, which are the same in all.
void scanMiB(benchmark::State &state)
{
    const bench::TemporaryFile file(largePPD(static_cast<std::size_t>(state.range(0)) * kMiB));
    test::RecordingHost host(test::samplePPD());
    for ([[maybe_unused]] auto round : state) {
        scan(file.path(), host.ppdFile());
    }
    state.SetBytesProcessed(state.iterations() * state.range(0) * static_cast<std::int64_t>(kMiB));
}

} // namespace

BENCHMARK(scanSample)->Name("scan_sample")->Unit(benchmark::kMicrosecond);
BENCHMARK(libcupsSample)->Name("libcups_sample")->Unit(benchmark::kMicrosecond);
BENCHMARK(scanMiB)->Name("scan_mib")->Arg(1)->Arg(4)->Arg(16)->Arg(64)->Unit(benchmark::kMillisecond);
