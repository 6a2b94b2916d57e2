#include "CliFixture.h"

namespace {

class WallExportCommandTest : public CliFixture
{};

TEST_F(WallExportCommandTest, jsonHasWhatStandsOnTheFloorAndTheOptionsOfTheBuilding)
{
    importSmallHouse();
    const Result result =
        run({"wall", "export", "house.hbxdb", "--kind", "brick", "--floor", "1", "-o", "in.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(keys(result.json()),
              "axisLines,brickLines,columns,floor,forceLines,format,kind,layers,lines,output,texts,"
              "walls,warnings");
    EXPECT_EQ(result.json()["walls"], 1);
    EXPECT_EQ(result.json()["brickLines"], 1);
    const QJsonDocument document = readJson("in.json");
    EXPECT_EQ(document["CadEntBrickWallDataInfo"][0]["entName"], "Q1");
    EXPECT_EQ(document["CurFloorModelBrickLineEntDataInfo"][0]["Worldline"], "0,0,5000,0");
    EXPECT_EQ(document["CadLayerInfo"]["layer_3"], QString::fromUtf8("砌体墙线"));
    EXPECT_EQ(document["DWGXBaseOptions"]["maxWallLineWidth"], "500");
    EXPECT_EQ(document["ProjectName"]["projectName"], "Small house");
    EXPECT_EQ(document["IdentifyType"]["identifyTpe"], "1");
    EXPECT_TRUE(document["floorName"].isUndefined());
}

TEST_F(WallExportCommandTest, forceWallsHaveTheirOwnListAndType)
{
    importSmallHouse();
    const Result result = run({"wall", "export", "house.hbxdb", "--kind", "force", "--floor", "1", "-o", "in.json"});
    EXPECT_EQ(result.out.toStdString(), "Wrote 0 force wall elements, 1 placed brick wall, 0 placed force walls, 0 "
                                        "axis lines and 0 columns of Level 1; 0 layers with 0 lines and 0 texts\n");
    EXPECT_TRUE(readJson("in.json")["CadEntForceWallDataInfo"].isArray());
    EXPECT_EQ(readJson("in.json")["IdentifyType"]["identifyTpe"], "2");
}

TEST_F(WallExportCommandTest, cloudDocumentHasFloorAndDrawing)
{
    importSmallHouse();
    ASSERT_EQ(run({"drawing", "make", "house.hbxdb", "--floor", "1", "-o", "D.cadi2"}).exitCode, 0);
    const Result result = run({"wall", "export", "house.hbxdb", "--kind", "brick", "--format", "cloud", "--floor", "1",
                               "--drawing", "D.cadi2", "-o", "in.json", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_GT(result.json()["lines"].toInt(), 0);
    EXPECT_EQ(readJson("in.json")["drawingName"]["drawingName"], "D.cadi2");
    EXPECT_EQ(readJson("in.json")["floorCode"]["floorCode"], "1");
    EXPECT_FALSE(readJson("in.json")["CadLineEdoDataInfo"]["value_0"].toArray().isEmpty());
}

TEST_F(WallExportCommandTest, documentGoesToStandardOutputWithoutAFile)
{
    importSmallHouse();
    const Result result = run({"wall", "export", "house.hbxdb", "--kind", "brick", "--floor", "1"});
    EXPECT_TRUE(QJsonDocument::fromJson(result.out).isObject());
    EXPECT_TRUE(result.err.startsWith("Wrote 1 brick wall element, 1 placed brick wall,")) << result.err.toStdString();
}

TEST_F(WallExportCommandTest, xmlWarnsOfLayersThatAreNoNames)
{
    importSmallHouse();
    ASSERT_EQ(run({"drawing", "make", "house.hbxdb", "--floor", "1", "-o", "D.cadi2"}).exitCode, 0);
    const QStringList xml{"wall",    "export", "house.hbxdb", "--kind",  "brick", "--format", "xml",
                          "--floor", "1",      "--drawing",   "D.cadi2", "-o",    "in.xml",   "--json"};
    EXPECT_EQ(run(xml).json()["warnings"].toArray(), QJsonArray());
    EXPECT_TRUE(read("in.xml").startsWith("<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<XmlRoot>\n"));
    write("D.cadi2", read("D.cadi2").replace("砌体墙线", "WALL 1"));
    const Result result = run(xml);
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(result.json()["warnings"].toArray(), QJsonArray{"layer \"WALL 1\" is no name in XML"});
    EXPECT_TRUE(run(xml.mid(0, 13)).out.contains("will not parse again: layer \"WALL 1\" is no name in XML"));
}

TEST_F(WallExportCommandTest, cloudOfForceWallsIsWrongUsage)
{
    importSmallHouse();
    const Result result =
        run({"wall", "export", "house.hbxdb", "--kind", "force", "--format", "cloud", "--floor", "1"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.err, "orvcad: there is no cloud document of force walls\n");
}

TEST_F(WallExportCommandTest, kindFormatAndFloorMustBeKnown)
{
    importSmallHouse();
    const QStringList start{"wall", "export", "house.hbxdb"};
    EXPECT_EQ(run(start + QStringList{"--floor", "1"}).exitCode, 1);
    EXPECT_EQ(run(start + QStringList{"--kind", "glass", "--floor", "1"}).exitCode, 1);
    EXPECT_EQ(run(start + QStringList{"--kind", "brick"}).exitCode, 1);
    EXPECT_EQ(run(start + QStringList{"--kind", "brick", "--format", "pdf", "--floor", "1"}).exitCode, 1);
    EXPECT_EQ(run(start + QStringList{"--kind", "brick", "--floor", "9"}).exitCode, 2);
}

TEST_F(WallExportCommandTest, drawingThatIsNoneIsRefusedByName)
{
    importSmallHouse();
    write("D.cadi2", QByteArray("{}"));
    refusal({"wall", "export", "house.hbxdb", "--kind", "brick", "--floor", "1", "--drawing", "D.cadi2"}, "D.cadi2");
    refusal({"wall", "export", "house.hbxdb", "--kind", "brick", "--floor", "1", "--drawing", "gone.cadi2"},
            "gone.cadi2");
}

} // namespace
