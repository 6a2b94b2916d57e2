#pragma once

#include "platform/host/IHBXCurState.h"

namespace hbx::embedded {

/** The region, floor and layer that are selected. */
class HBXCurState final : public IHBXCurState
{
public:
    IHBXRegion *region() override { return m_region; }
    IHBXFloor *floor() override { return m_floor; }
    /** One layer serves all kinds. */
    int currentLayer(int) override { return m_layer; }
    int layer() override { return m_layer; }

    void select(IHBXRegion *region, IHBXFloor *floor)
    {
        m_region = region;
        m_floor = floor;
    }
    void setLayer(int layer) { m_layer = layer; }

private:
    IHBXRegion *m_region = nullptr;
    IHBXFloor *m_floor = nullptr;
    int m_layer = 0;
};

} // namespace hbx::embedded
