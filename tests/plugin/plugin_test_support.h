// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the tests of the plug-in shell share: bundles made on the spot, and what lines of the log look like.

#ifndef TESSARIN_TESTS_PLUGIN_PLUGIN_TEST_SUPPORT_H
#define TESSARIN_TESTS_PLUGIN_PLUGIN_TEST_SUPPORT_H

#include "controls/embedding.h"
#include "pde/print_dialog_extension.h"
#include "platform/bundle.h"
#include "platform/formatter.h"
#include "plugin/string_helpers.h"
#include "tests/ppd/ppd_test_support.h"
#include "tests/support/captured_log.h"
#include "tests/support/panel_session.h"

#include <QByteArray>
#include <QHash>
#include <QTemporaryDir>

#include <memory>
#include <string>
#include <vector>

namespace tessarin::test {

/// An address as the log writes it.
std::string address(const void *object);
/// "<Class: 0x…>".
std::string described(const std::string &className, const void *object);
/// The start of a panel's line: "BEGIN self(<PasswordPDE: 0x…>) " and so on.
std::string panelLine(const std::string &tag, const pde::Panel *panel, const std::string &message);

/// Addresses and handles in the log stand still for the length of a scope.
class StableAddresses {
public:
    StableAddresses() { setStableAddresses(true); }
    ~StableAddresses() { setStableAddresses(false); }
    StableAddresses(const StableAddresses &) = delete;
    StableAddresses &operator=(const StableAddresses &) = delete;
};

/// Whether the interpreter is there, for the length of a scope.
class Ghostscript {
public:
    explicit Ghostscript(bool installed);
    ~Ghostscript() { ghostscriptPaths = former_; }
    Ghostscript(const Ghostscript &) = delete;
    Ghostscript &operator=(const Ghostscript &) = delete;

private:
    decltype(ghostscriptPaths) former_ = ghostscriptPaths;
};

/// A bundle of texts in memory, which remembers what it was asked for.
class TextBundle : public pde::Bundle {
public:
    explicit TextBundle(QHash<QString, QString> translations = {}) : translations_(std::move(translations)) {}

    QString identifier() const override { return QStringLiteral("org.example.texts"); }
    QString localizedString(const QString &key) const override
    {
        asked.push_back(key.toStdString());
        return translations_.value(key, key);
    }

    mutable std::vector<std::string> asked; ///< every key, in order

private:
    QHash<QString, QString> translations_;
};

/// The source of localised texts for the length of a scope.
class TextsFrom {
public:
    explicit TextsFrom(pde::Bundle *bundle) : former_(mybundle) { mybundle = bundle; }
    ~TextsFrom() { mybundle = former_; }
    TextsFrom(const TextsFrom &) = delete;
    TextsFrom &operator=(const TextsFrom &) = delete;

private:
    pde::Bundle *former_;
};

/// The text of the panel's interface file.
QByteArray interfaceText();

/// A bundle directory for the length of a scope, with an interface file of its own.
class TemporaryBundle {
public:
    /// Without interface text there is no interface file.
    explicit TemporaryBundle(const QByteArray &interface = {});

    std::shared_ptr<DirectoryBundle> open() const;
    std::string path(const char *name) const;
    void writeInterface(const QByteArray &interface) const;

private:
    QTemporaryDir folder_;
};

/// A panel made without a factory.
std::shared_ptr<PasswordPDE> makePanel(const std::shared_ptr<pde::HostCallback> &host,
                                       const std::shared_ptr<pde::Bundle> &bundle = buildBundle());

} // namespace tessarin::test

#endif
