#pragma once

#include "platform/embedded/HBXFloors.h"
#include "platform/host/IHBXRegion.h"

namespace hbx::embedded {

/** A building part. */
class HBXRegion final : public IHBXRegion
{
public:
    explicit HBXRegion(RegionRecord record) : m_record(std::move(record)), m_floors(*this) {}

    qint64 id() const override { return m_record.id; }
    QString name() const override { return m_record.name; }
    HBXFloors *floors() override { return &m_floors; }

    const RegionRecord &record() const { return m_record; }

private:
    RegionRecord m_record;
    HBXFloors m_floors;
};

} // namespace hbx::embedded
