#pragma once

#include "platform/geometry/CCurve2d.h"

namespace vks {

/** Straight curve. */
class ORVCADPLATFORM_EXPORT CLine2d : public CCurve2d
{
public:
    /** From a point to another; they may be the same. */
    CLine2d(const CVec2<double> &start, const CVec2<double> &end);
    /** Through a point in a direction (of any length), from low to high in mm along it; it starts at the lower end. */
    CLine2d(const CVec2<double> &point, const CVec2<double> &direction, double low, double high);

    int Type() const override { return kLine; }
    /** A copy with the same trim. */
    CRefPtr<CCurve2d> Clone() const override;
    CVec2<double> GetPoint(double t) const override;
    CVec2<double> GetDirection(double t) const override;
    bool IsClosed() const override { return false; }
    double NearestT(const CVec2<double> &point) const override;
    double TwiceSegmentArea() const override { return 0.0; }
    void Reverse() override;

    CBox2<double> Box() const override;
    /** Moves in place, mm. */
    void Translate(const CVec2<double> &move) override;
    void Rotate(const CVec2<double> &centre, double angle) override;
    void MirrorX() override;

protected:
    void writeText(std::string &text) const override;

private:
    /** Makes the line from its two ends, untrimmed. */
    void assign(const CVec2<double> &start, const CVec2<double> &end);
    CVec2<double> pointAt(double t) const;

    CVec2<double> m_start; // where the parameter is 0
    CVec2<double> m_end;   // where it is m_length
    double m_length = 0.0; // mm
};

} // namespace vks
