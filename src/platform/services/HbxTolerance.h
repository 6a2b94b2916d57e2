#pragma once

#include "ORVCADPlatformExport.h"

/** Comparison of numbers within a tolerance: a difference of not more than the tolerance counts as equal.
 *  Nothing is equal to, greater or less than NaN. */
namespace hbx {

/** They differ by not more than the tolerance. */
ORVCADPLATFORM_EXPORT bool isEqual(double a, double b, double tolerance);
/** a is above b by more than the tolerance. */
ORVCADPLATFORM_EXPORT bool isGreater(double a, double b, double tolerance);
/** a is above b, or equal to it. */
ORVCADPLATFORM_EXPORT bool isGreaterAndEqual(double a, double b, double tolerance);
/** a is below b, or equal to it. */
ORVCADPLATFORM_EXPORT bool isLessAndEqual(double a, double b, double tolerance);

} // namespace hbx
