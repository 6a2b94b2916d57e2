#include "platform/services/HbxRelation.h"

#include "platform/geometry/CurveRelation.h"
#include "platform/geometry/CurveSupport.h"

#include <algorithm>

namespace hbx {

namespace {

using Point = vks::CVec2<double>;

bool hasLength(const vks::CCurve2d *curve) { return curve && curve->Length() > 0.0; }

/** Sorts points along a curve and leaves each within the tolerance once. */
void settle(std::vector<Point> &points, const vks::CCurve2d &curve, double tolerance)
{
    const vks::CurveSupport support(curve);
    std::stable_sort(points.begin(), points.end(), [&support, tolerance](const Point &a, const Point &b) {
        return support.positionOf(a, tolerance) < support.positionOf(b, tolerance);
    });
    const auto same = [tolerance](const Point &a, const Point &b) { return a.DistanceTo(b) <= tolerance; };
    points.erase(std::unique(points.begin(), points.end(), same), points.end());
}

} // namespace

vks::EnPolygonPolygonPosition polyPolyPosition(const vks::CPolygon *a, const vks::CPolygon *b, double tolerance)
{
    return vks::PolygonPolygonPosition(a, b, tolerance);
}

vks::EnCurvePolygonPosition linePolyPosition(const vks::CCurve2d *curve, const vks::CPolygon *polygon, double tolerance)
{
    return vks::CurvePolygonPosition(curve, polygon, tolerance);
}

std::vector<Point> extIntersect(const vks::CCurve2d *a, const vks::CCurve2d *b, double tolerance)
{
    return a && b ? vks::CurveIntersections(*a, *b, true, tolerance) : std::vector<Point>();
}

std::vector<Point> extIntersect(const vks::CCurve2d *a, const vks::CPolygon *b, double tolerance)
{
    std::vector<Point> points;
    if (!hasLength(a) || !b)
        return points;
    std::vector<vks::CCurve2d *> curves;
    b->GetCurves(curves);
    for (const vks::CCurve2d *curve : curves) {
        const std::vector<Point> common = vks::CurveIntersections(*a, *curve, true, tolerance);
        points.insert(points.end(), common.begin(), common.end());
    }
    settle(points, *a, tolerance > 0.0 ? tolerance : vks::g_DefaultDistEpsilon);
    return points;
}

bool isParallel(const vks::CCurve2d *a, const vks::CCurve2d *b, double angleTolerance, double distTolerance)
{
    if (!hasLength(a) || !hasLength(b))
        return false;
    const vks::CurveSupport first(*a);
    const vks::CurveSupport second(*b);
    if (first.isLine() != second.isLine())
        return false;
    if (!first.isLine())
        return first.centre().DistanceTo(second.centre()) <= distTolerance;
    const double sine = first.direction().Cross(second.direction());
    const double cosine = first.direction().Dot(second.direction());
    return std::atan2(std::fabs(sine), std::fabs(cosine)) <= angleTolerance;
}

vks::CRefPtr<vks::CCurve2d> offSetCurve(const vks::CCurve2d *curve, double distance)
{
    return vks::OffsetCurve(curve, distance);
}

int pointSegSide(const Point &point, const vks::CCurve2d *curve, double tolerance)
{
    if (!hasLength(curve) || !point.IsFinite())
        return 0;
    const vks::CurveSupport support(*curve);
    return support.distanceTo(point) <= tolerance ? 0 : support.sideOf(point);
}

} // namespace hbx
