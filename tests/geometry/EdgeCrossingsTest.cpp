#include "platform/geometry/EdgeCrossings.h"

#include "geometry/KernelShapes.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Loops = std::vector<vks::CRefPtr<vks::CLoop>>;

constexpr double kTolerance = 1e-6;

Loops loopsOf(const char *text)
{
    const auto shape = vks::CPolygon::LoadFromString(text);
    Loops loops;
    for (int i = 0; shape && i < shape->LoopCount(); ++i)
        loops.emplace_back(shape->GetLoop(i));
    return loops;
}

TEST(EdgeCrossingsTest, neighboursMayMeetInTheirCornerAtAnyAngle)
{
    EXPECT_FALSE(edgesCross(loopsOf("POLYGON((0 0, 100 0, 0 0.01, 0 0))"), kTolerance));
    EXPECT_FALSE(edgesCross(loopsOf("POLYGON((0 0, 50 0, 100 0, 100 50, 0 0))"), kTolerance));
}

TEST(EdgeCrossingsTest, edgesThatAreNoNeighboursMayNotMeet)
{
    EXPECT_TRUE(edgesCross(loopsOf("POLYGON((0 0, 10 10, 10 0, 0 10, 0 0))"), kTolerance));
    EXPECT_TRUE(edgesCross(loopsOf("POLYGON((0 0, 10 0, 10 10, 5 0, 0 10, 0 0))"), kTolerance));
    EXPECT_FALSE(edgesCross(loopsOf("POLYGON((0 0, 10 0, 10 10, 5 0.001, 0 10, 0 0))"), kTolerance));
}

TEST(EdgeCrossingsTest, edgesNearerThanTheToleranceMeet)
{
    const auto loops = loopsOf("POLYGON((0 0, 10 0, 10 10, 5 0.001, 0 10, 0 0))");
    EXPECT_TRUE(edgesCross(loops, 0.002));
}

TEST(EdgeCrossingsTest, arcMayTouchItsTangentNeighbourAtTheCornerOnly)
{
    EXPECT_FALSE(
        edgesCross(loopsOf("CURVEPOLYGON(COMPOUNDCURVE((0 0, 10 0), CIRCULARSTRING(10 0, 15 5, 10 10), (10 10, 0 0)))"),
                   kTolerance));
    EXPECT_TRUE(
        edgesCross(loopsOf("CURVEPOLYGON(COMPOUNDCURVE((0 0, 10 0), CIRCULARSTRING(10 0, 7 3, 4 0), (4 0, 4 9, 0 0)))"),
                   kTolerance));
}

TEST(EdgeCrossingsTest, arcsOfOneCircleMayFollowButNotCoverEachOther)
{
    EXPECT_FALSE(edgesCross(loopsOf("CURVEPOLYGON(COMPOUNDCURVE(CIRCULARSTRING(10 0, 0 10, -10 0), "
                                    "CIRCULARSTRING(-10 0, 0 -10, 10 0)))"),
                            kTolerance));
    EXPECT_TRUE(edgesCross(loopsOf("CURVEPOLYGON(COMPOUNDCURVE(CIRCULARSTRING(10 0, 0 10, -10 0), "
                                   "CIRCULARSTRING(-10 0, 0 10, 10 0)))"),
                           kTolerance));
}

TEST(EdgeCrossingsTest, loopsMayTouchInPointsAndNotPassThroughEachOther)
{
    const char *touching = "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(0 5, 4 2, 4 4, 0 5))";
    const char *crossing = "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(-1 5, 4 2, 4 4, -1 5))";
    EXPECT_FALSE(edgesCross(loopsOf(touching), kTolerance));
    EXPECT_FALSE(loopsCross(loopsOf(touching), kTolerance));
    EXPECT_TRUE(edgesCross(loopsOf(crossing), kTolerance));
    EXPECT_TRUE(loopsCross(loopsOf(crossing), kTolerance));
}

TEST(EdgeCrossingsTest, loopPassingThroughCornersOnlyCrosses)
{
    EXPECT_TRUE(
        loopsCross(loopsOf("POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(0 0, 10 10, 20 0, 0 -9, 0 0))"), kTolerance));
}

TEST(EdgeCrossingsTest, sharedStretchIsACrossingOfEdgesButNotOfLoops)
{
    const char *text = "POLYGON((0 0, 10 0, 10 10, 0 10, 0 0),(0 2, 4 2, 4 4, 0 4, 0 2))";
    EXPECT_TRUE(edgesCross(loopsOf(text), kTolerance));
    EXPECT_FALSE(loopsCross(loopsOf(text), kTolerance));
}

TEST(EdgeCrossingsTest, loopsThatCrossThemselvesOnlyDoNotCrossEachOther)
{
    EXPECT_FALSE(loopsCross(loopsOf("POLYGON((0 0, 10 10, 10 0, 0 10, 0 0),(20 0, 30 0, 30 9, 20 0))"), kTolerance));
    EXPECT_FALSE(loopsCross(loopsOf("POLYGON((0 0, 10 10, 10 0, 0 10, 0 0))"), kTolerance));
    EXPECT_FALSE(vks::loopsCross({}, kTolerance));
    EXPECT_FALSE(vks::edgesCross({}, kTolerance));
}

/** Exact for corners on a grid of whole numbers. */
class GridRing
{
public:
    explicit GridRing(const shapes::Points &corners) : m_corners(corners) {}

    bool isSimple() const
    {
        for (std::size_t i = 0; i < m_corners.size(); ++i)
            for (std::size_t j = i + 1; j < m_corners.size(); ++j)
                if (meetWrongly(i, j))
                    return false;
        return true;
    }

private:
    using Point = shapes::Point;

    Point at(std::size_t i) const { return m_corners[i % m_corners.size()]; }
    static int side(const Point &a, const Point &b, const Point &c)
    {
        const double cross = (b - a).Cross(c - a);
        return (cross > 0) - (cross < 0);
    }
    static bool isOn(const Point &p, const Point &a, const Point &b)
    {
        return side(a, b, p) == 0 && (p - a).Dot(p - b) <= 0;
    }
    static bool meet(const Point &a, const Point &b, const Point &c, const Point &d)
    {
        return (side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0) || isOn(a, c, d) ||
               isOn(b, c, d) || isOn(c, a, b) || isOn(d, a, b);
    }
    bool meetWrongly(std::size_t i, std::size_t j) const
    {
        if (j == i + 1)
            return isOn(at(j + 1), at(i), at(j)) || isOn(at(i), at(j), at(j + 1));
        if (i == 0 && j + 1 == m_corners.size())
            return isOn(at(j), at(0), at(1)) || isOn(at(1), at(j), at(0));
        return meet(at(i), at(i + 1), at(j), at(j + 1));
    }

    const shapes::Points &m_corners;
};

TEST(EdgeCrossingsTest, verdictOnRandomRingsOfAGridIsTheExactOne)
{
    std::mt19937 random(31);
    int simple = 0;
    for (int shape = 0; shape < 20000; ++shape) {
        shapes::Points corners(3 + random() % 5);
        for (shapes::Point &corner : corners)
            corner = {static_cast<double>(random() % 7), static_cast<double>(random() % 7)};
        bool doubled = false; // an edge of no length is another check's matter
        for (std::size_t i = 0; i < corners.size(); ++i)
            doubled = doubled || corners[i] == corners[(i + 1) % corners.size()];
        if (doubled)
            continue;
        const bool expected = GridRing(corners).isSimple();
        simple += expected ? 1 : 0;
        ASSERT_EQ(vks::edgesCross({shapes::loop(corners)}, kTolerance), !expected)
            << shapes::polygon({corners})->ToText();
    }
    EXPECT_GT(simple, 2000);
}

TEST(EdgeCrossingsTest, verdictOnRandomArcsIsThatOnTheirChords)
{
    std::mt19937 random(37);
    std::uniform_real_distribution<double> radius(300, 1300);
    std::uniform_real_distribution<double> bulge(-1.2, 1.2);
    int crossing = 0;
    for (int shape = 0; shape < 300; ++shape) {
        vks::CRefPtr<vks::CLoop> arcs(new vks::CLoop);
        shapes::Points chords;
        shapes::Points corners;
        for (int i = 0; i < 6; ++i)
            corners.push_back(shapes::Point(radius(random), 0).Rotated(shapes::kPi * i / 3));
        for (std::size_t i = 0; i < corners.size(); ++i) {
            auto *arc = new vks::CArc2d(corners[i], corners[(i + 1) % corners.size()], bulge(random));
            arcs->AddCurve(arc, false);
            for (int part = 0; part < 200; ++part)
                chords.push_back(arc->GetPoint(arc->Length() * part / 200));
        }
        const bool expected = vks::edgesCross({shapes::loop(chords)}, kTolerance);
        crossing += expected ? 1 : 0;
        EXPECT_EQ(vks::edgesCross({arcs}, kTolerance), expected) << arcs->ToText();
    }
    EXPECT_GT(crossing, 50);
    EXPECT_LT(crossing, 250);
}

} // namespace
