#pragma once

#include "ORVCADPlatformExport.h"

/** The same direction as an angle from 0 up to a full turn, rad; one within the tolerance of a full turn is 0. An angle that
 *  is not finite gives 0. */
ORVCADPLATFORM_EXPORT double normalAngle2PI_max2PI(double angle, double tolerance);
