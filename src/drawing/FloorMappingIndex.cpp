#include "drawing/FloorMappingIndex.h"

#include <algorithm>

namespace drawing {

namespace {

using Numbers = FloorMappingIndex::Numbers;

/** Each number once, in ascending order: that of the list. */
void insertNumber(Numbers &numbers, qint64 number)
{
    const auto place = std::lower_bound(numbers.begin(), numbers.end(), number);
    if (place == numbers.end() || *place != number)
        numbers.insert(place, number);
}

template <typename Key> void removeNumber(QHash<Key, Numbers> &lists, const Key &key, qint64 number)
{
    const auto list = lists.find(key);
    if (list == lists.end())
        return;
    const auto place = std::lower_bound(list->begin(), list->end(), number);
    if (place != list->end() && *place == number)
        list->erase(place);
    if (list->isEmpty())
        lists.erase(list);
}

} // namespace

bool FloorMappingIndex::holds(qint64 number, const QString &drawing) const
{
    const auto list = m_byDrawing.constFind(drawing);
    return list != m_byDrawing.constEnd() && std::binary_search(list->begin(), list->end(), number);
}

void FloorMappingIndex::build(const FloorMappingList &list)
{
    *this = FloorMappingIndex();
    for (auto record = list.begin(); record != list.end(); ++record)
        add(record.key(), **record);
}

void FloorMappingIndex::add(qint64 number, const ORVCADDrawingFloorMapping &mapping)
{
    insertNumber(m_byFloor[{mapping.regionId, mapping.floorName}], number);
    insertNumber(m_byRegion[mapping.regionId], number);
    for (const QString &drawing : mapping.drawingNames)
        addDrawing(number, drawing);
}

void FloorMappingIndex::remove(qint64 number, const ORVCADDrawingFloorMapping &mapping)
{
    removeNumber(m_byFloor, {mapping.regionId, mapping.floorName}, number);
    removeNumber(m_byRegion, mapping.regionId, number);
    for (const QString &drawing : mapping.drawingNames)
        removeDrawing(number, drawing);
}

void FloorMappingIndex::addDrawing(qint64 number, const QString &drawing)
{
    insertNumber(m_byDrawing[drawing], number);
}

void FloorMappingIndex::removeDrawing(qint64 number, const QString &drawing)
{
    removeNumber(m_byDrawing, drawing, number);
}

} // namespace drawing
