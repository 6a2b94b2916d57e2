#pragma once

#include "ORVCADPlatformExport.h"

namespace dwgx {

/** The whole number nearest to a value; of two that are equally near, the one farther from zero. A value beyond the range
 *  gives the end of the range, NaN gives 0. */
ORVCADPLATFORM_EXPORT int round(double value);

} // namespace dwgx
