#pragma once

#include "platform/geometry/CLoop.h"

#include <vector>

namespace vks {

/** In how many of the others each loop lies; loops are taken not to cross. A loop without curves lies in none. */
std::vector<int> loopDepths(const std::vector<CRefPtr<CLoop>> &loops);

/** True when a loop lies in another one; loops are taken not to cross, but they may touch. */
bool liesIn(const CLoop &inner, const CLoop &outer);

} // namespace vks
