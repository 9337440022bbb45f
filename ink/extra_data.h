// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Extra data: a block of bytes that a driver carries inside its printer's PPD.
//
// The block is compressed as one zlib stream (level 9), cut into chunks of 158 bytes, and each chunk is the base64
// value of an attribute named by a prefix and the chunk's number in four lower-case hexadecimal digits (EXData0000,
// EXData0001, ...). A chunk is encoded with room for 211 characters and a terminator, so that the "=" of a full
// chunk is missing; readers must take it so. An attribute with an empty value ends the block.

#ifndef TESSARIN_INK_EXTRA_DATA_H
#define TESSARIN_INK_EXTRA_DATA_H

#include <cstddef>
#include <cstdlib>
#include <memory>

struct ppd_file_s;

namespace tessarin {

/// The prefix under which the ink counter text is kept.
inline constexpr char kInkExtraDataName[] = "EXData";
/// The largest block that is written, in bytes.
inline constexpr std::size_t kLargestExtraData = 0x1000000;

struct ExtraDataFree {
    void operator()(char *data) const { std::free(data); }
};
/// A block that ppdxReadData() gave.
using ExtraData = std::unique_ptr<char, ExtraDataFree>;

/// Reads the block `name` from an opened PPD. The result holds the bytes and a NUL behind them, which `length` (may
/// be null) does not count; the caller frees it with free(). Null without PPD, name or first attribute, and when
/// out of memory. A damaged block gives what could be read of it.
char *ppdxReadData(ppd_file_s *ppd, const char *name, std::size_t *length);

/// Writes `length` bytes at `data` as "PPD:" lines to standard error, the way in which a filter has the scheduler
/// store attributes. Nothing is written without a name, without data where there is a length, and beyond
/// kLargestExtraData.
void ppdxWriteData(const char *name, const void *data, std::size_t length);

/// Reads the counter block of the PPD at `ppdPath` and, where there is no file at `inkFilePath`, writes it there.
/// An existing file stays as it is.
void processEXData(const char *ppdPath, const char *inkFilePath);

} // namespace tessarin

#endif
