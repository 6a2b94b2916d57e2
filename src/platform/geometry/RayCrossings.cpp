#include "platform/geometry/RayCrossings.h"

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLoop.h"

#include <cmath>

namespace vks {

namespace {

constexpr double kPi = 3.14159265358979323846;

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
    /** @param side  1 for a piece on the right half of the circle, -1 on the left */
    void addArcPiece(const CVec2<double> &centre, double radius, int side, double fromY, double toY)
    {
        if (!spans(fromY, toY))
            return;
        const double up = m_point.y - centre.y;
        const double across = std::sqrt(std::fmax(0.0, (radius - up) * (radius + up)));
        if (centre.x + side * across > m_point.x)
            ++m_crossings;
    }
    bool isOdd() const { return m_crossings % 2 != 0; }

private:
    CVec2<double> m_point;
    int m_crossings = 0;
};

/** An arc falls at the circle's top and bottom into pieces that only rise or only fall. */
void addArc(RayCounter &counter, const CArc2d &arc, double endY)
{
    const CVec2<double> centre = arc.CenterPt();
    const double radius = arc.Radius();
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
        const double toY = last ? endY : centre.y + (std::sin(turn * next) > 0 ? radius : -radius);
        counter.addArcPiece(centre, radius, std::cos(middle) > 0 ? 1 : -1, fromY, toY);
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
        // Each piece ends where the next one starts, to the last bit.
        const CVec2<double> end = curves[(i + 1) % curves.size()]->StartPoint();
        const auto *arc = dynamic_cast<const CArc2d *>(curves[i].get());
        if (arc && !arc->IsFlat())
            addArc(counter, *arc, end.y);
        else
            counter.addLine(curves[i]->StartPoint(), end);
    }
    return counter.isOdd();
}

} // namespace vks
