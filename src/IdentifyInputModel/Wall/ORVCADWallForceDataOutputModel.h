#pragma once

#include "IdentifyInputModel/Wall/WallKindOutputModel.h"

/** Load-bearing concrete walls that were identified. */
class ORVCADMODELDATA_EXPORT ORVCADWallForceDataOutputModel
    : public wall::WallKindOutputModel<ORVCADCloudEntForceWallStruct>
{
public:
    /** Without walls. */
    ORVCADWallForceDataOutputModel();
    ~ORVCADWallForceDataOutputModel() override;

    /** Copies each entry into the map, in place of what it has for that element; its others stay. The elements remain the
     *  model's: the map must not outlive it and must not delete them. */
    void getForceWallIdentifyData(Walls &walls) const { copyInto(walls); }
    /** Appends a copy of the piece to an element, which belongs to the model from now on and must come from new. Null is
     *  kept and never written. */
    void setForceWallIdentifyData(ORVCADCloudEntForceWallStruct *element, const IdentifyResultData &piece)
    {
        m_walls[element].push_back(piece);
    }
};
