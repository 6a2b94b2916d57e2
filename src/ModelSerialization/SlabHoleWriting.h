#pragma once

#include "ORVCADModelDataExport.h"

namespace vks {
class CPolygon;
}
class IHBXElement;

/** Holes on their way into the host. */
namespace slabhost {

struct NewSlabElements;
struct SlabTarget;

/** Writes the new holes: rectangles along the axes, circles, and any other outline. Those of one name, edge bar text, size
 *  and kind share an element, and of an outline that is neither rectangle nor circle the first one of the element counts
 *  for all. A hole that lies in no slab or raft is left out.
 *
 *  Meant: the bars at the edge of a hole, along its spans and across its corners are not written. */
void writeBoardHoles(const SlabTarget &target, const NewSlabElements &elements);

/** Gives the element of a hole its outline: "SectionPoly", told from the lower left corner of its box, half the box as
 *  "InsertPt", "SectionInfo" as "100*a;100*b" with the whole steps of 50 mm in half the box plus one, and the box as
 *  "Width" and "Length". A null polygon, and one without a box, change nothing. */
ORVCADMODELDATA_EXPORT void fillAlienHoleProp(const vks::CPolygon *polygon, IHBXElement *const &element);

/** How far a rectangle, width along x and length along y, is turned to lie as an outline does, rad, more than -pi/2 and up
 *  to pi/2; 0 when it is not congruent. Meant: what is 0 becomes pi/2 for a square, and what is pi/2 becomes 0. */
ORVCADMODELDATA_EXPORT double holeAngle(double width, double length, const vks::CPolygon &outline);

} // namespace slabhost
