// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A check box for an option of the printer's PPD that is on or off.

#ifndef TESSARIN_HOST_OPTION_CHECK_H
#define TESSARIN_HOST_OPTION_CHECK_H

#include "settings/job_settings.h"
#include "settings/option_catalogue.h"

#include <QCheckBox>
#include <QLabel>
#include <QString>
#include <QWidget>

namespace tessarin::host {

/// Shows whether an option is on. As OptionBox it tells what a person chooses and goes on showing what holds; what
/// keeps it from being switched stands beside it.
class OptionCheck final : public QWidget {
    Q_OBJECT

public:
    /// `option` is of the kind OptionKind::Boolean; `settings` outlives this widget.
    OptionCheck(JobSettings &settings, const CatalogueOption &option, QWidget *parent = nullptr);

    const CatalogueOption &option() const { return option_; }
    /// Shows what holds, and what is in conflict now.
    void refresh();

signals:
    /// Told when the event that chose is over, so that the dialog may replace this widget.
    void chosen(const QString &key, const QString &choice);

private:
    JobSettings &settings_;
    CatalogueOption option_;
    QCheckBox *box_; ///< owned by this widget, as the following
    QLabel *reason_;
};

} // namespace tessarin::host

#endif
