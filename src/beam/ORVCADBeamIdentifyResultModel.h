#pragma once

#include "beam/BeamResultFields.h"
#include "beam/ORVCADBeamEdoInfoTmp.h"

/** What the recognition of beams found. */
class ORVCADMODELDATA_EXPORT ORVCADBeamIdentifyResultModel : public BeamResultFields<ORVCADBeamEdoInfoTmp>
{
public:
    /** One key, "elementInfoList". Null labels are left out. */
    QJsonObject toJson() const;
    /** Gives the target the labels of the object as by setElementInfo; null does nothing. Never fails: what is missing or
     *  mistyped is 0, empty or null, and a label that is no object is a record of those. */
    static void fromJson(ORVCADBeamIdentifyResultModel *target, const QJsonObject &json);
};
