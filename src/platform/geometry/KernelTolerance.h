#pragma once

#include "ORVCADPlatformExport.h"

namespace vks {

/** Distance within which two points are one, mm. */
extern ORVCADPLATFORM_EXPORT double g_DistEpsilon;
/** What g_DistEpsilon starts with, mm. */
extern ORVCADPLATFORM_EXPORT double g_DefaultDistEpsilon;
/** Angle within which two directions are one, rad. */
extern ORVCADPLATFORM_EXPORT double g_AngleEpsilon;
/** Angle within which two lines are parallel, rad. */
extern ORVCADPLATFORM_EXPORT double g_ParallelEpsilon;

/** The tolerance of lengths: g_DistEpsilon; while that is 0, the larger of 1e-12 mm and 1e-12 times the size told, mm. */
ORVCADPLATFORM_EXPORT double lengthTolerance(double size);

/** What double arithmetic leaves of a distance of curves 10 km from the origin, mm. */
constexpr double kArithmeticNoise = 1e-8;
/** Arcs go into overlay as chords that leave the arc by no more than this, mm. */
constexpr double kChordSagitta = 0.01;
/** Resolution of polygon overlay and least tolerance of polygon relations, mm. */
constexpr double kOverlayResolution = 0.01;

} // namespace vks
