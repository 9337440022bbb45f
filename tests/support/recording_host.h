// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A host callback for tests: hands out a PPD, records what the panel asks for, and refuses what it is told to.

#ifndef TESSARIN_TESTS_SUPPORT_RECORDING_HOST_H
#define TESSARIN_TESTS_SUPPORT_RECORDING_HOST_H

#include "cups/ppd_library.h"
#include "pde/print_dialog_extension.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tessarin::test {

/// The directory of the fixtures with a file's name behind it.
std::string fixturePath(const std::string &name);
/// A PPD of tests/fixtures/ppd by its name without ending.
std::string ppdFixture(const std::string &name);
std::string samplePPD();

using Change = std::pair<std::string, std::string>;

class RecordingHost : public pde::HostCallback, public pde::PrintSession, public pde::Printer {
public:
    /// With an empty path there is no parsed PPD and no description path.
    explicit RecordingHost(const std::string &ppdPath = {}, std::string identifier = "sample");
    ~RecordingHost() override;

    pde::PrintSession *printSession() override { return hasSession ? this : nullptr; }
    pde::Printer *PMPrinter() override { return hasPrinter ? this : nullptr; }
    ppd_file_s *ppdFile() override { return ppd_; }
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override;
    pde::Printer *currentPrinter() override { return hasCurrentPrinter ? this : nullptr; }
    std::optional<QString> descriptionPath(const QString &descriptionType) const override;
    std::optional<QString> identifier() const override { return printerIdentifier; }

    /// Marks a choice in the PPD without telling anybody.
    void mark(const std::string &key, const std::string &choice);
    /// The choice that is marked for an option; empty when there is none.
    std::string marked(const std::string &key) const;

    std::vector<Change> changes;       ///< every call, in order
    std::set<std::string> refusedKeys; ///< options whose changes are refused
    std::function<void(const Change &)> onChange;
    bool hasSession = true;
    bool hasPrinter = true;
    bool hasCurrentPrinter = true;
    std::optional<QString> path;
    std::optional<QString> printerIdentifier;
    std::vector<QString> askedTypes; ///< description types that were asked for

private:
    ppd_file_t *ppd_ = nullptr; ///< owned
};

} // namespace tessarin::test

#endif
