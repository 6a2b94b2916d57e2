#include "platform/geometry/PolygonRelation.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <random>

using namespace shapes;
using vks::PolygonPolygonPosition;

namespace {

constexpr double kFar = 1e7; // mm: 10 km

PolygonPtr bowTie(double x) { return polygon({{{x, 0}, {x + 100, 100}, {x + 100, 0}, {x, 100}}}); }

/** An L of 1000 by 1000 whose upper right quarter is missing. */
PolygonPtr angleShape() { return polygon({{{0, 0}, {1000, 0}, {1000, 500}, {500, 500}, {500, 1000}, {0, 1000}}}); }

/** A vessel of walls 100 thick around a chamber of 400 by 400 with a mouth of 10. */
PolygonPtr vessel()
{
    return polygon({{{0, 0},
                     {600, 0},
                     {600, 600},
                     {305, 600},
                     {305, 500},
                     {500, 500},
                     {500, 100},
                     {100, 100},
                     {100, 500},
                     {295, 500},
                     {295, 600},
                     {0, 600}}});
}

int mirrored(int position)
{
    static const std::map<int, int> changed{{2, 5}, {5, 2}, {3, 4}, {4, 3}};
    const auto found = changed.find(position);
    return found == changed.end() ? position : found->second;
}

struct Case
{
    const char *name;
    PolygonPtr a;
    PolygonPtr b;
    double tolerance;
    int expected;
};

std::vector<Case> straightCases()
{
    const PolygonPtr big = rectangle(0, 0, 1000, 1000);
    return {
        {"crossing", rectangle(500, 500, 1000, 1000), big, 0, 0},
        {"crossing, t>0", rectangle(500, 500, 1000, 1000), big, 15, 0},
        {"crossing, t<0", rectangle(500, 500, 1000, 1000), big, -1, 0},
        {"apart", rectangle(2000, 0, 100, 100), big, 0, 1},
        {"apart by just more than t", rectangle(1010.1, 0, 100, 100), big, 10, 1},
        {"apart, t<0", rectangle(2000, 0, 100, 100), big, -1, 1},
        {"inside", rectangle(100, 100, 100, 100), big, 0, 2},
        {"inside, t>0", rectangle(100, 100, 100, 100), big, 15, 2},
        {"inside, t<0", rectangle(100, 100, 100, 100), big, -1, 2},
        {"inside at the edge", rectangle(0, 100, 100, 100), big, 0, 3},
        {"inside within t of the edge", rectangle(10, 100, 100, 100), big, 15, 3},
        {"sticking out by t", rectangle(-15, 100, 100, 100), big, 15, 3},
        {"sticking out by more than t", rectangle(-15.1, 100, 100, 100), big, 15, 0},
        {"at the edge, t<0 never touches", rectangle(0, 100, 100, 100), big, -1, 2},
        {"sticking out by less than |t|, t<0", rectangle(-0.9, 100, 100, 100), big, -1, 2},
        {"sticking out by more than |t|, t<0", rectangle(-1.1, 100, 100, 100), big, -1, 0},
        {"holds", big, rectangle(100, 100, 100, 100), -1, 5},
        {"holds at the edge", big, rectangle(0, 100, 100, 100), 0, 4},
        {"holds at the edge, t<0", big, rectangle(0, 100, 100, 100), -1, 5},
        {"side by side", rectangle(1000, 0, 100, 100), big, 0, 6},
        {"side by side with a gap of t", rectangle(1015, 0, 100, 100), big, 15, 6},
        {"side by side, overlapping by t", rectangle(985, 0, 100, 100), big, 15, 6},
        {"overlapping by more than t", rectangle(984.9, 0, 100, 100), big, 15, 0},
        {"side by side, t<0", rectangle(1000, 0, 100, 100), big, -1, 1},
        {"overlapping by less than |t|, t<0", rectangle(999.1, 0, 100, 100), big, -1, 1},
        {"overlapping by more than |t|, t<0", rectangle(998.9, 0, 100, 100), big, -1, 0},
        {"corner to corner", rectangle(1000, 1000, 100, 100), big, 0, 6},
        {"the same", rectangle(0, 0, 1000, 1000), big, 0, 7},
        {"the same, t<0", rectangle(0, 0, 1000, 1000), big, -1, 7},
        {"the same within t", rectangle(10, -10, 1000, 1000), big, 15, 7},
        {"the same within 1e-9", rectangle(1e-9, -1e-9, 1000, 1000), big, 0, 7},
        {"shared edge within 1e-9", rectangle(1000 + 1e-9, 0, 100, 100), big, 0, 6},
        {"a gap below the resolution touches", rectangle(1000.009, 0, 100, 100), big, 0, 6},
        {"a gap above the resolution does not", rectangle(1000.011, 0, 100, 100), big, 0, 1},
    };
}

std::vector<Case> hollowCases()
{
    return {
        {"in the hole", rectangle(300, 300, 100, 100), frame(0, 0, 1000, 200), 0, 1},
        {"in the hole, t<0", rectangle(300, 300, 100, 100), frame(0, 0, 1000, 200), -1, 1},
        {"in the hole at its edge", rectangle(200, 300, 100, 100), frame(0, 0, 1000, 200), 0, 6},
        {"filling the hole", rectangle(200, 200, 600, 600), frame(0, 0, 1000, 200), 0, 6},
        {"across the rim", rectangle(100, 300, 300, 100), frame(0, 0, 1000, 200), 0, 0},
        {"covering hole and rim", frame(0, 0, 1000, 200), rectangle(0, 0, 1000, 1000), 0, 3},
        {"covering hole and rim amply", frame(0, 0, 1000, 200), rectangle(-50, -50, 1100, 1100), 0, 2},
        {"hole narrower than 2t does not count", rectangle(0, 0, 1000, 1000), frame(0, 0, 1000, 490), 15, 7},
        {"hole wider than 2t counts", rectangle(0, 0, 1000, 1000), frame(0, 0, 1000, 480), 15, 4},
        {"inside the rim", rectangle(50, 50, 100, 100), frame(0, 0, 1000, 200), 0, 2},
        {"frames of one rim", frame(0, 0, 1000, 200), frame(0, 0, 1000, 200), 0, 7},
        {"thin frame in the hole of another", frame(300, 300, 400, 10), frame(0, 0, 1000, 200), 0, 1},
        {"in the notch", rectangle(600, 600, 100, 100), angleShape(), 0, 1},
        {"across the notch", rectangle(400, 400, 300, 300), angleShape(), 0, 0},
        {"chamber behind a narrow mouth", rectangle(0, 0, 600, 600), vessel(), 15, 4},
        {"within the chamber", rectangle(200, 200, 200, 200), vessel(), 0, 1},
    };
}

std::vector<Case> roundCases()
{
    const PolygonPtr disc = circle({0, 0}, 1000);
    return {
        {"disc in its square", disc, rectangle(-1000, -1000, 2000, 2000), 0, 3},
        {"square in the disc", rectangle(-700, -700, 1400, 1400), disc, 0, 2},
        {"square with its corners out of the disc", rectangle(-708, -708, 1416, 1416), disc, 0, 0},
        {"square with its corners 1.28 out of the disc", rectangle(-708, -708, 1416, 1416), disc, 2, 3},
        {"discs tangent from outside", circle({2000, 0}, 1000), disc, 0, 6},
        {"discs tangent from inside", circle({500, 0}, 500), disc, 0, 3},
        {"discs apart", circle({2000.1, 0}, 1000), disc, 0, 1},
        {"discs crossing", circle({1000, 0}, 1000), disc, 0, 0},
        {"discs overlapping by less than |t|", circle({1999.5, 0}, 1000), disc, -1, 1},
        {"discs overlapping by more than |t|", circle({1998.5, 0}, 1000), disc, -1, 0},
        {"the same disc from two halves", discSegment({0, 0}, 1000, 0, 4), disc, 0, 3},
        {"disc beside its missing segment", discSegment({0, 0}, 1000, 0, 4), discSegment({0, 0}, 1000, 4, 2 * kPi), 0,
         6},
        {"larger disc about one centre", disc, circle({0, 0}, 1010), 0, 2},
        {"larger disc about one centre within t", disc, circle({0, 0}, 1010), 15, 7},
        {"larger disc about one centre, thin rim", disc, circle({0, 0}, 1010), -15, 7},
        {"box beside the arc but in the disc's box", rectangle(800, 800, 100, 100), disc, 0, 1},
    };
}

std::vector<Case> allCases()
{
    std::vector<Case> cases = straightCases();
    for (const std::vector<Case> &more : {hollowCases(), roundCases()})
        cases.insert(cases.end(), more.begin(), more.end());
    return cases;
}

} // namespace

TEST(PolygonRelationTest, everyRelationAsTold)
{
    for (const Case &row : allCases())
        EXPECT_EQ(PolygonPolygonPosition(row.a, row.b, row.tolerance), row.expected) << row.name;
}

TEST(PolygonRelationTest, theOtherWayRoundGivesTheMirroredRelation)
{
    for (const Case &row : allCases())
        EXPECT_EQ(PolygonPolygonPosition(row.b, row.a, row.tolerance), mirrored(row.expected)) << row.name;
}

TEST(PolygonRelationTest, tenKilometresAwayItIsTheSame)
{
    for (const Case &row : allCases()) {
        const PolygonPtr a = moved(*row.a, {kFar, -kFar});
        const PolygonPtr b = moved(*row.b, {kFar, -kFar});
        EXPECT_EQ(PolygonPolygonPosition(a, b, row.tolerance), row.expected) << row.name;
    }
}

TEST(PolygonRelationTest, turnedItIsTheSame)
{
    for (const Case &row : allCases())
        for (const double angle : {0.3, 1.9, 4.0})
            EXPECT_EQ(PolygonPolygonPosition(turned(*row.a, angle), turned(*row.b, angle), row.tolerance), row.expected)
                << row.name << " turned by " << angle;
}

TEST(PolygonRelationTest, directionOfLoopsMeansNothing)
{
    for (const Case &row : allCases()) {
        const PolygonPtr a = row.a->Clone();
        for (int i = 0; i < a->LoopCount(); ++i)
            a->GetLoop(i)->Reverse();
        EXPECT_EQ(PolygonPolygonPosition(a, row.b, row.tolerance), row.expected) << row.name;
    }
}

TEST(PolygonRelationTest, boundaryOfManyChordsRelatesAsItsCircle)
{
    Points corners;
    for (int i = 0; i < 720; ++i)
        corners.push_back(Point(1000, 0).Rotated(i * kPi / 360));
    const PolygonPtr chords = polygon({corners});
    EXPECT_EQ(PolygonPolygonPosition(chords, circle({0, 0}, 1000), 0), 7);
    EXPECT_EQ(PolygonPolygonPosition(chords, circle({1000, 0}, 1000), 0), 0);
    EXPECT_EQ(PolygonPolygonPosition(circle({0, 0}, 990), chords, 0), 2);
}

TEST(PolygonRelationTest, nothingAndUnsoundPolygonsAreInvalid)
{
    const PolygonPtr sound = rectangle(0, 0, 100, 100);
    const PolygonPtr empty(new vks::CPolygon);
    PolygonPtr open(new vks::CPolygon);
    auto *openLoop = new vks::CLoop;
    openLoop->AddCurve(new vks::CLine2d({0, 0}, {100, 0}), false);
    openLoop->AddCurve(new vks::CLine2d({100, 0}, {100, 100}), false);
    open->AddLoop(openLoop, true);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const PolygonPtr &bad : {PolygonPtr(), empty, open, bowTie(0), rectangle(nan, 0, 1, 1), rectangle(0, 0, 0, 5)})
        for (const double tolerance : {-1.0, 0.0, 1.0}) {
            EXPECT_EQ(PolygonPolygonPosition(bad, sound, tolerance), -1);
            EXPECT_EQ(PolygonPolygonPosition(sound, bad, tolerance), -1);
        }
    EXPECT_EQ(PolygonPolygonPosition(sound, sound, nan), -1);
}

TEST(PolygonRelationTest, aPolygonThatCrossesItselfIsInvalidThoughItHasAnArea)
{
    const PolygonPtr sound = rectangle(0, 0, 100, 100);
    const PolygonPtr crossing = polygon({{{0, 0}, {100, 100}, {100, 0}, {0, 50}}});
    EXPECT_EQ(PolygonPolygonPosition(crossing, sound, 0), -1);
    EXPECT_EQ(PolygonPolygonPosition(sound, crossing, 0), -1);
    EXPECT_EQ(vks::CurvePolygonPosition(vks::CRefPtr<vks::CLine2d>(new vks::CLine2d({10, 5}, {20, 5})), crossing, 0),
              -1);
}

TEST(PolygonRelationTest, polygonsOfSeveralPartsRelateAsAWhole)
{
    const PolygonPtr two = polygon({box(0, 0, 100, 100), box(300, 0, 100, 100)});
    EXPECT_EQ(PolygonPolygonPosition(two, rectangle(-50, -50, 1000, 1000), 0), 2);
    EXPECT_EQ(PolygonPolygonPosition(rectangle(310, 10, 50, 50), two, 0), 2);
    EXPECT_EQ(PolygonPolygonPosition(rectangle(110, 0, 180, 100), two, 0), 1);
    EXPECT_EQ(PolygonPolygonPosition(two, rectangle(-50, -50, 200, 200), 0), 0);
}

TEST(PolygonRelationTest, randomPairsAgreeWithTheirMirrorAndTheirMovedCopies)
{
    std::mt19937 random(20240607);
    std::uniform_int_distribution<int> place(0, 12);
    std::uniform_int_distribution<int> size(1, 8);
    const double tolerances[] = {-20.0, 0.0, 30.0};
    for (int i = 0; i < 600; ++i) {
        const auto some = [&] {
            const double x = place(random) * 100;
            const double y = place(random) * 100;
            return i % 3 == 0 ? circle({x, y}, size(random) * 50)
                              : rectangle(x, y, size(random) * 100, size(random) * 100);
        };
        const PolygonPtr a = some();
        const PolygonPtr b = i % 2 ? some() : frame(place(random) * 100, 0, 800, size(random) * 40);
        const double tolerance = tolerances[i % 3];
        const int position = PolygonPolygonPosition(a, b, tolerance);
        EXPECT_EQ(PolygonPolygonPosition(b, a, tolerance), mirrored(position)) << i;
        const PolygonPtr farA = moved(*turned(*a, 0.7), {kFar, kFar});
        const PolygonPtr farB = moved(*turned(*b, 0.7), {kFar, kFar});
        EXPECT_EQ(PolygonPolygonPosition(farA, farB, tolerance), position) << i;
    }
}

namespace {

using Line = vks::CLine2d;

int curvePosition(const Line &line, const vks::CPolygon *polygon, double tolerance = 0.0)
{
    return vks::CurvePolygonPosition(&line, polygon, tolerance);
}

} // namespace

TEST(CurvePolygonPositionTest, everyRelationAsTold)
{
    const PolygonPtr square = rectangle(0, 0, 100, 100);
    EXPECT_EQ(curvePosition({{-50, 50}, {50, 50}}, square), 0);
    EXPECT_EQ(curvePosition({{200, 50}, {300, 50}}, square), 1);
    EXPECT_EQ(curvePosition({{20, 50}, {80, 50}}, square), 2);
    EXPECT_EQ(curvePosition({{0, 50}, {80, 50}}, square), 3);
    EXPECT_EQ(curvePosition({{20, 0}, {80, 0}}, square), 4);
    EXPECT_EQ(curvePosition({{100, 50}, {200, 50}}, square), 5);
}

TEST(CurvePolygonPositionTest, partlyAlongTheBoundaryCountsAsTouching)
{
    const PolygonPtr angle = angleShape();
    EXPECT_EQ(curvePosition({{100, 500}, {900, 500}}, angle), 3);
    EXPECT_EQ(curvePosition({{900, 500}, {1500, 500}}, angle), 5);
    EXPECT_EQ(curvePosition({{100, 500}, {1500, 500}}, angle), 0);
}

TEST(CurvePolygonPositionTest, toleranceWidensTheBoundary)
{
    const PolygonPtr square = rectangle(0, 0, 100, 100);
    EXPECT_EQ(curvePosition({{20, 5}, {80, 5}}, square, 5.0), 4);
    EXPECT_EQ(curvePosition({{20, 5}, {80, 5}}, square, 4.9), 2);
    EXPECT_EQ(curvePosition({{105, 50}, {200, 50}}, square, 5.0), 5);
    EXPECT_EQ(curvePosition({{-5, 50}, {50, 50}}, square, 5.0), 3);
    EXPECT_EQ(curvePosition({{100.009, 50}, {200, 50}}, square, 0.0), 5);
    EXPECT_EQ(curvePosition({{100.011, 50}, {200, 50}}, square, 0.0), 1);
    EXPECT_EQ(curvePosition({{100.009, 50}, {200, 50}}, square, -3.0), 5);
}

TEST(CurvePolygonPositionTest, holesAreOutside)
{
    const PolygonPtr rim = frame(0, 0, 1000, 200);
    EXPECT_EQ(curvePosition({{300, 300}, {700, 700}}, rim), 1);
    EXPECT_EQ(curvePosition({{100, 100}, {900, 900}}, rim), 0);
    EXPECT_EQ(curvePosition({{200, 300}, {700, 700}}, rim), 5);
}

TEST(CurvePolygonPositionTest, arcsAreExact)
{
    const PolygonPtr disc = circle({0, 0}, 1000);
    const vks::CArc2d along({0, 0}, 1000.0, 0.2, 2.0);
    EXPECT_EQ(vks::CurvePolygonPosition(&along, disc, 0), 4);
    const vks::CArc2d inner({0, 0}, 999.9, 0.2, 2.0);
    EXPECT_EQ(vks::CurvePolygonPosition(&inner, disc, 0), 2);
    EXPECT_EQ(curvePosition({{-1000, 1000}, {1000, 1000}}, disc), 5);
    EXPECT_EQ(curvePosition({{-1000, 999}, {1000, 999}}, disc), 0);
}

TEST(CurvePolygonPositionTest, emptyCurvesAndUnsoundPolygonsAreInvalid)
{
    const PolygonPtr square = rectangle(0, 0, 100, 100);
    Line trimmed({0, 0}, {100, 0});
    trimmed.SetStartT(150);
    EXPECT_EQ(curvePosition(trimmed, square), -1);
    EXPECT_EQ(vks::CurvePolygonPosition(nullptr, square, 0), -1);
    EXPECT_EQ(curvePosition({{0, 0}, {100, 0}}, nullptr), -1);
    EXPECT_EQ(curvePosition({{0, 0}, {100, 0}}, bowTie(0)), -1);
    EXPECT_EQ(curvePosition({{0, 0}, {std::numeric_limits<double>::infinity(), 0}}, square), -1);
}

TEST(CurvePolygonPositionTest, tenKilometresAwayItIsTheSame)
{
    const PolygonPtr square = rectangle(kFar, kFar, 100, 100);
    EXPECT_EQ(curvePosition({{kFar - 50, kFar + 50}, {kFar + 50, kFar + 50}}, square), 0);
    EXPECT_EQ(curvePosition({{kFar + 20, kFar}, {kFar + 80, kFar}}, square), 4);
    EXPECT_EQ(curvePosition({{kFar, kFar + 50}, {kFar + 80, kFar + 50}}, square), 3);
}
