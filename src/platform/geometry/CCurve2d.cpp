#include "platform/geometry/CCurve2d.h"

#include <algorithm>
#include <cmath>

namespace vks {

void CCurve2d::SetStartT(double t)
{
    if (std::isfinite(t))
        m_startT = std::max(t, m_endT - longestRange());
}

void CCurve2d::SetEndT(double t)
{
    if (std::isfinite(t))
        m_endT = std::min(t, m_startT + longestRange());
}

void CCurve2d::resetRange(double length)
{
    m_startT = 0.0;
    m_endT = length;
}

} // namespace vks
