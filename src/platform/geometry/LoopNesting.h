#pragma once

#include "platform/geometry/CLoop.h"

#include <vector>

namespace vks {

/** In how many of the others each loop lies; loops are taken not to cross. A loop without curves lies in none;
 *  of two that bound the same area the later one lies in the earlier. */
ORVCADPLATFORM_EXPORT std::vector<int> loopDepths(const std::vector<CRefPtr<CLoop>> &loops);

/** True when a loop lies in another one; loops are taken not to cross, but they may touch. */
ORVCADPLATFORM_EXPORT bool liesIn(const CLoop &inner, const CLoop &outer);

/** True when two loops bound the same area; loops are taken not to cross. */
ORVCADPLATFORM_EXPORT bool boundTheSame(const CLoop &a, const CLoop &b);

} // namespace vks
