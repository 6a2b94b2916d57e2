#include "cli/PlanLabels.h"
#include "platform/geometry/CLine2d.h"

#include <gtest/gtest.h>

#include <cmath>

using orvcad::PlanLabels;
using Polygon = vks::CRefPtr<vks::CPolygon>;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kClose = 1e-6; // mm

Polygon polygon(const char *text)
{
    Polygon area = vks::CPolygon::LoadFromString(text);
    EXPECT_TRUE(area) << text;
    return area;
}

Polygon rectangle(double width, double height, double angle = 0.0)
{
    Polygon area = polygon(QStringLiteral("POLYGON((0 0, %1 0, %1 %2, 0 %2, 0 0))").arg(width).arg(height).toUtf8());
    area->Rotate({0, 0}, angle);
    return area;
}

/** Names 100 mm high. */
class PlanLabelsTest : public ::testing::Test
{
protected:
    PlanLabels labels{100};
};

TEST_F(PlanLabelsTest, nameStandsInTheMiddleOfAWideOutline)
{
    const Polygon area = rectangle(4000, 1000);
    const auto label = labels.placeInside(*area, "Q1");
    ASSERT_TRUE(label);
    EXPECT_NEAR(label->angle, 0, kClose);
    EXPECT_NEAR(label->middle.x, 2000, kClose);
    EXPECT_NEAR(label->middle.y, 450, kClose); // the baseline half a letter below the middle
}

TEST_F(PlanLabelsTest, nameThatIsLongerThanTheOutlineHasNoRoom)
{
    EXPECT_FALSE(labels.placeInside(*rectangle(300, 200), "Q-200-long"));
    EXPECT_TRUE(labels.placeInside(*rectangle(3000, 200), "Q-200-long"));
}

TEST_F(PlanLabelsTest, nameThatIsHigherThanTheOutlineHasNoRoom)
{
    EXPECT_FALSE(labels.placeInside(*rectangle(3000, 90), "Q1"));
}

TEST_F(PlanLabelsTest, chineseCharactersNeedMoreRoomThanLetters)
{
    EXPECT_TRUE(labels.placeInside(*rectangle(420, 200), "ABCD"));
    PlanLabels others{100};
    EXPECT_FALSE(others.placeInside(*rectangle(420, 200), QStringLiteral("砌体墙线")));
}

TEST_F(PlanLabelsTest, emptyNameNeedsNoPlace)
{
    EXPECT_FALSE(labels.placeInside(*rectangle(4000, 1000), ""));
    EXPECT_FALSE(labels.placeBeside(*rectangle(4000, 1000), ""));
}

TEST_F(PlanLabelsTest, nameRunsAlongTheLongerSideAndReadsFromBelowOrFromTheRight)
{
    const double turns[] = {0, 30, 90, 120, 180, 210, 270, 300};
    const double expected[] = {0, 30, 90, -60, 0, 30, 90, -60}; // degrees
    for (int i = 0; i < 8; ++i) {
        PlanLabels fresh{100};
        const auto label = fresh.placeInside(*rectangle(4000, 300, turns[i] * kPi / 180), "Q1");
        ASSERT_TRUE(label) << turns[i];
        EXPECT_NEAR(label->angle * 180 / kPi, expected[i], kClose) << turns[i];
    }
}

TEST_F(PlanLabelsTest, secondNameMovesAlongTheOutline)
{
    const Polygon area = rectangle(2000, 120);
    const auto first = labels.placeInside(*area, "Q1");
    const auto second = labels.placeInside(*area, "Q2");
    ASSERT_TRUE(first && second);
    EXPECT_NEAR(first->middle.x, 1000, kClose);
    EXPECT_GT(std::fabs(second->middle.x - first->middle.x), 170); // two letters of 85 mm
    EXPECT_NEAR(second->middle.y, first->middle.y, kClose);
}

TEST_F(PlanLabelsTest, nameHasNoRoomWhereAnotherOneFillsTheOutline)
{
    const Polygon area = rectangle(400, 120);
    EXPECT_TRUE(labels.placeInside(*area, "ABCD"));
    EXPECT_FALSE(labels.placeInside(*area, "ABCD"));
}

TEST_F(PlanLabelsTest, nameOfAWallMovesOffItsDoor)
{
    const Polygon wall = rectangle(4000, 200);
    const Polygon door = polygon("POLYGON((1500 0, 2500 0, 2500 200, 1500 200, 1500 0))");
    labels.keepFree(*door);
    const auto name = labels.placeInside(*wall, "Q-200");
    ASSERT_TRUE(name);
    EXPECT_TRUE(name->middle.x < 1500 || name->middle.x > 2500) << name->middle.x;
    const auto doorName = labels.placeInside(*door, "M1"); // what is kept free is free for its own name
    ASSERT_TRUE(doorName);
    EXPECT_NEAR(doorName->middle.x, 2000, kClose);
}

TEST_F(PlanLabelsTest, nameBesideMovesOffWhatIsKeptFree)
{
    const Polygon wall = rectangle(4000, 50);
    const Polygon column = polygon("POLYGON((1800 -400, 2200 -400, 2200 400, 1800 400, 1800 -400))");
    labels.keepFree(*column);
    const auto name = labels.placeBeside(*wall, "Q1");
    ASSERT_TRUE(name);
    EXPECT_GT(std::fabs(name->middle.x - 2000), 200 + 85);
}

TEST_F(PlanLabelsTest, nameBesideMayBeLongerThanItsOutlineByTheOverhang)
{
    const Polygon door = rectangle(500, 50);
    EXPECT_FALSE(labels.placeBeside(*door, "M-0921-L")); // eight letters: 680 mm
    EXPECT_FALSE(labels.placeBeside(*door, "M-0921-L", 1.3));
    const auto name = labels.placeBeside(*door, "M-0921-L", 1.4);
    ASSERT_TRUE(name);
    EXPECT_NEAR(name->middle.x, 250, kClose);
}

TEST_F(PlanLabelsTest, framesOverlapByTheirTrueRectangles)
{
    const PlanLabels::Frame flat{{0, 0}, {1, 0}, 100, 10};
    const double half = std::sqrt(0.5);
    EXPECT_TRUE(flat.overlaps({{0, 0}, {half, half}, 100, 10}));
    EXPECT_TRUE(flat.overlaps({{90, 0}, {half, half}, 100, 10}));
    EXPECT_FALSE(flat.overlaps({{0, 90}, {half, half}, 100, 10})); // reaches down to 12.2 mm
    EXPECT_FALSE(flat.overlaps({{0, 25}, {1, 0}, 100, 10}));
    EXPECT_FALSE(flat.overlaps({{0, 20}, {1, 0}, 100, 10})); // side by side
    EXPECT_TRUE(flat.overlaps({{0, 19}, {1, 0}, 100, 10}));
}

TEST_F(PlanLabelsTest, leaningNamesCloseToEachOtherDoNotTakeEachOthersRoom)
{
    // Two walls at 45 degrees, 300 mm apart: their names' boxes along the axes overlap, they themselves do not.
    const Polygon first = rectangle(4000, 200, kPi / 4);
    const Polygon second = rectangle(4000, 200, kPi / 4);
    second->Translate({-300, 300});
    EXPECT_TRUE(labels.placeInside(*first, "Q-200 long name"));
    EXPECT_TRUE(labels.placeInside(*second, "Q-200 long name"));
}

TEST_F(PlanLabelsTest, nameNeverLiesInAHole)
{
    const Polygon ring = polygon("POLYGON((0 0, 4000 0, 4000 4000, 0 4000, 0 0),"
                                 "(500 500, 3500 500, 3500 3500, 500 3500, 500 500))");
    const auto label = labels.placeInside(*ring, "B1");
    ASSERT_TRUE(label); // beside the hole
    EXPECT_EQ(ring->Locate(label->middle, 0.0), 1);
}

TEST_F(PlanLabelsTest, nameNeverLeavesABentOutline)
{
    // The centre of the area of this angle lies outside of it.
    const Polygon angle = polygon("POLYGON((0 0, 3000 0, 3000 200, 200 200, 200 3000, 0 3000, 0 0))");
    const auto label = labels.placeInside(*angle, "Q-200");
    ASSERT_TRUE(label);
    EXPECT_EQ(angle->Locate(label->middle, 0.0), 1);
}

TEST_F(PlanLabelsTest, nameBesideStandsAboveAThinOutlineAndBelowWhenThatIsTaken)
{
    const Polygon thin = rectangle(300, 50); // too short for two names side by side
    const auto above = labels.placeBeside(*thin, "M1");
    ASSERT_TRUE(above);
    EXPECT_GT(above->middle.y, 50);
    const auto below = labels.placeBeside(*thin, "M1");
    ASSERT_TRUE(below);
    EXPECT_LT(below->middle.y + 100, 0);
    EXPECT_FALSE(labels.placeBeside(*thin, "M1"));
}

TEST_F(PlanLabelsTest, nameBesideIsNoLongerThanTheOutline)
{
    EXPECT_FALSE(labels.placeBeside(*rectangle(300, 50), "M-0921-left"));
}

TEST_F(PlanLabelsTest, fullCircleHasRoomInItsMiddle)
{
    const auto label = labels.placeInside(*polygon("CURVEPOLYGON(CIRCULARSTRING(500 0, -500 0, 500 0))"), "KZ");
    ASSERT_TRUE(label);
    EXPECT_NEAR(label->middle.y, -50, kClose);
}

TEST_F(PlanLabelsTest, textAlongALineStandsAtItsSideAndReadsFromBelow)
{
    const vks::CLine2d bar({3000, 500}, {0, 500}); // runs to the left
    const auto text = labels.placeAlong(bar, "C8@200");
    ASSERT_TRUE(text);
    EXPECT_DOUBLE_EQ(text->middle.x, 1500);
    EXPECT_GT(text->middle.y, 500);
    EXPECT_DOUBLE_EQ(text->angle, 0.0);
    const auto next = labels.placeAlong(bar, "C8@200"); // the place is taken
    ASSERT_TRUE(next);
    EXPECT_LT(next->middle.y, 500);
}

TEST_F(PlanLabelsTest, lineThatIsTooShortOrHasNoLengthGetsNoText)
{
    EXPECT_FALSE(labels.placeAlong(vks::CLine2d({0, 0}, {300, 0}), "C8@200")); // six letters: 510 mm
    EXPECT_TRUE(labels.placeAlong(vks::CLine2d({0, 0}, {400, 0}), "C8@200", 1.5));
    EXPECT_FALSE(labels.placeAlong(vks::CLine2d({0, 0}, {0, 0}), "C8@200", 1.5));
    EXPECT_FALSE(labels.placeAlong(vks::CLine2d({0, 0}, {900, 0}), ""));
}

TEST_F(PlanLabelsTest, nothingHasAFrameOfNoSize)
{
    const PlanLabels::Frame frame = PlanLabels::frameOf(vks::CPolygon());
    EXPECT_EQ(frame.along, vks::CVec2<double>(1, 0));
    EXPECT_EQ(frame.halfLength, 0.0);
    EXPECT_EQ(frame.halfWidth, 0.0);
    EXPECT_FALSE(labels.placeInside(vks::CPolygon(), "Q1"));
}

} // namespace
