#include "platform/embedded/HBXFloors.h"

namespace hbx::embedded {
namespace {

/** Of a name that stands twice, the first floor counts. */
void insertFirst(QHash<QString, HBXFloor *> &floors, const QString &text, HBXFloor *floor)
{
    if (!floors.contains(text))
        floors.insert(text, floor);
}

} // namespace

HBXFloor *HBXFloors::at(int position)
{
    return position >= 0 && position < count() ? m_floors[static_cast<std::size_t>(position)].get() : nullptr;
}

HBXFloor &HBXFloors::add(FloorRecord record)
{
    m_floors.push_back(std::make_unique<HBXFloor>(m_region, std::move(record)));
    HBXFloor &floor = *m_floors.back();
    insertFirst(m_byName, floor.record().name, &floor);
    insertFirst(m_byCode, floor.record().code, &floor);
    return floor;
}

} // namespace hbx::embedded
