#include "cli/WallComparison.h"

#include "HouseFixture.h"
#include "cli/WallKind.h"

using namespace orvcad;

namespace {

class WallComparisonTest : public HouseFixture
{
protected:
    /** Compares the brick walls of two houses. */
    static WallComparison compare(const QByteArray &expected, const QByteArray &found)
    {
        return compareWalls(*houseOf(expected), *houseOf(found), wallKindOf("brick"), "F");
    }
    static std::string deviations(const WallComparison &comparison)
    {
        return comparison.deviations.join('\n').toStdString();
    }

    const QByteArray q1 = wall("Q1", "LINESTRING(0 0, 5000 0)");
    const QByteArray q2 = wall("Q2", "LINESTRING(0 900, 5000 900)");
    const QByteArray force = wall("W1", "LINESTRING(0 1800, 5000 1800)", 0);
};

TEST_F(WallComparisonTest, wallsInAnotherOrderAndWithOtherIdsAreTheSame)
{
    const WallComparison comparison = compare(q1 + ',' + q2, column("K1", 0, 0) + ',' + q2 + ',' + q1);
    EXPECT_TRUE(comparison.isSame()) << deviations(comparison);
    EXPECT_EQ(comparison.compared, 2);
    EXPECT_EQ(comparison.text(),
              "Compared with the original: 2 pieces of brick walls, the reply written again is the same but for ids");
    EXPECT_EQ(comparison.toJson(), (QJsonObject{{"kind", "brick"}, {"compared", 2}, {"deviations", QJsonArray()}}));
}

TEST_F(WallComparisonTest, wallsOfTheOtherKindAreNotCompared) { EXPECT_TRUE(compare(q1, q1 + ',' + force).isSame()); }

TEST_F(WallComparisonTest, wallThatIsGoneAndOneThatCameAreTold)
{
    const WallComparison comparison = compare(q1, q2);
    EXPECT_FALSE(comparison.isSame());
    EXPECT_EQ(deviations(comparison), "Q1 on floor 1 of House\nQ2 on floor 1 of House, which the original lacks");
    EXPECT_EQ(comparison.text(), "Compared with the original: 1 piece of brick walls, the reply written again DIFFERS\n"
                                 "  Q1 on floor 1 of House\n  Q2 on floor 1 of House, which the original lacks");
}

TEST_F(WallComparisonTest, pieceThatMovedIsTold)
{
    EXPECT_EQ(deviations(compare(q1, wall("Q1", "LINESTRING(0 1, 5000 1)"))), "Q1 on floor 1 of House");
}

} // namespace
