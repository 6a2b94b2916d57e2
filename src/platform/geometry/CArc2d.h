#pragma once

#include "platform/geometry/CCurve2d.h"

namespace vks {

/** Part of a circle, or a full one. */
class ORVCADPLATFORM_EXPORT CArc2d : public CCurve2d
{
public:
    /** From start to end with a bulge: the tangent of a quarter of the swept angle, positive when counter-clockwise.
     *  Bulge 0 is a flat arc: still of type 2, straight in shape; so is a bulge of which no finite circle comes. */
    CArc2d(const CVec2<double> &start, const CVec2<double> &end, double bulge);
    /** About a centre from one angle to the other, rad; counter-clockwise when endAngle is the greater one. A sweep of
     *  2 pi or more is a full circle. */
    CArc2d(const CVec2<double> &centre, double radius, double startAngle, double endAngle);
    /** Through three points; start equal to end is the full circle whose diameter is start to middle, counter-clockwise.
     *  Points in a line give a flat arc. */
    CArc2d(const CVec2<double> &start, const CVec2<double> &middle, const CVec2<double> &end);

    /** The curve itself when it is an arc of a circle; null for a line and for a flat arc. */
    static const CArc2d *RoundArc(const CCurve2d &curve);

    /** Centre and radius; of a flat arc the centre is not finite and the radius is infinite. */
    CVec2<double> CenterPt() const { return m_start + m_toCentre; }
    /** mm; infinite for a flat arc. */
    double Radius() const { return m_radius; }
    /** Bulge between StartT and EndT; infinite for a full circle. */
    double GetBulge() const;
    /** Angle of the start seen from the centre, rad, and the swept angle, negative when clockwise. */
    double StartAngle() const;
    /** Negative when clockwise, rad. */
    double SweepAngle() const;
    /** True for an arc so flat that no circle can be told. */
    bool IsFlat() const;
    /** True for a point inside the arc's whole circle, to the last digits for the flattest arc, too; false for a flat
     *  arc. */
    bool CircleHolds(const CVec2<double> &point) const;
    /** Centroid of the area between the arc and its chord; the middle of the arc for an arc without such an area. */
    CVec2<double> SegmentCentroid() const;

    int Type() const override { return kArc; }
    /** A copy with the same trim. */
    CRefPtr<CCurve2d> Clone() const override;
    CVec2<double> GetPoint(double t) const override;
    CVec2<double> GetDirection(double t) const override;
    bool IsClosed() const override;
    double NearestT(const CVec2<double> &point) const override;
    double TwiceSegmentArea() const override;
    void Reverse() override;

    CBox2<double> Box() const override;
    /** Moves in place, mm. */
    void Translate(const CVec2<double> &move) override;
    void Rotate(const CVec2<double> &centre, double angle) override;
    void MirrorX() override;

protected:
    void writeText(std::string &text) const override;

private:
    /** Sets what is worked out from the three points; a circle that is not finite makes a flat arc. */
    void setCircle(const CVec2<double> &toCentre, double sweep);
    void setFlat();
    double circumference() const;
    CVec2<double> startDirection() const;
    /** The middle as kept, or that of the trimmed arc. */
    CVec2<double> textMiddle() const;
    /** Widens a box by the farthest points of the circle that lie on the arc. */
    void addExtremes(CBox2<double> &box) const;

    // The three points are what text carries, so they are kept as given. The circle is told from the start, where it
    // keeps its digits however far away the centre lies.
    CVec2<double> m_start;
    CVec2<double> m_middle;
    CVec2<double> m_end;
    CVec2<double> m_toCentre;
    double m_radius = 0.0; // mm
    double m_sweep = 0.0;  // rad, of the whole arc before trimming; 0 for a flat arc
    double m_length = 0.0; // mm, likewise
};

} // namespace vks
