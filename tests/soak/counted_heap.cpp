// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/soak/counted_heap.h"

#include <atomic>
#include <cerrno>

#include <malloc.h>

namespace tessarin::test {

std::size_t heapShare(const void *block)
{
    return malloc_usable_size(const_cast<void *>(block));
}

} // namespace tessarin::test

#if defined(__SANITIZE_ADDRESS__)

// Not all compilers have the header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

std::size_t tessarin::test::heapInUse()
{
    return __sanitizer_get_current_allocated_bytes();
}

bool tessarin::test::heapIsSanitized()
{
    return true;
}

#else

namespace {

std::atomic<std::size_t> bytesInUse{0};

void *counted(void *block)
{
    bytesInUse += malloc_usable_size(block);
    return block;
}

} // namespace

std::size_t tessarin::test::heapInUse()
{
    return bytesInUse;
}

bool tessarin::test::heapIsSanitized()
{
    return false;
}

// The C library's own functions, which these take the place of in the whole process.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void *block);

void *malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

void *calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

void *realloc(void *block, std::size_t size)
{
    const std::size_t before = malloc_usable_size(block);
    void *moved = __libc_realloc(block, size);
    if (moved != nullptr || size == 0) { // else the block stays as it was
        bytesInUse -= before;
    }
    return counted(moved);
}

void *memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

void *aligned_alloc(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

int posix_memalign(void **result, std::size_t alignment, std::size_t size)
{
    *result = counted(__libc_memalign(alignment, size));
    return *result != nullptr ? 0 : ENOMEM;
}

void free(void *block)
{
    bytesInUse -= malloc_usable_size(block);
    __libc_free(block);
}

} // extern "C"

#endif
