#include "platform/services/ORVCADCommonUtils.h"

#include "platform/services/HBXOptionNames.h"

QString ORVCADCommonUtils::getCADIdentifyOptionTableName() { return g_strCADIdentifyOptionTable; }
