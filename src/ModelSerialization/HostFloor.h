#pragma once

#include "ORVCADModelDataExport.h"

class IHBXFloor;
class IHBXModel;
class QString;

/** The floor that records name, which stays the host's; null when the region or the floor is unknown, and without a
 *  model. */
ORVCADMODELDATA_EXPORT IHBXFloor *findFloor(IHBXModel *model, const QString &regionName, const QString &floorName);
