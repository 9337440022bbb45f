// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Runs a fuzzed reader on kept inputs: every file given, and every file of every folder given. Behind "--damaged"
// each file comes cut off at every byte, and with every byte turned over.

#include "tests/fuzz/fuzz_support.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

using Input = std::vector<char>;

std::vector<std::filesystem::path> filesOf(const std::string &path)
{
    if (!std::filesystem::is_directory(path)) {
        return {path};
    }
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(path)) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

void run(const Input &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
}

std::size_t runDamaged(Input input)
{
    const std::size_t size = input.size();
    for (std::size_t at = 0; at < size; ++at) {
        run(Input(input.begin(), input.begin() + static_cast<std::ptrdiff_t>(at)));
        const char right = input[at];
        input[at] = static_cast<char>(~static_cast<unsigned char>(right));
        run(input);
        input[at] = right;
    }
    return 2 * size;
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    bool damaged = false;
    std::size_t inputs = 0;
    for (const std::string &argument : arguments) {
        if (argument == "--damaged") {
            damaged = true;
            continue;
        }
        for (const std::filesystem::path &path : filesOf(argument)) {
            std::ifstream file(path, std::ios::binary);
            const Input input{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
            if (!file.is_open()) {
                std::fprintf(stderr, "%s: it cannot be read\n", path.c_str());
                return 1;
            }
            run(input);
            inputs += 1 + (damaged ? runDamaged(input) : 0);
        }
    }
    std::printf("%zu inputs\n", inputs);
    return inputs == 0 ? 1 : 0;
}
