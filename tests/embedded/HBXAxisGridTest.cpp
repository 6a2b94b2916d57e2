#include "embedded/EmbeddedBuilding.h"

namespace hbx::embedded {
namespace {

class HBXAxisGridTest : public EmbeddedBuilding
{};

TEST_F(HBXAxisGridTest, aGridGivesACopyOfItsAxesByGroup)
{
    std::unique_ptr<IHBXAxisGrid> grid(IHBXAxisGrid::createFromObj(loaded(74, gridShape())));
    ASSERT_NE(grid, nullptr);
    grid->prepare();
    std::vector<HBXAxis> axes(3);
    grid->axes(axes, 0);
    ASSERT_EQ(axes.size(), 1u);
    EXPECT_EQ(axes[0].label, QStringLiteral("1"));
    EXPECT_EQ(axes[0].curves.at(0)->ToText(), "LINESTRING(0 0, 0 6000)");
    grid->axes(axes, 2);
    EXPECT_EQ(axes.at(0).label, QStringLiteral("A"));
    for (const int empty : {1, 3, 4, -1}) {
        grid->axes(axes, empty);
        EXPECT_TRUE(axes.empty()) << empty;
    }
}

TEST_F(HBXAxisGridTest, otherObjectsAndNullHaveNoGrid)
{
    EXPECT_EQ(IHBXAxisGrid::createFromObj(nullptr), nullptr);
    EXPECT_EQ(IHBXAxisGrid::createFromObj(placed(element(75))), nullptr);
}

TEST_F(HBXAxisGridTest, theCopyOutlivesTheGrid)
{
    IHBXElementDrawObj *object = loaded(74, gridShape());
    const std::unique_ptr<IHBXAxisGrid> grid(IHBXAxisGrid::createFromObj(object));
    object->remove();
    std::vector<HBXAxis> axes;
    grid->axes(axes, 0);
    EXPECT_EQ(axes.at(0).curves.at(0)->ToText(), "LINESTRING(0 0, 0 6000)");
}

} // namespace
} // namespace hbx::embedded
