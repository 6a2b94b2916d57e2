#include "platform/geometry/RayCrossings.h"

#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLoop.h"

#include <cmath>

namespace vks {

namespace {

/** Counts crossings of the ray with pieces that only rise or only fall. */
class RayCounter
{
public:
    explicit RayCounter(const CVec2<double> &point) : m_point(point) {}

    /** A lower end counts, an upper one does not, so that a corner counts once. */
    bool spans(double fromY, double toY) const { return (fromY <= m_point.y) != (toY <= m_point.y); }

    void addLine(const CVec2<double> &from, const CVec2<double> &to)
    {
        if (spans(from.y, to.y) && from.x + (to.x - from.x) * ((m_point.y - from.y) / (to.y - from.y)) > m_point.x)
            ++m_crossings;
    }
    void addArcPiece(const CArc2d &arc, bool rightHalf, double fromY, double toY)
    {
        if (!spans(fromY, toY))
            return;
        // Left of the centre and outside lie before the left half, right of it and inside before the right half.
        const bool inside = arc.CircleHolds(m_point);
        const bool leftOfCentre = m_point.x < arc.CenterPt().x;
        if (rightHalf ? inside || leftOfCentre : !inside && leftOfCentre)
            ++m_crossings;
    }
    bool isOdd() const { return m_crossings % 2 != 0; }

private:
    CVec2<double> m_point;
    int m_crossings = 0;
};

/** An arc falls at the circle's top and bottom into pieces that only rise or only fall. */
void addArc(RayCounter &counter, const CArc2d &arc)
{
    const double centreY = arc.CenterPt().y;
    const double turn = arc.SweepAngle() > 0 ? 1.0 : -1.0;
    const double startAngle = arc.StartAngle();
    const double sweep = std::fabs(arc.SweepAngle());
    // Quarters in the direction of travel, counted from the circle's right or left: tops and bottoms lie at odd ones.
    double done = 0.0;
    double fromY = arc.StartPoint().y;
    double next = std::floor((turn * startAngle - kPi / 2) / kPi) * kPi + kPi / 2 + kPi; // first top or bottom ahead
    while (done < sweep) {
        const double ahead = next - turn * startAngle;
        const bool last = ahead >= sweep;
        const double middle = turn * (turn * startAngle + (done + (last ? sweep : ahead)) / 2);
        const double toY = last ? arc.EndPoint().y : centreY + std::copysign(arc.Radius(), std::sin(turn * next));
        counter.addArcPiece(arc, std::cos(middle) > 0, fromY, toY);
        done = last ? sweep : ahead;
        fromY = toY;
        next += kPi;
    }
}

} // namespace

bool crossesRayOddly(const CLoop &loop, const CVec2<double> &point)
{
    RayCounter counter(point);
    const auto &curves = loop.Curves();
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const CCurve2d &curve = *curves[i];
        const CVec2<double> end = curve.EndPoint();
        if (const CArc2d *arc = CArc2d::RoundArc(curve))
            addArc(counter, *arc);
        else
            counter.addLine(curve.StartPoint(), end);
        counter.addLine(end, curves[(i + 1) % curves.size()]->StartPoint()); // the gap, if there is one
    }
    return counter.isOdd();
}

} // namespace vks
