#include "platform/embedded/HBXRegions.h"

#include <algorithm>

namespace hbx::embedded {
namespace {

template <typename Record> void sortRecords(std::vector<Record> &records)
{
    std::stable_sort(records.begin(), records.end(), [](const Record &a, const Record &b) { return a.id < b.id; });
}

} // namespace

HBXRegion *HBXRegions::find(const QString &regionName)
{
    const auto found = std::find_if(m_regions.begin(), m_regions.end(),
                                    [&](const auto &region) { return region->record().name == regionName; });
    return found == m_regions.end() ? nullptr : found->get();
}

HBXRegion *HBXRegions::at(int position)
{
    return position >= 0 && position < count() ? m_regions[static_cast<std::size_t>(position)].get() : nullptr;
}

HBXFloor *HBXRegions::floorById(qint64 id) const
{
    const auto found = m_floorsById.find(id);
    return found == m_floorsById.end() ? nullptr : found->second;
}

HBXFloor *HBXRegions::own(IHBXFloor *floor) const
{
    auto *known = dynamic_cast<HBXFloor *>(floor);
    return known && floorById(known->id()) == known ? known : nullptr;
}

void HBXRegions::load(std::vector<RegionRecord> regions, std::vector<FloorRecord> floors)
{
    m_floorsById.clear();
    m_regions.clear();
    sortRecords(regions);
    sortRecords(floors);
    std::unordered_map<qint64, HBXRegion *> byId;
    for (RegionRecord &record : regions) {
        m_regions.push_back(std::make_unique<HBXRegion>(std::move(record)));
        byId.emplace(m_regions.back()->id(), m_regions.back().get());
    }
    for (FloorRecord &record : floors) {
        const auto region = byId.find(record.regionId);
        if (region == byId.end() || floorById(record.id))
            continue;
        HBXFloor &floor = region->second->floors()->add(std::move(record));
        m_floorsById.emplace(floor.id(), &floor);
    }
}

} // namespace hbx::embedded
