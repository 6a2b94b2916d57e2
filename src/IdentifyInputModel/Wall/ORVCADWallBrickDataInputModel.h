#pragma once

#include "IdentifyInputModel/Wall/WallKindInputModel.h"

/** What the identification of brick walls is given: the base model and the brick walls that the host has already. */
class ORVCADMODELDATA_EXPORT ORVCADWallBrickDataInputModel
    : public wall::WallKindInputModel<ORVCADCloudEntBrickWallStruct>
{
public:
    /** Empty but for the type. */
    explicit ORVCADWallBrickDataInputModel(EORVCADIdentifyType type);
    ~ORVCADWallBrickDataInputModel() override;
    ORVCADWallBrickDataInputModel(const ORVCADWallBrickDataInputModel &) = default;
    ORVCADWallBrickDataInputModel &operator=(const ORVCADWallBrickDataInputModel &) = default;

    /** Elements, as the host tells them or a document has them. */
    std::list<ORVCADCloudEntBrickWallStruct> getCadEntBrickWallDataInfo() const { return m_walls; }
    /** In place of all that were there. */
    void setCadEntBrickWallDataInfo(std::list<ORVCADCloudEntBrickWallStruct> walls) { m_walls = std::move(walls); }

    /** Makes the object the document, with floor code, floor name and drawing name, which no other form has. */
    void saveToJson_ToCloud(QJsonObject &json) const;
};
