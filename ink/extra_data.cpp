// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ink/extra_data.h"

#include "cups/ppd_library.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include <cups/http.h>
#include <zlib.h>

namespace tessarin {

namespace {

constexpr std::size_t kChunkSize = 158;        // compressed bytes of a full chunk
constexpr int kChunkCapacity = 159;            // the decoder keeps one byte for a NUL: with 158 a byte is lost
constexpr int kEncodedCapacity = 212;          // leaves 211 characters for a full chunk, one short of its "="
constexpr std::size_t kAttributeNameSize = 41; // characters, terminator included
constexpr std::size_t kEntrySize = 256;        // characters, terminator included
constexpr std::size_t kLineLimit = 1022;       // a line stays below this, without its line end
constexpr std::string_view kLineStart = "PPD:";
constexpr int kCompressionLevel = 9;

constexpr std::size_t kFirstRoom = 256;             // bytes of output, one more being kept for the final NUL
constexpr std::size_t kLargestDoubledRoom = 2047;   // up to here the room doubles
constexpr std::size_t kRoomStep = 2048;             // beyond it grows by this
constexpr std::size_t kLargestGrownRoom = 0xFFFFFF; // a larger room is not grown

const char *messageOf(const z_stream &stream)
{
    return stream.msg != nullptr ? stream.msg : "(null)";
}

/// The names of a block's attributes: the block's name and, in at least four hexadecimal digits, a number; cut at
/// 40 characters. A block of some megabytes has tens of thousands of them.
class AttributeNames {
public:
    explicit AttributeNames(std::string_view block) : prefix_(std::min(block.size(), kAttributeNameSize - 1))
    {
        std::copy_n(block.begin(), prefix_, name_.begin());
    }

    /// Valid until the next call.
    const char *of(unsigned number)
    {
        constexpr std::size_t shortest = 4;
        std::array<char, 8> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), number, 16).ptr;
        const auto count = static_cast<std::size_t>(end - digits.begin());
        std::string_view zeros = "0000";
        zeros.remove_prefix(std::min(count, shortest));
        std::size_t length = prefix_;
        for (const std::string_view part : {zeros, std::string_view(digits.data(), count)}) {
            const std::size_t room = kAttributeNameSize - 1 - length;
            length += part.copy(name_.data() + length, room);
        }
        name_[length] = '\0';
        return name_.data();
    }

private:
    std::array<char, kAttributeNameSize> name_{};
    std::size_t prefix_;
};

/// Inflates chunk after chunk into one growing buffer.
class Inflater {
public:
    Inflater() : data_(static_cast<char *>(std::malloc(kFirstRoom + 1)))
    {
        ready_ = data_ != nullptr && inflateInit(&stream_) == Z_OK;
    }
    ~Inflater()
    {
        if (ready_) {
            inflateEnd(&stream_);
        }
    }
    Inflater(const Inflater &) = delete;
    Inflater &operator=(const Inflater &) = delete;

    bool isReady() const { return ready_; }

    /// Takes one chunk; false when out of memory. A chunk that cannot be inflated, and what stands behind the
    /// stream's end, is dropped.
    bool take(unsigned char *chunk, std::size_t size)
    {
        stream_.next_in = chunk;
        stream_.avail_in = static_cast<uInt>(size);
        while (stream_.avail_in > 0) {
            if (used_ == room_) {
                if (room_ > kLargestGrownRoom) {
                    return true;
                }
                if (!grow()) {
                    return false;
                }
            }
            stream_.next_out = reinterpret_cast<unsigned char *>(data_.get()) + used_;
            stream_.avail_out = static_cast<uInt>(room_ - used_);
            const int code = inflate(&stream_, Z_NO_FLUSH);
            used_ = room_ - stream_.avail_out;
            if (code < 0) {
                std::fprintf(stderr, "ERROR: inflate returned %d (%s)\n", code, messageOf(stream_));
            }
            if (code != Z_OK) { // an error, the end, or a dictionary wanted: no call would take more input
                return true;
            }
        }
        return true;
    }

    /// The bytes so far with a NUL behind them; the caller frees them.
    char *finish(std::size_t *length)
    {
        data_.get()[used_] = '\0';
        if (length != nullptr) {
            *length = used_;
        }
        return data_.release();
    }

private:
    bool grow()
    {
        const std::size_t room = room_ <= kLargestDoubledRoom ? 2 * room_ : room_ + kRoomStep;
        auto *larger = static_cast<char *>(std::realloc(data_.get(), room + 1));
        if (larger == nullptr) {
            return false;
        }
        static_cast<void>(data_.release());
        data_.reset(larger);
        room_ = room;
        return true;
    }

    ExtraData data_;
    std::size_t room_ = kFirstRoom; ///< bytes that data_ holds besides the final NUL
    std::size_t used_ = 0;
    z_stream stream_{};
    bool ready_ = false;
};

/// Gathers entries into "PPD:" lines.
class LineWriter {
public:
    void append(std::string_view entry)
    {
        if (line_.size() + entry.size() >= kLineLimit) {
            flush();
        }
        line_ += entry;
    }
    void flush()
    {
        line_ += '\n';
        std::fwrite(line_.data(), 1, line_.size(), stderr);
        line_ = kLineStart;
    }

private:
    std::string line_{kLineStart};
};

std::string entryText(const char *name, unsigned number, const char *value)
{
    std::array<char, kEntrySize> entry{};
    std::snprintf(entry.data(), entry.size(), " %s%04x=%s", name, number, value);
    return entry.data();
}

/// Writes the chunks of a block; answers how many.
unsigned writeChunks(const char *name, const void *data, std::size_t length, LineWriter &lines)
{
    z_stream stream{};
    int code = deflateInit(&stream, kCompressionLevel);
    if (code != Z_OK) {
        std::fprintf(stderr, "ERROR: deflate returned %d (%s)\n", code, messageOf(stream));
        return 0;
    }
    std::array<unsigned char, kChunkSize> chunk{};
    std::array<char, kEncodedCapacity> text{};
    stream.next_in = static_cast<Bytef *>(const_cast<void *>(data)); // zlib reads it only
    stream.avail_in = static_cast<uInt>(length);
    unsigned count = 0;
    do {
        stream.next_out = chunk.data();
        stream.avail_out = static_cast<uInt>(chunk.size());
        code = deflate(&stream, Z_FINISH);
        if (code < 0) {
            std::fprintf(stderr, "ERROR: deflate returned %d (%s)\n", code, messageOf(stream));
            break;
        }
        httpEncode64_2(text.data(), kEncodedCapacity, reinterpret_cast<const char *>(chunk.data()),
                       static_cast<int>(chunk.size() - stream.avail_out));
        lines.append(entryText(name, count, text.data()));
        ++count;
    } while (stream.avail_out == 0);
    deflateEnd(&stream);
    return count;
}

} // namespace

char *ppdxReadData(ppd_file_s *ppd, const char *name, std::size_t *length)
{
    if (length != nullptr) {
        *length = 0;
    }
    if (ppd == nullptr || name == nullptr) {
        return nullptr;
    }
    AttributeNames names(name);
    const ppd_attr_t *attribute = ppdFindAttr(ppd, names.of(0), nullptr);
    if (attribute == nullptr) {
        return nullptr;
    }
    Inflater inflater;
    if (!inflater.isReady()) {
        return nullptr;
    }
    for (unsigned number = 1; attribute != nullptr; ++number) {
        std::array<char, kChunkCapacity> chunk{};
        int size = kChunkCapacity;
        if (httpDecode64_2(chunk.data(), &size, attribute->value != nullptr ? attribute->value : "") == nullptr ||
            size <= 0) {
            break;
        }
        if (!inflater.take(reinterpret_cast<unsigned char *>(chunk.data()), static_cast<std::size_t>(size))) {
            return nullptr;
        }
        attribute = ppdFindAttr(ppd, names.of(number), nullptr);
    }
    return inflater.finish(length);
}

void ppdxWriteData(const char *name, const void *data, std::size_t length)
{
    if (name == nullptr || (length != 0 && data == nullptr) || length > kLargestExtraData) {
        return;
    }
    LineWriter lines;
    const unsigned count = length != 0 ? writeChunks(name, data, length, lines) : 0;
    lines.append(entryText(name, count, "\"\""));
    lines.flush();
}

} // namespace tessarin
