#include "CliFixture.h"
#include "Picture.h"

namespace {

class DrawCommandTest : public CliFixture
{
protected:
    /** The summary of drawing a floor of house.hbxdb into plan.svg, which has to be well-formed. */
    QJsonObject draw(const QString &floor, const QString &region)
    {
        const Result result =
            run({"draw", "house.hbxdb", "--floor", floor, "--region", region, "-o", "plan.svg", "--json"});
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        const Picture picture(read("plan.svg"));
        return result.json();
    }
};

TEST_F(DrawCommandTest, summaryHasItsKeys)
{
    importSmallHouse();
    EXPECT_EQ(draw("Level 1", "House"),
              (QJsonObject{{"output", "plan.svg"}, {"drawn", 1}, {"withoutGeometry", 0}, {"scale", 20}}));
    EXPECT_EQ(run({"draw", "house.hbxdb", "--floor", "1", "-o", "plan.svg"}).out,
              "Drew 1 placed object of Level 1 at 1:20\n");
}

TEST_F(DrawCommandTest, pictureWithoutAFileGoesToStandardOutput)
{
    importSmallHouse();
    draw("Level 1", "House");
    const Result result = run({"draw", "house.hbxdb", "--floor", "Level 1"});
    EXPECT_EQ(result.out, read("plan.svg"));
    EXPECT_EQ(result.err, "Drew 1 placed object of Level 1 at 1:20\n");
}

TEST_F(DrawCommandTest, objectsWithoutGeometryAreToldAndAreNoFailure)
{
    importSample("made-building");
    const Result result = run({"draw", "house.hbxdb", "--region", "主楼", "--floor", "2", "-o", "plan.svg"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.out.startsWith("Drew 7 placed objects of 第2层 at 1:")) << result.out.toStdString();
    EXPECT_TRUE(result.out.endsWith("; 3 without geometry\n")) << result.out.toStdString();
}

TEST_F(DrawCommandTest, everyFloorOfEverySampleIsDrawn)
{
    forEachFloorOfSamples([this](const QString &region, const QJsonObject &floor) {
        int placed = 0;
        for (const QJsonValue type : floor["types"].toArray())
            placed += type["drawObjects"].toInt();
        const QJsonObject drawn = draw(floor["name"].toString(), region);
        EXPECT_EQ(drawn["drawn"].toInt() + drawn["withoutGeometry"].toInt(), placed);
    });
}

TEST_F(DrawCommandTest, pictureIsAPngWhereTheEndingOrTheFormatSaysSo)
{
    importSmallHouse();
    const QStringList draw{"draw", "house.hbxdb", "--floor", "1", "--width", "300"};
    EXPECT_EQ(run(draw + QStringList{"-o", "plan.PNG"}).exitCode, 0);
    EXPECT_TRUE(read("plan.PNG").startsWith("\x89PNG"));
    EXPECT_EQ(run(draw + QStringList{"--format", "png", "-o", "plan.svg"}).exitCode, 0);
    EXPECT_EQ(read("plan.svg"), read("plan.PNG"));
    EXPECT_EQ(run(draw + QStringList{"--format", "png"}).out, read("plan.PNG"));
}

TEST_F(DrawCommandTest, widthIsForPngPicturesAndHasLimits)
{
    importSmallHouse();
    const QStringList draw{"draw", "house.hbxdb", "--floor", "1"};
    for (const QStringList &wrong : {QStringList{"-o", "a.png", "--width", "99"},
                                     {"-o", "a.png", "--width", "10001"},
                                     {"-o", "a.png", "--width", "wide"},
                                     {"-o", "a.svg", "--width", "300"}}) {
        const Result result = run(draw + wrong);
        EXPECT_EQ(result.exitCode, 1) << wrong.join(' ').toStdString();
        EXPECT_TRUE(result.err.contains("--width")) << result.err.toStdString();
    }
    EXPECT_FALSE(exists("a.png"));
}

TEST_F(DrawCommandTest, comparisonIsForPagesAndSaysSoBeforeItAsksForAFloor)
{
    importSmallHouse();
    const Result picture = run({"draw", "house.hbxdb", "--against", "house.hbxdb", "-o", "plan.svg"});
    EXPECT_EQ(picture.exitCode, 1);
    EXPECT_TRUE(picture.err.startsWith("orvcad: --against: is for html pages, which a name ending in .html asks for\n"))
        << picture.err.toStdString();
    EXPECT_EQ(run({"draw", "house.hbxdb", "--against", "house.hbxdb", "--floor", "1", "-o", "p.html"}).exitCode, 1);
    EXPECT_EQ(run({"draw", "house.hbxdb", "--against", "house.hbxdb", "-o", "page.html"}).exitCode, 0);
}

TEST_F(DrawCommandTest, missingPainterIsTold)
{
    importSmallHouse();
    setVariable("PATH", path("."));
    const QJsonObject error = refusal({"draw", "house.hbxdb", "--floor", "1", "-o", "a.png"}, "rsvg-convert");
    EXPECT_EQ(error["reason"].toString(), "is not there, and it makes PNG pictures (package librsvg2-bin)");
    EXPECT_FALSE(exists("a.png"));
}

TEST_F(DrawCommandTest, unknownRegionAndFloorListTheKnownOnes)
{
    importSample("made-building");
    EXPECT_EQ(refusal({"draw", "house.hbxdb", "--region", "Barn", "--floor", "1"}, "house.hbxdb")["reason"].toString(),
              QStringLiteral("no region \"Barn\"; known regions: \"主楼\", \"附楼 Annex\""));
    EXPECT_EQ(refusal({"draw", "house.hbxdb", "--region", "附楼 Annex", "--floor", "第1层"}, "house.hbxdb")["reason"]
                  .toString(),
              QStringLiteral("no floor \"第1层\" in region \"附楼 Annex\"; known floors: \"Roof\", \"Ground\""));
}

} // namespace
