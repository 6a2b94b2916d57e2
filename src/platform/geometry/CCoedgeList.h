#pragma once

#include "platform/geometry/CCurve2d.h"

#include <vector>

namespace vks {

/** Curves in order of travel, each held by the list. */
class ORVCADPLATFORM_EXPORT CCoedgeList : public CGeometry
{
public:
    /** Appends a curve, which belongs to the list from then on. Null is ignored.
     *  @param reversed  turns the curve around in place before it is appended */
    void AddCurve(CCurve2d *curve, bool reversed);

    /** Number of curves. */
    int CurveCount() const { return static_cast<int>(m_curves.size()); }
    /** Null for an index out of range. The list goes on holding it. */
    CCurve2d *GetCurve(int index) const;
    /** Replaces the content of the vector by the curves in order; the list goes on holding them. */
    void GetCurves(std::vector<CCurve2d *> &curves) const;
    /** The curves in order, held. */
    const std::vector<CRefPtr<CCurve2d>> &Curves() const { return m_curves; }

    /** Sum of the curves' lengths, mm. */
    double Length() const;
    /** True when each curve starts where the one before ends, within the tolerance (mm), and the first where the last
     *  ends; false for an empty list. */
    bool IsClosed(double tolerance) const;
    /** Turns the travel around in place: curves and their order. */
    void Reverse();

    CBox2<double> Box() const override;
    /** Moves in place, mm. */
    void Translate(const CVec2<double> &move) override;
    void Rotate(const CVec2<double> &centre, double angle) override;
    void MirrorX() override;

protected:
    std::vector<CRefPtr<CCurve2d>> m_curves; ///< none is null
};

} // namespace vks
