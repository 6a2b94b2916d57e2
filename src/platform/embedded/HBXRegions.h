#pragma once

#include "platform/embedded/HBXRegion.h"
#include "platform/host/IHBXRegions.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace hbx::embedded {

/** All regions of a building, and all its floors by id. */
class HBXRegions final : public IHBXRegions
{
public:
    HBXRegion *find(const QString &regionName) override;
    int count() const override { return static_cast<int>(m_regions.size()); }
    HBXRegion *at(int position) override;

    /** Null for an unknown id. */
    HBXFloor *floorById(qint64 id) const;
    /** The floor itself when it is one of this building, null for any other and for null. */
    HBXFloor *own(IHBXFloor *floor) const;
    const std::vector<std::unique_ptr<HBXRegion>> &all() const { return m_regions; }

    /** Replaces the content; records may come in any order. A floor without its region is left out. */
    void load(std::vector<RegionRecord> regions, std::vector<FloorRecord> floors);

private:
    std::vector<std::unique_ptr<HBXRegion>> m_regions;
    std::unordered_map<qint64, HBXFloor *> m_floorsById;
};

} // namespace hbx::embedded
