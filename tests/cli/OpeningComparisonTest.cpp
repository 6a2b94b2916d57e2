#include "cli/OpeningComparison.h"

#include "HouseFixture.h"

using namespace orvcad;

namespace {

class OpeningComparisonTest : public HouseFixture
{
protected:
    static OpeningComparison compare(const QByteArray &expected, const QByteArray &found)
    {
        return compareOpenings(*houseOf(expected), *houseOf(found));
    }
    static std::string deviations(const OpeningComparison &comparison)
    {
        return comparison.deviations.join('\n').toStdString();
    }

    const QByteArray walls = wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' + wall("Q2", "LINESTRING(0 0, 0 5000)");
    const QByteArray house = walls + ',' + doorIn("M1", "Q1", 1000, 0);
};

TEST_F(OpeningComparisonTest, openingsThatDifferInTheirIdsAloneAreTheSame)
{
    const OpeningComparison comparison = compare(house, column("K1", 0, 0) + ',' + house);
    EXPECT_TRUE(comparison.isSame()) << deviations(comparison);
    EXPECT_EQ(comparison.text(),
              "Compared with the original: 1 opening, the payload written again is the same but for ids; each in the "
              "wall it came from");
    EXPECT_EQ(comparison.toJson(),
              (QJsonObject{{"compared", 1}, {"sameDocument", true}, {"deviations", QJsonArray()}}));
}

TEST_F(OpeningComparisonTest, openingInAnotherWallIsToldThoughItsRecordIsTheSame)
{
    const OpeningComparison comparison = compare(house, walls + ',' + doorIn("M1", "Q2", 1000, 0));
    EXPECT_TRUE(comparison.sameDocument); // a reply does not name the wall
    EXPECT_FALSE(comparison.isSame());
    EXPECT_EQ(deviations(comparison), "M1 on F: in wall Q2, piece 0, was in wall Q1, piece 0");
}

TEST_F(OpeningComparisonTest, openingInNoWallIsTold)
{
    const QByteArray loose = R"~({"name": "M1", "type": 4, "properties": {"OpeningWidth": 900, "OpeningHeight": 2100},
        "drawObjects": [{"shape": {"kind": "point", "outline": null, "insertPoint": [1000, 0]}}]})~";
    EXPECT_EQ(deviations(compare(house, walls + ',' + loose)), "M1 on F: in no wall, was in wall Q1, piece 0");
}

TEST_F(OpeningComparisonTest, missingOpeningsAreToldAndTheDocumentsDiffer)
{
    const OpeningComparison comparison = compare(house, walls);
    EXPECT_FALSE(comparison.sameDocument);
    EXPECT_EQ(deviations(comparison), "0 openings where there were 1");
    EXPECT_EQ(comparison.text(),
              "Compared with the original: 1 opening, the payload written again DIFFERS; 1 deviation\n"
              "  0 openings where there were 1");
}

TEST_F(OpeningComparisonTest, openingThatMovedAlongItsWallIsAnotherDocument)
{
    const OpeningComparison comparison = compare(house, walls + ',' + doorIn("M1", "Q1", 1001, 0));
    EXPECT_FALSE(comparison.sameDocument);
    EXPECT_TRUE(comparison.deviations.isEmpty());
    EXPECT_FALSE(comparison.isSame());
}

} // namespace
