#include "BuildingWalk.h"
#include "CommandRun.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <numeric>

using namespace honestytest;

namespace {

/** What verbs write of a building against a walk through the building. */
class HonestExportTest : public ::testing::TestWithParam<const char *>
{
protected:
    using Floor = BuildingWalk::Floor;

    void SetUp() override
    {
        writeFile("building.json", sampleBuilding(GetParam()));
        ASSERT_EQ(run({"project", "import", "building.json", "-o", "house.hbxdb"}).exitCode, 0);
    }
    /** Runs a verb that writes a document, which has to end with exit code 0 and leave the project as it is. */
    Ran write(const QStringList &arguments, const Floor *floor = nullptr) const
    {
        QStringList all = arguments + QStringList{"house.hbxdb", "-o", "document"};
        if (floor)
            all += QStringList{"--region", floor->region, "--floor", floor->name};
        const QByteArray before = fileContent("house.hbxdb");
        Ran ran = run(all);
        EXPECT_EQ(ran.exitCode, 0) << arguments.join(' ').toStdString() << '\n' << ran.shown();
        EXPECT_EQ(ran.json["output"], "document");
        EXPECT_FALSE(ran.documentOnStdout);
        EXPECT_TRUE(fileContent("house.hbxdb") == before);
        return ran;
    }
    static QJsonObject document() { return fileObject("document"); }
    /** All numbers of the first line of a summary, in its order. */
    static std::vector<int> numbersIn(const Ran &ran)
    {
        static const QRegularExpression number("(?<![\\w.-])\\d+(?= [a-z])");
        std::vector<int> numbers;
        auto matches = number.globalMatch(ran.text.section('\n', 0, 0));
        while (matches.hasNext())
            numbers.push_back(matches.next().captured().toInt());
        return numbers;
    }

    const BuildingWalk walk{sampleBuilding(GetParam())};
};

TEST_P(HonestExportTest, floorsAreThoseOfEachRegion)
{
    QMap<QString, int> floors;
    for (const Floor &floor : walk.floors)
        ++floors[floor.region];
    for (auto region = floors.cbegin(); region != floors.cend(); ++region) {
        const Ran ran = write({"floors", "export", "--region", region.key()});
        EXPECT_EQ(document()["Floors"].toArray().size(), region.value());
        EXPECT_EQ(ran.json["floors"], region.value());
        EXPECT_EQ(numbersIn(ran), std::vector<int>{region.value()});
    }
}

TEST_P(HonestExportTest, openingsAreThoseOfTheBuilding)
{
    const Ran ran = write({"opening", "export"});
    int elements = 0;
    for (const Floor &floor : walk.floors)
        for (const int type : {4, 5, 6, 7})
            elements += floor.elements.value(type);
    const QJsonArray members = document()["eDoorWin"].toObject()["ElementsAndEdos"].toArray();
    EXPECT_EQ(members.size(), elements + walk.placed({4, 5, 6, 7}));
    EXPECT_EQ(ran.json["elements"], elements);
    EXPECT_EQ(ran.json["placed"], walk.placed({4, 5, 6, 7}));
    EXPECT_EQ(ran.json["floors"], static_cast<int>(walk.floors.size()));
    EXPECT_EQ(numbersIn(ran), (std::vector<int>{elements, walk.placed({4, 5, 6, 7}), ran.json["attached"].toInt(),
                                                static_cast<int>(walk.floors.size())}));
}

TEST_P(HonestExportTest, beamsAreThoseOfTheBuilding)
{
    const Ran ran = write({"beam", "export"});
    int elements = 0;
    int segments = 0;
    int spans = 0;
    int chains = 0;
    for (const char *array : {"Beam", "LinkBeam", "FDBeam"})
        for (const QJsonValue beam : document()[QLatin1String(array)].toArray()) {
            ++elements;
            for (const QJsonValue chain : beam["EDOInfo"].toArray()) {
                ++chains;
                segments += chain["BeamSegmentInfo"].toArray().size();
                spans += chain["BeamSpanInfo"].toArray().size();
            }
        }
    EXPECT_EQ(segments, walk.placed({15, 17, 47}));
    EXPECT_EQ(ran.json["elements"], elements);
    EXPECT_EQ(ran.json["chains"], chains);
    EXPECT_EQ(ran.json["segments"], segments);
    EXPECT_EQ(ran.json["spans"], spans);
    EXPECT_EQ(numbersIn(ran),
              (std::vector<int>{elements, chains, segments, spans, static_cast<int>(walk.floors.size())}));
}

TEST_P(HonestExportTest, seatsAreThoseOfTheBuilding)
{
    const Ran ran = write({"beam", "seats", "export"});
    const std::pair<const char *, int> arrays[] = {
        {"etIsolatedFD", 52}, {"etPileCap", 53}, {"etPile", 54}, {"etTieBeam", 18}};
    std::vector<int> counts;
    for (const auto &[array, type] : arrays) {
        counts.push_back(walk.placed({type}));
        EXPECT_EQ(document()[QLatin1String(array)].toArray().size(), walk.placed({type})) << array;
        EXPECT_EQ(ran.json[QString::number(type)], walk.placed({type})) << array;
    }
    counts.push_back(static_cast<int>(walk.floors.size()));
    EXPECT_EQ(numbersIn(ran), counts);
}

TEST_P(HonestExportTest, wallsOfARepliesAreThoseOfTheBuilding)
{
    for (const auto &[kind, type] : {std::pair<const char *, int>{"brick", 1003}, {"force", 0}}) {
        const Ran ran = write({"wall", "reply", "--kind", kind});
        const QJsonObject reply = document();
        const QJsonObject map = reply[type == 0 ? "eWall" : "eBrickWall"]["ElementsAndEdos"]
                                     [type == 0 ? "ForceWallIdentifyData" : "BrickWallIdentifyData"]
                                         .toObject();
        int pieces = 0;
        for (const QString &key : map.keys())
            pieces += map[key].toArray().size();
        int elements = 0;
        for (const Floor &floor : walk.floors)
            elements += floor.elements.value(type);
        EXPECT_EQ(pieces, walk.placed({type})) << kind;
        EXPECT_EQ(ran.json["pieces"], pieces);
        EXPECT_EQ(ran.json["elements"], map.size() / 2);
        EXPECT_EQ(ran.json["elements"].toInt() + ran.json["withoutPieces"].toInt(), elements) << kind;
    }
}

TEST_P(HonestExportTest, eachFloorsDocumentsHoldWhatTheFloorHas)
{
    for (const Floor &floor : walk.floors) {
        SCOPED_TRACE(floor.name.toStdString());
        const Ran slabs = write({"slab", "export"}, &floor);
        const std::pair<const char *, std::vector<int>> arrays[] = {
            {"boards", {19}}, {"rafts", {48}}, {"board_holes", {24}}, {"axisGrids", {74}}, {"columns", {25, 26, 1002}}};
        for (const auto &[array, types] : arrays) {
            const int count = document()[QLatin1String(array)].toArray().size();
            EXPECT_EQ(slabs.json["arrays"][QLatin1String(array)].toInt(), count) << array;
            // A column of one kind of section of the host is no support, so there may be fewer of these.
            EXPECT_LE(count, BuildingWalk::placed(floor, types)) << array;
            EXPECT_TRUE(count == BuildingWalk::placed(floor, types) || array == std::string("columns")) << array;
        }
        const Ran walls = write({"wall", "export", "--kind", "brick"}, &floor);
        EXPECT_EQ(walls.json["brickLines"], BuildingWalk::placed(floor, {1003}));
        EXPECT_EQ(walls.json["forceLines"], BuildingWalk::placed(floor, {0}));
        EXPECT_EQ(document()["CurFloorModelBrickLineEntDataInfo"].toArray().size(), walls.json["brickLines"].toInt());
        write({"beam", "identify-input"}, &floor);
        const Ran plan = write({"draw"}, &floor);
        int all = 0;
        for (const auto &counts : {floor.drawObjs, floor.children})
            all += std::accumulate(counts.begin(), counts.end(), 0);
        EXPECT_EQ(plan.json["drawn"].toInt() + plan.json["withoutGeometry"].toInt(), all);
    }
}

TEST_P(HonestExportTest, drawingShowsWhatWasMade)
{
    for (const Floor &floor : walk.floors) {
        const Ran made = write({"drawing", "make"}, &floor);
        const Ran shown = run({"drawing", "show", "document"});
        EXPECT_EQ(shown.exitCode, 0) << shown.shown();
        QJsonObject json = made.json;
        json.remove("output");
        EXPECT_EQ(json, shown.json);
    }
}

TEST_P(HonestExportTest, infoCountsWhatTheBuildingHas)
{
    const Ran ran = run({"project", "info", "house.hbxdb"});
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_EQ(ran.json["elements"], walk.elements());
    EXPECT_EQ(ran.json["drawObjects"], walk.drawObjs());
    for (const QJsonValue region : ran.json["regions"].toArray())
        for (const QJsonValue told : region["floors"].toArray())
            for (const Floor &floor : walk.floors) {
                if (floor.region != region["name"].toString() || floor.name != told["name"].toString())
                    continue;
                for (const QJsonValue type : told["types"].toArray()) {
                    const int number = type["type"].toInt();
                    EXPECT_EQ(type["elements"], floor.elements.value(number) + floor.units.value(number));
                    EXPECT_EQ(type["drawObjects"], floor.drawObjs.value(number) + floor.children.value(number));
                }
            }
}

INSTANTIATE_TEST_SUITE_P(Buildings, HonestExportTest, ::testing::ValuesIn(kSampleBuildings),
                         [](const auto &test) { return QString(test.param).remove('-').toStdString(); });

} // namespace
