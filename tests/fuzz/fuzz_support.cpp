// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/fuzz/fuzz_support.h"

#include "platform/log_sink.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    new QApplication(*argc, *argv); // lives as long as the process
    tessarin::setLogSink([](std::string_view) {});
    return 0;
}

namespace tessarin::test {

void require(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

MemoryFile::MemoryFile()
    : descriptor_(memfd_create("input", MFD_CLOEXEC)), path_("/proc/self/fd/" + std::to_string(descriptor_))
{
    require(descriptor_ >= 0, "there is room for a file in memory");
}

MemoryFile::~MemoryFile()
{
    close(descriptor_);
}

void MemoryFile::write(std::string_view content)
{
    const bool written = ftruncate(descriptor_, 0) == 0 && pwrite(descriptor_, content.data(), content.size(), 0) ==
                                                               static_cast<ssize_t>(content.size());
    require(written, "the input is in its file");
}

std::string MemoryFile::read() const
{
    std::string content(static_cast<std::size_t>(lseek(descriptor_, 0, SEEK_END)), '\0');
    require(pread(descriptor_, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()),
            "what was written can be read");
    return content;
}

std::uint8_t InputReader::byte()
{
    if (left_.empty()) {
        return 0;
    }
    const std::uint8_t first = left_.front();
    left_ = left_.subspan(1);
    return first;
}

std::uint64_t InputReader::number()
{
    std::uint64_t value = 0;
    for (int i = 0; i < 8; ++i) {
        value = value << 8U | byte();
    }
    return value;
}

std::string InputReader::text()
{
    std::string text;
    while (!left_.empty()) {
        const std::uint8_t next = byte();
        if (next == 0) {
            break;
        }
        text += static_cast<char>(next);
    }
    return text;
}

std::string_view InputReader::rest()
{
    const std::string_view all = textOf(left_.data(), left_.size());
    left_ = {};
    return all;
}

} // namespace tessarin::test
