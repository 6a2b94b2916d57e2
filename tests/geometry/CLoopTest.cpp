#include "platform/geometry/CLoop.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using shapes::kPi;
using vks::CArc2d;
using vks::CLine2d;
using vks::CLoop;
using vks::CRefPtr;
using Vec = vks::CVec2<double>;

/** A rectangle of 1000 by 1000 with half a disc of radius 500 at its right side. */
CRefPtr<CLoop> stadiumEnd()
{
    CRefPtr<CLoop> loop(new CLoop);
    loop->AddCurve(new CLine2d({0, 0}, {1000, 0}), false);
    loop->AddCurve(new CArc2d(Vec(1000, 0), Vec(1000, 1000), 1.0), false);
    loop->AddCurve(new CLine2d({1000, 1000}, {0, 1000}), false);
    loop->AddCurve(new CLine2d({0, 1000}, {0, 0}), false);
    return loop;
}

TEST(CLoopTest, areaIsPositiveCounterClockwise)
{
    const CRefPtr<CLoop> loop(shapes::loop(shapes::box(5, 5, 4, 3)));
    EXPECT_EQ(loop->SignedArea(), 12);
    EXPECT_EQ(loop->Area(), 12);
    EXPECT_EQ(loop->Barycentre(), Vec(7, 6.5));
}

TEST(CLoopTest, areaAndCentroidOfArcsAreExact)
{
    const auto loop = stadiumEnd();
    const double disc = kPi * 500 * 500 / 2;
    EXPECT_NEAR(loop->Area(), 1e6 + disc, 1e-6);
    // The centroid of half a disc lies 4r / 3pi from its diameter.
    const double x = (500 * 1e6 + (1000 + 4 * 500 / (3 * kPi)) * disc) / (1e6 + disc);
    EXPECT_NEAR(loop->Barycentre().x, x, 1e-9);
    EXPECT_NEAR(loop->Barycentre().y, 500, 1e-9);
}

TEST(CLoopTest, centroidOfACircleIsItsCentre)
{
    const CRefPtr<CLoop> loop(shapes::circleLoop({100, 200}, 50));
    EXPECT_NEAR(loop->Area(), kPi * 2500, 1e-9);
    EXPECT_NEAR(loop->Barycentre().x, 100, 1e-9);
    EXPECT_NEAR(loop->Barycentre().y, 200, 1e-9);
}

TEST(CLoopTest, areaKeepsItsDigitsTenKilometresFromTheOrigin)
{
    const auto loop = stadiumEnd();
    const double area = loop->Area();
    loop->Translate({1e7, -1e7});
    EXPECT_NEAR(loop->Area(), area, area * 1e-12);
}

TEST(CLoopTest, centroidKeepsItsDigitsTenKilometresFromTheOrigin)
{
    const auto loop = stadiumEnd();
    const Vec centre = loop->Barycentre();
    loop->Translate({1e7, -1e7});
    EXPECT_NEAR(loop->Barycentre().x, centre.x + 1e7, 5e-9);
    EXPECT_NEAR(loop->Barycentre().y, centre.y - 1e7, 5e-9);
}

TEST(CLoopTest, areaOfRandomPolygonsIsThatOfTheShoelaceFormula)
{
    std::mt19937_64 random(29);
    std::uniform_real_distribution<double> place(-1e4, 1e4);
    for (int shape = 0; shape < 2000; ++shape) {
        std::vector<Vec> corners(3 + random() % 20);
        for (Vec &corner : corners)
            corner = {place(random), place(random)};
        const CRefPtr<CLoop> loop(shapes::loop(corners));
        double twice = 0;
        for (std::size_t i = 0; i < corners.size(); ++i)
            twice += corners[i].Cross(corners[(i + 1) % corners.size()]);
        EXPECT_NEAR(loop->SignedArea(), twice / 2, 1e-5);
        loop->Reverse();
        EXPECT_NEAR(loop->SignedArea(), -twice / 2, 1e-5);
        loop->Translate({1e7, 3e7}); // rounds each corner by some 2e-9 mm
        EXPECT_NEAR(loop->SignedArea(), -twice / 2, 1e-2);
    }
}

TEST(CLoopTest, segmentOfAFlatArcHasTheCentroidOfAParabolasPiece)
{
    CLoop loop;
    loop.AddCurve(new CArc2d(Vec(0, 0), Vec(1000, 0), 1e-5), false); // its middle 5e-3 mm below
    loop.AddCurve(new CLine2d({1000, 0}, {0, 0}), false);
    EXPECT_NEAR(loop.Area(), 1000 * 5e-3 * 2 / 3, 1e-9);
    EXPECT_NEAR(loop.Barycentre().x, 500, 1e-9);
    EXPECT_NEAR(loop.Barycentre().y, -5e-3 * 2 / 5, 1e-9);
}

TEST(CLoopTest, pointBesideAGapIsPlacedAsIfALineClosedIt)
{
    CLoop loop;
    loop.AddCurve(new CLine2d({0, 0}, {10, 0}), false);
    loop.AddCurve(new CLine2d({10, 10}, {0, 10}), false);
    EXPECT_EQ(loop.Locate({5, 5}, 1e-9), 1);
    EXPECT_EQ(loop.Locate({10, 5}, 1e-9), -1); // the gap itself is no boundary
    EXPECT_EQ(loop.Locate({-1, 5}, 1e-9), -1);
}

TEST(CLoopTest, gapIsClosedByALine)
{
    CLoop loop;
    loop.AddCurve(new CLine2d({0, 0}, {10, 0}), false);
    loop.AddCurve(new CLine2d({10, 10}, {0, 10}), false);
    EXPECT_EQ(loop.Area(), 100);
}

TEST(CLoopTest, loopWithoutAreaHasTheMiddleOfItsBox)
{
    CLoop loop;
    EXPECT_EQ(loop.Area(), 0);
    EXPECT_EQ(loop.Barycentre(), Vec(0, 0));
    loop.AddCurve(new CLine2d({0, 0}, {10, 4}), false);
    loop.AddCurve(new CLine2d({10, 4}, {0, 0}), false);
    EXPECT_EQ(loop.Barycentre(), Vec(5, 2));
}

struct PlaceCase
{
    Vec point;
    int place;
};
class CLoopLocateTest : public ::testing::TestWithParam<PlaceCase>
{};

TEST_P(CLoopLocateTest, pointIsInsideOnOrOutsideALoopWithAnArcInBothDirections)
{
    const auto loop = stadiumEnd();
    for (int direction = 0; direction < 2; ++direction) {
        EXPECT_EQ(loop->Locate(GetParam().point, 1e-9), GetParam().place);
        loop->Reverse();
    }
}
INSTANTIATE_TEST_SUITE_P(Places, CLoopLocateTest,
                         ::testing::Values(PlaceCase{{500, 500}, 1}, PlaceCase{{1000, 500}, 1},
                                           PlaceCase{{1499.999, 500}, 1}, PlaceCase{{1500, 500}, 0},
                                           PlaceCase{{1500.001, 500}, -1}, PlaceCase{{1400, 900}, -1},
                                           PlaceCase{{-1, 500}, -1}, PlaceCase{{0, 0}, 0}, PlaceCase{{0, 500}, 0},
                                           PlaceCase{{-1, 0}, -1}, PlaceCase{{-1, 1000}, -1},
                                           PlaceCase{{1000, 1000}, 0}, PlaceCase{{500, 0.001}, 1}));

TEST(CLoopTest, placeInLoopsOfArcsIsThatInTheirChords)
{
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> radius(700, 1300);
    std::uniform_real_distribution<double> bulge(-0.3, 0.6);
    std::uniform_real_distribution<double> place(-1600, 1600);
    constexpr int kChords = 500;
    for (int shape = 0; shape < 40; ++shape) {
        std::vector<Vec> corners;
        corners.reserve(5);
        for (int i = 0; i < 5; ++i)
            corners.push_back(Vec(radius(random), 0).Rotated(2 * kPi * i / 5));
        CLoop arcs;
        CLoop chords;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            auto *arc = new CArc2d(corners[i], corners[(i + 1) % corners.size()], bulge(random));
            arcs.AddCurve(arc, false);
            for (int part = 0; part < kChords; ++part)
                chords.AddCurve(new CLine2d(arc->GetPoint(arc->Length() * part / kChords),
                                            arc->GetPoint(arc->Length() * (part + 1) / kChords)),
                                false);
        }
        for (int i = 0; i < 50; ++i) {
            const Vec point(place(random), place(random));
            if (arcs.Locate(point, 0.05) == 0) // as near to the arcs as the chords are
                continue;
            EXPECT_EQ(arcs.Locate(point, 0), chords.Locate(point, 0));
        }
    }
}

TEST(CLoopTest, cloneIsIndependent)
{
    const auto loop = stadiumEnd();
    const auto copy = loop->Clone();
    loop->Translate({1, 0});
    EXPECT_EQ(copy->GetCurve(0)->StartPoint(), Vec(0, 0));
    EXPECT_EQ(copy->CurveCount(), 4);
}

} // namespace
