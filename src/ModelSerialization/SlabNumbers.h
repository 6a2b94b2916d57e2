#pragma once

#include "ORVCADModelDataExport.h"

/** Numbers of slabs and bars on their way between the host and the local model. */
namespace slabhost {

/** The number without its fraction; beyond the range the end of the range, for NaN 0. */
ORVCADMODELDATA_EXPORT int clampedInt(double value);
/** The tolerance for equal lengths: g_DistEpsilon; while that is 0, the larger of 1e-12 and 1e-12 times the size told. */
ORVCADMODELDATA_EXPORT double lengthTolerance(double size);

} // namespace slabhost
