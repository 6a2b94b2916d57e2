#include "cli/HtmlModel.h"

#include "HouseFixture.h"
#include "platform/embedded/HBXModelStore.h"

using orvcad::HtmlModel;

namespace {

class HtmlModelTest : public HouseFixture
{
protected:
    using Record = hbx::embedded::ProjectRecord;

    static Record recordOf(const QByteArray &elements) { return houseOf(elements)->store().snapshot(); }
    static const QByteArray kWall;
};

const QByteArray HtmlModelTest::kWall = wall("Q1", "LINESTRING(0 0, 5000 0)");

TEST_F(HtmlModelTest, elementsAndObjectsAreToldByPlace)
{
    const Record record = recordOf(kWall + ',' + doorIn("M1", "Q1", 1000, 0));
    HtmlModel model(record, nullptr, nullptr);
    model.addFloor("F", "House", 0, record.floors[0].id);
    const QJsonObject json = model.json({1003, 4});
    EXPECT_FALSE(json["differences"].toBool());
    EXPECT_EQ(json["floors"], (QJsonArray{QJsonObject{{"name", "F"}, {"region", "House"}}}));
    EXPECT_EQ(json["types"], (QJsonArray{QJsonObject{{"type", 1003}, {"title", "brick wall"}},
                                         QJsonObject{{"type", 4}, {"title", "door"}}}));
    const QJsonObject door = json["elements"].toArray()[1].toObject();
    EXPECT_EQ(door["name"], "M1");
    EXPECT_EQ(door["facts"].toObject()["properties"].toObject()["OpeningWidth"], 900);
    EXPECT_EQ(door["objects"], (QJsonArray{1}));
    const QJsonObject placed = json["objects"].toArray()[1].toObject();
    EXPECT_EQ(placed["element"], 1);
    EXPECT_EQ(model.placeOf(placed["id"].toVariant().toLongLong()), 1);
    EXPECT_TRUE(placed["facts"].toObject()["attachedTo"].toString().startsWith("brick wall Q1, object "));
    EXPECT_EQ(model.placeOf(4711), -1);
}

TEST_F(HtmlModelTest, floorWithMostObjectsIsShownFirst)
{
    openSample("made-building");
    const Record record = project->store().snapshot();
    HtmlModel model(record, nullptr, nullptr);
    for (const auto &floor : record.floors)
        model.addFloor(floor.name, "R", 0, floor.id);
    const QJsonObject json = model.json({});
    EXPECT_EQ(json["floors"].toArray()[json["first"].toInt()].toObject()["name"], QStringLiteral("第1层"));
}

TEST_F(HtmlModelTest, goneObjectsFollowThoseOfTheLaterProject)
{
    const auto before = houseOf(kWall + ',' + column("K1", 0, 0));
    const auto after = houseOf(wall("Q1", "LINESTRING(0 0, 6000 0)") + ',' + column("K2", 0, 0, 26));
    const auto difference = orvcad::differenceBetween(*before, *after);
    const Record earlier = before->store().snapshot();
    const Record later = after->store().snapshot();
    HtmlModel model(later, &earlier, &difference);
    model.addFloor("F", "House", earlier.floors[0].id, later.floors[0].id);
    const QJsonArray objects = model.json({})["objects"].toArray();
    ASSERT_EQ(objects.size(), 3);
    QStringList states;
    for (const QJsonValue object : objects)
        states.append(object["state"].toString());
    EXPECT_EQ(states.join(' '), "changed added gone");

    const qint64 wall = later.drawObjs[0].id;
    EXPECT_EQ(model.stateOf(wall), "changed");
    EXPECT_EQ(model.earlierStateOf(wall), "was"); // it lay elsewhere
    EXPECT_EQ(model.earlierPlaceOf(wall), 0);
    const qint64 column = earlier.drawObjs[1].id;
    EXPECT_EQ(model.earlierStateOf(column), "gone");
    EXPECT_EQ(model.earlierPlaceOf(column), 2);
}

TEST_F(HtmlModelTest, objectsChangeWithTheirElement)
{
    const auto before = houseOf(kWall);
    const auto after = houseOf(QByteArray(kWall).replace("\"Thickness\": 200", "\"Thickness\": 240"));
    const auto difference = orvcad::differenceBetween(*before, *after);
    const Record earlier = before->store().snapshot();
    const Record later = after->store().snapshot();
    HtmlModel model(later, &earlier, &difference);
    model.addFloor("F", "House", earlier.floors[0].id, later.floors[0].id);
    EXPECT_EQ(model.stateOf(later.drawObjs[0].id), "changed");
    EXPECT_EQ(model.earlierPlaceOf(later.drawObjs[0].id), -1);
    EXPECT_EQ(model.json({})["elements"].toArray()[0].toObject()["state"], "changed");
}

} // namespace
