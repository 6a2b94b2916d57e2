#pragma once

#include "ORVCADModelDataExport.h"
#include "beam/BeamIdentifyContextData.h"
#include "beam/BeamInputFields.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"

#include <QJsonObject>

/** What the recognition of beams is told of a floor, as sample collection reads it from the host. The names of the layers
 *  of beam lines and borders stay empty: a caller who needs them sets them. */
class ORVCADMODELDATA_EXPORT ORVCADBeamSDCIdentifyInputModel : public BeamInputFields<ORVBeamSDCSeatInfoModel>
{
public:
    /** @param hasContext  whether the model has a context; without one, context is null */
    explicit ORVCADBeamSDCIdentifyInputModel(bool hasContext);

    /** The seats that can be made anew, by kind: "etTieBeam" (element type 18), "etIsolatedFD" (52), "etPile" (54) and
     *  "etPileCap" (53), empty arrays included. Seats of other types are left out. */
    QJsonObject beamSeatInfoToJsonObj() const;

    qint64 hostValue = 0;                             ///< a setting of the host, carried as it comes
    bool hasContext;                                  ///< what the model was made with
    std::shared_ptr<BeamIdentifyContextData> context; ///< shared with copies; null without a context
};
