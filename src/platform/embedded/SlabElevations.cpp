#include "platform/services/SlabElevations.h"

#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

#include <QSet>

namespace property = hbx::property;
namespace type = hbx::type;

namespace {

template <typename Name> double elevationOf(IHBXElementDrawObj *slab, const Name &name)
{
    const IHBXProperties *properties = slab ? slab->properties() : nullptr;
    return properties ? properties->asDouble(name) : 0.0;
}

} // namespace

double getSlabElev(IHBXElementDrawObj *slab, const QString &property) { return elevationOf(slab, property); }

double getNegReinfElev(IHBXElementDrawObj *bar)
{
    const IHBXProperties *properties = bar ? bar->properties() : nullptr;
    IHBXFloor *floor = properties ? bar->floor() : nullptr;
    if (!floor)
        return 0.0;
    IHBXElementDrawObj *slab = floor->findDrawObj(properties->asInt(property::dependSlabId), {type::slab, type::raft});
    return elevationOf(slab, property::topElev);
}
