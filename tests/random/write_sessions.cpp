// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Writes random sessions for the replay tool: 0.ppd and 0.script, 1.ppd and 1.script, and so on. The same number is
// the same session on every machine.
//
//   write_sessions <folder> <how many>

#include "tests/random/random_script.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

using namespace tessarin::test;

int main(int argc, char **argv)
{
    const long count = argc == 3 ? std::strtol(argv[2], nullptr, 10) : 0;
    if (count <= 0) {
        std::fprintf(stderr, "usage: write_sessions <folder> <how many>\n");
        return 2;
    }
    for (long number = 0; number < count; ++number) {
        Dice dice(static_cast<std::uint32_t>(number));
        const std::string path = std::string(argv[1]) + "/" + std::to_string(number);
        std::ofstream ppd(path + ".ppd", std::ios::binary);
        std::ofstream script(path + ".script", std::ios::binary);
        ppd << randomPPD(dice);
        script << randomScript(dice);
        if (!ppd.flush() || !script.flush()) {
            std::fprintf(stderr, "%s: it cannot be written\n", path.c_str());
            return 1;
        }
    }
    return 0;
}
