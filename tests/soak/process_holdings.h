// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the process holds at a moment beside its memory: descriptors, widgets, files.

#ifndef TESSARIN_TESTS_SOAK_PROCESS_HOLDINGS_H
#define TESSARIN_TESTS_SOAK_PROCESS_HOLDINGS_H

#include <QString>

#include <string>
#include <vector>

namespace tessarin::test {

using Names = std::vector<std::string>;

/// What each open descriptor leads to, in order.
Names openDescriptors();

/// The names of all that lies in a folder, hidden files and folders included, in order.
Names filesIn(const QString &folder);

/// The classes of all widgets and, marked, of all windows, in order.
Names widgetsAlive();

} // namespace tessarin::test

#endif
