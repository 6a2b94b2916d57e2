#include "cli/BeamComparison.h"

#include "cli/Beams.h"
#include "cli/FloorLookup.h"
#include "embedded/ExchangeDocuments.h"

#include <QJsonArray>

using exchangetest::kSmallBuilding;
using exchangetest::projectOf;
using namespace orvcad;

namespace {

TEST(BeamComparisonTest, sameBeamsHaveNoDeviations)
{
    const auto expected = projectOf(kSmallBuilding);
    const auto found = projectOf(kSmallBuilding);
    const BeamComparison comparison = compareBeams(*expected, *found, "Level 1");
    EXPECT_TRUE(comparison.isSame());
    EXPECT_EQ(comparison.compared, 2); // segments
    EXPECT_EQ(comparison.text(),
              "Compared with the original: 2 segments of beams, the payload written again is the same");
    EXPECT_EQ(comparison.toJson(), (QJsonObject{{"compared", 2}, {"deviations", QJsonArray()}}));
}

TEST(BeamComparisonTest, beamThatIsLostIsNamedWithItsPlace)
{
    const auto expected = projectOf(kSmallBuilding);
    const auto found = projectOf(kSmallBuilding);
    removeBeams(*found, requireFloor(*found, requireRegion(*found, "House"), "Level 1"));
    const BeamComparison comparison = compareBeams(*expected, *found, "1");
    EXPECT_FALSE(comparison.isSame());
    EXPECT_EQ(comparison.deviations, QStringList{"Beam[0] (KL-1)"});
    EXPECT_EQ(comparison.text(), "Compared with the original: 2 segments of beams, the payload written again DIFFERS\n"
                                 "  Beam[0] (KL-1)");
}

TEST(BeamComparisonTest, beamThatIsAddedOrChangedIsNamed)
{
    const auto expected = projectOf(kSmallBuilding);
    const auto found = projectOf(exchangetest::smallBuildingWith(
        "regions[0].floors[0].elements[2].drawObjects[1].shape.axis", "\"LINESTRING(5000 0, 8000 0)\""));
    EXPECT_EQ(compareBeams(*expected, *found, "1").deviations, QStringList{"Beam[0] (KL-1)"});
    removeBeams(*expected, requireFloor(*expected, requireRegion(*expected, "House"), "1"));
    const BeamComparison added = compareBeams(*expected, *found, "1");
    EXPECT_EQ(added.compared, 0);
    EXPECT_EQ(added.deviations, QStringList{"Beam[0] (KL-1)"});
}

} // namespace
