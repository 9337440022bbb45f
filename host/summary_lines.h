// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// A panel's summary as lines, in the order in which the panel wants them shown.

#ifndef TESSARIN_HOST_SUMMARY_LINES_H
#define TESSARIN_HOST_SUMMARY_LINES_H

#include "pde/print_dialog_extension.h"

#include <QList>
#include <QString>

namespace tessarin::host {

struct SummaryLine {
    QString label{};
    QString value{};
};

/// The lines of a summary: those that the display order names, each once, then any others by label.
QList<SummaryLine> summaryLines(const pde::Summary &summary);

/// "label: value", one line each.
QString summaryText(const QList<SummaryLine> &lines);

/// A JSON array of objects with the fields "label" and "value".
QString summaryJson(const QList<SummaryLine> &lines);

} // namespace tessarin::host

#endif
