#include "suite/HeapCount.h"

#include <algorithm>
#include <limits>

#if defined(__GLIBC__)
#include <malloc.h>

#include <cerrno>
#endif

namespace bench {

namespace {

// Constant-initialised and without a lock: the first allocation comes before any constructor, and roads have one thread.
bool isCounting = false;
std::size_t allocations = 0;
std::ptrdiff_t heldBytes = 0;
std::ptrdiff_t peakBytes = 0;

} // namespace

HeapCount::HeapCount()
{
    allocations = 0;
    heldBytes = peakBytes = 0;
    isCounting = true;
}

HeapCount::~HeapCount() { isCounting = false; }

HeapUse HeapCount::use() const { return {allocations, static_cast<std::size_t>(peakBytes)}; }

void keepFreedMemory()
{
#if defined(__GLIBC__)
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_MAX, 0);
#endif
}

void joinFreedMemory()
{
#if defined(__GLIBC__)
    constexpr int usualFastSize = 64 * sizeof(std::size_t) / 4; // bytes; the setting itself does not change
    mallopt(M_MXFAST, usualFastSize);
#endif
}

} // namespace bench

#if defined(__GLIBC__)

// These stand in for the C library's own in the whole process, shared libraries included.

extern "C" {

void *__libc_malloc(std::size_t bytes);
void *__libc_calloc(std::size_t count, std::size_t bytes);
void *__libc_realloc(void *block, std::size_t bytes);
void *__libc_memalign(std::size_t alignment, std::size_t bytes);
void __libc_free(void *block);
}

namespace {

std::ptrdiff_t sizeOf(void *block)
{
    return block ? static_cast<std::ptrdiff_t>(malloc_usable_size(block) + sizeof(std::size_t)) : 0;
}

void *taken(void *block)
{
    if (bench::isCounting) {
        ++bench::allocations;
        bench::heldBytes += sizeOf(block);
        bench::peakBytes = std::max(bench::peakBytes, bench::heldBytes);
    }
    return block;
}

void given(void *block)
{
    if (bench::isCounting)
        bench::heldBytes -= sizeOf(block);
}

} // namespace

extern "C" {

void *malloc(std::size_t bytes) { return taken(__libc_malloc(bytes)); }
void *calloc(std::size_t count, std::size_t bytes) { return taken(__libc_calloc(count, bytes)); }
void *memalign(std::size_t alignment, std::size_t bytes) { return taken(__libc_memalign(alignment, bytes)); }
void *aligned_alloc(std::size_t alignment, std::size_t bytes) { return memalign(alignment, bytes); }
int posix_memalign(void **block, std::size_t alignment, std::size_t bytes)
{
    *block = memalign(alignment, bytes);
    return *block ? 0 : ENOMEM;
}
void *realloc(void *block, std::size_t bytes)
{
    given(block);
    return taken(__libc_realloc(block, bytes));
}
void free(void *block)
{
    given(block);
    __libc_free(block);
}
}

#endif
