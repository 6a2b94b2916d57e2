#pragma once

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <cstddef>
#include <limits>

/** The heap of the process, kept from falling into the time of either side of a comparison. Does nothing where the C
 *  library has no such settings. */
namespace bench {

/** Freed memory stays with the process: giving a large piece back and taking it anew costs more than most works, and
 *  falls on one side or the other by luck. */
inline void keepFreedMemory()
{
#if defined(__GLIBC__)
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_MAX, 0);
#endif
}

/** Joins what small pieces were freed, so that the next work does not do it in its time. */
inline void joinFreedMemory()
{
#if defined(__GLIBC__)
    constexpr int usualFastSize = 64 * sizeof(std::size_t) / 4; // bytes; the setting itself does not change
    mallopt(M_MXFAST, usualFastSize);
#endif
}

} // namespace bench
