#pragma once

#include "platform/geometry/CArc2d.h"
#include "platform/geometry/Ring.h"

#include <array>
#include <map>
#include <vector>

namespace vks {

/** Chords in place of arcs, so that arcs of one circle have the same chords wherever they run beside each other.
 *
 *  The corners on a circle depend on the circle alone: they stand at even angles counted from the x axis, and where an
 *  arc of that circle ends. All arcs are therefore made known before the first is cut into chords. Chords leave the arc
 *  by no more than kChordSagitta, but a circle never has more than kMostChords of them. */
class ORVCADPLATFORM_EXPORT ArcChords
{
public:
    /** Chords of a full circle, at most. */
    static constexpr int kMostChords = 100000;

    /** @param origin  point that the corners are told from */
    explicit ArcChords(const CVec2<double> &origin);

    /** Makes an arc known; lines and flat arcs are passed over. */
    void learn(const CCurve2d &curve);
    /** Whether an arc is known. */
    bool hasArcs() const { return !m_circles.empty(); }

    /** Appends the start of a curve and the corners within it, not its end.
     *  @param start  of the curve, which a caller who goes along a loop has at hand */
    void appendCorners(const CCurve2d &curve, const CVec2<double> &start, Ring &ring) const;

private:
    struct Circle
    {
        CVec2<double> centre; // from the origin, mm
        double radius;        // mm
        std::vector<double> endAngles;
    };
    using Key = std::array<double, 3>;

    /** The circle of an arc as known, or as it is with no ends. */
    Key keyOf(const Circle &circle) const;
    Circle circleOf(const CArc2d &arc) const;

    CVec2<double> m_origin;
    std::map<Key, std::vector<Circle>> m_circles;
};

} // namespace vks
