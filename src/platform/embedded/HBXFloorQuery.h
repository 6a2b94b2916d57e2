#pragma once

#include "platform/embedded/HBXRegions.h"

namespace hbx::embedded {

/** Replaces a query's result by the objects of some types on some floors, in id order. Unknown floors hold nothing.
 *  @param list  which of the objects of a type: its elements or its draw objects */
template <typename Interface, typename T>
void queryFloors(QList<Interface *> &out, const HBXRegions &regions, const QSet<qint64> &floorIds,
                 const QSet<qint64> &types, HBXIdList<T> HBXTypeContents::*list)
{
    out.clear();
    for (const qint64 floorId : floorIds)
        if (HBXFloor *floor = regions.floorById(floorId))
            floor->contents().forTypes(types, [&](HBXTypeContents &type) { addTo(out, type.*list); });
    sortById(out);
}

} // namespace hbx::embedded
