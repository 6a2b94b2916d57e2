#pragma once

#include "beam/BeamInputFields.h"
#include "beam/ORVBeamSeatInfoModel.h"

/** What the recognition of beams is told of a floor: its data, the prefixes of beam labels, layers, axis lines, seats. */
class ORVCADMODELDATA_EXPORT ORVCADBeamIdentifyInputModel : public BeamInputFields<ORVBeamSeatInfoModel>
{
public:
    /** Null seats are left out; a null axis line is the empty text. */
    QJsonObject toJson() const;
    /** Fills the target and adds to its beam codes, seats and axis lines; null does nothing. Never fails: what is missing
     *  or mistyped is 0, false, empty or null. A bad axis line is a null one, so that the others keep their places. The
     *  floor's id is read from a number or from a text of digits. */
    static void fromJson(ORVCADBeamIdentifyInputModel *target, const QJsonObject &json);

private:
    struct Fields; // the one list, in the source
};
