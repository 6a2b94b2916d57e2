#include "drawing/ORVCADDrawingFloorMappings.h"

#include <QJsonArray>

namespace {

constexpr qint64 kNoRegion = -1;
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

qint64 ORVCADDrawingFloorMappings::firstOfFloor(qint64 region, const QString &floor) const
{
    return floor.isEmpty() ? kNoNumber : index().ofFloor(region, floor).value(0, kNoNumber);
}

QStringList ORVCADDrawingFloorMappings::getMappingDrawingNames(qint64 region, const QString &floor) const
{
    QStringList names;
    if (region == kNoRegion || floor.isEmpty())
        return names;
    for (const qint64 number : index().ofFloor(region, floor))
        names.append(m_mappings.value(number)->drawingNames);
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
    for (const qint64 number : index().ofRegion(region))
        names.append(m_mappings.value(number)->floorName);
    return names;
}

QList<std::pair<qint64, QString>> ORVCADDrawingFloorMappings::getMappingFloors(const QString &drawing) const
{
    QList<std::pair<qint64, QString>> floors;
    if (drawing.isEmpty())
        return floors;
    for (const qint64 number : index().ofDrawing(drawing)) {
        const Record record = m_mappings.value(number);
        floors.append({record->regionId, record->floorName});
    }
    return floors;
}

// Changes. Each brings the index up to date first and then keeps it so.

qint64 ORVCADDrawingFloorMappings::addMapping(const Record &mapping)
{
    const qint64 number = m_mappings.isEmpty() ? kNoNumber + 1 : m_mappings.lastKey() + 1;
    m_mappings.insert(m_mappings.end(), number, mapping);
    return number;
}

void ORVCADDrawingFloorMappings::addMapping(qint64 region, const QString &floor, const QString &drawing)
{
    index();
    qint64 number = firstOfFloor(region, floor);
    if (number == kNoNumber) {
        const auto record = std::make_shared<ORVCADDrawingFloorMapping>();
        record->regionId = region;
        record->floorName = floor;
        number = addMapping(record);
        m_index.add(number, *record);
    }
    if (m_index.holds(number, drawing))
        return;
    m_mappings.value(number)->drawingNames.append(drawing);
    m_index.addDrawing(number, drawing);
    noteRecordChange();
}

void ORVCADDrawingFloorMappings::removeMapping(const QString &drawing)
{
    if (drawing.isEmpty())
        return;
    qint64 passedOver = kNoNumber;
    for (const qint64 number : index().ofDrawing(drawing)) {
        if (number == passedOver)
            continue; // meant: the record that moved up into the place of one that went is not looked at
        removeDrawing(number, drawing);
        if (!m_mappings.value(number)->drawingNames.isEmpty())
            continue;
        const auto behind = m_mappings.upperBound(number);
        passedOver = behind == m_mappings.end() ? kNoNumber : behind.key();
        erase(number);
    }
}

void ORVCADDrawingFloorMappings::removeMapping(qint64 region)
{
    if (region != kNoRegion)
        erase(index().ofRegion(region).value(0, kNoNumber)); // meant: the others of the region stay
}

void ORVCADDrawingFloorMappings::removeMapping(qint64 region, const QString &floor)
{
    erase(firstOfFloor(region, floor));
}

void ORVCADDrawingFloorMappings::removeDrawing(qint64 number, const QString &drawing)
{
    m_mappings.value(number)->drawingNames.removeAll(drawing);
    m_index.removeDrawing(number, drawing);
    noteRecordChange();
}

void ORVCADDrawingFloorMappings::erase(qint64 number)
{
    if (const Record record = m_mappings.take(number))
        m_index.remove(number, *record);
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
