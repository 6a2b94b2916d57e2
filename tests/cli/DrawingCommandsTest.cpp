#include "CliFixture.h"

namespace {

class DrawingCommandsTest : public CliFixture
{
protected:
    static QJsonObject layer(const QString &name, int color, int lines, int texts)
    {
        return {{"name", name}, {"color", color}, {"lines", lines}, {"texts", texts}};
    }
};

TEST_F(DrawingCommandsTest, makeDrawsAFloorAndShowTellsTheSame)
{
    importSmallHouse();
    const Result made =
        run({"drawing", "make", "house.hbxdb", "--region", "House", "--floor", "Level 1", "-o", "a.cadi2", "--json"});
    EXPECT_EQ(made.exitCode, 0) << made.err.toStdString();
    EXPECT_EQ(keys(made.json()), "layers,lines,output,remark,texts,title");
    EXPECT_EQ(made.json()["output"], "a.cadi2");

    const Result shown = run({"drawing", "show", "a.cadi2", "--json"});
    EXPECT_EQ(shown.exitCode, 0) << shown.err.toStdString();
    EXPECT_EQ(keys(shown.json()), "layers,lines,remark,texts,title");
    EXPECT_EQ(shown.json()["title"], "House, Level 1");
    EXPECT_EQ(shown.json()["remark"], "Small house");
    EXPECT_EQ(shown.json()["lines"], 4);
    EXPECT_EQ(shown.json()["texts"], 1);
    // The wall's four edges in the grey that is nearest to its colour, and its name in ink.
    EXPECT_EQ(shown.json()["layers"].toArray(), (QJsonArray{layer("砌体墙线", 8, 4, 0), layer("墙标注", 7, 0, 1)}));

    QJsonObject withoutOutput = made.json();
    withoutOutput.remove("output");
    EXPECT_EQ(withoutOutput, shown.json());
}

TEST_F(DrawingCommandsTest, layersTakeTheNamesThatTheProjectKeeps)
{
    importSample("made-building");
    ASSERT_EQ(run({"drawing", "make", "house.hbxdb", "--region", "主楼", "--floor", "第1层", "-o", "a.cadi2"}).exitCode,
              0);
    QStringList names;
    for (const QJsonValue layer : run({"drawing", "show", "a.cadi2", "--json"}).json()["layers"].toArray())
        names.append(layer.toObject()["name"].toString());
    EXPECT_TRUE(names.contains("A-WALL-BRICK")) << names.join(", ").toStdString();
    EXPECT_FALSE(names.contains("砌体墙线"));
}

TEST_F(DrawingCommandsTest, bothTellPeopleWhatTheDrawingHolds)
{
    importSmallHouse();
    const Result made = run({"drawing", "make", "house.hbxdb", "--floor", "1", "-o", "a.cadi2"});
    EXPECT_EQ(made.out, "Drew House, Level 1 into a.cadi2: 2 layers, 4 lines, 1 text\n");
    const QList<QByteArray> lines = run({"drawing", "show", "a.cadi2"}).out.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines[0], "House, Level 1: 2 layers, 4 lines, 1 text");
    EXPECT_EQ(lines[1].simplified(), "砌体墙线 colour 8 4 lines 0 texts");
    EXPECT_EQ(lines[2].simplified(), "墙标注 colour 7 0 lines 1 texts");
    EXPECT_TRUE(lines[3].startsWith("  extends over 5")) << lines[3].toStdString();
}

TEST_F(DrawingCommandsTest, everyFloorOfEverySampleCanBeDrawnAndRead)
{
    forEachFloorOfSamples([this](const QString &region, const QJsonObject &floor) {
        const QString name = floor["name"].toString();
        const Result made =
            run({"drawing", "make", "house.hbxdb", "--region", region, "--floor", name, "-o", "a.cadi2"});
        ASSERT_EQ(made.exitCode, 0) << name.toStdString() << made.err.toStdString();
        const QJsonObject shown = run({"drawing", "show", "a.cadi2", "--json"}).json();
        EXPECT_GT(shown["lines"].toInt(), 0) << region.toStdString() << ' ' << name.toStdString();
        EXPECT_GT(shown["texts"].toInt(), 0) << region.toStdString() << ' ' << name.toStdString();
    });
}

TEST_F(DrawingCommandsTest, drawingThatIsNoneIsRefused)
{
    for (const char *drawing :
         {"", " ", "no json", "[]", "{}", R"~({"format": "svg", "version": 1, "layers": []})~",
          R"~({"format": "cadi2", "version": 1})~", R"~({"format": "cadi2", "version": 1, "layers": {}})~"}) {
        write("a.cadi2", QByteArray(drawing));
        refusal({"drawing", "show", "a.cadi2"}, "a.cadi2");
    }
}

TEST_F(DrawingCommandsTest, newerDrawingIsRefusedAtItsVersion)
{
    write("a.cadi2", QByteArray(R"~({"format": "cadi2", "version": 2, "layers": []})~"));
    EXPECT_EQ(refusal({"drawing", "show", "a.cadi2"}, "a.cadi2")["place"], "version");
}

TEST_F(DrawingCommandsTest, brokenCurveIsRefusedAtItsPlace)
{
    write("a.cadi2", QByteArray(R"~({"format": "cadi2", "version": 1, "layers": [{"name": "A", "color": 1, "lines": [
        {"id": 1, "curve": "LINESTRING(0 0, 5 0)"}, {"id": 2, "curve": "POLYGON((0 0, 9 0, 9 9, 0 0))"}]}]})~"));
    EXPECT_EQ(refusal({"drawing", "show", "a.cadi2"}, "a.cadi2")["place"], "layers[0].lines[1].curve");
}

TEST_F(DrawingCommandsTest, truncatedDrawingIsRefusedWhereverItIsCut)
{
    importSmallHouse();
    ASSERT_EQ(run({"drawing", "make", "house.hbxdb", "--floor", "1", "-o", "a.cadi2"}).exitCode, 0);
    const QByteArray whole = read("a.cadi2").trimmed();
    for (int length = 1; length < whole.size(); length += 37) {
        write("cut.cadi2", whole.left(length));
        refusal({"drawing", "show", "cut.cadi2"}, "cut.cadi2");
    }
}

TEST_F(DrawingCommandsTest, missingDrawingAndADirectoryAreRefused)
{
    refusal({"drawing", "show", "nowhere.cadi2"}, "nowhere.cadi2");
    refusal({"drawing", "show", "."}, ".");
}

TEST_F(DrawingCommandsTest, unknownFloorListsTheKnownOnesAndMakesNoFile)
{
    importSample("masonry-block");
    const QJsonObject error =
        refusal({"drawing", "make", "house.hbxdb", "--floor", "Attic", "-o", "a.cadi2"}, "house.hbxdb");
    EXPECT_EQ(error["reason"], "no floor \"Attic\" in region \"Block\"; known floors: \"Foundation\", \"Level 1\", "
                               "\"Level 2\", \"Level 3\", \"Level 4\", \"Level 5\"");
    EXPECT_FALSE(exists("a.cadi2"));
}

} // namespace
