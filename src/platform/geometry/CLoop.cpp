#include "platform/geometry/CLoop.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/GeometryText.h"
#include "platform/geometry/RayCrossings.h"

#include <cmath>

namespace vks {

namespace {

/** Twice the signed area of a loop with its first moments, told from the loop's first point. */
struct AreaSum
{
    double twiceArea = 0.0;
    CVec2<double> moment; // twice the area times the centroid

    void add(double twice, const CVec2<double> &centroid)
    {
        twiceArea += twice;
        moment += centroid * twice;
    }
};

AreaSum areaSum(const CLoop &loop)
{
    AreaSum sum;
    const auto &curves = loop.Curves();
    const CVec2<double> origin = curves.empty() ? CVec2<double>() : curves.front()->StartPoint();
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const CCurve2d &curve = *curves[i];
        const CVec2<double> start = curve.StartPoint() - origin;
        const CVec2<double> end = curve.EndPoint() - origin;
        const CVec2<double> next = curves[(i + 1) % curves.size()]->StartPoint() - origin;
        sum.add(start.Cross(end), (start + end) / 3);
        sum.add(end.Cross(next), (end + next) / 3); // of a gap, which is taken as closed by a line
        if (curve.Type() == CCurve2d::kArc)
            sum.add(curve.TwiceSegmentArea(), static_cast<const CArc2d &>(curve).SegmentCentroid() - origin);
    }
    return sum;
}

} // namespace

CRefPtr<CLoop> CLoop::Clone() const
{
    CRefPtr<CLoop> copy(new CLoop);
    for (const auto &curve : m_curves)
        copy->AddCurve(curve->Clone(), false);
    return copy;
}

double CLoop::SignedArea() const { return areaSum(*this).twiceArea / 2; }

double CLoop::Area() const { return std::fabs(SignedArea()); }

CVec2<double> CLoop::Barycentre() const
{
    if (m_curves.empty())
        return {};
    const AreaSum sum = areaSum(*this);
    const CVec2<double> centre = sum.moment / sum.twiceArea;
    return sum.twiceArea != 0.0 && centre.IsFinite() ? m_curves.front()->StartPoint() + centre : Box().Center();
}

int CLoop::Locate(const CVec2<double> &point, double tolerance) const
{
    if (!Box().Contains(point, tolerance))
        return -1;
    for (const auto &curve : m_curves)
        if (curve->Box().Contains(point, tolerance) && curve->DistanceTo(point) <= tolerance)
            return 0;
    return crossesRayOddly(*this, point) ? 1 : -1;
}

void CLoop::writeText(std::string &text) const { GeometryText::appendPolygon(text, {Clone()}); }

} // namespace vks
