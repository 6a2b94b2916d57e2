#pragma once

#include "platform/geometry/CGeometry.h"

#include <algorithm>

namespace vks {

/** Directed curve in the plan: a line (CLine2d) or an arc of a circle (CArc2d).
 *
 *  The parameter of a curve is the length along it from the start it was made with, in mm. StartT is 0 and EndT the
 *  length until SetStartT or SetEndT trim it. Trimming keeps the parameter of every point. A curve whose StartT lies
 *  beyond its EndT is empty: it has no length, no box and no relation to anything; its text is that of its two ends. */
class ORVCADPLATFORM_EXPORT CCurve2d : public CGeometry
{
public:
    /** The values of Type. */
    enum EnCurveType { kLine = 1, kArc = 2 };

    /** 1 for a line, 2 for an arc. */
    virtual int Type() const = 0;
    /** A copy with the same trim. */
    virtual CRefPtr<CCurve2d> Clone() const = 0;

    /** Parameter of the start, mm. */
    double StartT() const { return m_startT; }
    /** Never farther from StartT than the curve can reach: once around an arc's circle. */
    double EndT() const { return std::min(m_endT, m_startT + m_longest); }
    /** Moves an end along the curve, mm, in whichever order; a line may also be lengthened, an arc up to its full
     *  circle. A value that is not finite changes nothing, and a line of no length keeps none. */
    void SetStartT(double t);
    void SetEndT(double t); ///< as SetStartT
    /** True when the start lies beyond the end. */
    bool IsEmpty() const { return !(m_startT <= EndT()); }

    /** Length between the ends, mm; 0 for an empty curve. */
    double Length() const { return IsEmpty() ? 0.0 : EndT() - m_startT; }
    /** Point at a parameter; beyond the ends on the curve's extension. */
    virtual CVec2<double> GetPoint(double t) const = 0;
    /** Unit direction of travel at a parameter; (0, 0) for a line of no length. */
    virtual CVec2<double> GetDirection(double t) const = 0;
    /** Where the curve starts. */
    CVec2<double> StartPoint() const { return GetPoint(m_startT); }
    /** Where it ends. */
    CVec2<double> EndPoint() const { return GetPoint(EndT()); }
    /** Half its length from both ends. */
    CVec2<double> MidPoint() const { return GetPoint((m_startT + EndT()) / 2); }
    /** Unit directions at the ends, along the curve. */
    CVec2<double> StartVt() const { return GetDirection(m_startT); }
    /** The same at the end. */
    CVec2<double> EndVt() const { return GetDirection(EndT()); }

    /** True for a full circle. */
    virtual bool IsClosed() const = 0;
    /** Parameter of the point of the curve nearest to a point, between StartT and EndT. */
    virtual double NearestT(const CVec2<double> &point) const = 0;
    /** Distance of a point from the curve, mm. */
    double DistanceTo(const CVec2<double> &point) const { return GetPoint(NearestT(point)).DistanceTo(point); }
    /** Twice the signed area between the curve and its chord, mm²; positive for a curve that turns left. */
    virtual double TwiceSegmentArea() const = 0;

    /** Turns the direction of travel around in place. Start and end change places, the parameter starts at 0 again.
     *  An empty curve stays as it is. */
    virtual void Reverse() = 0;

protected:
    /** The parameter range of a fresh curve of that length, and the most that it may be lengthened to, mm. */
    void resetRange(double length, double longest);

private:
    double m_startT = 0.0;
    double m_endT = 0.0; // as set, so that the order of setting means nothing
    double m_longest = 0.0;
};

} // namespace vks
