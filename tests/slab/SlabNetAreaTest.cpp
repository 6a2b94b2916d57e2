#include "slab/SlabNetArea.h"

#include "slab/SlabSearchFixture.h"

#include <cmath>
#include <limits>

using namespace slabs;

namespace {

/** Net areas seen from outside: a hole is the same as another one whose net area is the same within 15 mm, and what is
 *  asked for stands clear of supports. */
class SlabNetAreaTest : public SlabSearchFixture
{
protected:
    /** A hole of a metre by a metre from the origin. */
    Model::BoardHole *hole = section<Model::BoardHole>(model, rectangle(0, 0, 1000, 1000));

    bool isNet(const shapes::PolygonPtr &area) { return finds(section<Model::BoardHole>(recognised, area)); }
};

} // namespace

TEST_F(SlabNetAreaTest, withoutSupportsIsTheOutline)
{
    EXPECT_TRUE(isNet(rectangle(0, 0, 1000, 1000)));
    EXPECT_EQ(hole->surface->HolderCount(), 1);
}

TEST_F(SlabNetAreaTest, losesTheStripOfAWallOrBeam)
{
    support<Model::Wall>(model, line({900, 0}, {900, 1000}), 200);
    EXPECT_TRUE(isNet(rectangle(0, 0, 800, 1000)));
    EXPECT_FALSE(isNet(rectangle(0, 0, 780, 1000)));
    support<Model::Beam>(model, line({0, 900}, {1000, 900}), 200);
    EXPECT_TRUE(isNet(rectangle(0, 0, 800, 800)));
}

TEST_F(SlabNetAreaTest, stripsLieAsFarToTheLeftAsTheirSupportSays)
{
    support<Model::Wall>(model, line({900, 0}, {900, 1000}), 200, 150); // upwards: 150 to the left, 50 to the right
    EXPECT_FALSE(isNet(rectangle(0, 0, 800, 1000)));
    const auto beside = shapes::polygon({shapes::box(0, 0, 750, 1000), shapes::box(950, 0, 50, 1000)});
    EXPECT_TRUE(isNet(beside));
}

TEST_F(SlabNetAreaTest, losesColumns)
{
    section<Model::Column>(model, rectangle(800, 800, 400, 400));
    EXPECT_TRUE(isNet(shapes::polygon({{{0, 0}, {1000, 0}, {1000, 800}, {800, 800}, {800, 1000}, {0, 1000}}})));
}

TEST_F(SlabNetAreaTest, losesASupportInsideTheOutline)
{
    section<Model::Column>(model, rectangle(300, 300, 400, 400));
    EXPECT_TRUE(isNet(shapes::polygon({shapes::box(0, 0, 1000, 1000), shapes::box(300, 300, 400, 400)})));
}

TEST_F(SlabNetAreaTest, overlappingSupportsAreTakenOnce)
{
    support<Model::Wall>(model, line({900, 0}, {900, 1000}), 200);
    support<Model::Beam>(model, line({850, 0}, {850, 1000}), 300);
    section<Model::Column>(model, rectangle(700, 0, 300, 300));
    EXPECT_TRUE(isNet(rectangle(0, 0, 700, 1000)));
}

TEST_F(SlabNetAreaTest, aSupportWhoseLineLiesOutsideTheBoxOfTheOutlineTakesNothing)
{
    auto *wall = support<Model::Wall>(model, line({1050, 0}, {1050, 1000}), 300); // reaches in as far as 900
    EXPECT_TRUE(isNet(rectangle(0, 0, 1000, 1000)));
    EXPECT_FALSE(isNet(rectangle(0, 0, 900, 1000)));
    wall->line = line({1002, 0}, {1002, 1000}); // as near as boxes that touch; reaches in as far as 852
    EXPECT_TRUE(isNet(rectangle(0, 0, 852, 1000)));
}

TEST_F(SlabNetAreaTest, aSupportThatHoldsTheOutlineTakesNothing)
{
    section<Model::Column>(model, rectangle(-100, -100, 1200, 1200));
    EXPECT_TRUE(isNet(rectangle(0, 0, 1000, 1000)));
}

TEST_F(SlabNetAreaTest, aSupportOfTheSameOutlineTakesNothing)
{
    section<Model::Column>(model, rectangle(0, 0, 1000, 1000));
    EXPECT_TRUE(isNet(rectangle(0, 0, 1000, 1000)));
}

TEST_F(SlabNetAreaTest, aSupportThatOverlapsByAMillimetreAtMostTakesNothing)
{
    // The wall alone: it takes the strip from 800 to 900, and the column beside it nothing.
    support<Model::Wall>(model, line({850, 0}, {850, 1000}), 100);
    section<Model::Column>(model, rectangle(999.2, 0, 400, 1000));
    EXPECT_TRUE(isNet(shapes::polygon({shapes::box(0, 0, 800, 1000), shapes::box(900, 0, 100, 1000)})));
}

TEST_F(SlabNetAreaTest, onlyBeamsWallsAndColumnsTakeArea)
{
    board(model, rectangle(800, 0, 400, 1000));
    section<Model::Raft>(model, rectangle(0, 800, 1000, 400));
    areaBar<Model::ForcedBar>(model, rectangle(0, 0, 200, 1000));
    topBar(model, line({0, 500}, {1000, 500}), 300, 300);
    EXPECT_TRUE(isNet(rectangle(0, 0, 1000, 1000)));
}

TEST_F(SlabNetAreaTest, supportsWithoutGeometryOrWidthTakeNothing)
{
    support<Model::Wall>(model, line({900, 0}, {900, 1000}), 0);
    support<Model::Wall>(model, line({900, 500}, {900, 500}), 200);
    support<Model::Beam>(model, nullptr, 200);
    section<Model::Column>(model, nullptr);
    section<Model::Column>(model, new vks::CPolygon);
    section<Model::Column>(model, shapes::polygon({{{0, 0}, {900, 900}, {900, 0}, {0, 900}}})); // crosses itself
    EXPECT_TRUE(isNet(rectangle(0, 0, 1000, 1000)));
}

TEST_F(SlabNetAreaTest, supportsThatAreNotFiniteTakeNothing)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    support<Model::Wall>(model, line({900, 0}, {900, 1000}), nan);
    support<Model::Wall>(model, line({900, nan}, {900, 1000}), 200);
    section<Model::Column>(model, rectangle(nan, 0, 100, 100));
    EXPECT_TRUE(isNet(rectangle(0, 0, 1000, 1000)));
}

TEST_F(SlabNetAreaTest, supportsThatOverlayRefusesMakeSlabsDiffer)
{
    // Farther out than overlay goes, so that nothing unites with it.
    section<Model::Column>(model, rectangle(500, 0, 4e12, 1000));
    EXPECT_FALSE(isNet(rectangle(0, 0, 1000, 1000)));
    EXPECT_FALSE(isNet(rectangle(0, 0, 490, 1000)));
}

TEST_F(SlabNetAreaTest, curvedWallsTakeTheirCurvedStrip)
{
    hole->surface = rectangle(0, 0, 700, 700);
    support<Model::Wall>(model, new vks::CArc2d({0, 0}, 900.0, 0.0, shapes::kPi / 2), 200);
    const auto within = [](double radius) { // corners so near each other that the arc leaves them by less than 1 mm
        shapes::Points corners{{0, 0}, {700, 0}};
        const double start = std::acos(700.0 / radius);
        for (int i = 0; i <= 8; ++i) {
            const double angle = start + (shapes::kPi / 2 - 2 * start) * i / 8;
            corners.push_back({radius * std::cos(angle), radius * std::sin(angle)});
        }
        corners.push_back({0, 700});
        return shapes::polygon({corners});
    };
    EXPECT_TRUE(isNet(within(800)));
    EXPECT_FALSE(isNet(within(780)));
}

TEST_F(SlabNetAreaTest, eachSlabLosesItsOwnSupports)
{
    // The second hole stands on another wall, so that nothing kept from the first one may serve it.
    support<Model::Wall>(model, line({900, 0}, {900, 1000}), 200);
    auto *second = section<Model::BoardHole>(model, rectangle(0, 500, 1000, 1000));
    support<Model::Wall>(model, line({0, 1400}, {1000, 1400}), 200);
    const auto net = shapes::polygon({{{0, 500}, {800, 500}, {800, 1000}, {1000, 1000}, {1000, 1300}, {0, 1300}}});
    EXPECT_EQ(hits(section<Model::BoardHole>(recognised, net)), Objects{second});
}
