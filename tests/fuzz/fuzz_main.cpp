// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs a fuzzed reader on kept inputs: every file given, and every file of every folder given.

#include "tests/fuzz/fuzz_support.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

int main(int argc, char **argv)
{
    std::vector<std::filesystem::path> files;
    for (int i = 1; i < argc; ++i) {
        if (std::filesystem::is_directory(argv[i])) {
            for (const auto &entry : std::filesystem::directory_iterator(argv[i])) {
                files.push_back(entry.path());
            }
        } else {
            files.emplace_back(argv[i]);
        }
    }
    std::sort(files.begin(), files.end());
    LLVMFuzzerInitialize(&argc, &argv);
    for (const auto &path : files) {
        std::ifstream file(path, std::ios::binary);
        const std::vector<char> input{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        if (!file.is_open()) {
            std::fprintf(stderr, "%s: it cannot be read\n", path.c_str());
            return 1;
        }
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
    }
    std::printf("%zu inputs\n", files.size());
    return files.empty() ? 1 : 0;
}
