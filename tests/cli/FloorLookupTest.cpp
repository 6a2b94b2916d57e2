#include "cli/FloorLookup.h"

#include "CommandFailures.h"
#include "cli/Arguments.h"
#include "embedded/ExchangeDocuments.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXService.h"

using clitest::failureOf;
using namespace orvcad;

namespace {

constexpr char kTwoRegions[] = R"({"format": "hbx-project", "version": 1, "name": "Twins", "regions": [
    {"name": "East", "floors": [{"name": "F1", "code": "1", "bottomElev": 0, "height": 3},
                                {"name": "F2", "code": "2", "bottomElev": 3, "height": 3}]},
    {"name": "West", "floors": [{"name": "F1", "code": "1", "bottomElev": 0, "height": 4}]}]})";

class FloorLookupTest : public ::testing::Test
{
protected:
    /** "region/floor" of each, with blanks between them. */
    static std::string picked(const std::vector<IHBXFloor *> &floors)
    {
        QStringList names;
        for (IHBXFloor *floor : floors)
            names.append(floor->region()->name() + '/' + floor->name());
        return names.join(' ').toStdString();
    }
    std::string picked(const QString &region, const QString &floor) const
    {
        return picked(pickFloors(*m_twins, region, floor));
    }

    std::unique_ptr<hbx::embedded::HBXProject> m_twins = exchangetest::projectOf(kTwoRegions);
    std::unique_ptr<hbx::embedded::HBXProject> m_house = exchangetest::projectOf(exchangetest::kSmallBuilding);
};

TEST_F(FloorLookupTest, emptyNameIsTheOnlyRegionThereIs)
{
    EXPECT_EQ(requireRegion(*m_house, {}).name(), "House");
    EXPECT_EQ(failureOf([&] { requireRegion(*m_twins, {}); }),
              "no --region is given; known regions: \"East\", \"West\"");
}

TEST_F(FloorLookupTest, unknownRegionListsTheKnownOnes)
{
    EXPECT_EQ(requireRegion(*m_twins, "West").name(), "West");
    EXPECT_EQ(failureOf([&] { requireRegion(*m_twins, "North"); }),
              "no region \"North\"; known regions: \"East\", \"West\"");
    const auto empty = exchangetest::projectOf(R"({"format": "hbx-project", "version": 1, "name": "", "regions": []})");
    EXPECT_EQ(failureOf([&] { requireRegion(*empty, "North"); }), "no region \"North\"; known regions: none");
}

TEST_F(FloorLookupTest, floorIsFoundByNameOrCode)
{
    IHBXRegion &east = requireRegion(*m_twins, "East");
    EXPECT_EQ(requireFloor(*m_twins, east, "F2").name(), "F2");
    EXPECT_EQ(requireFloor(*m_twins, east, "2").name(), "F2");
    EXPECT_EQ(failureOf([&] { requireFloor(*m_twins, east, "3"); }),
              "no floor \"3\" in region \"East\"; known floors: \"F1\", \"F2\"");
}

TEST_F(FloorLookupTest, floorsArePickedOneByOneByRegionOrAll)
{
    EXPECT_EQ(picked("East", "2"), "East/F2");
    EXPECT_EQ(picked("East", {}), "East/F1 East/F2");
    EXPECT_EQ(picked({}, {}), "East/F1 East/F2 West/F1");
    EXPECT_EQ(failureOf([&] { pickFloors(*m_twins, {}, "F1"); }),
              "no --region is given; known regions: \"East\", \"West\"");
}

TEST_F(FloorLookupTest, argumentsOfAVerbPickTheSame)
{
    Arguments arguments;
    EXPECT_EQ(picked(pickFloors(*m_twins, arguments)), "East/F1 East/F2 West/F1");
    arguments.region = "West";
    arguments.floor = "1";
    EXPECT_EQ(picked(pickFloors(*m_twins, arguments)), "West/F1");
    EXPECT_EQ(picked({&pickFloor(*m_twins, arguments)}), "West/F1");
}

TEST_F(FloorLookupTest, floorOfAMemberIsFoundByItsNamesAlone)
{
    IHBXModel &model = *m_twins->service()->model();
    QString reason;
    ASSERT_NE(floorOfNames(model, "West", "F1", reason), nullptr);
    EXPECT_EQ(reason, "");
    EXPECT_EQ(floorOfNames(model, "West", "1", reason), nullptr);
    EXPECT_EQ(reason, "unknown floor \"1\" in region \"West\""); // a code is no name
    EXPECT_EQ(floorOfNames(model, "", "F1", reason), nullptr);
    EXPECT_EQ(reason, "unknown region \"\"");
}

} // namespace
