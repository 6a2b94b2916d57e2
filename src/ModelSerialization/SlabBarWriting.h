#pragma once

#include "ModelSerialization/SlabBarKinds.h"
#include "ModelSerialization/SlabHostWriting.h"

namespace dwgx {
class DWGXBaseBoxTree;
}
class IHBXService;

namespace slabhost {

/** Where bars are written, and the slabs that are there. */
struct SlabBarTarget
{
    SlabTarget floor;
    IHBXService &service;
    dwgx::DWGXBaseBoxTree *slabs; ///< may be null
};

/** Writes bars of a kind that fill an area. Those of one name and text share an element; a text that tells no bars leaves
 *  out all that have it. A bar is linked with the slabs in its area. */
void writeAreaBars(const SlabBarTarget &target, const SlabBarKind &kind, std::vector<SlabBarRecord> records);
/** The same for bars along a line, which depend on one slab. One that is drawn over another of the slabs' negative bars is
 *  left out. */
void writeLineBars(const SlabBarTarget &target, const SlabBarKind &kind, std::vector<SlabBarRecord> records);

} // namespace slabhost
