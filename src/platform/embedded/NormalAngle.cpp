#include "platform/services/NormalAngle.h"

#include "platform/geometry/Angle.h"

#include <cmath>

double normalAngle2PI_max2PI(double angle, double tolerance)
{
    if (!std::isfinite(angle))
        return 0.0;
    const double normal = vks::withinTurn(angle, vks::kFullTurn);
    return normal >= vks::kFullTurn - tolerance ? 0.0 : normal;
}
