#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/BeamSeatFields.h"

#include <QJsonObject>

/** A seat of a recognised beam: column, wall, foundation or beam that it rests on. */
class ORVCADMODELDATA_EXPORT ORVCADBeamSeatInfo : public BeamSeatFields
{
public:
    /** Every field under its key. */
    QJsonObject toJson() const;
    /** Fills the target; null does nothing. A missing or mistyped key gives 0 or the null id, so the id of a seat without
     *  "nSeatID" is 0 and not -1. */
    static void fromJson(ORVCADBeamSeatInfo *target, const QJsonObject &json);

private:
    struct Fields; // the one list, in the source
};
