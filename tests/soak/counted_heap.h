// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The bytes of the heap that the process uses, to the byte: the program counts all allocations of its own and of
// its libraries. What the allocator tells of itself is not enough, since blocks that it keeps back for reuse count
// as used.

#ifndef TESSARIN_TESTS_SOAK_COUNTED_HEAP_H
#define TESSARIN_TESTS_SOAK_COUNTED_HEAP_H

#include <cstddef>

namespace tessarin::test {

/// The usable sizes of all blocks in use.
std::size_t heapInUse();

/// The usable size of one block.
std::size_t heapShare(const void *block);

/// Whether the address sanitizer keeps the heap.
bool heapIsSanitized();

} // namespace tessarin::test

#endif
