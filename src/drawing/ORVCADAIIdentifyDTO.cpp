#include "drawing/ORVCADAIIdentifyDTO.h"

#include "drawing/ORVCADDisposeInfoData.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADFloors.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

/** Those of the drawings that show the type. */
QStringList showing(int elementType, const QStringList &drawings, const ORVCADDrawingElementMappings &mappings)
{
    QStringList shown;
    std::copy_if(drawings.begin(), drawings.end(), std::back_inserter(shown),
                 [&](const QString &drawing) { return mappings.getMatchElementType(drawing).contains(elementType); });
    return shown;
}

} // namespace

ORVCADAIIdentifyDTO::ORVCADAIIdentifyDTO(int region, int elementType) { initData(region, elementType); }

void ORVCADAIIdentifyDTO::initData(int region, int elementType)
{
    const ORVCADDisposeInfoData &set = *ORVCADDisposeInfoData::getData();
    if (!set.floors || !set.floorMappings || !set.elementMappings)
        return;
    QSet<const ORVCADFloor *> visited; // negative heights can lead in a circle
    const ORVCADFloor *floor = set.floors->getLowestFloor();
    while (floor && !visited.contains(floor)) {
        visited.insert(floor);
        const QStringList drawings = set.floorMappings->getMappingDrawingNames(region, floor->name());
        if (!drawings.isEmpty())
            m_entries.append({floor->name(), showing(elementType, drawings, *set.elementMappings)});
        floor = set.floors->getUpstairFloor(floor);
    }
}

QStringList ORVCADAIIdentifyDTO::getDrawings() const
{
    QStringList drawings;
    for (const Entry &entry : m_entries)
        drawings.append(entry.drawings);
    return drawings;
}

int ORVCADAIIdentifyDTO::getDrawingCount() const { return getDrawings().size(); }

QStringList ORVCADAIIdentifyDTO::getDrawingNames(const QString &floor) const
{
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry &one) { return !floor.isEmpty() && one.floorName == floor; });
    return entry == m_entries.end() ? QStringList() : entry->drawings;
}

QStringList ORVCADAIIdentifyDTO::getFloorNames() const
{
    QStringList names;
    for (const Entry &entry : m_entries)
        names.append(entry.floorName);
    return names;
}
