// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Choices that exclude each other, by the constraints of the printer's PPD.

#ifndef TESSARIN_SETTINGS_CONFLICTS_H
#define TESSARIN_SETTINGS_CONFLICTS_H

#include "printing/host_printer.h"
#include "settings/job_settings.h"

#include <QList>
#include <QString>

#include <optional>

namespace tessarin::host {

/// An option with one of its choices, and what people call them.
struct OptionChoice {
    QString key{};
    QString choice{};
    QString keyText{};
    QString choiceText{};
};

// None of these changes what is marked in the PPD. A number that the PPD does not list as a choice is outside every
// constraint. "PageRegion" stands for "PageSize", which it repeats, and is answered under that name.

/// What is in the way of `key` having `choice`: the other options as they stand, without those that are in conflict
/// whatever `key` is. Empty: nothing is.
QList<OptionChoice> conflictsOf(const HostPrinter &printer, const QString &key, const QString &choice);

/// The same in words, "not with Media Type: Canvas, Quality: Draft"; empty when nothing is in the way.
QString conflictReason(const HostPrinter &printer, const QString &key, const QString &choice);

/// What libcups would change besides, so that `key` can have `choice` and nothing else is in conflict; never `key`
/// itself nor the printer's installed hardware. Empty: nothing needs to change. Nothing when it finds no way.
std::optional<QList<OptionChoice>> resolution(const HostPrinter &printer, const QString &key,
                                              const QString &choice);
/// The same as settings; none where there is no way or nothing else has to change.
KeyValues resolvingChanges(const HostPrinter &printer, const QString &key, const QString &choice);

/// The marked choices that are in conflict with each other now, in the PPD's order, the installed hardware last;
/// empty when all is well.
QList<OptionChoice> presentConflicts(const HostPrinter &printer);

} // namespace tessarin::host

#endif
