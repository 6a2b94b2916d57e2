#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/BeamSeatModelFields.h"

#include <QJsonObject>

/** What the recognition is told of an object that a beam may rest on. Geometry has the short forms of
 *  docs/formats/geometry-text.md, the box the form of BeamBoxText. */
class ORVCADMODELDATA_EXPORT ORVBeamSeatInfoModel : public BeamSeatModelFields
{
public:
    /** Every field under its key. */
    QJsonObject toJson() const;
    /** Fills the target; null does nothing. A missing or mistyped key gives 0, false or null, so a wall without
     *  "dWallThickness" has 0 and not -1; without a box it has the empty one. */
    static void fromJson(ORVBeamSeatInfoModel *target, const QJsonObject &json);

private:
    struct Fields; // the one list, in the source
};
