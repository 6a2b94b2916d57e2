#include "IdentifyInputModel/Wall/ORVCADWallBrickDataOutputModel.h"

ORVCADWallBrickDataOutputModel::ORVCADWallBrickDataOutputModel() = default;

ORVCADWallBrickDataOutputModel::~ORVCADWallBrickDataOutputModel() = default;
