#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/BeamElementFields.h"
#include "beam/ORVCADBeamEDOInfo.h"
#include "beam/ORVCADBeamSeatInfo.h"

#include <QJsonObject>

/** One recognised beam label with its reinforcement texts, its placed runs and its seats. */
class ORVCADMODELDATA_EXPORT ORVCADBeamEdoInfoTmp : public BeamElementFields<ORVCADBeamSeatInfo>
{
public:
    /** Null runs and seats are left out. */
    QJsonObject toJson() const;
    /** Fills the target and adds to its two lists; null does nothing. A missing or mistyped key gives 0, the empty text or
     *  nothing to add. */
    static void fromJson(ORVCADBeamEdoInfoTmp *target, const QJsonObject &json);

private:
    struct Fields; // the one list, in the source
};
