#pragma once

#include "IdentifyInputModel/Wall/WallKindInputModel.h"

/** What the identification of load-bearing concrete walls is given: the base model and the walls of that kind that the
 *  host has already. There is no document for the cloud. */
class ORVCADMODELDATA_EXPORT ORVCADWallForceDataInputModel
    : public wall::WallKindInputModel<ORVCADCloudEntForceWallStruct>
{
public:
    /** Empty but for the type. */
    explicit ORVCADWallForceDataInputModel(EORVCADIdentifyType type);
    ~ORVCADWallForceDataInputModel() override;
    ORVCADWallForceDataInputModel(const ORVCADWallForceDataInputModel &) = default;
    ORVCADWallForceDataInputModel &operator=(const ORVCADWallForceDataInputModel &) = default;

    /** Elements, as the host tells them or a document has them. */
    std::list<ORVCADCloudEntForceWallStruct> getCadEntForceWallDataInfo() const { return m_walls; }
    /** In place of all that were there. */
    void setCadEntForceWallDataInfo(std::list<ORVCADCloudEntForceWallStruct> walls) { m_walls = std::move(walls); }
};
