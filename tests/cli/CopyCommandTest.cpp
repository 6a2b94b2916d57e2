#include "CliFixture.h"

namespace {

/** house.hbxdb with Level 1 from 0 to 3 m, where all stands, and Level 2 from 3 to 6 m; barn.hbxdb with Loft from 3 to 6 m
 *  in East and in West. */
class CopyCommandTest : public CliFixture
{
protected:
    void SetUp() override
    {
        import("house", R"~({"name": "House", "floors": [{"name": "Level 1", "code": "1", "bottomElev": 0, "height": 3,
            "elements": [{"name": "Q1", "type": 1003, "properties": {"Thickness": 200}, "drawObjects": [
                {"shape": {"kind": "line", "axis": "LINESTRING(0 0, 5000 0)", "width": 200}}]},
            {"name": "M1", "type": 4, "properties": {"OpeningWidth": 900, "OpeningHeight": 2100}, "drawObjects": [
                {"shape": {"kind": "point", "outline": null, "insertPoint": [1500, 0]}, "attachedTo": [1003, "Q1", 0]}]},
            {"name": "B1", "type": 19, "properties": {"Thickness": 120}, "drawObjects": [{"properties": {"TopElev": "2.95"},
                "shape": {"kind": "face", "outline": "POLYGON((0 0, 5000 0, 5000 4000, 0 4000, 0 0))", "height": -120}}]}]},
            {"name": "Level 2", "code": "2", "bottomElev": 3, "height": 3}]})~");
        import("barn", R"~({"name": "East", "floors": [{"name": "Loft", "code": "L", "bottomElev": 3, "height": 3}]},
            {"name": "West", "floors": [{"name": "Loft", "code": "L", "bottomElev": 3, "height": 3}]})~");
    }
    void import(const QString &name, const QByteArray &regions) const
    {
        write(name + ".json",
              R"~({"format": "hbx-project", "version": 1, "name": "H", "regions": [)~" + regions + "]}");
        ASSERT_EQ(run({"project", "import", name + ".json", "-o", name + ".hbxdb"}).exitCode, 0);
    }
    /** Elements on a floor by type: "4:1 19:1 1003:1". */
    std::string held(const QString &project, const QString &region, const QString &floor) const
    {
        QStringList counts;
        const QJsonObject info = run({"project", "info", project, "--json"}).json();
        for (const QJsonValue aRegion : info["regions"].toArray())
            for (const QJsonValue aFloor : aRegion["floors"].toArray())
                if (aRegion["name"] == region && aFloor["name"] == floor)
                    for (const QJsonValue type : aFloor["types"].toArray())
                        counts.append(QString("%1:%2").arg(type["type"].toInt()).arg(type["drawObjects"].toInt()));
        return counts.join(' ').toStdString();
    }
    std::string wrongUsage(const QStringList &arguments) const
    {
        const Result result = run(arguments);
        EXPECT_EQ(result.exitCode, 1) << result.out.toStdString();
        return result.err.left(result.err.indexOf('\n')).toStdString();
    }
};

TEST_F(CopyCommandTest, floorGoesIntoTheProjectAndFloorThatStandBehindIt)
{
    const Result result =
        run({"copy", "house.hbxdb", "--floor", "Level 1", "barn.hbxdb", "--region", "West", "--floor", "L", "--json"});
    EXPECT_EQ(result.exitCode, 0) << result.out.toStdString() << result.err.toStdString();
    EXPECT_EQ(keys(result.json()), "from,notCarried,project,roads,saved,to");
    EXPECT_EQ(result.json()["to"], QJsonValue(QJsonObject{{"region", "West"}, {"floor", "Loft"}}));
    EXPECT_EQ(result.json()["project"], "barn.hbxdb");
    EXPECT_EQ(result.json()["saved"], true);
    EXPECT_EQ(held("barn.hbxdb", "West", "Loft"), "4:1 19:1 1003:1");
    EXPECT_EQ(held("barn.hbxdb", "East", "Loft"), "");
    EXPECT_EQ(held("house.hbxdb", "House", "Level 1"), "4:1 19:1 1003:1");
}

TEST_F(CopyCommandTest, floorGoesToAnotherFloorOfTheSameProjectWithItsElevations)
{
    EXPECT_EQ(run({"copy", "house.hbxdb", "--floor", "1", "--to-floor", "2"}).exitCode, 0);
    EXPECT_EQ(held("house.hbxdb", "House", "Level 2"), "4:1 19:1 1003:1");
    const Result slabs = run({"slab", "export", "house.hbxdb", "--floor", "2"});
    const QJsonValue slab = QJsonDocument::fromJson(slabs.out).object()["boards"].toArray().at(0);
    EXPECT_EQ(slab["elev"], 5.95);
}

TEST_F(CopyCommandTest, sameProjectMayStandTwiceAndUnderAnotherName)
{
    ASSERT_TRUE(QFile::link(path("house.hbxdb"), path("alias.hbxdb")));
    EXPECT_EQ(run({"copy", "house.hbxdb", "--floor", "1", "alias.hbxdb", "--floor", "2"}).exitCode, 0);
    EXPECT_EQ(held("house.hbxdb", "House", "Level 2"), "4:1 19:1 1003:1");
}

TEST_F(CopyCommandTest, explicitFormsMayStandAnywhere)
{
    EXPECT_EQ(run({"copy", "--to-floor", "L", "--to-region", "East", "--roads", "slab,wall", "house.hbxdb", "--floor",
                   "1", "barn.hbxdb"})
                  .exitCode,
              0);
    EXPECT_EQ(held("barn.hbxdb", "East", "Loft"), "19:1 1003:1");
}

TEST_F(CopyCommandTest, doorWithoutItsWallIsPlacedOutsideOfOne)
{
    const Result result =
        run({"copy", "house.hbxdb", "--floor", "1", "--to-floor", "2", "--roads", "opening", "--json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.json()["roads"].toArray().at(0)["unattached"], 1);
}

TEST_F(CopyCommandTest, whatIsLeftOutIsToldAndStrictSavesNothing)
{
    const QStringList again{"copy", "house.hbxdb", "--floor", "1", "--to-floor", "2", "--roads", "opening"};
    ASSERT_EQ(run(again).exitCode, 0);
    const QByteArray before = read("house.hbxdb");
    const Result strict = run(again + QStringList{"--strict", "--json"});
    EXPECT_EQ(strict.exitCode, 3);
    EXPECT_EQ(strict.json()["saved"], false);
    EXPECT_EQ(read("house.hbxdb"), before);
    const Result result = run(again);
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.out.contains("left out: member 0 (M1): the floor has an element of that name already"))
        << result.out.toStdString();
}

TEST_F(CopyCommandTest, failureLeavesBothProjectsAsTheyWere)
{
    const QByteArray house = read("house.hbxdb");
    const QByteArray barn = read("barn.hbxdb");
    refusal({"copy", "house.hbxdb", "--floor", "Attic", "barn.hbxdb", "--region", "East", "--floor", "L"},
            "house.hbxdb");
    refusal({"copy", "house.hbxdb", "--floor", "1", "barn.hbxdb", "--floor", "L"}, "barn.hbxdb");
    refusal({"copy", "house.hbxdb", "--floor", "1", "--to-floor", "1"}, "house.hbxdb");
    refusal({"copy", "nowhere.hbxdb", "--floor", "1", "--to-floor", "2"}, "nowhere.hbxdb");
    EXPECT_EQ(read("house.hbxdb"), house);
    EXPECT_EQ(read("barn.hbxdb"), barn);
}

TEST_F(CopyCommandTest, floorThatBelongsToNoProjectOrIsMissingIsWrongUsage)
{
    EXPECT_EQ(wrongUsage({"copy", "--floor", "1", "house.hbxdb", "barn.hbxdb", "--floor", "L"}),
              "orvcad: --floor stands before the project that it is of");
    EXPECT_EQ(wrongUsage({"copy", "house.hbxdb", "--floor", "1", "barn.hbxdb"}),
              "orvcad: --floor behind the second project or --to-floor is required");
    EXPECT_EQ(wrongUsage({"copy", "house.hbxdb", "barn.hbxdb", "--floor", "L"}),
              "orvcad: --floor is required behind the first project");
    EXPECT_EQ(wrongUsage({"copy", "house.hbxdb", "--floor", "1", "--floor", "2"}),
              "orvcad: --floor names a second one: \"1\" and \"2\"");
    EXPECT_EQ(wrongUsage({"copy", "house.hbxdb", "--floor", "1", "barn.hbxdb", "--floor", "L", "--to-floor", "M"}),
              "orvcad: --to-floor names a second one: \"L\" and \"M\"");
}

TEST_F(CopyCommandTest, roadThatThereIsNotIsWrongUsage)
{
    EXPECT_NE(wrongUsage({"copy", "house.hbxdb", "--floor", "1", "--to-floor", "2", "--roads", "stair"}).find("stair"),
              std::string::npos);
}

} // namespace
