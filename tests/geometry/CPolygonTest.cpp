#include "platform/geometry/CPolygon.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {

using shapes::box;
using shapes::kPi;
using shapes::polygon;
using vks::CPolygon;
using Vec = vks::CVec2<double>;

TEST(CPolygonTest, holesAreTakenOff)
{
    const auto holed = polygon({box(0, 0, 10, 10), box(2, 2, 2, 2)});
    EXPECT_EQ(holed->LoopCount(), 2);
    EXPECT_EQ(holed->Area(), 96);
    EXPECT_EQ(holed->Perimeter(), 48);
    EXPECT_NEAR(holed->Barycentre().x, (5 * 100 - 3 * 4) / 96.0, 1e-12);
    EXPECT_EQ(holed->Locate({3, 3}, 0), -1);
    EXPECT_EQ(holed->Locate({2, 3}, 0), 0);
    EXPECT_EQ(holed->Locate({1, 1}, 0), 1);
    EXPECT_EQ(holed->Locate({11, 1}, 0), -1);
}

TEST(CPolygonTest, directionOfALoopMeansNothing)
{
    const auto holed = polygon({box(0, 0, 10, 10), box(2, 2, 2, 2)});
    holed->GetLoop(0)->Reverse();
    EXPECT_EQ(holed->Area(), 96);
    holed->GetLoop(1)->Reverse();
    EXPECT_EQ(holed->Area(), 96);
}

TEST(CPolygonTest, areasApartAddUpAndIslandsInHolesCount)
{
    EXPECT_EQ(polygon({box(0, 0, 1, 1), box(5, 5, 2, 2)})->Area(), 5);
    EXPECT_EQ(polygon({box(0, 0, 10, 10), box(1, 1, 8, 8), box(2, 2, 1, 1)})->Area(), 100 - 64 + 1);
}

TEST(CPolygonTest, holeThatTouchesTheOuterLoopInACornerIsAHole)
{
    const auto holed = CPolygon::LoadFromString("POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(0 5, 4 2, 4 4, 0 5))");
    EXPECT_EQ(holed->Area(), 100 - 4);
}

TEST(CPolygonTest, holeAsLargeAsTheOuterLoopLeavesNothing)
{
    EXPECT_EQ(polygon({box(0, 0, 10, 10), box(0, 0, 10, 10)})->Area(), 0);
}

TEST(CPolygonTest, toleranceThatIsNoNumberMakesNoRectangle)
{
    EXPECT_FALSE(shapes::rectangle(0, 0, 1, 1)->IsRectangle(std::nan("")));
}

TEST(CPolygonTest, curvesAreCountedThroughAllLoops)
{
    const auto holed = polygon({box(0, 0, 10, 10), box(2, 2, 2, 2)});
    EXPECT_EQ(holed->GetCurve(3), holed->GetLoop(0)->GetCurve(3));
    EXPECT_EQ(holed->GetCurve(4), holed->GetLoop(1)->GetCurve(0));
    EXPECT_EQ(holed->GetCurve(8), nullptr);
    EXPECT_EQ(holed->GetCurve(-1), nullptr);
    EXPECT_EQ(holed->GetLoop(2), nullptr);
    ASSERT_EQ(holed->Loops().size(), 2U);
    EXPECT_EQ(holed->Loops()[1].get(), holed->GetLoop(1));
    std::vector<vks::CCurve2d *> curves(1, nullptr);
    holed->GetCurves(curves);
    EXPECT_EQ(curves.size(), 8U);
}

TEST(CPolygonTest, loopIsTakenOverOrCopied)
{
    CPolygon taken;
    auto *loop = shapes::loop(box(0, 0, 1, 1));
    taken.AddLoop(loop, true);
    EXPECT_EQ(taken.GetLoop(0), loop);
    CPolygon copied;
    copied.AddLoop(loop, false);
    EXPECT_NE(copied.GetLoop(0), loop);
    EXPECT_EQ(copied.Area(), 1);
    copied.AddLoop(nullptr, true);
    EXPECT_EQ(copied.LoopCount(), 1);
}

TEST(CPolygonTest, oneFullCircleIsACircle)
{
    EXPECT_TRUE(shapes::circle({0, 0}, 5)->IsCircle());
    EXPECT_FALSE(shapes::rectangle(0, 0, 5, 5)->IsCircle());
    auto ring = shapes::circle({0, 0}, 5);
    ring->AddLoop(shapes::circleLoop({0, 0}, 2), true);
    EXPECT_FALSE(ring->IsCircle());
    EXPECT_NEAR(ring->Area(), 21 * kPi, 1e-9);
}

TEST(CPolygonTest, fourStraightSidesAlongTheAxesAreARectangle)
{
    const auto rectangle = shapes::rectangle(1, 2, 30, 40);
    EXPECT_TRUE(rectangle->IsRectangle());
    rectangle->GetLoop(0)->Reverse();
    EXPECT_TRUE(rectangle->IsRectangle());
    rectangle->Rotate({0, 0}, 0.1);
    EXPECT_FALSE(rectangle->IsRectangle());
    EXPECT_TRUE(rectangle->IsRectangle(0.11));
}

TEST(CPolygonTest, otherShapesAreNoRectangles)
{
    EXPECT_FALSE(CPolygon().IsRectangle());
    EXPECT_FALSE(shapes::circle({0, 0}, 1)->IsRectangle());
    EXPECT_FALSE(polygon({{{0, 0}, {10, 0}, {5, 5}}})->IsRectangle());
    EXPECT_FALSE(polygon({box(0, 0, 9, 9), box(1, 1, 1, 1)})->IsRectangle());
    EXPECT_FALSE(polygon({{{0, 0}, {5, 0}, {10, 0}, {10, 10}, {0, 10}}})->IsRectangle());
    const auto bulged =
        CPolygon::LoadFromString("CURVEPOLYGON(COMPOUNDCURVE((0 0, 9 0, 9 9, 0 9), CIRCULARSTRING(0 9, -1 4.5, 0 0)))");
    EXPECT_FALSE(bulged->IsRectangle());
    EXPECT_FALSE(bulged->IsRectangle());
    EXPECT_FALSE(CPolygon::LoadFromString("POLYGON((0 0, 9 0, 9 9, 0 9, 0 1))")->IsRectangle()) << "open";
}

TEST(CPolygonTest, loopOutOfRangeIsNull)
{
    const auto holed = polygon({box(0, 0, 9, 9), box(1, 1, 1, 1)});
    EXPECT_EQ(holed->GetLoop(-1), nullptr);
    EXPECT_EQ(holed->GetLoop(2), nullptr);
    EXPECT_NE(holed->GetLoop(1), nullptr);
}

TEST(CPolygonTest, emptyPolygonHasNoAreaNoBoxAndTheOrigin)
{
    const CPolygon empty;
    EXPECT_EQ(empty.Area(), 0);
    EXPECT_FALSE(empty.Box().IsValid());
    EXPECT_EQ(empty.Barycentre(), Vec(0, 0));
    EXPECT_EQ(empty.Locate({0, 0}, 1), -1);
    EXPECT_FALSE(empty.IsCircle());
}

TEST(CPolygonTest, movesTurnsAndMirrorsAllLoops)
{
    const auto holed = polygon({box(0, 0, 10, 10), box(2, 2, 2, 2)});
    holed->Translate({5, 0});
    holed->MirrorX();
    EXPECT_EQ(holed->Box().minPt, Vec(-15, 0));
    EXPECT_EQ(holed->Locate({-8, 3}, 0), -1);
    holed->Rotate({0, 0}, kPi / 2);
    EXPECT_NEAR(holed->Area(), 96, 1e-9);
}

TEST(CPolygonTest, asStringIsTheTextInABufferOfTheCallers)
{
    char *text = shapes::rectangle(0, 0, 1, 2)->AsString();
    EXPECT_STREQ(text, "POLYGON((0 0, 1 0, 1 2, 0 2, 0 0))");
    std::free(text);
}

TEST(CPolygonTest, loadFromStringTakesPolygonsOnly)
{
    EXPECT_EQ(CPolygon::LoadFromString(nullptr), nullptr);
    EXPECT_EQ(CPolygon::LoadFromString(""), nullptr);
    EXPECT_EQ(CPolygon::LoadFromString("LINESTRING(0 0, 1 1)"), nullptr);
    ASSERT_TRUE(CPolygon::LoadFromString("POLYGON((0 0, 1 0, 1 2, 0 0))"));
}

TEST(CPolygonTest, cloneIsIndependent)
{
    const auto original = shapes::rectangle(0, 0, 1, 2);
    const auto copy = original->Clone();
    original->Translate({9, 9});
    EXPECT_EQ(copy->Box().minPt, Vec(0, 0));
}

} // namespace
