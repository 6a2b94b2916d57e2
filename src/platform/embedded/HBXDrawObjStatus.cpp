#include "platform/embedded/HBXDrawObjStatus.h"

#include "platform/embedded/HBXElementDrawObj.h"

namespace hbx::embedded {

void HBXDrawObjStatus::setLayer(int layer)
{
    m_layer = layer;
    m_owner.recordChanged();
}

void HBXDrawObjStatus::setState(int state)
{
    m_state = state;
    m_owner.recordChanged();
}

void HBXDrawObjStatus::restore(int layer, int state)
{
    m_layer = layer;
    m_state = state;
}

} // namespace hbx::embedded
