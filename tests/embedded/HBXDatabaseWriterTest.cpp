#include "platform/embedded/HBXDatabaseWriter.h"

#include "embedded/ProjectFiles.h"

#include <limits>

using namespace projecttest;
using hbx::embedded::HBXDatabaseFile;

namespace {

class HBXDatabaseWriterTest : public SavedFileTest
{};

} // namespace

TEST_F(HBXDatabaseWriterTest, sizesThatAreNotFiniteAreWrittenAsTheirStartValue)
{
    project.drawObjs[0].shape.width = std::numeric_limits<double>::infinity();
    project.elements[0].properties[0].second = std::numeric_limits<double>::quiet_NaN();
    ASSERT_TRUE(HBXDatabaseFile(path()).create(project, error));
    const auto again = HBXDatabaseFile(path()).read(error);
    ASSERT_TRUE(again) << error.text().toStdString();
    EXPECT_EQ(again->drawObjs[0].shape.width, 0.0);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(again->elements[0].properties[0].second));
}

TEST_F(HBXDatabaseWriterTest, anUpdateWritesTheChangedObjectsAlone)
{
    changeFile("UPDATE element SET order_number = 77"); // a trace that stays in every row that is not written
    update.content.elements = {project.elements[0]};
    update.content.drawObjs = {project.drawObjs[0]};
    update.content.drawObjs[0].state = 5;
    save();
    EXPECT_EQ(value("SELECT group_concat(id) FROM element WHERE order_number <> 77"), "3");
    EXPECT_EQ(value("SELECT group_concat(id) FROM draw_object WHERE state = 5"), "14");
    EXPECT_EQ(value("SELECT count(*) FROM draw_object"), "12");
}

TEST_F(HBXDatabaseWriterTest, anUpdateTakesTheNewNameAndTheNextId)
{
    update.content.name = "Tower";
    update.content.nextId = 99;
    save();
    EXPECT_EQ(value("SELECT name || next_id FROM project"), "Tower99");
}

TEST_F(HBXDatabaseWriterTest, removedObjectsGoWithAllThatIsTheirs)
{
    update.removedDrawObjs = {23}; // the grid
    update.removedElements = {11};
    save();
    EXPECT_EQ(value("SELECT count(*) FROM shape_axis"), "0");
    EXPECT_EQ(value("SELECT count(*) FROM shape WHERE draw_object_id = 23"), "0");
    EXPECT_EQ(refusal(), "read");
}

TEST_F(HBXDatabaseWriterTest, removingAnIdThatIsNotThereIsNoFault)
{
    update.removedDrawObjs = {4711};
    update.removedElements = {4711};
    save();
    EXPECT_EQ(content(), contentOf(project));
}

TEST_F(HBXDatabaseWriterTest, optionsAndMaterialsAreReplacedWhereTheUpdateSaysSo)
{
    update.content.options = {{"G", "n", "1"}, {"G", "n", "2"}};
    update.content.materials = {{3, "M5"}};
    update.hasOptions = true;
    save();
    const auto again = HBXDatabaseFile(path()).read(error);
    ASSERT_TRUE(again);
    ASSERT_EQ(again->options.size(), 2U);
    EXPECT_EQ(again->options[1].value, QString("2"));
    EXPECT_EQ(again->materials[0].name, QString("C30"));
    update.hasOptions = false;
    update.hasMaterials = true;
    update.content.options.clear();
    save();
    const auto third = HBXDatabaseFile(path()).read(error);
    ASSERT_TRUE(third);
    EXPECT_EQ(third->options.size(), 2U);
    ASSERT_EQ(third->materials.size(), 1U);
    EXPECT_EQ(third->materials[0].number, 3);
    EXPECT_EQ(third->materials[0].name, QString("M5"));
}
