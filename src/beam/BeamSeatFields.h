#pragma once

#include "beam/ORVCADBeamSeatIDType.h"

#include <QUuid>

/** What a seat of a recognised beam is in both families of identify records. */
struct BeamSeatFields
{
    ORVCADBeamSeatIDType eSeatIDType = kSeatIsDrawObj; ///< which of the two names counts
    qint64 nSeatID = -1;                               ///< draw object of the host; -1: none
    QUuid nBeamSegmentInfoID;                          ///< segment that is the seat; null: none
};
