// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading a block of extra data, against the bare library calls into one buffer that is large enough.

#include "benchmarks/bench_support.h"
#include "cups/ppd_library.h"
#include "ink/extra_data.h"

#include <QByteArray>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include <cups/http.h>
#include <zlib.h>

using namespace tessarin;

namespace {

constexpr std::size_t kChunk = 158;
constexpr qsizetype kEncodedChunk = 211;
constexpr int kRoomOfChunk = 159;

/// Counters as a driver notes them: digits, which compress to about half.
std::vector<unsigned char> blockOf(std::size_t size)
{
    std::mt19937 engine(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same block in every run
    std::vector<unsigned char> block(size);
    for (unsigned char &byte : block) {
        byte = static_cast<unsigned char>('0' + engine() % 10);
    }
    return block;
}

/// The base64 values of a block's chunks.
std::vector<std::string> chunksOf(const std::vector<unsigned char> &block)
{
    uLongf size = compressBound(static_cast<uLong>(block.size()));
    std::string packed(size, '\0');
    if (compress2(reinterpret_cast<Bytef *>(packed.data()), &size, block.data(), static_cast<uLong>(block.size()),
                  9) != Z_OK) {
        bench::giveUp("the block cannot be compressed");
    }
    packed.resize(size);
    std::vector<std::string> chunks;
    for (std::size_t at = 0; at < packed.size(); at += kChunk) {
        const std::string part = packed.substr(at, kChunk);
        chunks.push_back(QByteArray(part.data(), static_cast<qsizetype>(part.size()))
                             .toBase64()
                             .left(kEncodedChunk)
                             .toStdString());
    }
    return chunks;
}

std::string attributeName(std::size_t number)
{
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "EXData%04zx", number);
    return name.data();
}

void extraData(benchmark::State &state)
{
    const auto size = static_cast<std::size_t>(state.range(0));
    const std::vector<std::string> chunks = chunksOf(blockOf(size));
    std::string text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n";
    for (std::size_t i = 0; i < chunks.size(); ++i) {
        text += "*" + attributeName(i) + ": \"" + chunks[i] + "\"\n";
    }
    const bench::TemporaryFile file(text);
    ppd_file_t *ppd = ppdOpenFile(file.path().c_str());
    for ([[maybe_unused]] auto round : state) {
        std::size_t length = 0;
        const ExtraData block(ppdxReadData(ppd, kInkExtraDataName, &length));
        if (length != size) {
            bench::giveUp("the block is not what was written");
        }
    }
    ppdClose(ppd);
}

void bareData(benchmark::State &state)
{
    const auto size = static_cast<std::size_t>(state.range(0));
    const std::vector<std::string> chunks = chunksOf(blockOf(size));
    for ([[maybe_unused]] auto round : state) {
        std::vector<unsigned char> block(size + 1);
        z_stream stream{};
        inflateInit(&stream);
        stream.next_out = block.data();
        stream.avail_out = static_cast<uInt>(block.size());
        for (const std::string &chunk : chunks) {
            std::array<char, kRoomOfChunk> decoded{};
            int length = kRoomOfChunk;
            httpDecode64_2(decoded.data(), &length, chunk.c_str());
            stream.next_in = reinterpret_cast<unsigned char *>(decoded.data());
            stream.avail_in = static_cast<uInt>(length);
            inflate(&stream, Z_NO_FLUSH);
        }
        if (stream.total_out != size) {
            bench::giveUp("the block is not what was written");
        }
        inflateEnd(&stream);
    }
}

} // namespace

BENCHMARK(extraData)->Name("extra_data")->Arg(65536)->Arg(4194304)->Unit(benchmark::kMicrosecond);
BENCHMARK(bareData)->Name("bare_data")->Arg(65536)->Arg(4194304)->Unit(benchmark::kMicrosecond);
