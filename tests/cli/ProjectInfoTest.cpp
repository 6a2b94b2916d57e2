#include "cli/ProjectInfo.h"

#include "platform/services/HBXElementTypeTable.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <set>

using namespace orvcad;

namespace {

TEST(ProjectInfoTest, countedPutsTheWordIntoThePlural)
{
    EXPECT_EQ(counted(0, "door"), "0 doors");
    EXPECT_EQ(counted(1, "door"), "1 door");
    EXPECT_EQ(counted(2, "door"), "2 doors");
}

TEST(ProjectInfoTest, everyElementTypeHasATitleOfItsOwn)
{
    std::set<QString> titles;
    for (const hbx::ElementTypeInfo &type : hbx::kElementTypes)
        titles.insert(typeTitle(type.number));
    EXPECT_EQ(titles.size(), std::size(hbx::kElementTypes));
    EXPECT_EQ(titles.count("type"), 0U);
}

TEST(ProjectInfoTest, unknownTypeIsCalledType) { EXPECT_EQ(typeTitle(12345), "type"); }

TEST(ProjectInfoTest, totalsAddUpOverRegionsFloorsAndTypes)
{
    ProjectInfo::Floor low;
    low.types[15] = {1, 20};
    low.types[19] = {2, 30};
    ProjectInfo::Floor high;
    high.types[15] = {4, 50};
    ProjectInfo info;
    info.regions = {{"East", {low, high}}, {"West", {high}}};
    EXPECT_EQ(info.floorCount(), 3);
    EXPECT_EQ(info.total().elements, 11);
    EXPECT_EQ(info.total().drawObjects, 150);
    EXPECT_EQ(info.counts(), "2 regions, 3 floors, 11 elements, 150 placed objects");
}

TEST(ProjectInfoTest, emptyProjectHasNothing)
{
    const hbx::embedded::HBXProject project("Nothing yet");
    const ProjectInfo info = projectInfo(project);
    EXPECT_EQ(info.table(), "Nothing yet: 0 regions, 0 floors, 0 elements, 0 placed objects");
    EXPECT_EQ(info.toJson()["regions"], QJsonValue(QJsonArray()));
}

TEST(ProjectInfoTest, placeholdersInNamesAreLeftAlone)
{
    ProjectInfo::Floor floor;
    floor.name = "100%1";
    floor.code = "%2";
    ProjectInfo info;
    info.name = "50%3";
    info.regions = {{"R", {floor}}};
    EXPECT_TRUE(info.table().contains("100%1 (code %2): bottom 0 m, height 0 m")) << info.table().toStdString();
    EXPECT_TRUE(info.table().startsWith("50%3: 1 region")) << info.table().toStdString();
}

} // namespace
