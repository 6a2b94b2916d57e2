#pragma once

#include "ORVCADPlatformExport.h"

/** Comparison of numbers within a tolerance: a difference of not more than the tolerance counts as equal.
 *  Nothing is equal to, greater or less than NaN. */
namespace hbx {

ORVCADPLATFORM_EXPORT bool isEqual(double a, double b, double tolerance);
ORVCADPLATFORM_EXPORT bool isGreater(double a, double b, double tolerance);
ORVCADPLATFORM_EXPORT bool isGreaterAndEqual(double a, double b, double tolerance);
ORVCADPLATFORM_EXPORT bool isLessAndEqual(double a, double b, double tolerance);

} // namespace hbx
