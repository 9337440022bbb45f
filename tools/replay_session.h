// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A replayed session: runs the commands of a script on the real panel and prints everything that can be observed.

#ifndef TESSARIN_TOOLS_REPLAY_SESSION_H
#define TESSARIN_TOOLS_REPLAY_SESSION_H

#include "pde/panel_diagnostics.h"
#include "tools/replay_host.h"
#include "tools/replay_script.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::tools {

/// Writes one line of the trace to standard output and flushes it, so that a crash leaves all before it.
void printTraceLine(const std::string &json);

/// The trace line of a log line.
void traceLog(std::string_view line);
/// The trace line of an alert.
void traceAlert(const pde::DiagnosticAlert &alert);

class ReplaySession {
public:
    /// `plugIn` and `diagnostics` outlive the session.
    ReplaySession(pde::PlugIn &plugIn, pde::PanelDiagnostics &diagnostics, const QString &ppdPath,
                  const QString &printerID);

    /// Echoes a command, runs it, and prints its result.
    void run(const ReplayCommand &command);

private:
    using Value = pde::DiagnosticValue;

    /// Runs a command that needs no panel; false when it does.
    bool runWithoutPanel(const ReplayCommand &command, Value &value);
    Value runOnPanel(const ReplayCommand &command);
    Value act(const ReplayCommand &command);
    Value askPanels(const QString &type);
    bool use(int number);
    void hostChange(const QJsonValue &key, const QJsonValue &choice);
    Value summary();
    void release();

    /// A panel of the session and the array it came in, which the factory shares.
    struct Entry {
        pde::Panel *panel = nullptr; ///< the array's; null: released
        std::shared_ptr<pde::PanelArray> array;
    };

    pde::PlugIn &plugIn_;
    pde::PanelDiagnostics &diagnostics_;
    std::shared_ptr<ReplayHost> host_;
    std::vector<Entry> panels_; ///< in the order in which they were made
    pde::Panel *current_ = nullptr;
};

} // namespace tessarin::tools

#endif
