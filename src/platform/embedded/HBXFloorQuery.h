#pragma once

#include "platform/embedded/HBXRegions.h"

#include <vector>

namespace hbx::embedded {

/** Replaces a query's result by the objects of some types on some floors, in id order. Unknown floors hold nothing.
 *  @param list  which of the objects of a type: its elements or its draw objects */
template <typename Interface, typename T>
void queryFloors(QList<Interface *> &out, const HBXRegions &regions, const QSet<qint64> &floorIds,
                 const QSet<qint64> &types, HBXIdList<T> HBXTypeContents::*list)
{
    std::vector<const HBXIdList<T> *> lists;
    for (const qint64 floorId : floorIds)
        if (HBXFloor *floor = regions.floorById(floorId))
            floor->contents().forTypes(types, [&](HBXTypeContents &type) { lists.push_back(&(type.*list)); });
    HBXIdList<T>::merge(lists, out);
}

} // namespace hbx::embedded
