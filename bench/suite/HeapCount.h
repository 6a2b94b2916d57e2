#pragma once

#include <cstddef>

/** The heap of this process: what the C and C++ libraries, Qt and all others take of it. Counts nothing with a C library
 *  other than that of GNU. */
namespace bench {

struct HeapUse
{
    std::size_t allocations = 0;
    std::size_t peakBytes = 0; ///< most that was held at one time beyond what was held at the start
};

/** Counts from its making on. One at a time. */
class HeapCount
{
public:
    HeapCount();
    ~HeapCount();
    HeapCount(const HeapCount &) = delete;
    HeapCount &operator=(const HeapCount &) = delete;

    HeapUse use() const;
};

/** Freed memory stays with the process: giving a large piece back and taking it anew costs more than most works, and
 *  falls on one side or the other by luck. */
void keepFreedMemory();

/** Joins what small pieces were freed, so that the next work does not do it in its time. */
void joinFreedMemory();

} // namespace bench
