#pragma once

#include "suite/Road.h"

namespace bench {

/** Conversions between the host and records or texts: the time of an element is the same in a small building and in a large
 *  one, but for a third. No ratio: there is no host without its work. */
inline constexpr Bounds kFlatConversion{0.0, 1.3};
/** Placing n bars costs n log n at most, since each looks for its slab: from 1,000 to 100,000 by log 100,000 / log 1,000. */
inline constexpr Bounds kPlacing{0.0, 5.0 / 3.0};

} // namespace bench
