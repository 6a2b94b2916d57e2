#include "cli/ProjectInfo.h"

#include "ForeignMessages.h"
#include "platform/embedded/HBXProject.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace orvcad;

namespace {

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

TEST(ProjectInfoTest, countsOfAFloorAreFoundByItsNames)
{
    ProjectInfo::Floor low;
    low.name = "Level 1";
    low.types[15] = {1, 20};
    ProjectInfo info;
    info.regions = {{"East", {}}, {"West", {low}}};
    const auto types = info.typesOn("West", "Level 1");
    ASSERT_EQ(types.keys(), QList<qint64>{15});
    EXPECT_EQ(typeToJson(15, types[15]),
              (QJsonObject{{"type", 15}, {"title", "beam"}, {"elements", 1}, {"drawObjects", 20}}));
    EXPECT_TRUE(info.typesOn("East", "Level 1").isEmpty());
    EXPECT_TRUE(info.typesOn("West", "Level 2").isEmpty());
}

TEST(ProjectInfoTest, numbersStandBelowOneAnotherBehindWideTitles)
{
    const ForeignMessages foreign;
    ProjectInfo::Floor floor;
    floor.types[15] = {1, 20};
    ProjectInfo info;
    info.regions = {{"R", {floor}}};
    EXPECT_EQ(info.table().split('\n').last(),
              QStringLiteral("文    文beam (15)                    1 element      20 placed"));
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
