#include "platform/geometry/ArcChords.h"

#include "platform/geometry/Angle.h"
#include "platform/geometry/KernelTolerance.h"

#include <algorithm>

namespace vks {

namespace {

/** Circles whose centres and radii differ by less are one, mm: the grid of overlay. */
constexpr double kSameCircle = 1e-3;
/** Corners nearer to the ends of an arc are left out, mm. */
constexpr double kLeastChord = 1e-3;
/** Side of the cells that circles are looked up by, mm. */
constexpr double kKeyCell = 1.0;
/** Moves the borders of the cells away from whole and half numbers, where drawings have their centres. */
constexpr double kKeyShift = 0.37;

/** Number of chords of a full circle, a multiple of four. */
int chordCount(double radius)
{
    const double sine = std::sqrt(std::min(1.0, kChordSagitta / (2 * radius)));
    const double count = std::ceil(kPi / (8 * std::asin(sine))) * 4; // sagitta = 2 r sin^2(quarter of the angle)
    return static_cast<int>(std::clamp(count, 8.0, static_cast<double>(ArcChords::kMostChords)));
}

/** The curve as an arc that chords can stand in for; null for any other. */
const CArc2d *soundArc(const CCurve2d &curve)
{
    const bool isArc = curve.Type() == CCurve2d::kArc && !curve.IsEmpty();
    const CArc2d *arc = isArc ? CArc2d::RoundArc(curve) : nullptr;
    return arc && arc->CenterPt().IsFinite() && arc->StartPoint().IsFinite() ? arc : nullptr;
}

bool isSame(const CVec2<double> &centre, double radius, const CVec2<double> &otherCentre, double otherRadius)
{
    return std::fabs(radius - otherRadius) <= kSameCircle && centre.DistanceTo(otherCentre) <= kSameCircle;
}

/** Angles of the corners strictly within a sweep, in its order. */
std::vector<double> cornerAngles(double radius, const std::vector<double> &ends, double start, double sweep)
{
    const double step = kFullTurn / chordCount(radius);
    const double way = std::fabs(sweep);
    const double margin = kLeastChord / radius;
    std::vector<std::pair<double, double>> corners; // way from the start, and angle
    const auto add = [&](double angle) {
        const double at = withinTurn(sweep > 0.0 ? angle - start : start - angle, kFullTurn);
        if (at > margin && at < way - margin)
            corners.emplace_back(at, angle);
    };
    std::for_each(ends.begin(), ends.end(), add);
    const double low = std::min(start, start + sweep);
    for (double k = std::ceil(low / step); k * step < low + way; ++k)
        add(std::remainder(k * step, kFullTurn));
    std::sort(corners.begin(), corners.end());
    std::vector<double> angles;
    angles.reserve(corners.size());
    for (const auto &corner : corners)
        angles.push_back(corner.second);
    return angles;
}

} // namespace

ArcChords::ArcChords(const CVec2<double> &origin) : m_origin(origin) {}

ArcChords::Key ArcChords::keyOf(const Circle &circle) const
{
    const auto cell = [](double value) { return std::floor(value / kKeyCell + kKeyShift); };
    return {cell(circle.centre.x), cell(circle.centre.y), cell(circle.radius)};
}

ArcChords::Circle ArcChords::circleOf(const CArc2d &arc) const
{
    Circle own{arc.CenterPt() - m_origin, arc.Radius(), {}};
    const auto found = m_circles.find(keyOf(own));
    if (found != m_circles.end())
        for (const Circle &known : found->second)
            if (isSame(known.centre, known.radius, own.centre, own.radius))
                return known;
    return own;
}

void ArcChords::learn(const CCurve2d &curve)
{
    const CArc2d *arc = soundArc(curve);
    if (!arc)
        return;
    Circle own{arc->CenterPt() - m_origin, arc->Radius(), {}};
    std::vector<Circle> &cell = m_circles[keyOf(own)];
    auto circle = std::find_if(cell.begin(), cell.end(), [&own](const Circle &known) {
        return isSame(known.centre, known.radius, own.centre, own.radius);
    });
    if (circle == cell.end())
        circle = cell.insert(cell.end(), own);
    for (const CVec2<double> &end : {arc->StartPoint(), arc->EndPoint()})
        circle->endAngles.push_back((end - m_origin - circle->centre).Angle());
}

void ArcChords::appendCorners(const CCurve2d &curve, const CVec2<double> &start, Ring &ring) const
{
    ring.push_back(start - m_origin);
    const CArc2d *arc = soundArc(curve);
    if (!arc)
        return;
    const Circle circle = circleOf(*arc);
    const double startAngle = (arc->StartPoint() - m_origin - circle.centre).Angle();
    for (const double angle : cornerAngles(circle.radius, circle.endAngles, startAngle, arc->SweepAngle()))
        ring.push_back(circle.centre + CVec2<double>(std::cos(angle), std::sin(angle)) * circle.radius);
}

} // namespace vks
