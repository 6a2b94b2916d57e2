#pragma once

#include "platform/geometry/CCurve2d.h"

namespace vks {

/** How two curves lie to each other. */
enum EnCurveCurvePosition {
    kCurvesInvalid = -1, ///< one of them is null, empty or of no length
    kCurvesApart = 0,
    kCurvesMeet = 1,   ///< meeting in points only
    kCurvesOverlap = 2 ///< sharing a stretch
};

/** Judges the relation of curves within a distance tolerance. */
class ORVCADPLATFORM_EXPORT CPositionJudge
{
public:
    /** Starts with g_DistEpsilon. */
    CPositionJudge();
    /** mm; a value that is not above zero counts as g_DefaultDistEpsilon. */
    void SetDistEpsilon(double tolerance);
    /** 2 when a stretch longer than the tolerance of either curve lies within the tolerance of the other, which goes along
     *  with it; 1 when they come within the tolerance of each other otherwise. Curves that cross or touch are near each
     *  other for a while, too: a stretch counts only when it begins and ends where one of the two curves ends. */
    EnCurveCurvePosition GetCurveCurvePosition(const CCurve2d *a, const CCurve2d *b) const;

private:
    double m_distEpsilon;
};

} // namespace vks
