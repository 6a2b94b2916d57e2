#include "platform/embedded/HBXCurState.h"

namespace hbx::embedded {

int HBXCurState::currentLayer(int) { return m_layer; }

void HBXCurState::select(IHBXRegion *region, IHBXFloor *floor)
{
    m_region = region;
    m_floor = floor;
}

} // namespace hbx::embedded
