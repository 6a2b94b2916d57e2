#include "HostContract.h"

#include "HostContractGeometry.h"
#include "platform/host/IHBXAxisGrid.h"

using namespace host_contract;

namespace {

using Grid = std::unique_ptr<IHBXAxisGrid>;

Grid gridOf(IHBXElementDrawObj *drawObj) { return Grid(IHBXAxisGrid::createFromObj(drawObj)); }

/** The axes of a group, read into a list that holds something. */
std::vector<HBXAxis> axesOf(const IHBXAxisGrid &grid, int group)
{
    std::vector<HBXAxis> axes(3);
    grid.axes(axes, group);
    return axes;
}

void expectAxis(const HBXAxis &axis, const char *label, double x0, double y0, double x1, double y1)
{
    EXPECT_EQ(axis.label, QString::fromLatin1(label));
    ASSERT_EQ(axis.curves.size(), 1u);
    EXPECT_TRUE(isLine(axis.curves.front(), x0, y0, x1, y1));
}

} // namespace

TEST_P(HostAxisGridContract, nothingHasNoGrid) { EXPECT_EQ(gridOf(nullptr), nullptr); }

TEST_P(HostAxisGridContract, objectsThatAreNoGridHaveNone)
{
    for (const qint64 type : {15, 19, 25, 75, 1003})
        EXPECT_EQ(gridOf(&placed(type)), nullptr) << type;
}

TEST_P(HostAxisGridContract, newGridHasNoAxesInItsFourGroups)
{
    const Grid grid = gridOf(&placed(74));
    ASSERT_NE(grid, nullptr);
    grid->prepare();
    for (int group = 0; group < IHBXAxisGrid::kGroupCount; ++group)
        EXPECT_TRUE(axesOf(*grid, group).empty()) << group;
}

TEST_P(HostAxisGridContract, axesStandInTheirGroupsWithLabelAndCurves)
{
    const Grid grid = gridOf(&annexObject(74));
    ASSERT_NE(grid, nullptr);
    grid->prepare();
    const std::vector<HBXAxis> numbered = axesOf(*grid, 0);
    ASSERT_EQ(numbered.size(), 2u);
    expectAxis(numbered[0], "1", 0, 0, 0, 6000);
    expectAxis(numbered[1], "2", 4000, 0, 4000, 6000);
    const std::vector<HBXAxis> lettered = axesOf(*grid, 2);
    ASSERT_EQ(lettered.size(), 1u);
    expectAxis(lettered[0], "A", 0, 0, 4000, 0);
    EXPECT_TRUE(axesOf(*grid, 1).empty());
    EXPECT_TRUE(axesOf(*grid, 3).empty());
}

TEST_P(HostAxisGridContract, groupOutOfRangeIsEmpty)
{
    const Grid grid = gridOf(&annexObject(74));
    ASSERT_NE(grid, nullptr);
    for (const int group : {-1, 4, 1000})
        EXPECT_TRUE(axesOf(*grid, group).empty()) << group;
}

TEST_P(HostAxisGridContract, eachGridIsItsCallersOwn)
{
    Grid first = gridOf(&annexObject(74));
    const Grid second = gridOf(&annexObject(74));
    ASSERT_TRUE(first && second);
    EXPECT_NE(first, second);
    first.reset();
    EXPECT_EQ(axesOf(*second, 0).size(), 2u);
}
