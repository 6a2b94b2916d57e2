#include "ModelSerialization/SlabNumbers.h"

#include "platform/geometry/KernelTolerance.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace slabhost {
namespace {

constexpr double kNoiseOfDoubles = 1e-12; // mm, and part of a length: when the kernel has no tolerance

} // namespace

int clampedInt(double value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double greatest = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, least, greatest));
}

double lengthTolerance(double size)
{
    return vks::g_DistEpsilon != 0.0 ? vks::g_DistEpsilon : std::max(kNoiseOfDoubles, kNoiseOfDoubles * size);
}

} // namespace slabhost
