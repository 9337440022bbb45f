// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What every page will send, as rows to show.

#ifndef TESSARIN_HOST_SUMMARY_ROWS_H
#define TESSARIN_HOST_SUMMARY_ROWS_H

#include "settings/job_settings.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tessarin::host {

struct SummaryRow {
    QString key{}; ///< empty: what there is no default to reset to
    QString label{};
    QString value{};
    QString defaultValue{}; ///< as text
    bool differs = false;   ///< from its default
};

struct SummarySection {
    QString title{};
    QList<SummaryRow> rows{};
};

/// The settings by the pages that set them: General, the panel under its name, Printer Features; last what a
/// command line put into the job that no page knows. Options without a value and sections without rows are left
/// out. All texts are plain.
QList<SummarySection> summarySections(const JobSettings &settings, const QStringList &panelKeys,
                                      const QString &panelName);

} // namespace tessarin::host

#endif
