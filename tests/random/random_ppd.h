// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// PPDs made from a seed, for sessions that nobody wrote.

#ifndef TESSARIN_TESTS_RANDOM_RANDOM_PPD_H
#define TESSARIN_TESTS_RANDOM_RANDOM_PPD_H

#include <cstdint>
#include <random>
#include <string>

namespace tessarin::test {

/// A source of numbers that gives the same ones on every machine.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}

    /// A number from 0 to `count` - 1.
    int roll(int count) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(count)); }
    bool oneIn(int count) { return roll(count) == 0; }

private:
    std::mt19937 engine_;
};

/// The text of a PPD with some of the panel's options, in all their odd forms: missing, without choices or default,
/// with custom and incomplete media, with constraints that leave nothing.
std::string randomPPD(Dice &dice);

} // namespace tessarin::test

#endif
