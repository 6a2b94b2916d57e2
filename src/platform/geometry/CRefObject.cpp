#include "platform/geometry/CRefObject.h"

namespace vks {

CRefObject::~CRefObject() = default;

void CRefObject::Release() const noexcept
{
    --m_holders;
    Free();
}

void CRefObject::Free() const noexcept
{
    if (m_holders <= 0)
        delete this;
}

} // namespace vks
