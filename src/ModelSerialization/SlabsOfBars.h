#pragma once

#include "ORVCADModelDataExport.h"

#include <vector>

namespace dwgx {
class DWGXBaseBoxTree;
}
namespace vks {
class CCurve2d;
class CPolygon;
} // namespace vks
class IHBXElementDrawObj;
class IHBXService;

/** What slabs new bars lie in, and which bars they would cover. The box tree holds IHBXElementDrawObj pointers to slabs by
 *  their world boxes; a null tree holds none. */
namespace slabhost {

/** The slab under a curve, less 150 mm at either end of it: among those that the rest lies in, partly too, or along whose
 *  boundary it runs, the one of the lowest "TopElev", the first of equals. Null when there is none, and for a curve of less
 *  than 300 mm, of which nothing rests. */
ORVCADMODELDATA_EXPORT IHBXElementDrawObj *findBoardByCurve(dwgx::DWGXBaseBoxTree *boxTree, const vks::CCurve2d *curve);
/** The slabs that an area overlaps, holds, lies in or is equal to, in the order of the tree. */
ORVCADMODELDATA_EXPORT std::vector<IHBXElementDrawObj *> findBoardEdosByPoly(dwgx::DWGXBaseBoxTree *boxTree,
                                                                             const vks::CPolygon *polygon);

/** Links a bar with slabs, both ways; nothing for a null bar. */
ORVCADMODELDATA_EXPORT void syncReinfInfo(IHBXService *service, IHBXElementDrawObj *bar,
                                          const std::vector<IHBXElementDrawObj *> &slabs);

/** Whether a negative bar may stay in the host: no other bar of a type on the current floor, laid along its line and at
 *  the elevation of its slab, is drawn over it.
 *  @param slabId  of the bar's slab; 0.0 is the elevation where there is none
 *  @param curve   the bar's line; a bar without one may not stay
 *  @param selfId  of the bar itself */
ORVCADMODELDATA_EXPORT bool checkBFJOverlap(IHBXService *service, int slabId, const vks::CCurve2d *curve,
                                            int elementType, int selfId);

} // namespace slabhost
