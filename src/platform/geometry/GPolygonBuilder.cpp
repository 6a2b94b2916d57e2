#include "platform/geometry/GPolygonBuilder.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"

#include <algorithm>

namespace vks {

namespace {

/** A strip's sides as distances to the left of its curve, mm. */
struct Sides
{
    double right;
    double left;
};

void addLoop(CPolygon &polygon, std::initializer_list<CCurve2d *> curves)
{
    auto *loop = new CLoop;
    for (CCurve2d *curve : curves)
        loop->AddCurve(curve, false);
    polygon.AddLoop(loop, true);
}

CRefPtr<CPolygon> stripAlongLine(const CCurve2d &line, const Sides &sides)
{
    const CVec2<double> toLeft = (line.EndPoint() - line.StartPoint()).Normalized().Left();
    const CVec2<double> corners[] = {line.StartPoint() + toLeft * sides.right, line.EndPoint() + toLeft * sides.right,
                                     line.EndPoint() + toLeft * sides.left, line.StartPoint() + toLeft * sides.left};
    CRefPtr<CPolygon> polygon(new CPolygon);
    addLoop(*polygon, {new CLine2d(corners[0], corners[1]), new CLine2d(corners[1], corners[2]),
                       new CLine2d(corners[2], corners[3]), new CLine2d(corners[3], corners[0])});
    return polygon;
}

CRefPtr<CPolygon> ringStrip(const CArc2d &arc, double inner, double outer)
{
    const double start = arc.StartAngle();
    const double full = std::fabs(arc.SweepAngle());
    CRefPtr<CPolygon> polygon(new CPolygon);
    addLoop(*polygon, {new CArc2d(arc.CenterPt(), outer, start, start + full)});
    if (inner > 0.0)
        addLoop(*polygon, {new CArc2d(arc.CenterPt(), inner, start, start - full)});
    return polygon;
}

/** Counter-clockwise: along the outer arc, and back along the inner one or by way of the centre. */
CRefPtr<CPolygon> sectorStrip(const CArc2d &arc, double inner, double outer)
{
    const double sweep = arc.SweepAngle();
    const double low = std::min(arc.StartAngle(), arc.StartAngle() + sweep);
    const double high = low + std::fabs(sweep);
    const CVec2<double> centre = arc.CenterPt();
    CCurve2d *outerArc = new CArc2d(centre, outer, low, high);
    CCurve2d *innerArc = inner > 0.0 ? new CArc2d(centre, inner, high, low) : nullptr;
    const CVec2<double> innerStart = innerArc ? innerArc->StartPoint() : centre;
    const CVec2<double> innerEnd = innerArc ? innerArc->EndPoint() : centre;
    CRefPtr<CPolygon> polygon(new CPolygon);
    addLoop(*polygon, {outerArc, new CLine2d(outerArc->EndPoint(), innerStart), innerArc,
                       new CLine2d(innerEnd, outerArc->StartPoint())});
    return polygon;
}

CRefPtr<CPolygon> stripAlongArc(const CArc2d &arc, const Sides &sides)
{
    // Left of a counter-clockwise arc is towards its centre.
    const bool leftIsInner = arc.SweepAngle() > 0.0;
    const double outer = arc.Radius() + (leftIsInner ? -sides.right : sides.left);
    const double inner = std::max(0.0, arc.Radius() + (leftIsInner ? -sides.left : sides.right));
    if (!(outer > inner))
        return nullptr;
    return arc.IsClosed() ? ringStrip(arc, inner, outer) : sectorStrip(arc, inner, outer);
}

} // namespace

CRefPtr<CPolygon> GPolygonBuilder::CreatePolygon(const CCurve2d *curve, double leftWidth, double rightWidth)
{
    if (!curve || !(curve->Length() > 0.0) || !std::isfinite(leftWidth) || !std::isfinite(rightWidth))
        return nullptr;
    const Sides sides{std::min(-rightWidth, leftWidth), std::max(-rightWidth, leftWidth)};
    if (!(sides.left - sides.right > g_DistEpsilon))
        return nullptr;
    const CArc2d *arc = CArc2d::RoundArc(*curve);
    return arc ? stripAlongArc(*arc, sides) : stripAlongLine(*curve, sides);
}

} // namespace vks
