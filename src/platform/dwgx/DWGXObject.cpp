#include "platform/dwgx/DWGXObject.h"

namespace dwgx {

DWGXObject::~DWGXObject() = default;

void DWGXObject::setCADExtData(HBXCADExtData *data)
{
    if (data != m_extData.get())
        m_extData.reset(data);
}

} // namespace dwgx
