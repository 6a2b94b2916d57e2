#include "beam/FloorInfo.h"

QJsonObject FloorInfo::toJsonObj() const { return {}; } // meant: BeamIdentifyContextData writes the values
