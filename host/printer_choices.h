// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What a dialog knows of printers that can be chosen.

#ifndef TESSARIN_HOST_PRINTER_CHOICES_H
#define TESSARIN_HOST_PRINTER_CHOICES_H

#include "host/printer_picker.h"
#include "preview/page_painter.h"
#include "printing/destinations.h"
#include "printing/outcome.h"
#include "settings/job_settings.h"

#include <QList>

#include <functional>
#include <memory>
#include <optional>

namespace tessarin::host {

/// The choices that are always there.
PrinterChoice sampleChoice();
PrinterChoice pdfChoice();
PrinterChoice ppdChoice(const QString &path);
PrinterChoice queueChoice(const QueueName &queue);

/// The print server's queues as choices, with place and state as their detail.
QList<PrinterChoice> choicesOf(const QList<Destination> &destinations);

/// Which queue a dialog starts with: the one that was used last, else the user's default, else the first that takes
/// jobs. `lastUsed` is an identity of a choice; empty: none is remembered. Nothing when there are no queues.
std::optional<PrinterChoice> preferredChoice(const QList<PrinterChoice> &queues, const QString &lastUsed,
                                             const QList<Destination> &destinations);

/// Opens a printer that is no queue.
Outcome<std::shared_ptr<HostPrinter>> openLocalPrinter(const PrinterChoice &choice);

/// How sheets look with these settings: paper, margins, orientation, pages on a side, colours.
PageLayout layoutOf(const JobSettings &settings);
/// Which pages are printed (from 1), by ranges and odd or even.
std::function<bool(int page)> selectedPages(const JobSettings &settings);

} // namespace tessarin::host

#endif
