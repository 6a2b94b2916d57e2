#include "platform/services/HbxTolerance.h"

#include <cmath>

namespace hbx {

bool isEqual(double a, double b, double tolerance)
{
    return a == b || std::fabs(a - b) <= tolerance; // equal infinities have no difference
}

bool isGreater(double a, double b, double tolerance) { return a > b && !isEqual(a, b, tolerance); }

bool isGreaterAndEqual(double a, double b, double tolerance) { return a > b || isEqual(a, b, tolerance); }

bool isLessAndEqual(double a, double b, double tolerance) { return a < b || isEqual(a, b, tolerance); }

} // namespace hbx
