#include "ModelSerialization/HostFloor.h"

#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"

IHBXFloor *findFloor(IHBXModel *model, const QString &regionName, const QString &floorName)
{
    IHBXRegion *region = model ? model->regions()->find(regionName) : nullptr;
    return region ? region->floors()->find(floorName) : nullptr;
}
