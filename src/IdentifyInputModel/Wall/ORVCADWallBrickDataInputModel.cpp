#include "IdentifyInputModel/Wall/ORVCADWallBrickDataInputModel.h"

#include "encoding/ORVCADJsonFileSerialization.h"

ORVCADWallBrickDataInputModel::ORVCADWallBrickDataInputModel(EORVCADIdentifyType type) : WallKindInputModel(type) {}

ORVCADWallBrickDataInputModel::~ORVCADWallBrickDataInputModel() = default;

void ORVCADWallBrickDataInputModel::saveToJson_ToCloud(QJsonObject &json) const
{
    ORVCADJsonFileSerialization archive{QString()};
    ORVCADInputModelSerialization records(&archive);
    saveWalls(records);
    records.saveFloorCode(getFloorCode());
    records.saveFloorName(getFloorName());
    records.saveDrawingName(getDrawingName());
    saveToJson(records);
    json = archive.rootObject();
}
