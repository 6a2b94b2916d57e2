#include "platform/services/NormalAngle.h"

#include <cmath>

double normalAngle2PI_max2PI(double angle, double tolerance)
{
    constexpr double kFullTurn = 6.283185307179586; // rad
    if (!std::isfinite(angle))
        return 0.0;
    const double rest = std::fmod(angle, kFullTurn);
    const double normal = rest < 0.0 ? rest + kFullTurn : rest;
    return normal >= kFullTurn - tolerance ? 0.0 : normal;
}
