#include "cli/PlanContents.h"

#include "HouseFixture.h"
#include "platform/host/IHBXElementDrawObj.h"

using orvcad::PlanContents;

namespace {

class PlanContentsTest : public HouseFixture
{
protected:
    PlanContents contents() const { return orvcad::planContentsOf(model(), floor()); }
};

TEST_F(PlanContentsTest, floorWithNothingOnItHasNoBox)
{
    openHouse();
    EXPECT_TRUE(contents().objects.empty());
    EXPECT_FALSE(contents().box.IsValid());
}

TEST_F(PlanContentsTest, objectsStandFromTheBottomOfThePictureToItsTop)
{
    openHouse(column("K1", 0, 0) + ',' + wall("Q1", "LINESTRING(0 0, 5000 0)") + ',' +
              slab("B1", "POLYGON((0 0, 5000 0, 5000 4000, 0 4000, 0 0))"));
    std::vector<qint64> types;
    for (const auto &placed : contents().objects)
        types.push_back(placed.object->type());
    EXPECT_EQ(types, (std::vector<qint64>{19, 1003, 25}));
    EXPECT_EQ(contents().entries.size(), 3);
    EXPECT_EQ(contents().box.Width(), 5100); // a column stands 100 mm beyond the start of the wall
    EXPECT_EQ(contents().box.Height(), 4100);
}

TEST_F(PlanContentsTest, topsOfSlabsGiveShades)
{
    openHouse(slab("B1", "POLYGON((0 0, 5000 0, 5000 4000, 0 4000, 0 0))", "3") + ',' +
              slab("B2", "POLYGON((6000 0, 9000 0, 9000 4000, 6000 4000, 6000 0))", "2.5"));
    EXPECT_EQ(contents().shades.value(19).bands().size(), 2U);
}

TEST_F(PlanContentsTest, objectsWithoutGeometryAreCounted)
{
    openSample("made-building");
    const PlanContents upper = orvcad::planContentsOf(model(), floor(QStringLiteral("第2层"), QStringLiteral("主楼")));
    EXPECT_EQ(upper.objects.size(), 7U);
    EXPECT_EQ(upper.withoutGeometry, 3);
}

} // namespace
