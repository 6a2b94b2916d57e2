#include "IdentifyInputModel/Wall/ORVCADWallDataOutputModel.h"

ORVCADWallDataOutputModel::~ORVCADWallDataOutputModel() = default;
