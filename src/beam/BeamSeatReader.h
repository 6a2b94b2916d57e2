#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"

#include <memory>

class IHBXElementDrawObj;

/** Beams and what they rest on. */
namespace beam {

/** Reads one placed object of a host as a seat; null for one that no beam can rest on: without an outline in the world,
 *  or a column of the section that stands for none. Nothing in the host is changed. What the host throws passes through.
 *  The box of the seat lies at height 0, since a host tells the box of the plan. */
ORVCADMODELDATA_EXPORT std::unique_ptr<ORVBeamSDCSeatInfoModel> readBeamSeat(IHBXElementDrawObj &object);

} // namespace beam
