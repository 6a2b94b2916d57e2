#include "platform/embedded/DatabasePropertyReader.h"

#include "embedded/ProjectFiles.h"
#include "embedded/ToldRefusal.h"

using namespace projecttest;
using namespace hbx::embedded;

namespace {

// Ids of the small building: region 1, floors 2 and 26, elements 3 to 13, draw objects 14 to 25.
const Damage kDamages[] = {
    {"UPDATE element_property SET name='Colour' WHERE element_id=3",
     "element_property[element_id=3, position=0].name: is no property of the object: \"Colour\""},
    {"UPDATE element_property SET value='thick' WHERE element_id=3",
     "element_property[element_id=3, position=0].value: is no number"},
    {"UPDATE element_property SET value=200 WHERE element_id=3",
     "element_property[element_id=3, position=0].value: is no number"},
    {"UPDATE element_property SET value=9e999 WHERE element_id=3",
     "element_property[element_id=3, position=0].value: is no number"},
    {"INSERT INTO element_property VALUES(3,1,'Thickness',200.0)",
     "element_property[element_id=3, position=1].name: stands twice: \"Thickness\""},
    {"UPDATE draw_object_property SET value='roof' WHERE draw_object_id=18 AND name='TopElev'",
     "draw_object_property[draw_object_id=18, position=1].value: is no elevation"},
    {"UPDATE draw_object_property SET value=3 WHERE draw_object_id=18 AND name='TopElev'",
     "draw_object_property[draw_object_id=18, position=1].value: is no elevation"},
    {"UPDATE draw_object_property SET value=7 WHERE draw_object_id=18 AND name='ReinforcementInfo'",
     "draw_object_property[draw_object_id=18, position=0].value: is no text"},
    {"UPDATE draw_object_property SET value='18' WHERE name='DependSlabID'",
     "draw_object_property[draw_object_id=20, position=0].value: is no whole number"},
    {"UPDATE draw_object_property SET value=-3000000000 WHERE name='DependSlabID'",
     "draw_object_property[draw_object_id=20, position=0].value: is no whole number"},
    {"UPDATE draw_object_property SET value=3000000000 WHERE name='DependSlabID'",
     "draw_object_property[draw_object_id=20, position=0].value: is no whole number"},
};

class DatabasePropertyReaderDamageTest : public DamagedFileTest
{};

TEST_P(DatabasePropertyReaderDamageTest, isToldAndTheFileStaysAsItIs) { expectTold(); }

INSTANTIATE_TEST_SUITE_P(Damages, DatabasePropertyReaderDamageTest, ::testing::ValuesIn(kDamages));

class DatabasePropertyReaderTest : public ::testing::Test
{
protected:
    DatabasePropertyReaderTest()
    {
        connection.run("CREATE TABLE property(owner INTEGER, position INTEGER, name TEXT, value ANY,"
                       " PRIMARY KEY(owner, position)) STRICT, WITHOUT ROWID");
    }
    /** The properties in rows of owner, position, name and value. */
    PropertyRecords read(const QByteArray &rows, qint64 type, bool forDrawObject = true)
    {
        connection.run(("INSERT INTO property VALUES" + rows).constData());
        DatabaseRows table(connection, "property", "owner, position", "name, value");
        DatabasePropertyReader reader(forDrawObject);
        PropertyRecords properties;
        while (table.next())
            reader.read(table, *HBXPropertyCatalogue::instance().properties(type), properties);
        return properties;
    }
    std::string refusalOf(const QByteArray &rows, qint64 type, bool forDrawObject = true)
    {
        return refusaltest::toldBy([&] { read(rows, type, forDrawObject); });
    }

    SqliteConnection connection{":memory:", SqliteConnection::kCreate};
};

} // namespace

TEST_F(DatabasePropertyReaderTest, aValueOfEachKindComesBack)
{
    const PropertyRecords beam = read("(1,0,'SectionWidth',300.5), (1,1,'Type1',2), (1,2,'TieBar','A6'),"
                                      "(1,3,'StartPtTopElev','层顶标高-0.05'), (1,4,'InsertPt','1.5 -2'),"
                                      "(1,5,'SectionPoly','POLYGON((0 0, 5 0, 5 5, 0 0))')",
                                      15);
    ASSERT_EQ(beam.size(), 6U);
    EXPECT_EQ(std::get<double>(beam[0].second), 300.5);
    EXPECT_EQ(std::get<int>(beam[1].second), 2);
    EXPECT_EQ(std::get<QString>(beam[2].second), QString("A6"));
    EXPECT_EQ(std::get<QString>(beam[3].second), QStringLiteral("层顶标高-0.05"));
    EXPECT_EQ(std::get<vks::CVec2<double>>(beam[4].second).y, -2.0);
    EXPECT_EQ(std::get<vks::CRefPtr<vks::CPolygon>>(beam[5].second)->ToText(), "POLYGON((0 0, 5 0, 5 5, 0 0))");
    connection.run("DELETE FROM property");
    const PropertyRecords bar = read("(1,0,'CurveData','LINESTRING(0 0, 5 0)')", 22);
    EXPECT_EQ(std::get<vks::CRefPtr<vks::CCurve2d>>(bar.at(0).second)->ToText(), "LINESTRING(0 0, 5 0)");
}

TEST_F(DatabasePropertyReaderTest, nullIsAPropertyWithoutAValue)
{
    const PropertyRecords wall = read("(1,0,'Thickness',NULL)", 0);
    ASSERT_EQ(wall.size(), 1U);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(wall[0].second));
}

TEST_F(DatabasePropertyReaderTest, aSecondNameIsKeptAsTheFirst)
{
    EXPECT_EQ(read("(1,0,'AxisOffset_JZBZ',5.0)", 0).at(0).first, QString("AxisOffset"));
}

TEST_F(DatabasePropertyReaderTest, anElementLacksThePropertiesOfDrawObjects)
{
    EXPECT_EQ(refusalOf("(1,0,'CurveData',NULL)", 22, false),
              "property[owner=1, position=0].name: is no property of the object: \"CurveData\"");
}

TEST_F(DatabasePropertyReaderTest, aNameLongerThanAnyIsNoProperty)
{
    const QByteArray name(100, 'a');
    EXPECT_EQ(refusalOf("(1,0,'" + name + "',1)", 0),
              "property[owner=1, position=0].name: is no property of the object: \"" + name.toStdString() + '"');
}

TEST_F(DatabasePropertyReaderTest, textsOfAnotherFormAreNoPointsAndNoGeometry)
{
    EXPECT_EQ(refusalOf("(1,0,'InsertPt','1 2 3')", 15), "property[owner=1, position=0].value: is no point");
    connection.run("DELETE FROM property");
    EXPECT_EQ(refusalOf("(1,0,'InsertPt',1.5)", 15), "property[owner=1, position=0].value: is no point");
    connection.run("DELETE FROM property");
    EXPECT_EQ(refusalOf("(1,0,'CurveData',5)", 22), "property[owner=1, position=0].value: is no curve");
    connection.run("DELETE FROM property");
    EXPECT_EQ(refusalOf("(1,0,'SectionPoly','LINESTRING(0 0, 5 0)')", 15),
              "property[owner=1, position=0].value: is no polygon");
}

TEST_F(DatabasePropertyReaderTest, anOutlineThatNoPropertyTakesIsDamage)
{
    EXPECT_EQ(refusalOf("(1,0,'SectionPoly','POLYGON((0 0, 5 5, 5 0, 0 5, 0 0))')", 15),
              "property[owner=1, position=0].value: is no polygon");
}

TEST_F(DatabasePropertyReaderTest, elevationsAreCheckedHoweverManyThereAre)
{
    DatabasePropertyReader reader(true);
    for (int i = 0; i < 40; ++i)
        connection.run(
            QStringLiteral("INSERT INTO property VALUES(%1,0,'TopElev','%1.5')").arg(i).toLatin1().constData());
    connection.run("INSERT INTO property VALUES(40,0,'TopElev','roof')");
    DatabaseRows table(connection, "property", "owner, position", "name, value");
    for (int i = 0; i < 40; ++i) {
        PropertyRecords slab;
        ASSERT_TRUE(table.next());
        reader.read(table, *HBXPropertyCatalogue::instance().properties(19), slab);
        EXPECT_EQ(std::get<QString>(slab.at(0).second), QStringLiteral("%1.5").arg(i));
    }
    PropertyRecords slab;
    ASSERT_TRUE(table.next());
    EXPECT_THROW(reader.read(table, *HBXPropertyCatalogue::instance().properties(19), slab), DatabaseRefusal);
}
