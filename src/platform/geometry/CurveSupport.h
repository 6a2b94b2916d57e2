#pragma once

#include "platform/geometry/CCurve2d.h"

#include <array>

namespace vks {

/** The line without end or the full circle that a curve is a part of; a flat arc counts as its chord. */
class ORVCADPLATFORM_EXPORT CurveSupport
{
public:
    /** Keeps nothing of the curve. */
    explicit CurveSupport(const CCurve2d &curve);

    /** False for a circle. */
    bool isLine() const { return m_radius == 0.0; }
    /** Of a circle; the centre of a line means nothing. */
    CVec2<double> centre() const { return m_centre; }
    /** Of a circle, mm; 0 for a line. */
    double radius() const { return m_radius; }
    /** The start of the curve. */
    CVec2<double> start() const { return m_start; }
    /** Of a line, unit length. */
    CVec2<double> direction() const { return m_direction; }

    /** From the support, mm. */
    double distanceTo(const CVec2<double> &point) const;
    /** 1 for a point to the left of the curve, lengthened at its ends, -1 to the right, 0 on it. */
    int sideOf(const CVec2<double> &point) const;
    /** Where along the curve's direction a point lies, mm from the curve's start; on a circle from the start once
     *  around, a point less than the tolerance before the start having a negative value. */
    double positionOf(const CVec2<double> &point, double tolerance) const;
    /** The point at such a position. */
    CVec2<double> pointAt(double position) const;
    /** The point of the support nearest to a point; the start for the centre of a circle. */
    CVec2<double> nearestTo(const CVec2<double> &point) const;

private:
    CVec2<double> m_start;
    CVec2<double> m_direction;
    CVec2<double> m_centre;
    double m_radius = 0.0; // mm, 0 for a line
    double m_turn = 1.0;   // 1 counter-clockwise, -1 clockwise
};

/** Up to two points. */
struct SupportPoints
{
    std::array<CVec2<double>, 2> points; ///< the first count of them
    int count = 0;                       ///< 0, 1 or 2

    /** One more; there is room for two. */
    void add(const CVec2<double> &point) { points[static_cast<std::size_t>(count++)] = point; }
    /** For loops over the points. */
    const CVec2<double> *begin() const { return points.data(); }
    /** Behind the last point. */
    const CVec2<double> *end() const { return points.data() + count; }
};

/** Points where two supports cross; one where they come within the tolerance (mm) without or hardly crossing. None for
 *  parallel lines and for circles about one centre within the tolerance. */
ORVCADPLATFORM_EXPORT SupportPoints supportMeetings(const CurveSupport &a, const CurveSupport &b, double tolerance);

} // namespace vks
