// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the program remembers between its runs, besides presets.

#ifndef TESSARIN_HOST_MEMORY_H
#define TESSARIN_HOST_MEMORY_H

#include <QString>

namespace tessarin::host {

/// The identity of the printer that was printed on last; empty: none is remembered.
QString lastPrinter();
/// Remembers a printer. Says nothing of a failure: nothing of the user's is lost with it.
void rememberPrinter(const QString &identity);

} // namespace tessarin::host

#endif
