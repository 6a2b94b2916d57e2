#include "platform/geometry/KernelTolerance.h"

#include <algorithm>

namespace vks {
namespace {

constexpr double kNoiseOfDoubles = 1e-12; // mm, and part of a length

} // namespace

double g_DistEpsilon = 1e-6;
double g_DefaultDistEpsilon = 1e-6;
double g_AngleEpsilon = 1e-6;
double g_ParallelEpsilon = 1e-6;

double lengthTolerance(double size)
{
    return g_DistEpsilon != 0.0 ? g_DistEpsilon : std::max(kNoiseOfDoubles, kNoiseOfDoubles * size);
}

} // namespace vks
