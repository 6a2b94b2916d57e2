#include "platform/geometry/KernelTolerance.h"

namespace vks {

double g_DistEpsilon = 1e-6;
double g_DefaultDistEpsilon = 1e-6;
double g_AngleEpsilon = 1e-6;
double g_ParallelEpsilon = 1e-6;

} // namespace vks
