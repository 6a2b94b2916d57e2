#pragma once

#include "ORVCADModelDataExport.h"

#include <QString>

namespace vks {
class CCurve2d;
class CPolygon;
} // namespace vks

/** Text of a curve: Line, Circle or Arc form by its kind, the kernel's own text of any other kind; numbers have six
 *  significant digits. Null gives the empty text. Forms: docs/formats/geometry-text.md. */
ORVCADMODELDATA_EXPORT QString getCurveInfo(vks::CCurve2d *curve);

/** Text of a polygon: of one loop of two or more edges the start of each edge, with the bulge of an arc edge; of one
 *  loop of a single curve that curve's text; of any other polygon (holes, no loop, an empty loop) the kernel's own
 *  text. Null gives the empty text. An edge that is neither line nor arc is written as the kernel's text of it, and no
 *  reader knows that. */
ORVCADMODELDATA_EXPORT QString getPolyInfo(vks::CPolygon *polygon);
