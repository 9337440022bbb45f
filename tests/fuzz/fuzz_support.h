// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the programs need that throw changed inputs at one reader each.

#ifndef TESSARIN_TESTS_FUZZ_FUZZ_SUPPORT_H
#define TESSARIN_TESTS_FUZZ_FUZZ_SUPPORT_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// Runs the reader once on an input. Answers 0 always; what is wrong ends the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
/// Prepares the process: no log, no window, nothing in the user's folders.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

namespace tessarin::test {

/// Ends the process where something does not hold.
void require(bool holds, const char *what);

inline std::string_view textOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

/// A file without a name in any folder, whose content an input is. Reused from input to input.
class MemoryFile {
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    void write(std::string_view content);
    /// All that is in it.
    std::string read() const;
    int descriptor() const { return descriptor_; }
    /// Under which others open it, each from its start.
    const std::string &path() const { return path_; }

private:
    int descriptor_;
    std::string path_;
};

/// Takes numbers and texts from an input, zeros and empty texts behind its end.
class InputReader {
public:
    explicit InputReader(std::span<const std::uint8_t> input) : left_(input) {}

    bool atEnd() const { return left_.empty(); }
    std::uint8_t byte();
    std::uint64_t number();
    /// Up to the next zero byte, which is taken, too.
    std::string text();
    /// All that is left.
    std::string_view rest();

private:
    std::span<const std::uint8_t> left_;
};

} // namespace tessarin::test

#endif
