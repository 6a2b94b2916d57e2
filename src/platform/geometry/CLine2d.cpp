#include "platform/geometry/CLine2d.h"

#include "platform/geometry/GeometryText.h"

#include <algorithm>
#include <limits>

namespace vks {

CLine2d::CLine2d(const CVec2<double> &start, const CVec2<double> &end) { assign(start, end); }

CLine2d::CLine2d(const CVec2<double> &point, const CVec2<double> &direction, double low, double high)
{
    const CVec2<double> unit = direction.Normalized();
    assign(point + unit * std::min(low, high), point + unit * std::max(low, high));
}

void CLine2d::assign(const CVec2<double> &start, const CVec2<double> &end)
{
    m_start = start;
    m_end = end;
    m_length = start.DistanceTo(end);
    resetRange(m_length, m_length > 0.0 ? std::numeric_limits<double>::infinity() : 0.0);
}

CRefPtr<CCurve2d> CLine2d::Clone() const { return new CLine2d(*this); }

inline CVec2<double> CLine2d::pointAt(double t) const
{
    if (t == 0.0 || !(m_length > 0.0))
        return m_start;
    return t == m_length ? m_end : m_start + (m_end - m_start) * (t / m_length);
}

CVec2<double> CLine2d::GetPoint(double t) const { return pointAt(t); }

CVec2<double> CLine2d::GetDirection(double /*t*/) const { return (m_end - m_start).Normalized(); }

double CLine2d::NearestT(const CVec2<double> &point) const
{
    const double t = (point - m_start).Dot(GetDirection(0.0));
    return IsEmpty() ? StartT() : std::clamp(t, StartT(), EndT());
}

void CLine2d::Reverse()
{
    if (!IsEmpty())
        assign(EndPoint(), StartPoint());
}

CBox2<double> CLine2d::Box() const
{
    CBox2<double> box;
    if (!IsEmpty()) {
        box.Add(pointAt(StartT()));
        box.Add(pointAt(EndT()));
    }
    return box;
}

void CLine2d::Translate(const CVec2<double> &move)
{
    m_start += move;
    m_end += move;
}

void CLine2d::Rotate(const CVec2<double> &centre, double angle)
{
    m_start = centre + (m_start - centre).Rotated(angle);
    m_end = centre + (m_end - centre).Rotated(angle);
}

void CLine2d::MirrorX()
{
    m_start.x = -m_start.x;
    m_end.x = -m_end.x;
}

void CLine2d::writeText(std::string &text) const { GeometryText::appendLine(text, StartPoint(), EndPoint()); }

} // namespace vks
