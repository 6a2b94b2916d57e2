#include "cli/ProjectFiles.h"

#include "CommandFailures.h"
#include "TestFiles.h"
#include "embedded/ExchangeDocuments.h"

using clitest::failureOf;
using namespace orvcad;

namespace {

using ProjectFilesTest = TestFiles;

TEST_F(ProjectFilesTest, buildingBecomesAProjectWithoutAFile)
{
    const auto project = projectOfBuilding(exchangetest::kSmallBuilding, "house.json");
    EXPECT_EQ(project->name(), "Small house");
    EXPECT_EQ(project->path(), "");
}

TEST_F(ProjectFilesTest, buildingThatBreaksARuleIsToldWithFileAndPlace)
{
    const QByteArray building = exchangetest::smallBuildingWith("regions[0].floors[1].height", "\"high\"");
    const std::string failure = failureOf([&] { projectOfBuilding(building, "house.json"); });
    EXPECT_EQ(failure.find("house.json: regions[0].floors[1].height: "), 0U) << failure;
}

TEST_F(ProjectFilesTest, buildingWithAMemberThatStandsTwiceIsRefused)
{
    QByteArray building(exchangetest::kSmallBuilding);
    building.replace("\"version\": 1,", "\"version\": 1, \"name\": {\"a\":1},");
    EXPECT_EQ(failureOf([&] { projectOfBuilding(building, "house.json"); }),
              "house.json: line 2, column 65: \"name\" stands twice in one object");
}

TEST_F(ProjectFilesTest, savedProjectIsOpenedAgain)
{
    saveProjectAs(*projectOfBuilding(exchangetest::kSmallBuilding, "house.json"), path("house.hbxdb"));
    const auto project = openProject(path("house.hbxdb"));
    EXPECT_EQ(project->name(), "Small house");
    EXPECT_EQ(project->path(), path("house.hbxdb"));
    saveProject(*project);
    EXPECT_EQ(openProject(path("house.hbxdb"))->toJson(), project->toJson());
}

TEST_F(ProjectFilesTest, fileThatIsNoProjectIsNamed)
{
    const QString foreign = fileOf("foreign.hbxdb", "no database");
    for (const QString &file : {foreign, path("none.hbxdb")}) {
        const std::string failure = failureOf([&] { openProject(file); });
        EXPECT_EQ(failure.find(file.toStdString() + ": "), 0U) << failure;
    }
}

TEST_F(ProjectFilesTest, projectThatCannotBeSavedIsToldWithItsFile)
{
    const auto project = projectOfBuilding(exchangetest::kSmallBuilding, "house.json");
    const QString nowhere = path("no/such/house.hbxdb");
    const std::string failure = failureOf([&] { saveProjectAs(*project, nowhere); });
    EXPECT_EQ(failure.find(nowhere.toStdString() + ": "), 0U) << failure;
}

} // namespace
