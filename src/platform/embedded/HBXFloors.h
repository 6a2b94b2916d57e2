#pragma once

#include "platform/embedded/HBXFloor.h"
#include "platform/host/IHBXFloors.h"

#include <QHash>

#include <memory>
#include <vector>

namespace hbx::embedded {

/** The floors of a region. */
class HBXFloors final : public IHBXFloors
{
public:
    explicit HBXFloors(HBXRegion &region) : m_region(region) {}

    HBXFloor *find(const QString &floorName) override { return m_byName.value(floorName); }
    HBXFloor *findByCode(const QString &code) override { return m_byCode.value(code); }
    int count() const override { return static_cast<int>(m_floors.size()); }
    HBXFloor *at(int position) override;

    /** Floors come in id order. */
    HBXFloor &add(FloorRecord record);

private:
    HBXRegion &m_region;
    std::vector<std::unique_ptr<HBXFloor>> m_floors;
    QHash<QString, HBXFloor *> m_byName;
    QHash<QString, HBXFloor *> m_byCode;
};

} // namespace hbx::embedded
