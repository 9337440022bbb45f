// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A panel with its host, opened as a print dialog opens it, for tests of the real panel on the offscreen platform.

#ifndef TESSARIN_TESTS_SUPPORT_PANEL_SESSION_H
#define TESSARIN_TESTS_SUPPORT_PANEL_SESSION_H

#include "platform/bundle.h"
#include "plugin/password_pde.h"
#include "plugin/plugin_factory.h"
#include "tests/support/recording_host.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSlider>

#include <memory>
#include <string>

namespace tessarin::test {

/// The bundle of the build tree, in a language ("en": the texts as written).
std::shared_ptr<DirectoryBundle> buildBundle(const QString &language = QStringLiteral("en"));

class PanelSession {
public:
    /// Makes factory, host and panel; the panel restores itself, but has no view yet.
    explicit PanelSession(const std::string &ppdPath = samplePPD(), const std::string &identifier = "sample",
                          const std::shared_ptr<pde::Bundle> &bundle = buildBundle());
    ~PanelSession();
    PanelSession(const PanelSession &) = delete;
    PanelSession &operator=(const PanelSession &) = delete;

    /// Asks for the view.
    QWidget *open();

    PanelContext *context() const { return panel->panelContext(); }
    PanelSettings &settings() const { return panel->panelContext()->settings; }
    QComboBox *popup(int row) const;
    QSlider *slider(int number) const;
    QLabel *sliderText(int number) const;
    QCheckBox *checkBox(int id) const;

    std::shared_ptr<RecordingHost> host;
    std::shared_ptr<pde::Bundle> bundle;
    std::unique_ptr<TessarinPDEPlugIn> plugIn;
    std::shared_ptr<pde::PanelArray> panels;
    PasswordPDE *panel = nullptr; ///< the array's
};

} // namespace tessarin::test

#endif
