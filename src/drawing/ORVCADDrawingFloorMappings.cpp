#include "drawing/ORVCADDrawingFloorMappings.h"

#include <QJsonArray>

namespace {

constexpr qint64 kNoRegion = -1;
constexpr qint64 kFirstNumber = 1;
constexpr qint64 kNoNumber = 0;
constexpr qint64 kNeverIndexed = -1; // no number of changes

} // namespace

ORVCADDrawingFloorMappings::ORVCADDrawingFloorMappings() : m_changes(std::make_shared<qint64>(0)) {}

// Lookups.

const ORVCADDrawingFloorMappings::Index &ORVCADDrawingFloorMappings::index() const
{
    if (m_indexedChanges != *m_changes) {
        m_index.build(m_mappings);
        m_indexedChanges = *m_changes;
    }
    return m_index;
}

QStringList ORVCADDrawingFloorMappings::getMappingDrawingNames(qint64 region, const QString &floor) const
{
    QStringList names;
    if (region == kNoRegion || floor.isEmpty())
        return names;
    for (const Index::Entry &entry : index().ofFloor(region, floor))
        names.append(entry.record->drawingNames);
    return names;
}

QStringList ORVCADDrawingFloorMappings::getMappingFloorNames(const QString &drawing) const
{
    QStringList names;
    for (const auto &floor : getMappingFloors(drawing))
        names.append(floor.second);
    return names;
}

QStringList ORVCADDrawingFloorMappings::getMappingFloorNames(qint64 region) const
{
    QStringList names;
    if (region == kNoRegion)
        return names;
    for (const Index::Entry &entry : index().ofRegion(region))
        names.append(entry.record->floorName);
    return names;
}

QList<std::pair<qint64, QString>> ORVCADDrawingFloorMappings::getMappingFloors(const QString &drawing) const
{
    QList<std::pair<qint64, QString>> floors;
    if (drawing.isEmpty())
        return floors;
    for (const Index::Entry &entry : index().ofDrawing(drawing))
        floors.append({entry.record->regionId, entry.record->floorName});
    return floors;
}

// Changes. Each brings the index up to date first and then keeps it so.

qint64 ORVCADDrawingFloorMappings::addMapping(const Record &mapping)
{
    const qint64 number = m_mappings.isEmpty() ? kFirstNumber : m_mappings.lastKey() + 1;
    m_mappings.insert(m_mappings.end(), number, mapping);
    return number;
}

ORVCADDrawingFloorMappings::Index::Entry ORVCADDrawingFloorMappings::addMapping(qint64 region, const QString &floor)
{
    const auto record = std::make_shared<ORVCADDrawingFloorMapping>();
    record->regionId = region;
    record->floorName = floor;
    const Index::Entry entry{addMapping(record), record.get()};
    m_index.add(entry);
    return entry;
}

void ORVCADDrawingFloorMappings::addMapping(qint64 region, const QString &floor, const QString &drawing)
{
    const Index &current = index();
    const Index::Entries found = floor.isEmpty() ? Index::Entries() : current.ofFloor(region, floor);
    const Index::Entry entry = found.isEmpty() ? addMapping(region, floor) : found.first();
    if (m_index.holds(entry.number, drawing))
        return;
    entry.record->drawingNames.append(drawing);
    m_index.addDrawing(entry, drawing);
    noteRecordChange();
}

void ORVCADDrawingFloorMappings::removeMapping(const QString &drawing)
{
    if (drawing.isEmpty())
        return;
    qint64 passedOver = kNoNumber;
    for (const Index::Entry &entry : index().ofDrawing(drawing)) {
        if (entry.number == passedOver)
            continue; // meant: the record that moved up into the place of one that went is not looked at
        removeDrawing(entry, drawing);
        if (!entry.record->drawingNames.isEmpty())
            continue;
        const auto behind = m_mappings.upperBound(entry.number);
        passedOver = behind == m_mappings.end() ? kNoNumber : behind.key();
        remove(entry);
    }
}

void ORVCADDrawingFloorMappings::removeMapping(qint64 region)
{
    if (region != kNoRegion)
        removeFirst(index().ofRegion(region)); // meant: the others of the region stay
}

void ORVCADDrawingFloorMappings::removeMapping(qint64 region, const QString &floor)
{
    if (!floor.isEmpty())
        removeFirst(index().ofFloor(region, floor));
}

void ORVCADDrawingFloorMappings::removeDrawing(const Index::Entry &entry, const QString &drawing)
{
    entry.record->drawingNames.removeAll(drawing);
    m_index.removeDrawing(entry, drawing);
    noteRecordChange();
}

void ORVCADDrawingFloorMappings::removeFirst(const Index::Entries &entries)
{
    if (!entries.isEmpty())
        remove(entries.first());
}

void ORVCADDrawingFloorMappings::remove(const Index::Entry &entry)
{
    m_index.remove(entry);
    m_mappings.remove(entry.number); // with the last set that has it, this ends the record
}

void ORVCADDrawingFloorMappings::noteRecordChange() { m_indexedChanges = ++*m_changes; }

// Text.

QJsonValue ORVCADDrawingFloorMappings::toJson() const
{
    QJsonArray array;
    for (const Record &record : m_mappings)
        array.append(record->toJson());
    return array;
}

ORVCADDrawingFloorMappings *ORVCADDrawingFloorMappings::fromJson(const QJsonValue &json)
{
    auto mappings = std::make_unique<ORVCADDrawingFloorMappings>();
    const QJsonArray array = json.toArray();
    for (const QJsonValue element : array) {
        const auto record = std::make_shared<ORVCADDrawingFloorMapping>();
        if (record->readJson(element.toObject()))
            mappings->addMapping(record);
    }
    mappings->m_indexedChanges = kNeverIndexed; // a set that is only written out again needs no index
    return mappings.release();
}
