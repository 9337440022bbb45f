// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Scripts of the replay tool made from a seed.

#ifndef TESSARIN_TESTS_RANDOM_RANDOM_SCRIPT_H
#define TESSARIN_TESTS_RANDOM_RANDOM_SCRIPT_H

#include "tests/random/random_ppd.h"

namespace tessarin::test {

/// A session of some dozen commands, one a line: what a person does to the pages' controls and what a host does to
/// the panel, in any order, with controls and values that do not exist among them.
std::string randomScript(Dice &dice);

} // namespace tessarin::test

#endif
