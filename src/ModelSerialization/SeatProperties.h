#pragma once

#include "ModelSerialization/PropertyText.h"
#include "ORVCADModelDataExport.h"

#include <vector>

class ORVBeamSDCSeatInfoModel;

/** Which properties of the host hold the objects that beams rest on, one table in the source. */
namespace beam {

/** What is written together, in the order in which the kinds of seats come to it. */
enum class SeatStep {
    FoundationHeight, ///< of the foundation, and once more of its unit
    FoundationPlace,
    PileKind,
    PileWidth,
    PileDepth,
    PileHeight,
    PilePlace,
    TieBeamSection,
    TieBeamPlace
};

/** What a step writes for a seat, in order. */
ORVCADMODELDATA_EXPORT std::vector<PropertyText> seatPropertyTexts(const ORVBeamSDCSeatInfoModel &seat, SeatStep step);

} // namespace beam
