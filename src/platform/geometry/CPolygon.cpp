#include "platform/geometry/CPolygon.h"

#include "platform/geometry/GeometryText.h"
#include "platform/geometry/LoopNesting.h"
#include "platform/geometry/PolygonValidity.h"

#include <cmath>
#include <numeric>

namespace vks {

namespace {

/** Area of each loop, mm²; below zero for a hole. */
std::vector<double> signedParts(const std::vector<CRefPtr<CLoop>> &loops)
{
    const std::vector<int> depths = loopDepths(loops);
    std::vector<double> areas;
    areas.reserve(loops.size());
    for (std::size_t i = 0; i < loops.size(); ++i)
        areas.push_back(depths[i] % 2 == 0 ? loops[i]->Area() : -loops[i]->Area());
    return areas;
}

constexpr CVec2<double> kXAxis(1, 0);
constexpr CVec2<double> kYAxis(0, 1);

/** Whether a side is straight and runs along an axis, either way, within an angle, rad. */
bool runsAlong(const CCurve2d &side, const CVec2<double> &axis, double angleTolerance)
{
    return side.Type() == CCurve2d::kLine && side.Length() > g_DistEpsilon &&
           std::fabs(axis.Cross(side.StartVt())) <= std::sin(angleTolerance);
}

} // namespace

void CPolygon::AddLoop(CLoop *loop, bool takeOver)
{
    if (!loop)
        return;
    if (takeOver)
        m_loops.emplace_back(loop);
    else
        m_loops.push_back(loop->Clone());
}

CLoop *CPolygon::GetLoop(int index) const
{
    return index >= 0 && index < LoopCount() ? m_loops[static_cast<std::size_t>(index)].get() : nullptr;
}

CCurve2d *CPolygon::GetCurve(int index) const
{
    for (const auto &loop : m_loops) {
        if (index < loop->CurveCount())
            return loop->GetCurve(index);
        index -= loop->CurveCount();
    }
    return nullptr;
}

void CPolygon::GetCurves(std::vector<CCurve2d *> &curves) const
{
    curves.clear();
    for (const auto &loop : m_loops)
        curves.insert(curves.end(), loop->Curves().begin(), loop->Curves().end());
}

CRefPtr<CPolygon> CPolygon::Clone() const
{
    CRefPtr<CPolygon> copy(new CPolygon);
    for (const auto &loop : m_loops)
        copy->m_loops.push_back(loop->Clone());
    return copy;
}

double CPolygon::Area() const
{
    const std::vector<double> parts = signedParts(m_loops);
    return std::fmax(0.0, std::accumulate(parts.begin(), parts.end(), 0.0));
}

CVec2<double> CPolygon::Barycentre() const
{
    if (m_loops.empty())
        return {};
    const CVec2<double> origin = Box().Center();
    const std::vector<double> parts = signedParts(m_loops);
    const double area = std::accumulate(parts.begin(), parts.end(), 0.0);
    CVec2<double> moment;
    for (std::size_t i = 0; i < m_loops.size(); ++i)
        moment += (m_loops[i]->Barycentre() - origin) * parts[i];
    const CVec2<double> centre = moment / area;
    return area > 0.0 && centre.IsFinite() ? origin + centre : origin;
}

double CPolygon::Perimeter() const
{
    double length = 0.0;
    for (const auto &loop : m_loops)
        length += loop->Length();
    return length;
}

int CPolygon::Locate(const CVec2<double> &point, double tolerance) const
{
    int around = 0;
    for (const auto &loop : m_loops) {
        const int place = loop->Locate(point, tolerance);
        if (place == 0)
            return 0;
        around += place > 0 ? 1 : 0;
    }
    return around % 2 != 0 ? 1 : -1;
}

bool CPolygon::IsCircle() const
{
    return LoopCount() == 1 && m_loops[0]->CurveCount() == 1 && m_loops[0]->GetCurve(0)->IsClosed();
}

bool CPolygon::IsRectangle(double angleTolerance) const
{
    if (LoopCount() != 1 || m_loops[0]->CurveCount() != 4 || !m_loops[0]->IsClosed(g_DistEpsilon))
        return false;
    const auto &sides = m_loops[0]->Curves();
    // The first side tells which axis the odd and which the even sides follow.
    const bool startsAlongX = std::fabs(sides[0]->StartVt().x) > 0.5;
    for (std::size_t i = 0; i < sides.size(); ++i)
        if (!runsAlong(*sides[i], (i % 2 == 0) == startsAlongX ? kXAxis : kYAxis, angleTolerance))
            return false;
    return true;
}

bool CPolygon::IsValid(unsigned mask, void * /*detail*/, void * /*position*/) const
{
    return PolygonValidity(*this, mask).passes();
}

CBox2<double> CPolygon::Box() const
{
    CBox2<double> box;
    for (const auto &loop : m_loops)
        box.Add(loop->Box());
    return box;
}

void CPolygon::Translate(const CVec2<double> &move)
{
    for (const auto &loop : m_loops)
        loop->Translate(move);
}

void CPolygon::Rotate(const CVec2<double> &centre, double angle)
{
    for (const auto &loop : m_loops)
        loop->Rotate(centre, angle);
}

void CPolygon::MirrorX()
{
    for (const auto &loop : m_loops)
        loop->MirrorX();
}

CRefPtr<CPolygon> CPolygon::LoadFromString(const char *text)
{
    return dynamic_cast<CPolygon *>(GeometryText::read(text).get());
}

void CPolygon::writeText(std::string &text) const { GeometryText::appendPolygon(text, m_loops); }

} // namespace vks
