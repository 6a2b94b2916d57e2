#pragma once

#include <cstddef>
#include <functional>

namespace bench {

/** Runs something in a copy of this process, which has one thread.
 *  @param answer  filled by the work, in the copy, and carried over from there; plain bytes
 *  @return whether the work came to its end and the answer is there */
bool runForked(void *answer, std::size_t bytes, const std::function<void()> &work);

} // namespace bench
