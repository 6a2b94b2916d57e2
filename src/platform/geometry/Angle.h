#pragma once

#include <cmath>

namespace vks {

/** Half a turn, rad. */
constexpr double kPi = 3.14159265358979323846;
/** A full turn, rad. */
constexpr double kFullTurn = 2 * kPi;

/** A value brought into [0, turn) by whole turns; for an angle the turn is kFullTurn, for a way around a circle its
 *  circumference. */
inline double withinTurn(double value, double turn)
{
    const double rest = std::fmod(value, turn);
    return rest < 0.0 ? rest + turn : rest;
}

} // namespace vks
