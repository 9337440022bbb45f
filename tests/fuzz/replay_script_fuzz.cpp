// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Replay scripts of any content, the first commands of each run on the sample printer's panel.

#include "host/plugin_loader.h"
#include "tests/fuzz/fuzz_support.h"
#include "tests/support/recording_host.h"
#include "tools/replay_script.h"
#include "tools/replay_session.h"

#include <cstdio>
#include <optional>

using namespace tessarin;

namespace {

constexpr int kMostCommands = 12; // a panel's page takes its time

struct PlugInUnderTest {
    host::LoadedPlugIn loaded{};
    pde::PanelDiagnostics *diagnostics = nullptr;
};

PlugInUnderTest load()
{
    PlugInUnderTest found;
    // The trace goes nowhere: what is wanted here is that there is one.
    test::require(std::freopen("/dev/null", "w", stdout) != nullptr, "the trace can be left out");
    host::Outcome<host::LoadedPlugIn> outcome = host::loadPlugIn(
        {.directory = QStringLiteral(TESSARIN_TEST_BUNDLE),
         .language = QStringLiteral("en"),
         .logSink = [](std::string_view) {},
         .prepare =
             [&](QObject &instance) { found.diagnostics = qobject_cast<pde::PanelDiagnostics *>(&instance); }});
    test::require(outcome.ok() && found.diagnostics != nullptr, "the plug-in loads");
    found.loaded = outcome.take();
    found.diagnostics->setAlertObserver(tools::traceAlert);
    return found;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const PlugInUnderTest plugIn = load();
    const QByteArray script(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    std::optional<tools::ReplaySession> session;
    int run = 0;
    for (const QByteArray &line : script.split('\n')) {
        tools::ReplayCommand command;
        QString reason;
        if (tools::isSkippedLine(line)) {
            continue;
        }
        if (!tools::parseReplayLine(line, command, reason)) {
            test::require(!reason.isEmpty(), "a line that is not understood has a reason");
            break;
        }
        if (run == kMostCommands) {
            break;
        }
        if (!session) {
            session.emplace(*plugIn.loaded.plugIn, *plugIn.diagnostics, QStringLiteral(TESSARIN_SAMPLE_PPD),
                            QStringLiteral("fuzz"));
        }
        session->run(command);
        ++run;
    }
    return 0;
}
