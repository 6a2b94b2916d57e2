#include "drawing/FloorMappingIndex.h"

#include <algorithm>

namespace drawing {

namespace {

using Entry = FloorMappingIndex::Entry;
using Entries = FloorMappingIndex::Entries;

/** The place of a number in the ascending order of the list, whether it is there or not. */
template <typename List> auto placeOf(List &entries, qint64 number)
{
    return std::lower_bound(entries.begin(), entries.end(), number,
                            [](const Entry &entry, qint64 sought) { return entry.number < sought; });
}

template <typename List> bool hasNumber(List &entries, qint64 number)
{
    const auto place = placeOf(entries, number);
    return place != entries.end() && place->number == number;
}

/** Each record once. */
void insertEntry(Entries &entries, const Entry &entry)
{
    if (entries.isEmpty() || entries.last().number < entry.number)
        entries.append(entry); // unlike inserting, this leaves room for the next
    else if (!hasNumber(entries, entry.number))
        entries.insert(placeOf(entries, entry.number), entry);
}

template <typename Key> void removeEntry(QHash<Key, Entries> &lists, const Key &key, const Entry &entry)
{
    const auto list = lists.find(key);
    if (list == lists.end())
        return;
    if (hasNumber(*list, entry.number))
        list->erase(placeOf(*list, entry.number));
    if (list->isEmpty())
        lists.erase(list);
}

} // namespace

bool FloorMappingIndex::holds(qint64 number, const QString &drawing) const
{
    const auto list = m_byDrawing.constFind(drawing);
    return list != m_byDrawing.constEnd() && hasNumber(*list, number);
}

void FloorMappingIndex::build(const FloorMappingList &list)
{
    *this = FloorMappingIndex();
    for (auto record = list.begin(); record != list.end(); ++record)
        add({record.key(), record->get()});
}

void FloorMappingIndex::add(const Entry &entry)
{
    insertEntry(m_byFloor[{entry.record->regionId, entry.record->floorName}], entry);
    insertEntry(m_byRegion[entry.record->regionId], entry);
    for (const QString &drawing : entry.record->drawingNames)
        addDrawing(entry, drawing);
}

void FloorMappingIndex::remove(const Entry &entry)
{
    removeEntry(m_byFloor, {entry.record->regionId, entry.record->floorName}, entry);
    removeEntry(m_byRegion, entry.record->regionId, entry);
    for (const QString &drawing : entry.record->drawingNames)
        removeDrawing(entry, drawing);
}

void FloorMappingIndex::addDrawing(const Entry &entry, const QString &drawing)
{
    insertEntry(m_byDrawing[drawing], entry);
}

void FloorMappingIndex::removeDrawing(const Entry &entry, const QString &drawing)
{
    removeEntry(m_byDrawing, drawing, entry);
}

} // namespace drawing
