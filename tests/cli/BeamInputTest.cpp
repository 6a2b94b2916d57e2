#include "cli/BeamInput.h"

#include "cli/FloorLookup.h"
#include "embedded/ExchangeDocuments.h"
#include "platform/host/IHBXFloor.h"

using exchangetest::projectOf;
using orvcad::BeamInput;

namespace {

BeamInput inputOf(hbx::embedded::HBXProject &project, const QString &floor)
{
    return BeamInput(project, orvcad::requireFloor(project, orvcad::requireRegion(project, {}), floor));
}

TEST(BeamInputTest, seatsAreCountedByType)
{
    // The building file has 50 walls, 20 beams and 24 columns there.
    const auto hall = projectOf(exchangetest::building("precast-hall"));
    const BeamInput input = inputOf(*hall, "Ground floor");
    EXPECT_EQ(input.summary()["floor"], "Ground floor");
    EXPECT_EQ(input.summary()["seats"],
              QJsonValue(QJsonArray{QJsonObject{{"type", 0}, {"title", "concrete wall"}, {"count", 50}},
                                    QJsonObject{{"type", 15}, {"title", "beam"}, {"count", 20}},
                                    QJsonObject{{"type", 25}, {"title", "column"}, {"count", 24}}}));
    EXPECT_TRUE(input.text().startsWith("94 seats (50 concrete walls, 20 beams, 24 columns), "))
        << input.text().toStdString();
    EXPECT_TRUE(input.text().endsWith(" of Ground floor")) << input.text().toStdString();
}

TEST(BeamInputTest, summaryCountsWhatTheDocumentHolds)
{
    const auto hall = projectOf(exchangetest::building("precast-hall"));
    const BeamInput input = inputOf(*hall, "Ground floor");
    EXPECT_EQ(input.document()["beamSeatInfos"].toArray().size(), 94);
    EXPECT_EQ(input.summary()["axisLines"], input.document()["axisLines"].toArray().size());
    int codes = 0;
    for (const QJsonValue list : input.document()["strRawBeamCodes"].toArray())
        codes += list.toArray().size();
    EXPECT_EQ(input.summary()["beamCodes"], codes);
}

TEST(BeamInputTest, floorBecomesTheCurrentOne)
{
    const auto house = projectOf(exchangetest::kSmallBuilding);
    EXPECT_DOUBLE_EQ(inputOf(*house, "Level 1").document()["curFloorBtmElev"].toDouble(), 0.0);
    EXPECT_DOUBLE_EQ(inputOf(*house, "Level 2").document()["curFloorBtmElev"].toDouble(), 3.1);
}

TEST(BeamInputTest, floorWithoutSeatsListsNoKinds)
{
    const auto house = projectOf(exchangetest::kSmallBuilding);
    const BeamInput input = inputOf(*house, "Level 2");
    EXPECT_EQ(input.summary()["seats"], QJsonValue(QJsonArray()));
    EXPECT_TRUE(input.text().startsWith("0 seats, ")) << input.text().toStdString();
}

} // namespace
