#include "platform/embedded/HBXDatabaseFile.h"

#include "embedded/ProjectFiles.h"

#include <ostream>
#include <random>

#include <sys/wait.h>
#include <unistd.h>

using namespace projecttest;
using exchangetest::building;
using hbx::embedded::HBXDatabaseFile;
using hbx::embedded::ProjectError;
using hbx::embedded::ProjectRecord;
using hbx::embedded::ProjectUpdate;

namespace {

class HBXDatabaseFileTest : public ProjectFileTest
{};

/** An update without changes of a project. */
ProjectUpdate updateOf(const ProjectRecord &project)
{
    ProjectUpdate update;
    update.content.name = project.name;
    update.content.source = project.source;
    update.content.planeRule = project.planeRule;
    update.content.nextId = project.nextId;
    return update;
}

struct Damage
{
    const char *sql;
    const char *told;
};

void PrintTo(const Damage &damage, std::ostream *out) { *out << damage.sql; }

class HBXDatabaseFileDamageTest : public ProjectFileTest, public ::testing::WithParamInterface<Damage>
{};

// Ids of the small building: region 1, floors 2 and 26, elements 3 to 13, draw objects 14 to 25.
const Damage kDamages[] = {
    {"CREATE TABLE notes(text)", "has the foreign table \"notes\""},
    {"CREATE VIEW walls AS SELECT * FROM element", "has the foreign view \"walls\""},
    {"CREATE INDEX names ON element(name)", "has the foreign index \"names\""},
    {"CREATE TRIGGER wipe AFTER UPDATE ON project BEGIN DELETE FROM element; END", "has the foreign trigger \"wipe\""},
    {"ALTER TABLE element ADD COLUMN colour TEXT", "has the table \"element\" in another form"},
    {"DROP TABLE material", "lacks tables of a project file"},
    {"PRAGMA user_version=2", "is of form 2, newer than the form 1 that this program reads"},
    {"PRAGMA user_version=0", "is of form 0, older than the form 1 that this program reads"},
    {"PRAGMA application_id=0", "is an SQLite file, but no project file"},
    {"PRAGMA journal_mode=WAL", "is in a journal mode that project files do not use"},
    {"DELETE FROM project", "project: has no row"},
    {"UPDATE shape SET outline='POLYGON((0 0, 5' WHERE draw_object_id=18",
     "shape[draw_object_id=18].outline: is not the text of its geometry"},
    {"UPDATE shape SET outline='LINESTRING(0 0, 5 0)' WHERE draw_object_id=18",
     "shape[draw_object_id=18].outline: is not the text of its geometry"},
    {"UPDATE shape SET curve='' WHERE draw_object_id=14",
     "shape[draw_object_id=14].curve: is not the text of its geometry"},
    {"UPDATE shape SET kind=7 WHERE draw_object_id=14", "shape[draw_object_id=14].kind: is no kind of shape"},
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
    {"UPDATE shape_axis SET curve_position=1",
     "shape_axis[draw_object_id=23, axis_group=0, position=0, curve_position=1].curve_position:"
     " has no axis in front of it"},
    {"UPDATE span SET record='5'", "span[draw_object_id=16, position=0].record: is no JSON object"},
    {"UPDATE span SET draw_object_id=99",
     "span[draw_object_id=99, position=0]: belongs to nothing that is in the file"},
    {"UPDATE element_property SET name='Colour' WHERE element_id=3",
     "element_property[element_id=3, position=0].name: is no property of the object: \"Colour\""},
    {"UPDATE element_property SET value='thick' WHERE element_id=3",
     "element_property[element_id=3, position=0].value: is no number"},
    {"UPDATE element_property SET value=200 WHERE element_id=3",
     "element_property[element_id=3, position=0].value: is no number"},
    {"INSERT INTO element_property VALUES(3,1,'Thickness',200.0)",
     "element_property[element_id=3, position=1].name: stands twice: \"Thickness\""},
    {"INSERT INTO element_property VALUES(1,0,'Thickness',200.0)",
     "element_property[element_id=1, position=0]: belongs to nothing that is in the file"},
    {"UPDATE draw_object_property SET value='roof' WHERE draw_object_id=18 AND name='TopElev'",
     "draw_object_property[draw_object_id=18, position=1].value: is no elevation"},
    {"UPDATE draw_object_property SET value=3000000000 WHERE name='DependSlabID'",
     "draw_object_property[draw_object_id=20, position=0].value: is no whole number"},
    {"UPDATE element SET type=9999 WHERE id=3", "element[id=3].type: is no type that the host knows: 9999"},
    {"UPDATE draw_object SET type=9999 WHERE id=14", "draw_object[id=14].type: is no type that the host knows: 9999"},
    {"UPDATE floor SET region_id=99", "floor[id=2].region_id: names nothing that fits"},
    {"UPDATE floor SET height=-9e999 WHERE id=2", "floor[id=2].height: is not finite"},
    {"UPDATE floor SET standard_floor_count=3000000000 WHERE id=2",
     "floor[id=2].standard_floor_count: is out of range"},
    {"UPDATE element SET floor_id=1 WHERE id=3", "element[id=3].floor_id: names nothing that fits"},
    {"UPDATE element SET parent_id=10 WHERE id=3", "element[id=3].parent_id: names nothing that fits"},
    {"UPDATE draw_object SET element_id=99 WHERE id=14", "draw_object[id=14].element_id: names nothing that fits"},
    {"UPDATE draw_object SET next_id=99 WHERE id=16", "draw_object[id=16].next_id: names nothing that fits"},
    {"UPDATE draw_object SET next_id=16 WHERE id=17", "draw_object[id=16].next_id: closes the chain to a ring"},
    {"UPDATE draw_object SET next_id=17 WHERE id=14", "draw_object[id=16].next_id: names nothing that fits"},
    {"UPDATE draw_object SET owner_id=14 WHERE id=22", "draw_object[id=22].owner_id: names nothing that fits"},
    {"UPDATE draw_object SET attached_to=99 WHERE id=15", "draw_object[id=15].attached_to: names nothing that fits"},
    {"UPDATE project SET next_id=26", "floor[id=26].id: was never given out"},
    {"UPDATE region SET id=0", "region[id=0].id: was never given out"},
    {"INSERT INTO region VALUES(14,'twice')", "draw_object[id=14].id: stands twice in the project"},
};

TEST_P(HBXDatabaseFileDamageTest, isToldAndTheFileStaysAsItIs)
{
    makeFile();
    changeFile(GetParam().sql);
    EXPECT_EQ(refusal(), GetParam().told);
}

INSTANTIATE_TEST_SUITE_P(Damages, HBXDatabaseFileDamageTest, ::testing::ValuesIn(kDamages));

/** Ends the process in the middle of a transaction, when so many rows are written and part of them stand in the file. */
int s_rowsBeforeTheEnd = 0;

void countRow(void *, int, const char *, const char *, sqlite3_int64)
{
    if (--s_rowsBeforeTheEnd == 0)
        _exit(0);
}

int endInTheMiddle(sqlite3 *handle, const char **, const sqlite3_api_routines *)
{
    sqlite3_update_hook(handle, countRow, nullptr);
    return sqlite3_exec(handle, "PRAGMA cache_size=5", nullptr, nullptr, nullptr); // pages, so that many go out early
}

} // namespace

TEST_F(HBXDatabaseFileTest, whatWasWrittenIsReadAgain)
{
    for (const char *name : {"duplex-apartment", "masonry-block", "precast-hall", "made-building"}) {
        const std::string written = contentOf(makeFile(building(name)));
        EXPECT_TRUE(content() == written) << name;
    }
}

TEST_F(HBXDatabaseFileTest, numbersComeBackBitForBit)
{
    ProjectRecord project = exchangetest::recordOf(exchangetest::kSmallBuilding);
    const double odd[] = {0.1, 1.0 / 3.0, 5e-324, 1.7976931348623157e308, 123456789.12345679};
    for (const double number : odd) {
        project.drawObjs[0].shape.width = number;
        project.drawObjs[0].shape.distanceToLeft = -number;
        project.elements[0].properties[0].second = number;
        ProjectError error;
        ASSERT_TRUE(HBXDatabaseFile(path()).create(project, error));
        const auto again = HBXDatabaseFile(path()).read(error);
        ASSERT_TRUE(again);
        EXPECT_EQ(again->drawObjs[0].shape.width, number);
        EXPECT_EQ(again->drawObjs[0].shape.distanceToLeft, -number);
        EXPECT_EQ(std::get<double>(again->elements[0].properties[0].second), number);
    }
}

TEST_F(HBXDatabaseFileTest, sizesThatAreNotFiniteAreWrittenAsTheirStartValue)
{
    ProjectRecord project = exchangetest::recordOf(exchangetest::kSmallBuilding);
    project.drawObjs[0].shape.width = std::numeric_limits<double>::infinity();
    project.elements[0].properties[0].second = std::numeric_limits<double>::quiet_NaN();
    ProjectError error;
    ASSERT_TRUE(HBXDatabaseFile(path()).create(project, error));
    const auto again = HBXDatabaseFile(path()).read(error);
    ASSERT_TRUE(again) << error.text().toStdString();
    EXPECT_EQ(again->drawObjs[0].shape.width, 0.0);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(again->elements[0].properties[0].second));
}

TEST_F(HBXDatabaseFileTest, whatIsNoProjectFileIsRefused)
{
    EXPECT_EQ(refusal(), "does not exist");
    writeFile("");
    EXPECT_EQ(refusal(), "is empty");
    writeFile("{\"format\": \"hbx-project\"}");
    EXPECT_EQ(refusal(), "is no project file");
    writeFile(QByteArray("SQLite format 3\0", 16));
    EXPECT_EQ(refusal(), "is damaged: it ends in its header");
    QFile::remove(path());
    changeFile("CREATE TABLE t(x)");
    EXPECT_EQ(refusal(), "is an SQLite file, but no project file");
    ProjectError error;
    EXPECT_FALSE(HBXDatabaseFile(m_folder.path()).read(error));
    EXPECT_EQ(error.reason, QString("is no file"));
}

TEST_F(HBXDatabaseFileTest, aTruncatedFileIsRefused)
{
    makeFile(building("made-building"));
    const QByteArray whole = bytes();
    for (int size = 1; size < whole.size(); size += whole.size() / 97) {
        writeFile(whole.left(size));
        ASSERT_NE(refusal(), "read") << size;
    }
}

TEST_F(HBXDatabaseFileTest, aFileWithFlippedBitsIsReadOrRefusedAndNeverTouched)
{
    makeFile();
    const QByteArray whole = bytes();
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> place(0, whole.size() - 1);
    std::uniform_int_distribution<int> bit(0, 7);
    for (int i = 0; i < 400; ++i) {
        QByteArray damaged = whole;
        for (int flips = 0; flips <= i % 4; ++flips) {
            const int at = place(random);
            damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit(random)));
        }
        writeFile(damaged);
        refusal();
    }
}

TEST_F(HBXDatabaseFileTest, aFileThatAnotherProgramWritesIsNeitherReadNorSavedNorReplaced)
{
    const ProjectRecord project = makeFile();
    HBXDatabaseFile file(path());
    ProjectError error;
    ASSERT_TRUE(file.read(error));
    for (const char *begin : {"BEGIN IMMEDIATE", "BEGIN EXCLUSIVE"}) {
        OtherProgram other(path());
        other.run(begin);
        EXPECT_EQ(refusal(), "is being written by another program") << begin;
        EXPECT_FALSE(file.save(updateOf(project), error)) << begin;
        EXPECT_EQ(error.reason, QString("is being written by another program"));
        EXPECT_FALSE(HBXDatabaseFile(path()).create(project, error)) << begin;
        EXPECT_EQ(error.reason, QString("is being written by another program"));
        other.run("ROLLBACK");
    }
    EXPECT_TRUE(file.save(updateOf(project), error)) << error.text().toStdString();
}

TEST_F(HBXDatabaseFileTest, aSecondReaderDoesNotHinder)
{
    makeFile();
    OtherProgram other(path());
    other.run("BEGIN; SELECT * FROM project");
    EXPECT_EQ(refusal(), "read");
}

TEST_F(HBXDatabaseFileTest, aSaveWritesTheChangedObjectsAlone)
{
    const ProjectRecord project = makeFile();
    HBXDatabaseFile file(path());
    ProjectError error;
    ASSERT_TRUE(file.read(error));
    changeFile("UPDATE element SET order_number = 77"); // a trace that stays in every row that is not written

    ProjectUpdate update = updateOf(project);
    update.content.elements = {project.elements[0]};
    update.content.drawObjs = {project.drawObjs[0]};
    update.content.drawObjs[0].state = 5;
    ASSERT_TRUE(file.save(update, error)) << error.text().toStdString();
    OtherProgram other(path());
    EXPECT_EQ(other.value("SELECT group_concat(id) FROM element WHERE order_number <> 77"), "3");
    EXPECT_EQ(other.value("SELECT group_concat(id) FROM draw_object WHERE state = 5"), "14");
    EXPECT_EQ(other.value("SELECT count(*) FROM draw_object"), "12");
}

TEST_F(HBXDatabaseFileTest, removedObjectsGoWithAllThatIsTheirs)
{
    const ProjectRecord project = makeFile();
    HBXDatabaseFile file(path());
    ProjectError error;
    ASSERT_TRUE(file.read(error));
    ProjectUpdate update = updateOf(project);
    update.removedDrawObjs = {23}; // the grid
    update.removedElements = {11};
    ASSERT_TRUE(file.save(update, error)) << error.text().toStdString();
    OtherProgram other(path());
    EXPECT_EQ(other.value("SELECT count(*) FROM shape_axis"), "0");
    EXPECT_EQ(other.value("SELECT count(*) FROM shape WHERE draw_object_id = 23"), "0");
    EXPECT_EQ(refusal(), "read");
}

TEST_F(HBXDatabaseFileTest, aSaveThatWouldLeaveAReferenceToNothingIsRefused)
{
    const ProjectRecord project = makeFile();
    HBXDatabaseFile file(path());
    ProjectError error;
    ASSERT_TRUE(file.read(error));
    const QByteArray before = bytes();
    ProjectUpdate update = updateOf(project);
    update.removedDrawObjs = {14}; // the wall of door 15
    EXPECT_FALSE(file.save(update, error));
    EXPECT_EQ(error.place, QString("draw_object[id=15]"));
    EXPECT_EQ(error.reason, QString("would name an object that is gone"));
    EXPECT_TRUE(bytes() == before);
}

TEST_F(HBXDatabaseFileTest, optionsAndMaterialsAreReplacedWhereTheUpdateSaysSo)
{
    const ProjectRecord project = makeFile();
    HBXDatabaseFile file(path());
    ProjectError error;
    ASSERT_TRUE(file.read(error));
    ProjectUpdate update = updateOf(project);
    update.content.options = {{"G", "n", "1"}, {"G", "n", "2"}};
    update.content.materials = {{3, "M5"}};
    update.hasOptions = true;
    ASSERT_TRUE(file.save(update, error));
    const auto again = HBXDatabaseFile(path()).read(error);
    ASSERT_TRUE(again);
    ASSERT_EQ(again->options.size(), 2U);
    EXPECT_EQ(again->options[1].value, QString("2"));
    EXPECT_EQ(again->materials[0].name, QString("C30"));
}

TEST_F(HBXDatabaseFileTest, aFileThatSomebodyElseSavedIsNotSavedOver)
{
    const ProjectRecord project = makeFile();
    HBXDatabaseFile mine(path());
    HBXDatabaseFile other(path());
    ProjectError error;
    ASSERT_TRUE(mine.read(error));
    ASSERT_TRUE(other.read(error));
    ASSERT_TRUE(other.save(updateOf(project), error));
    const QByteArray before = bytes();
    EXPECT_FALSE(mine.save(updateOf(project), error));
    EXPECT_EQ(error.reason, QString("was changed by another program since it was opened"));
    EXPECT_TRUE(bytes() == before);
    EXPECT_TRUE(other.save(updateOf(project), error)) << "knows its own save";
}

TEST_F(HBXDatabaseFileTest, aProcessThatEndsInTheMiddleOfASaveLeavesTheOldState)
{
    const ProjectRecord project = makeFile(building("duplex-apartment"));
    const std::string before = contentOf(project);
    for (const int rows : {100, 200, 300}) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            ProjectError error;
            HBXDatabaseFile file(path());
            auto content = file.read(error);
            ProjectUpdate update = updateOf(*content);
            update.content.elements = content->elements;
            update.content.drawObjs = content->drawObjs;
            for (auto &drawObj : update.content.drawObjs)
                drawObj.layer = 99;
            s_rowsBeforeTheEnd = rows;
            sqlite3_auto_extension(reinterpret_cast<void (*)()>(endInTheMiddle));
            file.save(update, error);
            _exit(1); // the save came to its end
        }
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_EQ(WEXITSTATUS(status), 0) << rows;
        EXPECT_TRUE(QFile::exists(path() + "-journal")) << "nothing was interrupted after " << rows;
        EXPECT_TRUE(content() == before) << rows;
        EXPECT_EQ(filesInFolder(), QStringList("house.hbxdb")) << rows;
    }
}

TEST_F(HBXDatabaseFileTest, aFileIsReplacedWholeAndItsLeftoversGo)
{
    makeFile();
    QFile journal(path() + "-journal");
    ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
    journal.write("left by somebody");
    journal.close();
    const ProjectRecord other = makeFile(building("precast-hall"));
    EXPECT_TRUE(content() == contentOf(other));
    EXPECT_EQ(filesInFolder(), QStringList("house.hbxdb"));
}

TEST_F(HBXDatabaseFileTest, aFailedCreationLeavesNothingBehind)
{
    ProjectError error;
    EXPECT_FALSE(HBXDatabaseFile(path("nowhere/house.hbxdb")).create(ProjectRecord(), error));
    EXPECT_EQ(error.reason, QString("cannot be written: unable to open database file"));
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("folder"));
    EXPECT_FALSE(HBXDatabaseFile(path("folder")).create(ProjectRecord(), error));
    EXPECT_EQ(error.reason, QString("is a directory"));
    EXPECT_EQ(filesInFolder(), QStringList());
}

TEST_F(HBXDatabaseFileTest, aLinkStaysALinkWhenTheFileBehindItIsReplaced)
{
    makeFile();
    ASSERT_TRUE(QFile::link(path(), path("link.hbxdb")));
    const ProjectRecord other = exchangetest::recordOf(building("precast-hall"));
    ProjectError error;
    ASSERT_TRUE(HBXDatabaseFile(path("link.hbxdb")).create(other, error));
    EXPECT_TRUE(QFileInfo(path("link.hbxdb")).isSymLink());
    EXPECT_TRUE(content() == contentOf(other));
}
