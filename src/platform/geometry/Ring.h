#pragma once

#include "platform/geometry/CVec2.h"

#include <algorithm>
#include <vector>

namespace vks {

/** Corners of a closed ring of straight edges, mm; the first is not repeated at the end. */
using Ring = std::vector<CVec2<double>>;

/** Takes out each corner that is the same as the one kept before it, the first coming after the last. Of corners that are
 *  all the same the first stays.
 *  @param same  whether two corners count as one, whichever comes first */
template <typename Same> void dropRepeats(Ring &ring, Same same)
{
    ring.erase(std::unique(ring.begin(), ring.end(), same), ring.end());
    while (ring.size() > 1 && same(ring.front(), ring.back()))
        ring.pop_back();
}

} // namespace vks
