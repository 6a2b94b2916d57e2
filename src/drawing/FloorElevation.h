#pragma once

#include "platform/services/HbxTolerance.h"

/** Comparison of floor elevations, which are in metres. */
namespace drawing::elevation {

/** m; elevations that differ by no more are the same. */
constexpr double kTolerance = 1e-12;

inline bool isEqual(double a, double b) { return hbx::isEqual(a, b, kTolerance); }
inline bool isGreater(double a, double b) { return hbx::isGreater(a, b, kTolerance); }
inline bool isGreaterOrEqual(double a, double b) { return hbx::isGreaterAndEqual(a, b, kTolerance); }
inline bool isLessOrEqual(double a, double b) { return hbx::isLessAndEqual(a, b, kTolerance); }

} // namespace drawing::elevation
