// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the process holds at a moment: memory, descriptors, widgets, files.

#ifndef TESSARIN_TESTS_SOAK_PROCESS_HOLDINGS_H
#define TESSARIN_TESTS_SOAK_PROCESS_HOLDINGS_H

#include <QString>

#include <cstddef>
#include <string>
#include <vector>

namespace tessarin::test {

using Names = std::vector<std::string>;

/// Bytes of the heap in use, as the allocator counts them.
std::size_t heapInUse();

/// Whether the address sanitizer keeps the heap.
bool heapIsSanitized();

/// Bytes of heapInUse() that a block takes, with what the allocator adds to it.
std::size_t heapShare(const void *block);

/// What each open descriptor leads to, in order.
Names openDescriptors();

/// The names of all that lies in a folder, hidden files and folders included, in order.
Names filesIn(const QString &folder);

/// The classes of all widgets and, marked, of all windows, in order.
Names widgetsAlive();

} // namespace tessarin::test

#endif
