#include "cli/FloorLookup.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
namespace orvcad {
IHBXFloor *floorOfCode(IHBXModel &model, const QString &regionName, const QString &floorCode, QString &reason)
{
    IHBXRegion *region = model.regions()->find(regionName);
    IHBXFloor *floor = region ? region->floors()->findByCode(floorCode) : nullptr;
    if (!region)
        reason = QStringLiteral("unknown region \"%1\"").arg(regionName);
    else if (!floor)
        reason = QStringLiteral("unknown floor code \"%1\" in region \"%2\"").arg(floorCode, regionName);
    return floor;
}
QSet<qint64> idsOf(const std::vector<IHBXFloor *> &floors)
{
    QSet<qint64> ids;
    for (const IHBXFloor *floor : floors)
        ids.insert(floor->id());
    return ids;
}
}
