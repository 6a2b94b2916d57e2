#include "platform/geometry/CArc2d.h"

#include "platform/geometry/Angle.h"
#include "platform/geometry/GeometryText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vks {

namespace {

constexpr double kFullTurnTolerance = 1e-9; // rad; a sweep this close to a full turn is one
constexpr double kSmallSweep = 0.3;         // rad; below this sin needs its series to keep its digits
constexpr double kSliverSweep = 1e-4;       // rad; below this a segment is a piece of a parabola

/** (sweep - sin(sweep)) / sweep², to full precision for small sweeps, too. */
double segmentFactor(double sweep)
{
    const double square = sweep * sweep;
    if (std::fabs(sweep) > kSmallSweep)
        return (sweep - std::sin(sweep)) / square;
    return sweep / 6 * (1 - square / 20 * (1 - square / 42 * (1 - square / 72 * (1 - square / 110))));
}

/** How far a circle reaches to one side of one of its points, in terms of the way from that point to the centre: along
 *  that side and across it. */
double reachOfCircle(double along, double across, double radius)
{
    // The two terms would cancel each other when the centre lies far off to the other side.
    return along < 0 ? across * (across / (radius - along)) : along + radius;
}

} // namespace

CArc2d::CArc2d(const CVec2<double> &start, const CVec2<double> &end, double bulge) : m_start(start), m_end(end)
{
    const CVec2<double> chord = end - start;
    m_middle = start + chord / 2 - chord.Left() * (bulge / 2);
    const CVec2<double> toCentre = chord / 2 + chord.Left() * ((1 - bulge * bulge) / (4 * bulge));
    setCircle(toCentre, 4 * std::atan(bulge));
}

CArc2d::CArc2d(const CVec2<double> &centre, double radius, double startAngle, double endAngle)
{
    const double size = std::fabs(radius);
    const CVec2<double> outwards = CVec2<double>(size, 0).Rotated(startAngle);
    const auto pointAt = [&](double angle) { return centre + CVec2<double>(size, 0).Rotated(angle); };
    const double sweep = std::clamp(endAngle - startAngle, -kFullTurn, kFullTurn);
    const bool full = std::fabs(sweep) >= kFullTurn - kFullTurnTolerance;
    m_start = centre + outwards;
    m_middle = full ? centre * 2.0 - m_start : pointAt(startAngle + sweep / 2);
    m_end = full ? m_start : pointAt(startAngle + sweep);
    setCircle(-outwards, full ? std::copysign(kFullTurn, sweep) : sweep);
}

CArc2d::CArc2d(const CVec2<double> &start, const CVec2<double> &middle, const CVec2<double> &end)
    : m_start(start), m_middle(middle), m_end(end)
{
    if (start == end) {
        setCircle((middle - start) / 2, kFullTurn);
        return;
    }
    const CVec2<double> a = middle - start;
    const CVec2<double> b = end - start;
    const double cross = a.Cross(b); // positive for a counter-clockwise arc
    const CVec2<double> toCentre =
        CVec2<double>(b.y * a.SqrLength() - a.y * b.SqrLength(), a.x * b.SqrLength() - b.x * a.SqrLength()) /
        (2 * cross);
    const CVec2<double> toStart = start - middle;
    const CVec2<double> toEnd = end - middle;
    const double angleAtMiddle = std::atan2(std::fabs(toStart.Cross(toEnd)), toStart.Dot(toEnd));
    setCircle(toCentre, std::copysign(kFullTurn - 2 * angleAtMiddle, cross));
}

const CArc2d *CArc2d::RoundArc(const CCurve2d &curve)
{
    const auto *arc = curve.Type() == kArc ? static_cast<const CArc2d *>(&curve) : nullptr;
    return arc && !arc->IsFlat() ? arc : nullptr;
}

void CArc2d::setCircle(const CVec2<double> &toCentre, double sweep)
{
    const double radius = toCentre.Length();
    const double length = radius * std::fabs(sweep);
    if (!std::isfinite(length) || sweep == 0.0) {
        setFlat();
        return;
    }
    m_toCentre = toCentre;
    m_radius = radius;
    m_sweep = sweep;
    m_length = length;
    resetRange(m_length, circumference());
}

void CArc2d::setFlat()
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    m_toCentre = {nan, nan};
    m_radius = std::numeric_limits<double>::infinity();
    m_sweep = 0.0;
    m_length = m_start.DistanceTo(m_end);
    if (!m_middle.IsFinite())
        m_middle = m_start + (m_end - m_start) / 2; // else the text would not read back
    resetRange(m_length, m_length > 0.0 ? std::numeric_limits<double>::max() : 0.0);
}

double CArc2d::circumference() const { return kFullTurn * m_radius; }

double CArc2d::GetBulge() const
{
    return IsClosed() ? std::copysign(std::numeric_limits<double>::infinity(), m_sweep) : std::tan(SweepAngle() / 4);
}

double CArc2d::StartAngle() const { return (StartPoint() - m_start - m_toCentre).Angle(); }

double CArc2d::SweepAngle() const { return m_length > 0.0 ? m_sweep * (Length() / m_length) : m_sweep; }

bool CArc2d::IsFlat() const { return m_sweep == 0.0; }

bool CArc2d::CircleHolds(const CVec2<double> &point) const
{
    const CVec2<double> fromStart = point - m_start;
    return fromStart.Dot(fromStart - m_toCentre * 2.0) < 0;
}

CRefPtr<CCurve2d> CArc2d::Clone() const { return new CArc2d(*this); }

CVec2<double> CArc2d::GetPoint(double t) const
{
    if (t == 0.0 || !(m_length > 0.0))
        return m_start;
    if (t == m_length)
        return m_end;
    if (IsFlat())
        return m_start + (m_end - m_start) * (t / m_length);
    if (t > StartT() && t == StartT() + circumference())
        return GetPoint(StartT()); // a full circle ends where it starts, to the last bit
    // By the chord from the start, which keeps its digits however far away the centre lies.
    const double part = t / m_length;
    const double chord = 2 * m_radius * std::sin(std::fabs(m_sweep) * part / 2);
    return m_start + startDirection().Rotated(m_sweep * part / 2) * chord;
}

CVec2<double> CArc2d::startDirection() const
{
    const CVec2<double> tangent = m_toCentre.Left() / m_radius;
    return m_sweep > 0 ? -tangent : tangent;
}

CVec2<double> CArc2d::GetDirection(double t) const
{
    if (IsFlat())
        return (m_end - m_start).Normalized();
    return m_length > 0.0 ? startDirection().Rotated(m_sweep * (t / m_length)) : CVec2<double>();
}

bool CArc2d::IsClosed() const { return !IsEmpty() && std::fabs(SweepAngle()) >= kFullTurn - kFullTurnTolerance; }

double CArc2d::NearestT(const CVec2<double> &point) const
{
    if (IsEmpty() || !(m_length > 0.0))
        return StartT();
    if (IsFlat())
        return std::clamp((point - m_start).Dot((m_end - m_start).Normalized()), StartT(), EndT());
    // The angle from the start, by products that keep their digits however far away the centre lies.
    const CVec2<double> fromStart = point - m_start;
    const CVec2<double> unit = m_toCentre / m_radius;
    const double angle = std::atan2(fromStart.Cross(unit), m_radius - fromStart.Dot(unit));
    const double circle = circumference();
    const double t = (m_sweep > 0 ? angle : -angle) * m_radius;
    for (const double candidate : {t, t + circle, t - circle})
        if (candidate >= StartT() && candidate <= EndT())
            return candidate;
    return withinTurn(t - EndT(), circle) < withinTurn(StartT() - t, circle) ? EndT() : StartT();
}

double CArc2d::TwiceSegmentArea() const
{
    return IsFlat() || IsEmpty() ? 0.0 : Length() * Length() * segmentFactor(SweepAngle());
}

CVec2<double> CArc2d::SegmentCentroid() const
{
    const double sweep = std::fabs(SweepAngle());
    if (IsFlat() || IsEmpty() || sweep == 0.0)
        return MidPoint();
    const double sine = std::sin(sweep / 2);
    const double quarterSine = std::sin(sweep / 4);
    const double fromCentre =
        4 * sine * sine * sine / (3 * sweep * sweep * segmentFactor(sweep)); // parts of the radius
    const double fromArc = sweep < kSliverSweep ? 1.2 * quarterSine * quarterSine : 1 - fromCentre; // likewise
    const CVec2<double> left = GetDirection((StartT() + EndT()) / 2).Left();
    return MidPoint() + (m_sweep > 0 ? left : -left) * (m_radius * fromArc);
}

void CArc2d::Reverse()
{
    if (IsEmpty())
        return;
    const double sweep = SweepAngle();
    const CVec2<double> newStart = EndPoint();
    const CVec2<double> toCentre = m_toCentre + (m_start - newStart);
    m_middle = textMiddle();
    m_end = StartPoint();
    m_start = newStart;
    setCircle(toCentre, -sweep);
}

CVec2<double> CArc2d::textMiddle() const { return StartT() == 0.0 && EndT() == m_length ? m_middle : MidPoint(); }

CBox2<double> CArc2d::Box() const
{
    CBox2<double> box;
    if (IsEmpty())
        return box;
    box.Add(StartPoint());
    box.Add(EndPoint());
    if (!IsFlat())
        addExtremes(box);
    return box;
}

void CArc2d::addExtremes(CBox2<double> &box) const
{
    const double from = m_sweep > 0 ? StartAngle() : StartAngle() + SweepAngle();
    const auto hasAngle = [&](double angle) { return withinTurn(angle - from, kFullTurn) <= std::fabs(SweepAngle()); };
    const CVec2<double> &way = m_toCentre;
    if (hasAngle(0))
        box.maxPt.x = std::max(box.maxPt.x, m_start.x + reachOfCircle(way.x, way.y, m_radius));
    if (hasAngle(kPi / 2))
        box.maxPt.y = std::max(box.maxPt.y, m_start.y + reachOfCircle(way.y, way.x, m_radius));
    if (hasAngle(kPi))
        box.minPt.x = std::min(box.minPt.x, m_start.x - reachOfCircle(-way.x, way.y, m_radius));
    if (hasAngle(3 * kPi / 2))
        box.minPt.y = std::min(box.minPt.y, m_start.y - reachOfCircle(-way.y, way.x, m_radius));
}

void CArc2d::Translate(const CVec2<double> &move)
{
    for (CVec2<double> *point : {&m_start, &m_middle, &m_end})
        *point += move;
}

void CArc2d::Rotate(const CVec2<double> &centre, double angle)
{
    for (CVec2<double> *point : {&m_start, &m_middle, &m_end})
        *point = centre + (*point - centre).Rotated(angle);
    m_toCentre = m_toCentre.Rotated(angle);
}

void CArc2d::MirrorX()
{
    for (CVec2<double> *point : {&m_start, &m_middle, &m_end, &m_toCentre})
        point->x = -point->x;
    m_sweep = -m_sweep;
}

void CArc2d::writeText(std::string &text) const
{
    GeometryText::appendArc(text, StartPoint(), textMiddle(), EndPoint());
}

} // namespace vks
