#pragma once

#include "ORVCADModelDataExport.h"

/** Numbers of slabs and bars on their way between the host and the local model. */
namespace slabhost {

/** The number without its fraction; beyond the range the end of the range, for NaN 0. */
ORVCADMODELDATA_EXPORT int clampedInt(double value);

} // namespace slabhost
