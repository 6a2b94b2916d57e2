#include "slab/SlabBarDirection.h"

#include "platform/geometry/Angle.h"
#include "platform/geometry/CPositionJudge.h"
#include "slab/SlabSearchTolerance.h"

#include <cmath>

namespace {

/** Angle from a to b, counter-clockwise, rad in -pi to pi. */
double angleBetween(const vks::CVec2<double> &a, const vks::CVec2<double> &b)
{
    return std::atan2(a.Cross(b), a.Dot(b));
}

bool isNoTurn(double angle) { return std::fabs(angle) <= slab::kSameDirectionAngle + slab::kAngleNoise; }

bool isNoTurnOrHalf(double angle)
{
    return isNoTurn(angle) || isNoTurn(angle + vks::kPi) || isNoTurn(angle - vks::kPi);
}

bool isNoStretch(double length) { return std::fabs(length) <= slab::kNoStretch; }

} // namespace

bool isSameDirPi(const vks::CVec2<double> &a, const vks::CVec2<double> &b)
{
    return isNoTurnOrHalf(std::fmod(angleBetween(a, b), vks::kPi));
}

bool isSameLine(const vks::CCurve2d *p, const vks::CCurve2d *q)
{
    if (!p || !q || !isNoTurnOrHalf(std::fmod(angleBetween(q->EndVt(), p->EndVt()), vks::kFullTurn)))
        return false;
    vks::CPositionJudge judge;
    judge.SetDistEpsilon(slab::kSameLineTolerance);
    return judge.GetCurveCurvePosition(p, q) == vks::kCurvesOverlap;
}

bool needNormalizeStretchInfo(const vks::CCurve2d *curve)
{
    if (!curve)
        return false;
    const vks::CVec2<double> along = curve->EndVt();
    const double angle = std::atan2(along.y, along.x);
    const double turned = angle < 0.0 ? angle + vks::kFullTurn : angle;
    return turned > slab::kNormalizeAboveAngle || turned < slab::kNormalizeBelowAngle;
}

BarReach barReach(const vks::CCurve2d *line, double leftStretch, double rightStretch)
{
    const bool exchanged = needNormalizeStretchInfo(line);
    if (isNoStretch(leftStretch))
        return exchanged ? BarReach::ToLeft : BarReach::ToRight;
    if (isNoStretch(rightStretch))
        return exchanged ? BarReach::ToRight : BarReach::ToLeft;
    return BarReach::ToBoth;
}
