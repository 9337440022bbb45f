// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the dialog offers to a panel: the printer, its PPD, and a place to put choices.

#ifndef TESSARIN_SETTINGS_HOST_CALLBACK_H
#define TESSARIN_SETTINGS_HOST_CALLBACK_H

#include "settings/job_settings.h"

#include "pde/print_dialog_extension.h"

#include <QString>

#include <functional>
#include <memory>

namespace tessarin::host {

/// Is told of each accepted change, after it was made.
using ChangeObserver = std::function<void(const QString &key, const QString &choice)>;

/// The callback of one dialog. Shares the settings and with them the printer, so that its PPD stays open for as
/// long as a panel keeps the callback.
///
/// Which changes are accepted:
/// - "ColorModel" always, whatever the PPD says of it: the panel sets it as a hint of what the pages will look
/// like,
///   so it is kept as a hint, neither marked in the PPD nor put into the job;
/// - an option of the PPD with a choice that the PPD lists: marked in the PPD and put into the ticket;
/// - an option of the PPD with a whole number that the PPD does not list: put into the ticket as it is. A slider's
///   option lists only some of the values that the driver takes.
/// Everything else is refused and changes nothing: absent texts, options that the PPD does not have, the text of a
/// menu separator, any other choice.
class DialogCallback final : public pde::HostCallback {
public:
    explicit DialogCallback(std::shared_ptr<JobSettings> settings);
    /// With settings of its own.
    explicit DialogCallback(std::shared_ptr<HostPrinter> printer);
    ~DialogCallback() override;

    pde::PrintSession *printSession() override;
    pde::Printer *PMPrinter() override;
    ppd_file_s *ppdFile() override;
    bool willChangePPDOptionKeyValue(const QString &key, const QString &choice) override;

    /// What the panel has set so far. Empty at first: what the PPD's marks say is the printer's own business.
    const JobTicket &ticket() const { return settings_->ticket(); }
    JobSettings &settings() const { return *settings_; }
    /// The observer of changes; an empty one ends the observing.
    void setChangeObserver(ChangeObserver observer);

private:
    class Session;

    bool accept(const QString &key, const QString &choice);

    std::shared_ptr<JobSettings> settings_;
    std::unique_ptr<Session> session_;
    ChangeObserver observer_{};
};

} // namespace tessarin::host

#endif
