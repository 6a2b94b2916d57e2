#include "platform/services/ORVCADSampleDataContextInfo.h"

#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"

#include <limits>

ORVCADSampleDataContextInfo::ORVCADSampleDataContextInfo(IHBXService *service)
{
    IHBXCurState *state = service ? service->curState() : nullptr;
    if (!state)
        return;
    if (const IHBXFloor *floor = state->floor())
        readFloor(*floor);
    if (const IHBXRegion *region = state->region())
        readRegion(*region);
}

void ORVCADSampleDataContextInfo::readFloor(const IHBXFloor &floor)
{
    m_standardFloorCount = floor.standardFloorCount();
    m_topElev = floor.topElev();
    m_floorName = floor.name();
    m_floorID = floor.id();
}

void ORVCADSampleDataContextInfo::readRegion(const IHBXRegion &region)
{
    m_regionName = region.name();
    const qint64 id = region.id();
    // Half of an id would name another region.
    if (id >= std::numeric_limits<int>::min() && id <= std::numeric_limits<int>::max())
        m_regionID = static_cast<int>(id);
}
