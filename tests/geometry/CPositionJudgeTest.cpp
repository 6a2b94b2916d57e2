#include "platform/geometry/CPositionJudge.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

using namespace shapes;
using Line = vks::CLine2d;
using Arc = vks::CArc2d;

namespace {

/** The relation; a test of its own holds that it is the same the other way round. */
int position(const vks::CCurve2d &a, const vks::CCurve2d &b, double tolerance = 1.0)
{
    vks::CPositionJudge judge;
    judge.SetDistEpsilon(tolerance);
    const int result = judge.GetCurveCurvePosition(&a, &b);
    EXPECT_EQ(judge.GetCurveCurvePosition(&b, &a), result);
    return result;
}

} // namespace

TEST(CPositionJudgeTest, linesApartMeetOrOverlap)
{
    const Line base({0, 0}, {1000, 0});
    EXPECT_EQ(position(base, Line({0, 100}, {1000, 100})), 0);
    EXPECT_EQ(position(base, Line({500, -100}, {500, 100})), 1);
    EXPECT_EQ(position(base, Line({500, 0}, {500, 100})), 1);
    EXPECT_EQ(position(base, Line({1000, 0}, {1500, 0})), 1);
    EXPECT_EQ(position(base, Line({800, 0}, {1500, 0})), 2);
    EXPECT_EQ(position(base, Line({600, 0}, {200, 0})), 2);
    EXPECT_EQ(position(base, base), 2);
}

TEST(CPositionJudgeTest, toleranceIsADistanceBetweenTheCurves)
{
    const Line base({0, 0}, {1000, 0});
    EXPECT_EQ(position(base, Line({0, 1.0}, {1000, 1.0})), 2);
    EXPECT_EQ(position(base, Line({0, 1.1}, {1000, 1.1})), 0);
    EXPECT_EQ(position(base, Line({1001, 0}, {1500, 0})), 1);
    EXPECT_EQ(position(base, Line({1001.1, 0}, {1500, 0})), 0);
}

TEST(CPositionJudgeTest, crossingAtASmallAngleIsNoStretch)
{
    EXPECT_EQ(position(Line({0, 0}, {1000, 0}), Line({0, -50}, {1000, 50})), 1);
}

TEST(CPositionJudgeTest, anOverlapShorterThanTheToleranceIsAMeeting)
{
    EXPECT_EQ(position(Line({0, 0}, {1000, 0}), Line({999.5, 0}, {1500, 0})), 1);
    EXPECT_EQ(position(Line({0, 0}, {1000, 0}), Line({999.5, 0}, {1500, 0}), 0.1), 2);
}

TEST(CPositionJudgeTest, arcsOfOneCircleOverlapWhereTheirAnglesDo)
{
    const Arc base({0, 0}, 1000.0, 0.0, 2.0);
    EXPECT_EQ(position(base, Arc({0, 0}, 1000.0, 1.0, 3.0)), 2);
    EXPECT_EQ(position(base, Arc({0, 0}, 1000.0, 1.5, 0.5)), 2);
    EXPECT_EQ(position(base, Arc({0, 0}, 1000.0, 2.0, 3.0)), 1);
    EXPECT_EQ(position(base, Arc({0, 0}, 1000.0, 3.0, 4.0)), 0);
    EXPECT_EQ(position(base, Arc({0, 0}, 1000.0, 0.0, 2 * kPi)), 2);
    EXPECT_EQ(position(base, Arc({0, 0}, 1100.0, 0.0, 2.0)), 0);
}

TEST(CPositionJudgeTest, touchingAndCrossingArcsMeet)
{
    const Arc circle({0, 0}, 1000.0, 0.0, 2 * kPi);
    EXPECT_EQ(position(circle, Line({-500, 1000}, {500, 1000})), 1);
    EXPECT_EQ(position(circle, Line({0, 0}, {2000, 0})), 1);
    EXPECT_EQ(position(circle, Line({-100, 0}, {100, 0})), 0);
    EXPECT_EQ(position(circle, Arc({2000, 0}, 1000.0, 0.0, 2 * kPi)), 1);
    EXPECT_EQ(position(circle, Arc({500, 0}, 500.0, 0.0, 2 * kPi)), 1);
}

TEST(CPositionJudgeTest, startsWithTheDistanceTolerance)
{
    const Line base({0, 0}, {1000, 0});
    const Line off({0, 1e-5}, {1000, 1e-5});
    const Line on({0, 1e-7}, {1000, 1e-7});
    EXPECT_EQ(vks::CPositionJudge().GetCurveCurvePosition(&base, &off), 0);
    EXPECT_EQ(vks::CPositionJudge().GetCurveCurvePosition(&base, &on), 2);
}

TEST(CPositionJudgeTest, aToleranceThatIsNotAboveZeroIsTheDefault)
{
    const Line base({0, 0}, {1000, 0});
    for (const double tolerance : {0.0, -5.0, std::nan("")}) {
        EXPECT_EQ(position(base, Line({0, 1e-7}, {1000, 1e-7}), tolerance), 2);
        EXPECT_EQ(position(base, Line({0, 1e-5}, {1000, 1e-5}), tolerance), 0);
    }
}

TEST(CPositionJudgeTest, nullEmptyAndPointLikeCurvesAreInvalid)
{
    const Line base({0, 0}, {1000, 0});
    Line empty({0, 0}, {1000, 0});
    empty.SetStartT(2000);
    const Line point({5, 0}, {5, 0});
    const vks::CPositionJudge judge;
    EXPECT_EQ(judge.GetCurveCurvePosition(nullptr, &base), -1);
    EXPECT_EQ(judge.GetCurveCurvePosition(&base, nullptr), -1);
    EXPECT_EQ(judge.GetCurveCurvePosition(&base, &empty), -1);
    EXPECT_EQ(judge.GetCurveCurvePosition(&point, &base), -1);
}

TEST(CPositionJudgeTest, tenKilometresAwayItIsTheSame)
{
    const Point far(1e7, -1e7);
    const auto at = [&far](double x, double y) { return far + Point(x, y); };
    const Line base(at(0, 0), at(1000, 300));
    EXPECT_EQ(position(base, Line(at(500, 150), at(2000, 600)), 1e-6), 2);
    EXPECT_EQ(position(base, Line(at(1000, 300), at(2000, 600)), 1e-6), 1);
    EXPECT_EQ(position(base, Line(at(1000.1, 300.03), at(2000, 600)), 1e-6), 0);
}
