#include "cli/PlanStyle.h"

#include "platform/services/HBXElementTypeTable.h"

#include <gtest/gtest.h>

#include <set>

using namespace orvcad;

namespace {

constexpr qint64 kUnknown = 12345;

TEST(PlanStyleTest, everyElementTypeHasAPlaceOfItsOwnAndUnknownOnesLieAboveThem)
{
    std::set<int> places;
    for (const hbx::ElementTypeInfo &type : hbx::kElementTypes) {
        places.insert(planOrder(type.number));
        EXPECT_LT(planOrder(type.number), planOrder(kUnknown)) << type.number;
    }
    EXPECT_EQ(places.size(), std::size(hbx::kElementTypes));
    EXPECT_EQ(*places.begin(), 0);
}

TEST(PlanStyleTest, wallsLieOverSlabsColumnsOverWallsAndOpeningsOverAll)
{
    EXPECT_LT(planOrder(48), planOrder(19));
    EXPECT_LT(planOrder(19), planOrder(15));
    EXPECT_LT(planOrder(15), planOrder(1003));
    EXPECT_LT(planOrder(1003), planOrder(25));
    EXPECT_LT(planOrder(25), planOrder(4));
}

TEST(PlanStyleTest, openingsAndHolesAreWhiteAndOthersHaveTheirColour)
{
    EXPECT_EQ(planFill(4), "fill=\"#fff\" fill-opacity=\"1\"");
    EXPECT_EQ(planFill(24), "fill=\"#fff\" fill-opacity=\"1\"");
    EXPECT_EQ(planFill(1003), "fill=\"#cc8b5c\" fill-opacity=\"1\"");
    EXPECT_EQ(planFill(kUnknown), "fill=\"#888888\" fill-opacity=\"0.2\"");
}

TEST(PlanStyleTest, lightColoursAreDarkenedForLinesAndShades)
{
    // Of b8c4d0 the darkest part, b8, becomes 80, and the others follow: c4 becomes 88, d0 becomes 90.
    EXPECT_EQ(planStrokeColour(19), "#808890");
    EXPECT_EQ(planShade(19, 0.35), "fill=\"#808890\" fill-opacity=\"0.35\"");
    EXPECT_EQ(planStrokeColour(15), "#3366cc");
}

TEST(PlanStyleTest, whatStandsAboveTheSectionIsDashed)
{
    EXPECT_EQ(planStroke(15), "stroke=\"#3366cc\" stroke-width=\"0.13\" stroke-dasharray=\"1.6 .8\"");
    EXPECT_EQ(planStroke(25), "stroke=\"#a61e4d\" stroke-width=\"0.18\"");
}

TEST(PlanStyleTest, lettersAreWhiteOnWhatIsDarkAndFilled)
{
    EXPECT_TRUE(isDarkOnPlan(25));    // brightness 76 of 255
    EXPECT_FALSE(isDarkOnPlan(1003)); // 153
    EXPECT_FALSE(isDarkOnPlan(4));    // its colour is dark, but an opening is white
    EXPECT_FALSE(isDarkOnPlan(15));   // hardly filled
}

TEST(PlanStyleTest, namesKeepOffWhatIsCutAndOffHoles)
{
    for (const qint64 type : {0, 1, 202, 1001, 1003, 25, 26, 1002, 4, 5, 6, 7, 24})
        EXPECT_TRUE(keepsNamesOff(type)) << type;
    for (const qint64 type : {48, 19, 52, 15, 22, 23, 74})
        EXPECT_FALSE(keepsNamesOff(type)) << type;
}

TEST(PlanStyleTest, namesStandBesideWallsFootingsAndPilesButNotBesideBeams)
{
    for (const qint64 type : {1003, 4, 52, 54})
        EXPECT_TRUE(isNamedBeside(type)) << type;
    for (const qint64 type : {48, 19, 15, 24})
        EXPECT_FALSE(isNamedBeside(type)) << type;
}

} // namespace
