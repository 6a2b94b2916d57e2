#include "platform/geometry/CCoedgeList.h"

#include <algorithm>

namespace vks {

namespace {

constexpr std::size_t kUsualCurves = 4; // of the rings of a plan

} // namespace

void CCoedgeList::AddCurve(CCurve2d *curve, bool reversed)
{
    if (!curve)
        return;
    if (reversed)
        curve->Reverse();
    if (m_curves.empty())
        m_curves.reserve(kUsualCurves);
    m_curves.emplace_back(curve);
}

CCurve2d *CCoedgeList::GetCurve(int index) const
{
    return index >= 0 && index < CurveCount() ? m_curves[static_cast<std::size_t>(index)].get() : nullptr;
}

void CCoedgeList::GetCurves(std::vector<CCurve2d *> &curves) const { curves.assign(m_curves.begin(), m_curves.end()); }

double CCoedgeList::Length() const
{
    double length = 0.0;
    for (const auto &curve : m_curves)
        length += curve->Length();
    return length;
}

bool CCoedgeList::IsClosed(double tolerance) const
{
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        const auto &next = m_curves[(i + 1) % m_curves.size()];
        if (!(m_curves[i]->EndPoint().DistanceTo(next->StartPoint()) <= tolerance))
            return false;
    }
    return !m_curves.empty();
}

void CCoedgeList::Reverse()
{
    std::reverse(m_curves.begin(), m_curves.end());
    for (const auto &curve : m_curves)
        curve->Reverse();
}

CBox2<double> CCoedgeList::Box() const
{
    CBox2<double> box;
    for (const auto &curve : m_curves)
        box.Add(curve->Box());
    return box;
}

void CCoedgeList::Translate(const CVec2<double> &move)
{
    for (const auto &curve : m_curves)
        curve->Translate(move);
}

void CCoedgeList::Rotate(const CVec2<double> &centre, double angle)
{
    for (const auto &curve : m_curves)
        curve->Rotate(centre, angle);
}

void CCoedgeList::MirrorX()
{
    for (const auto &curve : m_curves)
        curve->MirrorX();
}

} // namespace vks
