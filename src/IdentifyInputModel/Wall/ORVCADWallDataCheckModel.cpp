#include "IdentifyInputModel/Wall/ORVCADWallDataCheckModel.h"

ORVCADWallDataCheckModel::~ORVCADWallDataCheckModel() = default;
