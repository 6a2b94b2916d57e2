#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using shapes::box;
using shapes::polygon;
using vks::CPolygon;

struct ValidityCase
{
    const char *name;
    const char *text;
    unsigned failing; ///< bits of 0x101F whose check fails; all others pass
};

std::ostream &operator<<(std::ostream &stream, const ValidityCase &testCase) { return stream << testCase.name; }

class PolygonValidityTest : public ::testing::TestWithParam<ValidityCase>
{};

TEST_P(PolygonValidityTest, failsExactlyTheChecksOfItsDefects)
{
    const auto shape = CPolygon::LoadFromString(GetParam().text);
    ASSERT_TRUE(shape);
    for (const unsigned bit : {0x1U, 0x2U, 0x4U, 0x8U, 0x10U, 0x1000U})
        EXPECT_EQ(shape->IsValid(bit, nullptr, nullptr), (GetParam().failing & bit) == 0) << std::hex << bit;
    EXPECT_EQ(shape->IsValid(0x101F, nullptr, nullptr), GetParam().failing == 0);
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, PolygonValidityTest,
    ::testing::Values(
        ValidityCase{"square", "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0))", 0},
        ValidityCase{"clockwise square", "POLYGON((0 0, 0 10, 10 10, 10 0, 0 0))", 0},
        ValidityCase{"circle", "CURVEPOLYGON(CIRCULARSTRING(10 0, -10 0, 10 0))", 0},
        ValidityCase{"two arcs",
                     "CURVEPOLYGON(COMPOUNDCURVE(CIRCULARSTRING(0 0, 5 -5, 10 0), "
                     "CIRCULARSTRING(10 0, 5 5, 0 0)))",
                     0},
        ValidityCase{"line and arc", "CURVEPOLYGON(COMPOUNDCURVE((0 0, 10 0), CIRCULARSTRING(10 0, 5 5, 0 0)))", 0},
        ValidityCase{"hole", "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(2 2, 4 2, 4 4, 2 4, 2 2))", 0},
        ValidityCase{"hole touching in a corner", "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(0 5, 4 2, 4 4, 0 5))", 0},
        ValidityCase{"round hole touching in a point",
                     "CURVEPOLYGON((0 0, 10 0, 10 10, 0 10, 0 0),CIRCULARSTRING(10 5, 6 5, 10 5))", 0},
        ValidityCase{"no loop", "POLYGON EMPTY", 0x1001},
        ValidityCase{"open ring", "POLYGON((0 0, 10 0, 10 10, 0 10))", 0x2},
        ValidityCase{"short edge", "POLYGON((0 0, 10 0, 10 1e-7, 10 10, 0 10, 0 0))", 0x4},
        ValidityCase{"bow tie", "POLYGON((0 0, 10 10, 10 0, 0 12, 0 0))", 0x8},
        ValidityCase{"there and back", "POLYGON((0 0, 10 0, 0 0))", 0x1008},
        ValidityCase{"edge running back on its neighbour", "POLYGON((0 0, 10 0, 5 0, 5 5, 0 0))", 0x8},
        ValidityCase{"ring touching itself", "POLYGON((0 0, 10 0, 10 10, 5 0, 0 10, 0 0))", 0x8},
        ValidityCase{"arc crossing a side",
                     "CURVEPOLYGON(COMPOUNDCURVE((0 0, 10 0, 10 10), CIRCULARSTRING(10 10, 5 -1, 0 10), "
                     "(0 10, 0 0)))",
                     0x8},
        ValidityCase{"hole crossing the outer loop", "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(-1 5, 4 2, 4 4, -1 5))",
                     0x18},
        ValidityCase{"hole outside", "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(20 2, 24 2, 24 4, 20 2))", 0x10},
        ValidityCase{"hole in a hole",
                     "POLYGON((0 0, 9 0, 9 9, 0 9, 0 0),(1 1, 8 1, 8 8, 1 8, 1 1),(3 3, 4 3, 4 4, 3 3))", 0x10},
        ValidityCase{"hole along the outer loop", "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(0 2, 4 2, 4 4, 0 4, 0 2))",
                     0x8},
        ValidityCase{"hole crossing the outer loop in its last edges",
                     "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(2 2, 4 2, 4 4, -1 5, 2 2))", 0x18},
        ValidityCase{"hole crossing a notch between its corners",
                     "POLYGON((0 0, 10 0, 10 10, 7 10, 7 4, 6.9 4, 6.9 10, 0 10, 0 0),(1 5, 9 5, 9 6, 1 6, 1 5))",
                     0x18},
        ValidityCase{"holes crossing",
                     "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(2 2, 6 2, 6 6, 2 6, 2 2),(4 4, 8 4, 8 8, 4 8, 4 4))",
                     0x18},
        ValidityCase{"the same hole twice",
                     "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(2 2, 6 2, 6 6, 2 6, 2 2),(6 6, 2 6, 2 2, 6 2, 6 6))",
                     0x18},
        ValidityCase{"hole as large as the outer loop", "POLYGON((0 0, 9 0, 9 9, 0 9, 0 0),(0 0, 9 0, 9 9, 0 9, 0 0))",
                     0x1008},
        ValidityCase{"holes side by side along an edge",
                     "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(2 2, 4 2, 4 4, 2 4, 2 2),(4 2, 6 2, 6 4, 4 4, 4 2))", 0x8},
        ValidityCase{"holes touching in a corner",
                     "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(2 2, 4 2, 4 4, 2 4, 2 2),(4 4, 6 4, 6 6, 4 6, 4 4))", 0},
        ValidityCase{"several short edges in a row at the start",
                     "POLYGON((0 0, 1e-7 0, 2e-7 0, 10 0, 10 10, 0 10, 0 2e-7, 0 1e-7, 0 0))", 0x4},
        ValidityCase{"arc coming back onto its neighbour",
                     "CURVEPOLYGON(COMPOUNDCURVE((0 0, 10 0), CIRCULARSTRING(10 0, 7 3, 4 0), (4 0, 4 5, 0 5, 0 0)))",
                     0x8},
        ValidityCase{"arc tangent to its neighbours",
                     "CURVEPOLYGON(COMPOUNDCURVE((0 0, 10 0), CIRCULARSTRING(10 0, 15 5, 10 10), (10 10, 0 10, 0 0)))",
                     0},
        ValidityCase{"long edge there and back far out", "POLYGON((1e7 1e7, 3.1e7 1.7e7, 1e7 1e7))", 0x1008},
        ValidityCase{"circle of no radius", "CURVEPOLYGON(CIRCULARSTRING(1 1, 1 1, 1 1))", 0x1004}));

TEST(PolygonValidityMaskTest, bitsThatNameNoCheckAskForNothing)
{
    EXPECT_TRUE(CPolygon().IsValid(0, nullptr, nullptr));
    EXPECT_TRUE(CPolygon().IsValid(0xEFE0, nullptr, nullptr));
}

TEST(PolygonValidityMaskTest, geometryThatIsNotFiniteIsNeverValid)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto shape = polygon({{{0, 0}, {nan, 0}, {1, 1}}});
    EXPECT_FALSE(shape->IsValid(0, nullptr, nullptr));
    EXPECT_FALSE(shape->IsValid(0x101F, nullptr, nullptr));
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(polygon({{{0, 0}, {infinity, 0}, {1, 1}}})->IsValid(0x101F, nullptr, nullptr));
}

TEST(PolygonValidityMaskTest, toleranceIsReadAtEachUse)
{
    const auto shape = polygon({{{0, 0}, {10, 0}, {10, 0.5}, {10, 10}, {0, 10}}});
    EXPECT_TRUE(shape->IsValid(0x4, nullptr, nullptr));
    vks::g_DistEpsilon = 1.0;
    EXPECT_FALSE(shape->IsValid(0x4, nullptr, nullptr));
    vks::g_DistEpsilon = vks::g_DefaultDistEpsilon;
}

TEST(PolygonValidityMaskTest, moreThanOneThousandEdgesAreChecked)
{
    shapes::Points corners;
    for (int i = 0; i < 2000; ++i)
        corners.push_back(shapes::Point(1e5 + (i % 2) * 100, 0).Rotated(2 * shapes::kPi * i / 2000));
    EXPECT_TRUE(polygon({corners})->IsValid(0x101F, nullptr, nullptr));
    std::swap(corners[500], corners[502]);
    EXPECT_FALSE(polygon({corners})->IsValid(0x8, nullptr, nullptr));
}

TEST(PolygonValidityMaskTest, combOfTwoThousandLongTeethIsCheckedInBothDirections)
{
    for (const double angle : {0.0, shapes::kPi / 2}) {
        shapes::Points corners;
        for (int tooth = 0; tooth < 1000; ++tooth) {
            const double y = 20.0 * tooth;
            corners.insert(corners.end(), {{0, y}, {1e5, y}, {1e5, y + 5}, {0, y + 5}});
        }
        corners.push_back({-10, 19985});
        corners.push_back({-10, 0});
        for (shapes::Point &corner : corners)
            corner = corner.Rotated(angle);
        EXPECT_TRUE(polygon({corners})->IsValid(0x101F, nullptr, nullptr));
        corners.back() = shapes::Point(10, 0).Rotated(angle);
        EXPECT_FALSE(polygon({corners})->IsValid(0x8, nullptr, nullptr));
    }
}

TEST(PolygonValidityMaskTest, emptyCurveMakesItsLoopEmpty)
{
    const auto shape = shapes::rectangle(0, 0, 10, 10);
    shape->GetCurve(0)->SetStartT(20);
    EXPECT_FALSE(shape->IsValid(0x1, nullptr, nullptr));
}

TEST(PolygonValidityMaskTest, movedTenKilometresAwayAShapeStaysValid)
{
    const auto shape = polygon({box(0, 0, 10, 10), box(2, 2, 2, 2)});
    shape->Translate({1e7, -1e7});
    shape->Rotate({0, 0}, 0.3);
    EXPECT_TRUE(shape->IsValid(0x101F, nullptr, nullptr));
}

} // namespace
