#include "platform/embedded/HBXDatabaseReader.h"

#include "embedded/ProjectFiles.h"
#include "platform/embedded/HBXDatabaseSchema.h"
#include "platform/embedded/HBXDatabaseWriter.h"

#include <limits>

using namespace projecttest;
using namespace hbx::embedded;

namespace {

// Ids of the small building: region 1, floors 2 and 26, elements 3 to 13, draw objects 14 to 25.
const Damage kDamages[] = {
    {"DELETE FROM project", "project: has no row"},
    {"UPDATE shape SET outline='POLYGON((0 0, 5' WHERE draw_object_id=18",
     "shape[draw_object_id=18].outline: is not the text of its geometry"},
    {"UPDATE shape SET outline='LINESTRING(0 0, 5 0)' WHERE draw_object_id=18",
     "shape[draw_object_id=18].outline: is not the text of its geometry"},
    {"UPDATE shape SET curve='' WHERE draw_object_id=14",
     "shape[draw_object_id=14].curve: is not the text of its geometry"},
    {"UPDATE shape SET kind=7 WHERE draw_object_id=14", "shape[draw_object_id=14].kind: is no kind of shape"},
    {"UPDATE shape SET kind=-1 WHERE draw_object_id=14", "shape[draw_object_id=14].kind: is no kind of shape"},
    {"UPDATE shape SET width=9e999 WHERE draw_object_id=14", "shape[draw_object_id=14].width: is not finite"},
    {"UPDATE shape SET v_z=NULL WHERE draw_object_id=25", "shape[draw_object_id=25].v_z: is missing"},
    {"DELETE FROM shape WHERE draw_object_id=14", "draw_object[id=14]: has no shape"},
    {"INSERT INTO shape VALUES(99,0,NULL,NULL,0,NULL,0,0,0,0,0,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL)",
     "shape[draw_object_id=99]: belongs to nothing that is in the file"},
    {"UPDATE shape_axis SET curve='x'",
     "shape_axis[draw_object_id=23, axis_group=0, position=0, curve_position=0].curve:"
     " is not the text of its geometry"},
    {"UPDATE shape_axis SET axis_group=4",
     "shape_axis[draw_object_id=23, axis_group=4, position=0, curve_position=0].axis_group: is no group of axes"},
    {"UPDATE shape_axis SET axis_group=-1",
     "shape_axis[draw_object_id=23, axis_group=-1, position=0, curve_position=0].axis_group: is no group of axes"},
    {"UPDATE shape_axis SET curve_position=1",
     "shape_axis[draw_object_id=23, axis_group=0, position=0, curve_position=1].curve_position:"
     " has no axis in front of it"},
    {"UPDATE span SET record='5'", "span[draw_object_id=16, position=0].record: is no JSON object"},
    {"UPDATE span SET record='{\"SpanIndx\": 1}'",
     "span[draw_object_id=16, position=0].record: has the unknown member \"SpanIndx\""},
    {"UPDATE span SET record='{\"HoopBar\": 1}'", "span[draw_object_id=16, position=0].record: HoopBar is not a text"},
    {"UPDATE span SET draw_object_id=99",
     "span[draw_object_id=99, position=0]: belongs to nothing that is in the file"},
    {"INSERT INTO element_property VALUES(1,0,'Thickness',200.0)",
     "element_property[element_id=1, position=0]: belongs to nothing that is in the file"},
    {"UPDATE element SET type=9999 WHERE id=3", "element[id=3].type: is no type that the host knows: 9999"},
    {"UPDATE draw_object SET type=9999 WHERE id=14", "draw_object[id=14].type: is no type that the host knows: 9999"},
    {"UPDATE floor SET height=-9e999 WHERE id=2", "floor[id=2].height: is not finite"},
    {"UPDATE floor SET standard_floor_count=3000000000 WHERE id=2",
     "floor[id=2].standard_floor_count: is out of range"},
};

class HBXDatabaseReaderDamageTest : public DamagedFileTest
{};

TEST_P(HBXDatabaseReaderDamageTest, isToldAndTheFileStaysAsItIs) { expectTold(); }

INSTANTIATE_TEST_SUITE_P(Damages, HBXDatabaseReaderDamageTest, ::testing::ValuesIn(kDamages));

class HBXDatabaseReaderTest : public ::testing::Test
{
protected:
    /** A record through the tables and back. */
    ProjectRecord again(const ProjectRecord &project)
    {
        SqliteConnection connection(":memory:", SqliteConnection::kCreate);
        schema::create(connection);
        HBXDatabaseWriter(connection).writeAll(project, kMark);
        HBXDatabaseReader reader(connection);
        ProjectRecord read = reader.read();
        EXPECT_EQ(reader.saveMark(), kMark);
        return read;
    }

    static constexpr qint64 kMark = 4711;
};

} // namespace

TEST_F(HBXDatabaseReaderTest, whatWasWrittenIsReadAgain)
{
    const ProjectRecord project = exchangetest::recordOf(exchangetest::kSmallBuilding);
    EXPECT_EQ(contentOf(again(project)), contentOf(project));
    EXPECT_EQ(contentOf(again(ProjectRecord())), contentOf(ProjectRecord()));
}

TEST_F(HBXDatabaseReaderTest, numbersComeBackBitForBit)
{
    ProjectRecord project = exchangetest::recordOf(exchangetest::kSmallBuilding);
    const double odd[] = {0.1, 1.0 / 3.0, 5e-324, 1.7976931348623157e308, 123456789.12345679};
    for (const double number : odd) {
        project.drawObjs[0].shape.width = number;
        project.drawObjs[0].shape.distanceToLeft = -number;
        project.elements[0].properties[0].second = number;
        const ProjectRecord read = again(project);
        EXPECT_EQ(read.drawObjs[0].shape.width, number);
        EXPECT_EQ(read.drawObjs[0].shape.distanceToLeft, -number);
        EXPECT_EQ(std::get<double>(read.elements[0].properties[0].second), number);
    }
}

TEST_F(HBXDatabaseReaderTest, anAxisOfSeveralCurvesComesBackAsOne)
{
    ProjectRecord project = exchangetest::recordOf(exchangetest::kSmallBuilding);
    std::vector<HBXAxis> &axes = project.drawObjs[9].shape.axes[0];
    axes[0].curves.push_back(axes[0].curves[0]);
    axes.push_back({"B", axes[0].curves});
    const ProjectRecord read = again(project);
    ASSERT_EQ(read.drawObjs[9].shape.axes[0].size(), 2U);
    EXPECT_EQ(read.drawObjs[9].shape.axes[0][0].curves.size(), 2U);
    EXPECT_EQ(read.drawObjs[9].shape.axes[0][1].label, QString("B"));
}
