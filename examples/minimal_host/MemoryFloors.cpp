#include "MemoryFloors.h"

#include <platform/host/IHBXDrawObjs.h>
#include <platform/host/IHBXModel.h>

#include <algorithm>

namespace {

/** The first of a list that a test holds for; null if none. */
template <typename Object, typename Test>
Object *firstOf(const std::vector<std::unique_ptr<Object>> &list, const Test &test)
{
    const auto found = std::find_if(list.begin(), list.end(), [&](const auto &object) { return test(*object); });
    return found == list.end() ? nullptr : found->get();
}

template <typename Object> Object *atOrNull(const std::vector<std::unique_ptr<Object>> &list, int position)
{
    return position >= 0 && position < static_cast<int>(list.size()) ? list[static_cast<std::size_t>(position)].get()
                                                                     : nullptr;
}

} // namespace

void MemoryFloor::drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool on)
{
    m_model.drawObjects()->queryDrawObjs(out, {m_id}, types, on);
}

MemoryFloor &MemoryRegion::addFloor(int id, const FloorPlan &plan, IHBXModel &model)
{
    return *m_floors.emplace_back(std::make_unique<MemoryFloor>(id, plan, *this, model));
}

IHBXFloor *MemoryRegion::find(const QString &floorName)
{
    return firstOf(m_floors, [&](const MemoryFloor &floor) { return floor.name() == floorName; });
}

IHBXFloor *MemoryRegion::findByCode(const QString &code)
{
    QString floorCode;
    return firstOf(m_floors, [&](const MemoryFloor &floor) { return floor.code(floorCode) == code; });
}

IHBXFloor *MemoryRegion::at(int position) { return atOrNull(m_floors, position); }

MemoryRegion &MemoryRegions::add(qint64 id, const QString &name)
{
    return *m_regions.emplace_back(std::make_unique<MemoryRegion>(id, name));
}

IHBXRegion *MemoryRegions::find(const QString &regionName)
{
    return firstOf(m_regions, [&](const MemoryRegion &region) { return region.name() == regionName; });
}

IHBXRegion *MemoryRegions::at(int position) { return atOrNull(m_regions, position); }
