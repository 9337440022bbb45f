// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What printers say of their state, in words.

#ifndef TESSARIN_PRINTING_STATE_REASONS_H
#define TESSARIN_PRINTING_STATE_REASONS_H

#include <QString>
#include <QStringList>

namespace tessarin::host {

/// A printer's or job's state reasons (keywords of IPP such as "media-empty-error") as a sentence for people,
/// joined by commas; empty for none or "none". The common ones are in the user's language; another is shown as its
/// keyword with blanks for dashes, without its degree ("-report", "-warning", "-error").
QString stateReasonsText(const QStringList &keywords);

} // namespace tessarin::host

#endif
