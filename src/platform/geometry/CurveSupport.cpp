#include "platform/geometry/CurveSupport.h"

#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"

#include <algorithm>

namespace vks {

namespace {

/** Sine of the angle below which lines count as parallel: double arithmetic places no crossing beyond it. */
constexpr double kLeastSine = 1e-12;

SupportPoints lineMeetsLine(const CurveSupport &a, const CurveSupport &b)
{
    SupportPoints result;
    const double sine = a.direction().Cross(b.direction());
    if (std::fabs(sine) > kLeastSine)
        result.add(a.start() + a.direction() * ((b.start() - a.start()).Cross(b.direction()) / sine));
    return result;
}

SupportPoints lineMeetsCircle(const CurveSupport &line, const CurveSupport &circle, double tolerance)
{
    SupportPoints result;
    const CVec2<double> foot = line.nearestTo(circle.centre());
    const double height = foot.DistanceTo(circle.centre());
    const double radius = circle.radius();
    if (std::fabs(height - radius) <= tolerance) {
        result.add(foot);
    } else if (height < radius) {
        const CVec2<double> half = line.direction() * std::sqrt((radius - height) * (radius + height));
        result.add(foot - half);
        result.add(foot + half);
    }
    return result;
}

SupportPoints circleMeetsCircle(const CurveSupport &a, const CurveSupport &b, double tolerance)
{
    SupportPoints result;
    const CVec2<double> way = b.centre() - a.centre();
    const double distance = way.Length();
    const double sum = a.radius() + b.radius();
    const double difference = a.radius() - b.radius();
    if (distance <= tolerance || distance > sum + tolerance || distance < std::fabs(difference) - tolerance)
        return result;
    const CVec2<double> unit = way / distance;
    if (std::fabs(distance - sum) <= tolerance || std::fabs(distance - std::fabs(difference)) <= tolerance) {
        result.add(a.centre() + unit * (distance < std::fabs(difference) + tolerance && difference < 0.0 ? -a.radius()
                                                                                                         : a.radius()));
        return result;
    }
    const double along = (distance + sum * difference / distance) / 2;
    const CVec2<double> across = unit.Left() * std::sqrt(std::max(0.0, (a.radius() - along) * (a.radius() + along)));
    result.add(a.centre() + unit * along - across);
    result.add(a.centre() + unit * along + across);
    return result;
}

} // namespace

CurveSupport::CurveSupport(const CCurve2d &curve) : m_start(curve.StartPoint())
{
    if (const CArc2d *arc = CArc2d::RoundArc(curve)) {
        m_centre = arc->CenterPt();
        m_radius = arc->Radius();
        m_turn = arc->SweepAngle() < 0.0 ? -1.0 : 1.0;
    } else {
        m_direction = curve.StartVt();
    }
}

double CurveSupport::distanceTo(const CVec2<double> &point) const
{
    return isLine() ? std::fabs(m_direction.Cross(point - m_start)) : std::fabs(point.DistanceTo(m_centre) - m_radius);
}

int CurveSupport::sideOf(const CVec2<double> &point) const
{
    const double left =
        isLine() ? m_direction.Cross(point - m_start) : m_turn * (m_radius - point.DistanceTo(m_centre));
    return (left > 0.0) - (left < 0.0);
}

double CurveSupport::positionOf(const CVec2<double> &point, double tolerance) const
{
    if (isLine())
        return m_direction.Dot(point - m_start);
    const double angle = m_turn * (m_start - m_centre).AngleTo(point - m_centre);
    const double position = (angle < 0.0 ? angle + kFullTurn : angle) * m_radius;
    return position >= kFullTurn * m_radius - tolerance ? position - kFullTurn * m_radius : position;
}

CVec2<double> CurveSupport::pointAt(double position) const
{
    return isLine() ? m_start + m_direction * position
                    : m_centre + (m_start - m_centre).Rotated(m_turn * position / m_radius);
}

CVec2<double> CurveSupport::nearestTo(const CVec2<double> &point) const
{
    if (isLine())
        return m_start + m_direction * m_direction.Dot(point - m_start);
    const CVec2<double> way = (point - m_centre).Normalized();
    return way == CVec2<double>() ? m_start : m_centre + way * m_radius;
}

SupportPoints supportMeetings(const CurveSupport &a, const CurveSupport &b, double tolerance)
{
    if (a.isLine() && b.isLine())
        return lineMeetsLine(a, b);
    if (a.isLine())
        return lineMeetsCircle(a, b, tolerance);
    return b.isLine() ? lineMeetsCircle(b, a, tolerance) : circleMeetsCircle(a, b, tolerance);
}

} // namespace vks
