#include "platform/services/SlabElevations.h"

#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXProperties.h"

#include <QSet>

namespace {

constexpr qint64 kSlabType = 19;
constexpr qint64 kRaftType = 48;

} // namespace

double getSlabElev(IHBXElementDrawObj *slab, const QString &property)
{
    const IHBXProperties *properties = slab ? slab->properties() : nullptr;
    return properties ? properties->asDouble(property) : 0.0;
}

double getNegReinfElev(IHBXElementDrawObj *bar)
{
    const IHBXProperties *properties = bar ? bar->properties() : nullptr;
    IHBXFloor *floor = properties ? bar->floor() : nullptr;
    if (!floor)
        return 0.0;
    IHBXElementDrawObj *slab =
        floor->findDrawObj(properties->asInt(QStringLiteral("DependSlabID")), {kSlabType, kRaftType});
    return getSlabElev(slab, QStringLiteral("TopElev"));
}
