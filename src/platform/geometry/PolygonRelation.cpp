#include "platform/geometry/PolygonRelation.h"

#include "platform/geometry/CurveRelation.h"
#include "platform/geometry/CurveZone.h"

#include <algorithm>

namespace vks {

namespace {

/** Distances exactly at a tolerance are within it, whatever double arithmetic makes of them 10 km from the origin, mm. */
constexpr double kNoise = 1e-7;

using Point = CVec2<double>;

/** What can be told of a polygon by its box. */
bool holdsArea(const CBox2<double> &box)
{
    const double area = box.Width() * box.Height();
    return box.IsValid() && area > 0.0 && std::isfinite(area);
}

/** Sound in itself; whether edges cross is asked separately, since it takes longer. */
bool isSound(const CPolygon *polygon)
{
    return polygon && polygon->IsValid(CPolygon::kNotEmpty | CPolygon::kClosed | CPolygon::kHasArea, nullptr, nullptr);
}

bool isSound(const CCurve2d *curve)
{
    return curve && curve->Length() > 0.0 && curve->StartPoint().IsFinite() && curve->MidPoint().IsFinite() &&
           curve->EndPoint().IsFinite();
}

/** One loop of straight sides that turns one way all along, once around: it does so when it changes between going left
 *  and going right no more than twice. */
bool isConvex(const CPolygon &polygon)
{
    if (polygon.LoopCount() != 1)
        return false;
    const auto &curves = polygon.Loops().front()->Curves();
    if (std::any_of(curves.begin(), curves.end(), [](const auto &curve) { return curve->Type() != CCurve2d::kLine; }))
        return false;
    bool turns[2] = {}; // right, left
    int changes = 0;
    Point before = curves.back()->EndVt();
    double lastX = 0.0;
    for (std::size_t i = 0; i < 2 * curves.size(); ++i) { // twice around, so that the first change is seen too
        const Point along = curves[i % curves.size()]->EndVt();
        const double turn = before.Cross(along);
        turns[turn > 0.0] = turns[turn > 0.0] || turn != 0.0 || before.Dot(along) < 0.0;
        changes += lastX * along.x < 0.0;
        lastX = along.x != 0.0 ? along.x : lastX;
        before = along;
    }
    return turns[0] != turns[1] && changes <= 4;
}

bool crossesItself(const CPolygon &polygon)
{
    return !isConvex(polygon) && !polygon.IsValid(CPolygon::kNoCrossing, nullptr, nullptr);
}

template <typename Test> bool anyCurve(const CPolygon &polygon, Test test)
{
    for (const auto &loop : polygon.Loops())
        for (const auto &curve : loop->Curves())
            if (test(*curve))
                return true;
    return false;
}

/** The curves of a polygon that come near a box, with their boxes. */
std::vector<CurveZone::Piece> curvesNear(const CPolygon &polygon, const CBox2<double> &box)
{
    CurveZone zone(box);
    zone.addPolygon(polygon, 0.0);
    return zone.border();
}

bool boundariesWithin(const CPolygon &a, const CPolygon &b, double distance)
{
    const std::vector<CurveZone::Piece> curvesOfB = curvesNear(b, a.Box().Grown(distance));
    Point onA;
    Point onB;
    return anyCurve(a, [&](const CCurve2d &curve) {
        const CBox2<double> box = curve.Box();
        return std::any_of(curvesOfB.begin(), curvesOfB.end(), [&](const CurveZone::Piece &other) {
            return box.Intersects(other.box, distance) &&
                   GeometryDistance(&curve, other.curve, onA, onB, distance) <= distance;
        });
    });
}

/** Asks of a point that it lies on one side of a polygon, a distance clear of the boundary. */
struct Demand
{
    const CPolygon &polygon;
    bool inside;
    double clearance; // mm; 0 lets the boundary itself pass

    bool isMetBy(const Point &point) const
    {
        const int place = polygon.Locate(point, std::max(clearance - kNoise / 2, kNoise / 2));
        return clearance > 0.0 ? place == (inside ? 1 : -1) : place != -1;
    }
};

/** Whether any point meets two demands; the first one is for the inside of its polygon.
 *
 *  The points that do are closed areas, and their boundaries run along curves at a clearance from the polygons'. These
 *  are cut wherever they meet; each piece then meets the demands as a whole or not at all. */
class PointSearch
{
public:
    PointSearch(const Demand &first, const Demand &second)
        : m_first(first), m_second(second), m_range(rangeOf(first, second))
    {}

    bool succeeds() const
    {
        if (!m_range.IsValid())
            return false;
        if (isMetBy(m_range.Center()))
            return true;
        CurveZone zone(m_range);
        zone.addPolygon(m_first.polygon, m_first.clearance);
        zone.addPolygon(m_second.polygon, m_second.clearance);
        return std::any_of(zone.border().begin(), zone.border().end(),
                           [&](const CurveZone::Piece &piece) { return anyOf(*piece.curve, zone.cuts(*piece.curve)); });
    }

private:
    /** Box of the points that can meet the demands. */
    static CBox2<double> rangeOf(const Demand &first, const Demand &second)
    {
        const CBox2<double> box = first.polygon.Box().Grown(-first.clearance);
        return second.inside ? box.Common(second.polygon.Box().Grown(-second.clearance)) : box;
    }

    bool isMetBy(const Point &point) const
    {
        return m_range.Contains(point, kNoise) && m_first.isMetBy(point) && m_second.isMetBy(point);
    }

    bool anyOf(const CCurve2d &curve, const std::vector<double> &cuts) const
    {
        for (std::size_t i = 1; i < cuts.size(); ++i)
            if (isMetBy(curve.GetPoint((cuts[i - 1] + cuts[i]) / 2)))
                return true;
        return false;
    }

    Demand m_first;
    Demand m_second;
    CBox2<double> m_range;
};

/** How far two polygons reach into and beyond each other, within a tolerance. */
class PolygonPair
{
public:
    PolygonPair(const CPolygon &a, const CPolygon &b, double tolerance, bool byThickness)
        : m_a(a), m_b(b), m_tolerance(tolerance), m_byThickness(byThickness)
    {}

    EnPolygonPolygonPosition position() const
    {
        const bool touching = boundariesWithin(m_a, m_b, m_tolerance + kNoise);
        if (!touching) {
            const EnPolygonPolygonPosition clear = positionWhenClear();
            if (clear != kPolygonsOverlap)
                return clear;
        }
        const bool aInB = isInside(m_a, m_b);
        const bool bInA = isInside(m_b, m_a);
        if (aInB && bInA)
            return kPolygonsSame;
        if (aInB)
            return touching ? kPolygonInsideTouching : kPolygonInside;
        if (bInA)
            return touching ? kPolygonHoldsTouching : kPolygonHolds;
        const double radius = m_tolerance / 2 + kNoise;
        if (PointSearch({m_a, true, radius}, {m_b, true, radius}).succeeds())
            return kPolygonsOverlap;
        return touching ? kPolygonsTouch : kPolygonsApart;
    }

private:
    /** Number of loops of a polygon that lie inside another one, no boundary of which comes near. */
    static int loopsInside(const CPolygon &inner, const CPolygon &outer)
    {
        const auto isInside = [&outer](const CRefPtr<CLoop> &loop) {
            return outer.Locate(loop->Curves().front()->StartPoint(), 0.0) > 0;
        };
        return static_cast<int>(std::count_if(inner.Loops().begin(), inner.Loops().end(), isInside));
    }

    /** Boundaries clear of each other need their loops counted only. Overlap stands for what that does not settle. */
    EnPolygonPolygonPosition positionWhenClear() const
    {
        const int ofA = loopsInside(m_a, m_b);
        const int ofB = loopsInside(m_b, m_a);
        if (ofA == 0 && ofB == 0)
            return kPolygonsApart;
        if (ofA == m_a.LoopCount() && ofB == 0)
            return kPolygonInside;
        return ofB == m_b.LoopCount() && ofA == 0 ? kPolygonHolds : kPolygonsOverlap;
    }

    /** By distance: no point of inner is farther than the tolerance outside outer. By thickness: what of inner lies
     *  outside outer holds no disc of more than the tolerance across. */
    bool isInside(const CPolygon &inner, const CPolygon &outer) const
    {
        const double reach = m_byThickness ? kNoise : m_tolerance + kNoise;
        const auto reachesOut = [&](const CCurve2d &curve) { return outer.Locate(curve.StartPoint(), reach) < 0; };
        const bool cornersInside = !anyCurve(inner, reachesOut);
        if (!m_byThickness && !cornersInside)
            return false;
        const auto isArc = [](const CCurve2d &curve) { return curve.Type() == CCurve2d::kArc; };
        if (cornersInside && isConvex(outer) && !anyCurve(inner, isArc))
            return true;
        const double radius = m_tolerance / 2 + kNoise;
        return m_byThickness ? !PointSearch({inner, true, radius}, {outer, false, radius}).succeeds()
                             : !PointSearch({inner, true, 0.0}, {outer, false, reach}).succeeds();
    }

    const CPolygon &m_a;
    const CPolygon &m_b;
    double m_tolerance; // mm
    bool m_byThickness;
};

/** The same without touching. */
EnPolygonPolygonPosition untouched(EnPolygonPolygonPosition position)
{
    switch (position) {
    case kPolygonInsideTouching:
        return kPolygonInside;
    case kPolygonHoldsTouching:
        return kPolygonHolds;
    case kPolygonsTouch:
        return kPolygonsApart;
    default:
        return position;
    }
}

} // namespace

EnPolygonPolygonPosition PolygonPolygonPosition(const CPolygon *a, const CPolygon *b, double tolerance)
{
    const CBox2<double> boxOfA = a ? a->Box() : CBox2<double>();
    const CBox2<double> boxOfB = b ? b->Box() : CBox2<double>();
    if (!holdsArea(boxOfA) || !holdsArea(boxOfB) || std::isnan(tolerance))
        return kPolygonsInvalid;
    const double distance = std::max(std::fabs(tolerance), kOverlayResolution);
    if (!boxOfA.Intersects(boxOfB, distance + kNoise))
        return kPolygonsApart;
    if (!isSound(a) || !isSound(b) || crossesItself(*a) || crossesItself(*b))
        return kPolygonsInvalid;
    const bool byThickness = tolerance < 0.0;
    const EnPolygonPolygonPosition position = PolygonPair(*a, *b, distance, byThickness).position();
    return byThickness ? untouched(position) : position;
}

EnCurvePolygonPosition CurvePolygonPosition(const CCurve2d *curve, const CPolygon *polygon, double tolerance)
{
    if (!isSound(curve) || !isSound(polygon) || std::isnan(tolerance))
        return kCurveInvalid;
    const double distance = std::max(tolerance, kOverlayResolution) + kNoise;
    const CBox2<double> range = curve->Box().Grown(distance);
    if (!range.Intersects(polygon->Box()))
        return kCurveOut;
    if (crossesItself(*polygon))
        return kCurveInvalid;
    CurveZone zone(range);
    zone.addPolygon(*polygon, distance);
    const std::vector<double> cuts = zone.cuts(*curve);
    bool found[3] = {}; // out, on, in
    for (std::size_t i = 1; i < cuts.size(); ++i)
        found[polygon->Locate(curve->GetPoint((cuts[i - 1] + cuts[i]) / 2), distance) + 1] = true;
    if (found[0] && found[2])
        return kCurveInAndOut;
    if (found[2])
        return found[1] ? kCurveInTouching : kCurveIn;
    if (found[0])
        return found[1] ? kCurveOutTouching : kCurveOut;
    return kCurveOnBoundary;
}

} // namespace vks
