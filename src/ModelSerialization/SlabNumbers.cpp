#include "ModelSerialization/SlabNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace slabhost {

int clampedInt(double value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double greatest = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, least, greatest));
}

} // namespace slabhost
