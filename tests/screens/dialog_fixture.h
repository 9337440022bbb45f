// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The whole print dialog with the real panel on the sample printer, in one language. Print fails.

#ifndef TESSARIN_TESTS_SCREENS_DIALOG_FIXTURE_H
#define TESSARIN_TESTS_SCREENS_DIALOG_FIXTURE_H

#include "host/dialog.h"
#include "host/plugin_loader.h"
#include "host/printer_choices.h"
#include "host/translation.h"

#include <QTabWidget>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tessarin::test {

class WholeDialog {
public:
    explicit WholeDialog(const std::string &language);

    /// Why there is no dialog; empty when there is one.
    QString problem{};
    std::unique_ptr<host::PrintDialog> dialog{};

    /// Shows each page of the dialog, and each of the panel that may be selected, and calls `visit` with its name.
    void eachPage(const std::function<void(const std::string &name)> &visit);
    /// Sets some options to something else than their defaults, as far as they go together.
    void changeSome();
    QTabWidget *tabs() const { return dialog->panelView()->findChild<QTabWidget *>(); }

private:
    static std::optional<pde::LogSink> silence();

    host::Translation translation_;
    host::LoadedPlugIn plugIn_{};
};

} // namespace tessarin::test

#endif
