#include "platform/geometry/OrientProjectCurve2d.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/CPolygon.h"

#include <cmath>
#include <limits>

namespace vks {

namespace {

constexpr double kSimilarity = 1e-9; // parts; axes this near to equal and at right angles keep circles circles

/** The map of one frame's plane onto another's: x u + y v + move. */
struct PlaneMap
{
    CVec2<double> u{1, 0};
    CVec2<double> v{0, 1};
    CVec2<double> move;

    CVec2<double> operator()(const CVec2<double> &point) const { return u * point.x + v * point.y + move; }
    bool isFinite() const { return u.IsFinite() && v.IsFinite() && move.IsFinite(); }
    bool isIdentity() const { return u == CVec2<double>(1, 0) && v == CVec2<double>(0, 1) && move == CVec2<double>(); }
    bool mirrors() const { return u.Cross(v) < 0; }
    bool keepsCircles() const
    {
        const double size = u.SqrLength() + v.SqrLength();
        return std::fabs(u.SqrLength() - v.SqrLength()) <= kSimilarity * size &&
               std::fabs(u.Dot(v)) <= kSimilarity * size;
    }
};

CCoord3<double> presentFrame(const CCoord3<double> &frame) { return frame.IsAbsent() ? CCoord3<double>() : frame; }

/** Coordinates of a vector of a frame's plane in its axes, which need not be at right angles. */
CVec2<double> inAxes(const CVec3<double> &vector, const CCoord3<double> &frame)
{
    const double uu = frame.u.Dot(frame.u);
    const double uv = frame.u.Dot(frame.v);
    const double vv = frame.v.Dot(frame.v);
    const double determinant = uu * vv - uv * uv;
    const double alongU = vector.Dot(frame.u);
    const double alongV = vector.Dot(frame.v);
    return CVec2<double>(alongU * vv - alongV * uv, alongV * uu - alongU * uv) / determinant;
}

/** Not finite when the direction lies in the target's plane, or the target has none. */
PlaneMap mapBetween(const CCoord3<double> &from, const CCoord3<double> &to, const CVec3<double> &direction)
{
    const CVec3<double> normal = to.Normal();
    const double steepness = direction.Dot(normal);
    const auto projected = [&](const CVec3<double> &vector) {
        return inAxes(vector - direction * (vector.Dot(normal) / steepness), to);
    };
    const bool flat = std::fabs(steepness) <= kSimilarity * direction.Length() * normal.Length();
    PlaneMap map{projected(from.u), projected(from.v), projected(from.origin - to.origin)};
    if (flat)
        map.move.x = std::numeric_limits<double>::quiet_NaN();
    return map;
}

CRefPtr<CCurve2d> mappedLine(const PlaneMap &map, const CCurve2d &line)
{
    return new CLine2d(map(line.StartPoint()), map(line.EndPoint()));
}

CRefPtr<CCurve2d> mappedArc(const PlaneMap &map, const CArc2d &arc, bool wholeOnly)
{
    if (!map.keepsCircles() && wholeOnly && !arc.IsFlat())
        return nullptr;
    CRefPtr<CArc2d> mapped(new CArc2d(map(arc.StartPoint()), map(arc.MidPoint()), map(arc.EndPoint())));
    const bool clockwise = (arc.SweepAngle() < 0) != map.mirrors();
    if (mapped->IsClosed() && clockwise != (mapped->SweepAngle() < 0))
        mapped->Reverse(); // three points of a full circle do not tell which way it runs
    return mapped.get();
}

CRefPtr<CCurve2d> mappedCurve(const PlaneMap &map, const CCurve2d &curve, bool wholeOnly)
{
    if (map.isIdentity())
        return curve.Clone();
    const auto *arc = dynamic_cast<const CArc2d *>(&curve);
    const CRefPtr<CCurve2d> mapped = arc ? mappedArc(map, *arc, wholeOnly) : mappedLine(map, curve);
    return mapped && mapped->Length() > 0.0 ? mapped : nullptr;
}

} // namespace

CRefPtr<CCurve2d> OrientProjectCurve2d(const CCoord3<double> &from, const CCurve2d *curve, const CCoord3<double> &to,
                                       const CVec3<double> &direction, bool wholeOnly)
{
    if (!curve || curve->IsEmpty())
        return nullptr;
    const PlaneMap map = mapBetween(presentFrame(from), presentFrame(to), direction);
    return map.isFinite() ? mappedCurve(map, *curve, wholeOnly) : nullptr;
}

CRefPtr<CPolygon> OrientProjectPolygon(const CCoord3<double> &from, const CPolygon *polygon, const CCoord3<double> &to,
                                       const CVec3<double> &direction)
{
    const PlaneMap map = mapBetween(presentFrame(from), presentFrame(to), direction);
    if (!polygon || !map.isFinite())
        return nullptr;
    CRefPtr<CPolygon> result(new CPolygon);
    for (const auto &source : polygon->Loops()) {
        CRefPtr<CLoop> loop(new CLoop);
        for (const auto &curve : source->Curves()) {
            const CRefPtr<CCurve2d> mapped = mappedCurve(map, *curve, true);
            if (!mapped)
                return nullptr;
            loop->AddCurve(mapped, false);
        }
        result->AddLoop(loop, true);
    }
    return result;
}

} // namespace vks
