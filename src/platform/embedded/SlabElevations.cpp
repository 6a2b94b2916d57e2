#include "platform/services/SlabElevations.h"

#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXProperties.h"

#include <QList>
#include <QSet>

#include <algorithm>

namespace {

constexpr qint64 kSlabType = 19;
constexpr qint64 kRaftType = 48;

IHBXElementDrawObj *slabById(IHBXFloor &floor, qint64 id)
{
    QList<IHBXElementDrawObj *> slabs;
    floor.drawObjsOfTypes(slabs, {kSlabType, kRaftType}, true);
    const auto found =
        std::find_if(slabs.begin(), slabs.end(), [id](const IHBXElementDrawObj *slab) { return slab->id() == id; });
    return found == slabs.end() ? nullptr : *found;
}

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
    IHBXElementDrawObj *slab = slabById(*floor, properties->asInt(QStringLiteral("DependSlabID")));
    return getSlabElev(slab, QStringLiteral("TopElev"));
}
