// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A printer as the dialog has it open: its settings, and the panel of its plug-in where there is one for it.

#ifndef TESSARIN_HOST_OPEN_PRINTER_H
#define TESSARIN_HOST_OPEN_PRINTER_H

#include "settings/host_callback.h"
#include "settings/job_settings.h"

#include "pde/print_dialog_extension.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>

namespace tessarin::host {

/// What the dialog holds of a panel.
struct PanelSession {
    std::shared_ptr<pde::Panel> panel{};                ///< null: there is no panel for this printer
    QString name{};                                     ///< the heading over the panel
    QString kind{};                                     ///< identifies the plug-in
    std::shared_ptr<const QStringList> supportedKeys{}; ///< null: the panel could not tell
    QPointer<QWidget> view{};                           ///< the panel's until the dialog gives it a parent
    QString problem{};                                  ///< for the user: why there is no panel; empty: there is
};

/// Asks the plug-in for the panel of a printer and drives it up to the point where it shows the printer's values.
/// A printer that has none of the panel's options gets no panel. Without a panel or view the session says so in
/// `problem`; a panel without view still saves.
PanelSession openPanel(pde::PlugIn &plugIn, const std::shared_ptr<DialogCallback> &callback);

/// The values whose keys a printer knows. A preset may be older than the printer's driver, and what it says of
/// other options is nobody's business.
KeyValues knownValues(const std::shared_ptr<HostPrinter> &printer, const KeyValues &values);

class OpenPrinter;

/// Of several values of one setting, as command line and presets name it, the last.
KeyValues lastOfEach(const JobSettings &settings, const KeyValues &values);
/// The values that a printer, its panel saved, does not have although they were asked for.
KeyValues missingOf(const OpenPrinter &printer, const KeyValues &wanted);

/// The keys of what outlives one job: all options, and the attributes that belong to no document, which are the
/// order of copies, the orientation and the pages on a side.
QStringList lastingKeys(const JobSettings &settings);
/// A printer opened anew, with the whole numbers among these values as choices of its PPD.
Outcome<std::shared_ptr<HostPrinter>> againWith(const HostPrinter &printer, const KeyValues &values);

/// An open printer. A panel's view is given back before the panel goes, by whoever shows it.
class OpenPrinter {
public:
    /// Opens a printer with `values` set over its defaults before the panel reads them. `plugIn` may be null, for
    /// the reason `problem`; it outlives this object.
    OpenPrinter(std::shared_ptr<HostPrinter> printer, pde::PlugIn *plugIn, const QString &problem,
                const KeyValues &values = {});

    const HostPrinter &printer() const { return settings_->printer(); }
    JobSettings &settings() const { return *settings_; }
    PanelSession &panel() { return panel_; }
    const PanelSession &panel() const { return panel_; }
    /// Values that were asked for and not possible.
    const KeyValues &refused() const { return refused_; }
    /// The keys that the panel presents; empty without a panel.
    QStringList panelKeys() const;

    /// Makes the panel hand over all it shows.
    void savePanel();
    /// Sets values and tells the panel of each. False when the panel, asked afterwards, does not have them: it does
    /// not follow every option while it is open, and the printer has to be opened anew with reopened().
    bool apply(const KeyValues &values, ChangeOrigin origin);
    /// The same printer opened anew: with what is set now, `changes` over it.
    Outcome<std::shared_ptr<OpenPrinter>> reopened(const KeyValues &changes) const;
    /// The same printer opened anew with these values over its defaults, and what is set now of `kept`.
    Outcome<std::shared_ptr<OpenPrinter>> reopenedWith(const KeyValues &values, const QStringList &kept) const;

private:
    std::shared_ptr<JobSettings> settings_;
    std::shared_ptr<DialogCallback> callback_;
    pde::PlugIn *plugIn_;
    QString problem_;
    PanelSession panel_{};
    KeyValues refused_{};
};

} // namespace tessarin::host

#endif
