// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What of a panel outlives it: its context record, which nothing frees, and what that holds.

#ifndef TESSARIN_TESTS_SOAK_RECORD_SIZE_H
#define TESSARIN_TESTS_SOAK_RECORD_SIZE_H

#include "plugin/panel_context.h"

#include <cstddef>

namespace tessarin::test {

/// The bytes of the heap that a record takes: itself, its option table, and for each control that a handle leads or
/// led to the toolkit's note whether that control is still there. A record of a panel that has gone has no more.
std::size_t recordBytes(const PanelContext &context);

/// The bytes of the list that keeps so many records reachable.
std::size_t registryBytes(std::size_t records);

} // namespace tessarin::test

#endif
