#include "BeamReplies.h"
#include "CliFixture.h"

using namespace clitest;

namespace {

class BeamSeatsTest : public CliFixture
{
protected:
    Result apply(const QString &key, const QJsonArray &seats)
    {
        importSmallHouse();
        write("seats.json", QJsonObject{{key, seats}});
        return run({"beam", "seats", "apply", "house.hbxdb", "seats.json", "--json"});
    }
    /** The reason for which a single seat was left out. */
    std::string leftOut(const QString &key, const QJsonValue &seat)
    {
        const Result result = apply(key, {seat});
        const QJsonValue reason = result.json().value("leftOut")[0]["reason"];
        EXPECT_EQ(result.exitCode, reason.isString() ? 3 : 0) << result.err.toStdString();
        return reason.toString().toStdString();
    }
};

TEST_F(BeamSeatsTest, exportCountsWhatTheBuildingFileHas)
{
    importSample("precast-hall");
    const Result result = run({"beam", "seats", "export", "house.hbxdb", "--floor", "Foundation", "-o", "seats.json"});
    EXPECT_EQ(result.out.toStdString(), "Wrote 24 isolated footings, 0 pile caps, 48 piles, 0 tie beams of 1 floor\n");
    const QJsonObject seats = readJson("seats.json").object();
    EXPECT_EQ(keys(seats), "etIsolatedFD,etPile,etPileCap,etTieBeam");
    EXPECT_EQ(seats["etPile"].toArray().size(), 48);
}

TEST_F(BeamSeatsTest, seatsOfABuildingGoIntoACopyWithoutThem)
{
    importSample("precast-hall");
    ASSERT_EQ(run({"beam", "seats", "export", "house.hbxdb", "-o", "seats.json"}).exitCode, 0);
    QJsonObject building = fileObject(sample("precast-hall"));
    QJsonArray regions = building["regions"].toArray();
    QJsonObject region = regions[0].toObject();
    QJsonArray floors = region["floors"].toArray();
    QJsonObject floor = floors[0].toObject();
    ASSERT_EQ(floor["name"], "Foundation");
    floor["elements"] = QJsonArray();
    floors[0] = floor;
    region["floors"] = floors;
    regions[0] = region;
    building["regions"] = regions;
    write("copy.json", building);
    ASSERT_EQ(run({"project", "import", "copy.json", "-o", "copy.hbxdb"}).exitCode, 0);

    const Result result = run({"beam", "seats", "apply", "copy.hbxdb", "seats.json", "--json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(keys(result.json()), "doubled,kinds,leftOut,members,project,saved");
    for (const QJsonValue lost : result.json()["leftOut"].toArray()) // placed objects take those of their elements
        EXPECT_TRUE(lost["place"].toString().endsWith("TopElev") || lost["place"].toString().endsWith("BtmElev"));
    EXPECT_EQ(result.json()["members"], 72);
    const QJsonValue footings = result.json().value("kinds")[0];
    EXPECT_EQ(footings["title"], "isolated footing");
    EXPECT_EQ(footings["elementsMade"], 1);
    EXPECT_EQ(footings["reused"], 23);
    EXPECT_EQ(footings["unitsMade"], 24); // a unit for each seat, also below one foundation
    EXPECT_EQ(footings["placed"], 24);
    EXPECT_EQ(result.json().value("kinds")[1]["placed"], 48);
    const Result again = run({"beam", "seats", "export", "copy.hbxdb", "-o", "again.json", "--json"});
    EXPECT_EQ(again.json()["52"], 24);
    EXPECT_EQ(again.json()["54"], 48);
}

TEST_F(BeamSeatsTest, soundSeatsAreMadeAndSaved)
{
    const Result result = apply("etTieBeam", {tieBeam()});
    EXPECT_EQ(result.exitCode, 0) << result.out.toStdString();
    EXPECT_EQ(result.json().value("kinds")[0]["placed"], 1);
    EXPECT_EQ(result.json()["saved"], true);
    EXPECT_EQ(run({"beam", "seats", "export", "house.hbxdb", "-o", "out.json", "--json"}).json()["18"], 1);
}

TEST_F(BeamSeatsTest, pileIsTakenAndWhatIsNoneIsToldWithItsReason)
{
    EXPECT_EQ(leftOut("etPile", pile()), "");
    EXPECT_EQ(leftOut("etPileCap", pile()), "type 54 is no pile cap");
}

TEST_F(BeamSeatsTest, elevationOfAPlacedObjectThatIsNotItsElementsIsTold)
{
    EXPECT_EQ(leftOut("etPile", with(pile(), "EDOTopElev", "-1")), "");
    EXPECT_EQ(leftOut("etPile", with(pile(), "EDOTopElev", "-2.5")),
              "\"-2.5\" was sent, and \"-1\" is what the host has");
}

TEST_F(BeamSeatsTest, footingWhoseOutlineAnotherOneOfItsElementReplacesIsTold)
{
    const QJsonObject small = with(with(pile(), "ElementType", 52), "Height", 800);
    const QString large = "POLYGON((0 0, 900 0, 900 900, 0 900, 0 0))";
    const Result result = apply("etIsolatedFD", {small, with(small, "WorldPoly", large)});
    EXPECT_EQ(result.exitCode, 3);
    const QJsonArray told = result.json()["leftOut"].toArray();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told[0].toObject()["place"], "etIsolatedFD[0].WorldPoly");
    EXPECT_EQ(told[0].toObject()["whole"], false);
    EXPECT_EQ(apply("etIsolatedFD", {small, with(with(small, "WorldPoly", large), "EntName", "DJ-2")}).exitCode, 0);
}

TEST_F(BeamSeatsTest, valueThatTheHostHasOtherwiseIsTold)
{
    EXPECT_EQ(leftOut("etPile", with(pile(), "Height", 1234567)), "1234567 was sent, and 0 is what the host has");
}

TEST_F(BeamSeatsTest, elevationThatTheHostRefusesIsTold)
{
    const std::string told = leftOut("etPile", with(pile(), "TopElev", "roof"));
    EXPECT_EQ(told.rfind("a value was refused: ", 0), 0U) << told;
}

TEST_F(BeamSeatsTest, strictApplySavesNothingWhenASeatIsLeftOut)
{
    importSmallHouse();
    const QByteArray before = read("house.hbxdb");
    write("seats.json", QJsonObject{{"etPile", QJsonArray{pile(), 1}}});
    EXPECT_EQ(run({"beam", "seats", "apply", "house.hbxdb", "seats.json", "--strict"}).exitCode, 3);
    EXPECT_EQ(read("house.hbxdb"), before);
}

TEST_F(BeamSeatsTest, documentWithoutSeatsIsRefused)
{
    importSmallHouse();
    write("seats.json", QByteArray("{}"));
    refusal({"beam", "seats", "apply", "house.hbxdb", "seats.json"}, "seats.json");
    write("seats.json", QByteArray(R"({"etPile": 1})"));
    EXPECT_EQ(refusal({"beam", "seats", "apply", "house.hbxdb", "seats.json"}, "seats.json")["place"], "etPile");
}

} // namespace
