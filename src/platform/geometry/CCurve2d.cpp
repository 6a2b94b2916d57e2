#include "platform/geometry/CCurve2d.h"

#include <cmath>

namespace vks {

void CCurve2d::SetStartT(double t)
{
    if (std::isfinite(t))
        m_startT = t;
}

void CCurve2d::SetEndT(double t)
{
    if (std::isfinite(t))
        m_endT = t;
}

void CCurve2d::resetRange(double length, double longest)
{
    m_startT = 0.0;
    m_endT = length;
    m_longest = longest;
}

} // namespace vks
