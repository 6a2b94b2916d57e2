#include "platform/services/SlabElevations.h"

#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

#include <QSet>

namespace property = hbx::property;
namespace type = hbx::type;

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
    IHBXElementDrawObj *slab = floor->findDrawObj(properties->asInt(property::dependSlabId), {type::slab, type::raft});
    return getSlabElev(slab, QString::fromStdWString(property::topElev));
}
