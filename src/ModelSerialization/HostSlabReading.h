#pragma once

#include "ORVCADModelDataExport.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

class IHBXElementDrawObj;

/** Fills elements of the local model that are no bars from their draw objects: geometry, sizes, elevations, texts. Identity,
 *  id and name are not theirs to fill. A shape of another kind than the type has, or one without geometry, leaves the
 *  geometry null and the sizes 0. */
namespace slabhost {

using Local = ORVCADBoardLocalModel_Sample;

ORVCADMODELDATA_EXPORT void read(IHBXElementDrawObj &object, Local::Raft &raft);
ORVCADMODELDATA_EXPORT void read(IHBXElementDrawObj &object, Local::Board &board);
/** Meant: barInfo stays as it is, the host has only the three texts of the spans. */
ORVCADMODELDATA_EXPORT void read(IHBXElementDrawObj &object, Local::BoardHole &hole);
ORVCADMODELDATA_EXPORT void read(IHBXElementDrawObj &object, Local::Column &column);
ORVCADMODELDATA_EXPORT void read(IHBXElementDrawObj &object, Local::Beam &beam);
/** Meant: the elevations go to the wall's own fields, startTopElev and endTopElev stay as they are. */
ORVCADMODELDATA_EXPORT void read(IHBXElementDrawObj &object, Local::Wall &wall);
/** An object without a grid behind it gives its remark alone. An axis gives one pair, with the first of its curves, which
 *  is null for an axis without any. */
ORVCADMODELDATA_EXPORT void read(IHBXElementDrawObj &object, Local::AxisNet &net);

} // namespace slabhost
