#include "platform/embedded/HBXProject.h"

#include "embedded/ProjectFiles.h"
#include "platform/embedded/HBXModelStore.h"
#include "platform/geometry/CLine2d.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXDrawObjStatus.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXService.h"

using namespace projecttest;
using exchangetest::building;
using exchangetest::parsed;
using exchangetest::withPlainRings;
using hbx::embedded::HBXProject;
using hbx::embedded::ProjectError;

namespace {

class HBXProjectTest : public ProjectFileTest
{
protected:
    std::unique_ptr<HBXProject> imported(const QByteArray &json = exchangetest::kSmallBuilding)
    {
        return exchangetest::projectOf(json);
    }
    /** Imported, saved and opened again. */
    std::unique_ptr<HBXProject> opened(const QByteArray &json = exchangetest::kSmallBuilding)
    {
        ProjectError error;
        EXPECT_TRUE(imported(json)->saveAs(path(), error)) << error.text().toStdString();
        auto project = HBXProject::open(path(), error);
        EXPECT_TRUE(project) << error.text().toStdString();
        return project;
    }
    static IHBXModel &modelOf(HBXProject &project) { return *project.service()->model(); }
    static void save(HBXProject &project)
    {
        ProjectError error;
        EXPECT_TRUE(project.save(error)) << error.text().toStdString();
    }
    /** Whether the file holds just what the project holds. */
    bool fileEquals(const HBXProject &project) { return content() == contentOf(project.store().snapshot()); }
};

class HBXProjectSampleTest : public HBXProjectTest, public ::testing::WithParamInterface<const char *>
{};

TEST_P(HBXProjectSampleTest, importSaveOpenAndExportGiveTheBuildingBack)
{
    const auto project = opened(building(GetParam()));
    ASSERT_TRUE(project);
    EXPECT_TRUE(parsed(project->toJson()) == withPlainRings(parsed(building(GetParam()))));
    EXPECT_TRUE(fileEquals(*project));
}

INSTANTIATE_TEST_SUITE_P(Buildings, HBXProjectSampleTest,
                         ::testing::Values("duplex-apartment", "masonry-block", "precast-hall"));

} // namespace

TEST_F(HBXProjectTest, theMadeBuildingComesThroughAFileAsItCameIn)
{
    const auto direct = imported(building("made-building"));
    EXPECT_TRUE(opened(building("made-building"))->toJson() == direct->toJson());
}

TEST_F(HBXProjectTest, changesThroughTheInterfacesAreSaved)
{
    const auto project = opened();
    IHBXModel &model = modelOf(*project);
    model.elements()->elementById(3)->properties()->setDouble(L"Thickness", 240.5, false);
    model.drawObjects()->drawObjById(25)->status()->setState(9);
    model.drawObjects()->drawObjById(24)->remove(); // the hole
    IHBXFloor *floor = model.elements()->elementById(3)->floor();
    IHBXElement *element = model.elements()->createElement(1003, 316, floor, "QTQ-120");
    ASSERT_TRUE(element);
    IHBXElementDrawObj *wall = model.drawObjects()->createDrawObj(floor, element, true);
    const vks::CLine2d axis({0, 0}, {0, 4000});
    dynamic_cast<IHBXCustomLineSolidShape &>(*wall->shape()).setLine(&axis);
    model.drawObjects()->addDrawObj(wall);

    save(*project);
    EXPECT_TRUE(fileEquals(*project));
    OtherProgram other(path());
    EXPECT_EQ(other.value("SELECT name FROM element WHERE type = 1003"), "QTQ-120");
    EXPECT_EQ(other.value("SELECT value FROM element_property WHERE element_id = 3"), "240.5");
    EXPECT_EQ(other.value("SELECT count(*) FROM draw_object WHERE id = 24"), "0");
}

TEST_F(HBXProjectTest, onlyWhatChangedIsWritten)
{
    const auto project = opened();
    changeFile("UPDATE draw_object SET layer = 77"); // a trace that stays in every row that is not written
    modelOf(*project).drawObjects()->drawObjById(25)->status()->setState(9);
    save(*project);
    EXPECT_EQ(OtherProgram(path()).value("SELECT group_concat(id) FROM draw_object WHERE layer <> 77"), "25");
}

TEST_F(HBXProjectTest, aRemovedElementIsGoneFromTheFile)
{
    const auto project = opened();
    modelOf(*project).elements()->elementById(3)->remove(); // the wall that the door stands in
    save(*project);
    EXPECT_TRUE(fileEquals(*project));
    EXPECT_EQ(refusal(), "read");
}

TEST_F(HBXProjectTest, aSaveWithoutChangesLeavesTheFileAsItIs)
{
    const auto project = opened();
    const QByteArray before = bytes();
    save(*project);
    EXPECT_TRUE(bytes() == before);
}

TEST_F(HBXProjectTest, changesThatCouldNotBeSavedAreSavedLater)
{
    const auto project = opened();
    modelOf(*project).drawObjects()->drawObjById(25)->status()->setState(9);
    ProjectError error;
    {
        OtherProgram other(path());
        other.run("BEGIN IMMEDIATE");
        EXPECT_FALSE(project->save(error));
        EXPECT_EQ(error.text(), path() + ": is being written by another program");
        other.run("ROLLBACK");
    }
    save(*project);
    EXPECT_TRUE(fileEquals(*project));
}

TEST_F(HBXProjectTest, idsAreNotUsedAgainAfterOpening)
{
    const auto project = opened();
    modelOf(*project).drawObjects()->drawObjById(25)->remove(); // the last id but one
    save(*project);
    ProjectError error;
    const auto again = HBXProject::open(path(), error);
    ASSERT_TRUE(again);
    IHBXFloor *floor = modelOf(*again).elements()->elementById(3)->floor();
    EXPECT_EQ(modelOf(*again).elements()->createElement(25, 3, floor, "KZ-9")->id(), 27);
}

TEST_F(HBXProjectTest, aProjectWithoutAFileCannotBeSaved)
{
    HBXProject project("Tower");
    ProjectError error;
    EXPECT_FALSE(project.save(error));
    EXPECT_EQ(error.text(), QString("Tower: has no file yet"));
    EXPECT_EQ(project.path(), QString());
}

TEST_F(HBXProjectTest, saveAsMovesTheProjectToTheNewFile)
{
    const auto project = imported();
    ProjectError error;
    ASSERT_TRUE(project->saveAs(path("a.hbxdb"), error));
    EXPECT_EQ(project->path(), path("a.hbxdb"));
    ASSERT_TRUE(project->saveAs(path(), error));
    EXPECT_EQ(project->path(), path());
    modelOf(*project).drawObjects()->drawObjById(25)->status()->setState(9);
    save(*project);
    EXPECT_TRUE(fileEquals(*project));
}

TEST_F(HBXProjectTest, aFailedSaveAsKeepsTheOldFile)
{
    const auto project = opened();
    ProjectError error;
    EXPECT_FALSE(project->saveAs(path("nowhere/a.hbxdb"), error));
    EXPECT_EQ(error.text(), path("nowhere/a.hbxdb") + ": cannot be written: No such file or directory");
    EXPECT_EQ(project->path(), path());
}

TEST_F(HBXProjectTest, nameAndSourceAreThoseOfTheBuilding)
{
    const auto project = opened();
    EXPECT_EQ(project->name(), QString("Small house"));
    EXPECT_EQ(project->source(), QString("made for a test"));
}

TEST_F(HBXProjectTest, theLastProjectOpenedIsCurrentUntilItIsGone)
{
    EXPECT_FALSE(HBXProject::current());
    const auto first = imported();
    EXPECT_EQ(HBXProject::current(), first.get());
    {
        const auto second = imported();
        EXPECT_EQ(HBXProject::current(), second.get());
        HBXProject third("made");
        EXPECT_EQ(HBXProject::current(), second.get()) << "making one does not make it current";
    }
    EXPECT_FALSE(HBXProject::current());
    first->makeCurrent();
    EXPECT_EQ(HBXProject::current(), first.get());
}

TEST_F(HBXProjectTest, aRefusedFileLeavesTheCurrentProject)
{
    const auto project = imported();
    ProjectError error;
    EXPECT_FALSE(HBXProject::open(path("none.hbxdb"), error));
    EXPECT_EQ(error.text(), path("none.hbxdb") + ": does not exist");
    EXPECT_FALSE(HBXProject::fromJson("{}", "x.json", error));
    EXPECT_EQ(error.text(), QString("x.json: format: is not \"hbx-project\""));
    EXPECT_EQ(HBXProject::current(), project.get());
}

TEST_F(HBXProjectTest, setCurrentSelectsRegionAndFloorByName)
{
    const auto project = imported();
    EXPECT_TRUE(project->setCurrent("House", "Level 2"));
    EXPECT_FALSE(project->setCurrent("House", "Level 3"));
    EXPECT_EQ(project->service()->curState()->floor()->name(), QString("Level 2"));
}

TEST_F(HBXProjectTest, errorTextLeavesOutWhatIsNotTold)
{
    EXPECT_EQ((ProjectError{"a.json", "regions[0]", "is wrong"}.text()), QString("a.json: regions[0]: is wrong"));
    EXPECT_EQ((ProjectError{"a.json", "", "is empty"}.text()), QString("a.json: is empty"));
}
