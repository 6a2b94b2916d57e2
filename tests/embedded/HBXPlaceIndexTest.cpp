#include "embedded/EmbeddedBuilding.h"

#include <limits>
#include <random>

namespace hbx::embedded {
namespace {

/** What queries of a box and checks for sameness find by place. */
class HBXPlaceIndexTest : public EmbeddedBuilding
{
protected:
    using Box = vks::CBox2<double>;
    using Objects = QList<IHBXElementDrawObj *>;

    Objects meeting(const Box &box, double tolerance = 0.0)
    {
        Objects found{nullptr};
        drawObjs().queryDrawObjsInBox(found, floor()->id(), 23, box, tolerance);
        return found;
    }
    IHBXElementDrawObj *barFrom(const Point &start, const Point &end)
    {
        IHBXElementDrawObj *bar = placed(bars);
        as<IHBXLineShape2D>(bar)->setLine(vks::CRefPtr<vks::CLine2d>(new vks::CLine2d(start, end)));
        return bar;
    }

    IHBXElement *bars = element(23);
};

TEST_F(HBXPlaceIndexTest, aBoxMeetsWhatSharesAPointWithIt)
{
    IHBXElementDrawObj *bar = barFrom({1000, 1000}, {2000, 3000});
    EXPECT_EQ(meeting({{1500, 1500}, {1600, 1600}}), Objects{bar}); // the box counts, not the curve
    EXPECT_EQ(meeting({{2000, 3000}, {5000, 5000}}), Objects{bar}); // at a corner
    EXPECT_EQ(meeting({{-9e6, -9e6}, {9e6, 9e6}}), Objects{bar});
    EXPECT_TRUE(meeting({{2001, 3000}, {5000, 5000}}).isEmpty());
    EXPECT_EQ(meeting({{2001, 3000}, {5000, 5000}}, 1.0), Objects{bar});
}

TEST_F(HBXPlaceIndexTest, anObjectIsFoundFromEveryCellThatItReachesInto)
{
    // The lower corner lies in one cell of 4000 by 4000, the upper one in the next, on both sides of the origin.
    IHBXElementDrawObj *bar = barFrom({-100, -100}, {3800, 3800});
    for (const Point &place : {Point(-100, -100), Point(0, 0), Point(3800, 3800), Point(-50, 3000)})
        EXPECT_EQ(meeting({place, place}), Objects{bar});
}

TEST_F(HBXPlaceIndexTest, objectsOfAllSizesAreFoundByOneBox)
{
    Objects all;
    for (double length = 1.0; length < 1e13; length *= 10.0)
        all.append(barFrom({0, 0}, {length, length}));
    EXPECT_EQ(meeting({{0, 0}, {0, 0}}), all);
    EXPECT_EQ(meeting({{5e11, 5e11}, {5e11, 5e11}}), Objects{all.last()});
}

TEST_F(HBXPlaceIndexTest, movedObjectsAreFoundWhereTheyStandNow)
{
    IHBXElementDrawObj *bar = barFrom({0, 0}, {100, 0});
    const Box before({0, 0}, {100, 0});
    const Box after({50000, 0}, {50100, 0});
    EXPECT_EQ(meeting(before), Objects{bar});
    as<IHBXLineShape2D>(bar)->setLine(curveOf("LINESTRING(50000 0, 50100 0)"));
    EXPECT_TRUE(meeting(before).isEmpty());
    EXPECT_EQ(meeting(after), Objects{bar});
    as<IHBXLineShape2D>(bar)->setLine(nullptr);
    EXPECT_TRUE(meeting(after).isEmpty());
}

TEST_F(HBXPlaceIndexTest, removedObjectsAreFoundNowhereFiledOrNot)
{
    const Box place({0, 0}, {100, 0});
    barFrom({0, 0}, {100, 0})->remove(); // before any question
    IHBXElementDrawObj *filed = barFrom({0, 0}, {100, 0});
    EXPECT_EQ(meeting(place), Objects{filed});
    filed->remove();
    EXPECT_TRUE(meeting(place).isEmpty());
}

TEST_F(HBXPlaceIndexTest, emptyBoxesAndBoxesThatAreNoNumbersMeetNothing)
{
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    barFrom({0, 0}, {100, 0});
    EXPECT_TRUE(meeting(Box(), 1e9).isEmpty());
    EXPECT_TRUE(meeting({{kNan, 0}, {100, 0}}).isEmpty());
    EXPECT_TRUE(meeting({{0, 0}, {100, 0}}, kNan).isEmpty());
    EXPECT_TRUE(meeting({{0, 0}, {100, 0}}, -60.0).isEmpty()); // nothing is left of it
}

TEST_F(HBXPlaceIndexTest, aBoxWithoutBoundsMeetsAllThatStandsInIt)
{
    constexpr double kInf = std::numeric_limits<double>::infinity();
    IHBXElementDrawObj *left = barFrom({-500, 0}, {-100, 0});
    IHBXElementDrawObj *right = barFrom({100, 0}, {500, 0});
    EXPECT_EQ(meeting({{-kInf, -kInf}, {kInf, kInf}}), (Objects{left, right}));
    EXPECT_EQ(meeting({{0, -kInf}, {kInf, kInf}}), Objects{right});
    EXPECT_EQ(meeting({{0, 0}, {0, 0}}, kInf), (Objects{left, right}));
}

TEST_F(HBXPlaceIndexTest, placesBeyondTheOutermostCellsAreToldApart)
{
    IHBXElementDrawObj *far = barFrom({1e20, 0}, {1e20, 100});
    IHBXElementDrawObj *farther = barFrom({2e20, 0}, {2e20, 100});
    EXPECT_EQ(meeting({{1e20, 0}, {1e20, 0}}), Objects{far});
    EXPECT_EQ(meeting({{2e20, 0}, {2e20, 0}}), Objects{farther});
}

TEST_F(HBXPlaceIndexTest, anyBoxMeetsWhatAWalkOverAllObjectsFinds)
{
    std::mt19937 random(20240607);
    std::uniform_real_distribution<double> place(-30000.0, 30000.0);
    std::exponential_distribution<double> size(1.0 / 3000.0);
    for (int i = 0; i < 400; ++i) {
        const Point start(place(random), place(random));
        barFrom(start, start + Point(size(random), size(random)));
    }
    for (int i = 0; i < 200; ++i) {
        const Point corner(place(random), place(random));
        const Box box(corner, corner + Point(size(random), size(random)));
        Objects plain;
        drawObjs().IHBXDrawObjs::queryDrawObjsInBox(plain, floor()->id(), 23, box, 250.0);
        EXPECT_EQ(meeting(box, 250.0), plain) << "box " << i;
    }
}

} // namespace
} // namespace hbx::embedded
