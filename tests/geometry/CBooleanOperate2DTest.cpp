#include "platform/geometry/CBooleanOperate2D.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace shapes;
using vks::CBooleanOperate2D;

namespace {

constexpr unsigned kSoundParts = vks::CPolygon::kNotEmpty | vks::CPolygon::kClosed | vks::CPolygon::kNoShortEdge |
                                 vks::CPolygon::kNoCrossing | vks::CPolygon::kHasArea;

PolygonPtr unite(const std::vector<PolygonPtr> &polygons)
{
    return CBooleanOperate2D::MultUnite({polygons.begin(), polygons.end()});
}

double area(const PolygonPtr &polygon) { return polygon ? polygon->Area() : 0.0; }

void expectSound(const PolygonPtr &polygon, double expectedArea, double tolerance)
{
    ASSERT_TRUE(polygon);
    EXPECT_TRUE(polygon->IsValid(kSoundParts, nullptr, nullptr));
    EXPECT_NEAR(polygon->Area(), expectedArea, tolerance);
}

} // namespace

TEST(CBooleanOperate2DTest, rectanglesThatOverlap)
{
    const PolygonPtr a = rectangle(0, 0, 1000, 1000);
    const PolygonPtr b = rectangle(600, 700, 1000, 1000);
    expectSound(unite({a, b}), 2e6 - 400 * 300, 1e-6);
    expectSound(CBooleanOperate2D::Intersect(a, b), 400 * 300, 1e-6);
    expectSound(CBooleanOperate2D::Subtract(a, b), 1e6 - 400 * 300, 1e-6);
}

TEST(CBooleanOperate2DTest, neighboursBecomeOneRectangle)
{
    const PolygonPtr result = unite({rectangle(0, 0, 500, 1000), rectangle(500, 0, 500, 1000)});
    expectSound(result, 1e6, 1e-6);
    EXPECT_TRUE(result->IsRectangle());
}

TEST(CBooleanOperate2DTest, outerLoopsRunLeftAndHolesRight)
{
    const PolygonPtr result = CBooleanOperate2D::Subtract(rectangle(0, 0, 1000, 1000), rectangle(400, 400, 200, 200));
    ASSERT_EQ(result->LoopCount(), 2);
    EXPECT_DOUBLE_EQ(result->GetLoop(0)->SignedArea(), 1e6);
    EXPECT_DOUBLE_EQ(result->GetLoop(1)->SignedArea(), -4e4);
}

TEST(CBooleanOperate2DTest, severalPartsAreLoopsSideBySide)
{
    const PolygonPtr cut = CBooleanOperate2D::Subtract(rectangle(0, 0, 1000, 100), rectangle(400, -50, 200, 200));
    ASSERT_EQ(cut->LoopCount(), 2);
    EXPECT_DOUBLE_EQ(cut->Area(), 80000);
    const PolygonPtr nested = unite({frame(0, 0, 1000, 100), rectangle(400, 400, 100, 100)});
    EXPECT_EQ(nested->LoopCount(), 3);
    EXPECT_DOUBLE_EQ(nested->Area(), 36e4 + 1e4);
    EXPECT_DOUBLE_EQ(CBooleanOperate2D::Intersect(nested, rectangle(0, 0, 450, 1000))->Area(), 17e4 + 5e3);
}

TEST(CBooleanOperate2DTest, emptyResultsAreNull)
{
    const PolygonPtr a = rectangle(0, 0, 100, 100);
    EXPECT_FALSE(CBooleanOperate2D::Intersect(a, rectangle(200, 0, 100, 100)));
    EXPECT_FALSE(CBooleanOperate2D::Intersect(a, rectangle(100, 0, 100, 100)));
    EXPECT_FALSE(CBooleanOperate2D::Subtract(a, a));
    EXPECT_FALSE(CBooleanOperate2D::Subtract(a, rectangle(-1, -1, 200, 200)));
    EXPECT_FALSE(unite({}));
}

TEST(CBooleanOperate2DTest, nullEmptyAndInfinitePolygonsCountAsNothing)
{
    const PolygonPtr a = rectangle(0, 0, 100, 100);
    const double inf = std::numeric_limits<double>::infinity();
    for (const PolygonPtr &nothing :
         {PolygonPtr(), PolygonPtr(new vks::CPolygon), rectangle(0, 0, inf, 1), rectangle(std::nan(""), 0, 1, 1),
          rectangle(0, 0, 0, 100), polygon({{{0, 0}, {50, 0}, {50, std::nan("")}, {0, 50}}}),
          circle({0, 0}, std::nan("")), circle({0, inf}, 5), rectangle(-1e308, 0, inf, 5)}) {
        EXPECT_DOUBLE_EQ(area(unite({a, nothing})), 10000);
        EXPECT_DOUBLE_EQ(area(CBooleanOperate2D::Subtract(a, nothing)), 10000);
        EXPECT_FALSE(CBooleanOperate2D::Subtract(nothing, a));
        EXPECT_FALSE(CBooleanOperate2D::Intersect(a, nothing));
        EXPECT_FALSE(unite({nothing}));
    }
}

TEST(CBooleanOperate2DTest, hugeCoordinatesDoNotCrash)
{
    const PolygonPtr huge = rectangle(-1e300, -1e300, 2e300, 2e300);
    CBooleanOperate2D::Intersect(huge, rectangle(0, 0, 100, 100));
    CBooleanOperate2D::Subtract(huge, circle({0, 0}, 1e200));
    unite({huge, rectangle(1e17, 0, 1e17, 1e17)});
    SUCCEED();
}

TEST(CBooleanOperate2DTest, arcsLeaveTheirChordsByAHundredthAtMost)
{
    const PolygonPtr disc = circle({0, 0}, 5000);
    const PolygonPtr chords = unite({disc});
    expectSound(chords, disc->Area(), 0.01 * disc->Perimeter());
    for (int i = 0; i < chords->GetLoop(0)->CurveCount(); ++i) {
        const vks::CCurve2d *chord = chords->GetCurve(i);
        EXPECT_EQ(chord->Type(), vks::CCurve2d::kLine);
        EXPECT_GE(chord->MidPoint().Length(), 5000 - 0.0115); // and what rounding to 1e-3 moves
    }
}

TEST(CBooleanOperate2DTest, commonArcsCancelWhicheverWayTheyRun)
{
    const PolygonPtr disc = circle({123.4, -56.7}, 2345.6);
    for (const double cut : {0.3, 1.0, 2.5, 4.4}) {
        const PolygonPtr left = discSegment({123.4, -56.7}, 2345.6, 0.1, 0.1 + cut);
        const PolygonPtr right = discSegment({123.4, -56.7}, 2345.6, 0.1 + cut, 0.1 + 2 * kPi);
        right->GetLoop(0)->Reverse();
        const PolygonPtr whole = unite({left, right});
        expectSound(whole, disc->Area(), 0.01 * disc->Perimeter());
        EXPECT_EQ(whole->LoopCount(), 1);
        EXPECT_EQ(CBooleanOperate2D::Subtract(disc, whole).get(), nullptr);
        const PolygonPtr rest = CBooleanOperate2D::Subtract(disc, left);
        ASSERT_TRUE(rest);
        EXPECT_EQ(rest->LoopCount(), 1);
        EXPECT_NEAR(rest->Area(), right->Area(), 0.01 * disc->Perimeter());
    }
}

TEST(CBooleanOperate2DTest, discInItsCollarFillsIt)
{
    const PolygonPtr collar = rectangle(-200, -200, 400, 400);
    auto *hole = new vks::CLoop;
    hole->AddCurve(new vks::CArc2d({0, 0}, 150.0, 1.0, 1.0 - 2 * kPi), false);
    collar->AddLoop(hole, true);
    const PolygonPtr filled = unite({collar, circle({0, 0}, 150)});
    expectSound(filled, 160000, 1e-3);
    EXPECT_EQ(filled->LoopCount(), 1);
}

TEST(CBooleanOperate2DTest, polygonsThatCrossThemselvesAreRepaired)
{
    const PolygonPtr bowTie = polygon({{{0, 0}, {1000, 1000}, {1000, 0}, {0, 1000}}});
    expectSound(unite({bowTie}), 500000, 1e-3);
    EXPECT_NEAR(area(CBooleanOperate2D::Intersect(bowTie, rectangle(0, 0, 500, 1000))), 250000, 1e-3);
    const PolygonPtr twice = polygon({box(0, 0, 1000, 1000), box(500, 0, 1000, 1000)});
    EXPECT_NEAR(area(unite({twice})), 1e6, 1e-3); // even-odd: the common half is out
    const PolygonPtr spiked = polygon({{{0, 0}, {1000, 0}, {2000, 0}, {1000, 0}, {1000, 1000}, {0, 1000}}});
    expectSound(unite({spiked}), 1e6, 1e-3);
}

TEST(CBooleanOperate2DTest, holesThatTouchTheEdgeStay)
{
    const PolygonPtr notched = polygon({box(0, 0, 1000, 1000), box(0, 400, 200, 200)});
    expectSound(unite({notched}), 1e6 - 4e4, 1e-3);
    const PolygonPtr atCorner = polygon({box(0, 0, 1000, 1000), {{0, 500}, {300, 400}, {300, 600}}});
    EXPECT_NEAR(area(unite({atCorner})), 1e6 - 3e4, 1e-3);
}

TEST(CBooleanOperate2DTest, nearlyCommonEdgesLeaveNoSlivers)
{
    for (const double gap : {1e-9, 1e-6, 3e-4, -1e-9, -3e-4}) {
        const PolygonPtr a = rectangle(0, 0, 1000, 1000);
        const PolygonPtr b = rectangle(1000 + gap, 0, 1000, 1000);
        const PolygonPtr whole = unite({a, b});
        ASSERT_EQ(whole->LoopCount(), 1) << gap;
        EXPECT_NEAR(whole->Area(), 2e6, 1.0);
        EXPECT_FALSE(CBooleanOperate2D::Intersect(a, b)) << gap;
    }
}

TEST(CBooleanOperate2DTest, manyPolygonsAtOnce)
{
    std::vector<PolygonPtr> tiles;
    for (int i = 0; i < 20; ++i)
        for (int j = 0; j < 20; ++j)
            if (i != 10 || j != 10)
                tiles.push_back(turned(*rectangle(i * 100, j * 100, 100, 100), 0.37));
    const PolygonPtr floor = unite(tiles);
    expectSound(floor, 399 * 1e4, 20);
    EXPECT_EQ(floor->LoopCount(), 2);
}

TEST(CBooleanOperate2DTest, inputStaysAsItIs)
{
    const PolygonPtr a = circle({0, 0}, 100);
    const PolygonPtr b = rectangle(0, 0, 100, 100);
    const std::string textA = a->ToText();
    const std::string textB = b->ToText();
    unite({a, b});
    CBooleanOperate2D::Subtract(a, b);
    EXPECT_EQ(a->ToText(), textA);
    EXPECT_EQ(b->ToText(), textB);
}

namespace {

/** A star about a point: no edge crosses another. */
PolygonPtr star(std::mt19937 &random, const Point &centre)
{
    std::uniform_real_distribution<double> radius(200, 1500);
    std::uniform_int_distribution<int> count(3, 14);
    const int corners = count(random);
    Points points;
    for (int i = 0; i < corners; ++i)
        points.push_back(centre + Point(radius(random), 0).Rotated(2 * kPi * i / corners));
    return polygon({points});
}

/** Areas of the parts add up to those of the whole, within 1e-3 mm of all boundaries. */
void expectAreasToAddUp(const PolygonPtr &a, const PolygonPtr &b, double slack)
{
    const PolygonPtr both = unite({a, b});
    const PolygonPtr common = CBooleanOperate2D::Intersect(a, b);
    const PolygonPtr onlyA = CBooleanOperate2D::Subtract(a, b);
    const PolygonPtr onlyB = CBooleanOperate2D::Subtract(b, a);
    for (const PolygonPtr &result : {both, common, onlyA, onlyB})
        if (result) {
            EXPECT_TRUE(result->IsValid(kSoundParts, nullptr, nullptr)) << result->ToText();
        }
    EXPECT_NEAR(area(both) + area(common), a->Area() + b->Area(), slack);
    EXPECT_NEAR(area(onlyA) + area(common), a->Area(), slack);
    EXPECT_NEAR(area(onlyB) + area(common), b->Area(), slack);
}

} // namespace

TEST(CBooleanOperate2DTest, areasAddUpForRandomPolygonsFarAway)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> shift(-1500, 1500);
    for (int i = 0; i < 400; ++i) {
        const Point place = i % 2 ? Point(1e7, -1e7) : Point();
        const PolygonPtr a = star(random, place);
        const PolygonPtr b = star(random, place + Point(shift(random), shift(random)));
        SCOPED_TRACE(i);
        expectAreasToAddUp(a, b, 1e-3 * (a->Perimeter() + b->Perimeter()));
    }
}

TEST(CBooleanOperate2DTest, nearlySharedEdgesInThousandsOfCases)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> turn(0, 2 * kPi);
    std::uniform_real_distribution<double> size(50, 5000);
    std::uniform_real_distribution<double> unit(-1, 1);
    const double scales[] = {0.0, 1e-9, 1e-7, 1e-5, 1e-4, 1e-3, 5e-3};
    for (int i = 0; i < 3000; ++i) {
        const double noise = scales[i % 7];
        const double angle = turn(random);
        const double width = size(random);
        const double height = size(random);
        const auto near = [&](double x, double y) {
            return Point(x + unit(random) * noise, y + unit(random) * noise).Rotated(angle);
        };
        const double part = i % 3 ? 0.0 : 0.4; // whole edges, or part of one
        const PolygonPtr a = polygon({{near(0, 0), near(width, 0), near(width, height), near(0, height)}});
        const PolygonPtr b = polygon({{near(width, part * height), near(2 * width, part * height),
                                       near(2 * width, height), near(width, height)}});
        SCOPED_TRACE(i);
        expectAreasToAddUp(a, b, 1e-3 * (a->Perimeter() + b->Perimeter()));
        if (noise <= 1e-4) {
            EXPECT_EQ(unite({a, b})->LoopCount(), 1);
            EXPECT_FALSE(CBooleanOperate2D::Intersect(a, b));
        }
    }
}
