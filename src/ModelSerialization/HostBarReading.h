#pragma once

#include "ORVCADModelDataExport.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

class IHBXElementDrawObj;
class IHBXModel;

/** Fills bars of the local model from their draw objects; identity, id, name and row are not theirs to fill.
 *
 *  Area bars get a cleaned outline, and their direction and reference point from the end of the curve that the host draws
 *  them as. Line bars get the line they lie on, turned so that the drawn bar starts to its left where its two ends differ,
 *  and as reference point the first one where the drawn bar, lengthened, meets the line. Without a drawn curve there is no
 *  direction and no valid reference point. */
namespace slabhost {

using Local = ORVCADBoardLocalModel_Sample;

/** @param model  in which the slabs of a bar are found by their ids */
ORVCADMODELDATA_EXPORT void read(IHBXModel &model, IHBXElementDrawObj &object, Local::ForcedBar &bar);
/** Meant: the last item of "ReinforcementInfo" is the empty one behind the last ";", so it never counts. */
ORVCADMODELDATA_EXPORT void read(IHBXModel &model, IHBXElementDrawObj &object, Local::StraddleForcedBar &bar);
ORVCADMODELDATA_EXPORT void read(IHBXModel &model, IHBXElementDrawObj &object, Local::NegativeForcedBar &bar);
/** Meant: supportPoly stays null. */
ORVCADMODELDATA_EXPORT void read(IHBXModel &model, IHBXElementDrawObj &object, Local::RaftMainForcedBar &bar);
ORVCADMODELDATA_EXPORT void read(IHBXModel &model, IHBXElementDrawObj &object, Local::RaftMainStraddleForcedBar &bar);
/** Meant: labelPosition is always the host's own, while that of a slab's bar with both labels goes by its supports. */
ORVCADMODELDATA_EXPORT void read(IHBXModel &model, IHBXElementDrawObj &object, Local::RaftNegativeForcedBar &bar);

} // namespace slabhost
