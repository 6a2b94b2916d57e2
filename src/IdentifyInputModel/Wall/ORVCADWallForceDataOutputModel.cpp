#include "IdentifyInputModel/Wall/ORVCADWallForceDataOutputModel.h"

ORVCADWallForceDataOutputModel::ORVCADWallForceDataOutputModel() = default;

ORVCADWallForceDataOutputModel::~ORVCADWallForceDataOutputModel() = default;
