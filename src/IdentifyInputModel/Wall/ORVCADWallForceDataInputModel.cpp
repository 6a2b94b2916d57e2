#include "IdentifyInputModel/Wall/ORVCADWallForceDataInputModel.h"

ORVCADWallForceDataInputModel::ORVCADWallForceDataInputModel(EORVCADIdentifyType type) : WallKindInputModel(type) {}

ORVCADWallForceDataInputModel::~ORVCADWallForceDataInputModel() = default;
