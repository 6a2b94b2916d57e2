// Sound documents that are strange: one name a thousand times, no names, numbers far out, keys in other cases.

#include "DrawingJson.h"
#include "drawing/ORVCADClassifiedLayers.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloorSDCData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADLayerClassifyResult.h"

#include <gmock/gmock.h>

#include <memory>

using namespace drawing_test;

namespace {

constexpr int kThousand = 1000;

QJsonObject floorRecord(const QJsonValue &name, const QJsonValue &bottom, const QJsonValue &height,
                        const QJsonValue &count)
{
    return {{"Name", name}, {"BottomElev", bottom}, {"Height", height}, {"StdCount", count}, {"Remark", ""}};
}

std::unique_ptr<ORVCADFloors> readFloors(const QJsonArray &floors)
{
    return std::unique_ptr<ORVCADFloors>(ORVCADFloors::fromJson({{"AreaName", "A"}, {"Floors", floors}}));
}

std::unique_ptr<ORVCADDrawingFloorMappings> readPlaces(const QJsonValue &json)
{
    return std::unique_ptr<ORVCADDrawingFloorMappings>(ORVCADDrawingFloorMappings::fromJson(json));
}

std::unique_ptr<ORVCADDrawingElementMappings> readTypes(const QJsonValue &json)
{
    return std::unique_ptr<ORVCADDrawingElementMappings>(ORVCADDrawingElementMappings::fromJson(json));
}

/** Every key of every object turned over: small letters to large ones and back. */
QJsonValue withKeysTurned(const QJsonValue &value)
{
    if (value.isArray()) {
        QJsonArray turned;
        for (const QJsonValue entry : value.toArray())
            turned.append(withKeysTurned(entry));
        return turned;
    }
    if (!value.isObject())
        return value;
    QJsonObject turned;
    const QJsonObject object = value.toObject();
    for (const QString &key : object.keys()) {
        QString other;
        for (const QChar letter : key)
            other.append(letter.isUpper() ? letter.toLower() : letter.toUpper());
        turned.insert(other, withKeysTurned(object.value(key)));
    }
    return turned;
}

} // namespace

TEST(OddDrawingSetsTest, thousandFloorsOfOneNameAreKeptAndTheFirstIsFound)
{
    QJsonArray records;
    for (int i = 0; i < kThousand; ++i)
        records.append(floorRecord("F", 3.0 * i, 3.0, 1));
    const auto floors = readFloors(records);
    ASSERT_EQ(floors->getCount(), kThousand);
    EXPECT_EQ(floors->getFloor(QStringLiteral("F")), floors->getFloor(0));
    EXPECT_EQ(floors->getHighestFloor(), floors->getFloor(kThousand - 1));
    EXPECT_EQ(floors->getUpstairFloor(floors->getFloor(498)), floors->getFloor(499));
    EXPECT_EQ(floors->getDownstairFloor(floors->getFloor(499)), floors->getFloor(498));
    EXPECT_EQ(floors->toJson().value("Floors").toArray().size(), kThousand);
}

TEST(OddDrawingSetsTest, thousandFloorsOfOneNameOfTheExchangeAreKept)
{
    QJsonArray records;
    for (int i = 0; i < kThousand; ++i)
        records.append(QJsonObject{{"Description", "F"}, {"ID", i}, {"Region", QJsonObject()}});
    bool ok = false;
    const QJsonObject document{{"FloorSDCData", records}};
    const auto floors = ORVCADFloorSDCData().unserialize(document, ok);
    ASSERT_TRUE(ok);
    ASSERT_EQ(floors.size(), 1000U);
    EXPECT_EQ(floors.back().ID.value, 999);
    EXPECT_EQ(ORVCADFloorSDCData().serialize(floors), document);
}

TEST(OddDrawingSetsTest, thousandRecordsOfOneFloorAreAllAsked)
{
    QJsonArray records;
    for (int i = 0; i < kThousand; ++i)
        records.append(QJsonObject{
            {"regionID", 1}, {"FloorName", "F"}, {"DrawingNames", 0}, {"DrawingFloorMappings", QJsonArray{"plan"}}});
    const auto places = readPlaces(records);
    EXPECT_EQ(places->getMappingFloorNames(QStringLiteral("plan")).size(), kThousand);
    places->removeMapping(QStringLiteral("plan"));
    EXPECT_EQ(places->getMappingFloorNames(QStringLiteral("plan")).size(), kThousand / 2); // every second one stands
}

TEST(OddDrawingSetsTest, drawingsWithEmptyNamesAreKeptAndFoundByNobody)
{
    const QJsonValue types = json(R"([{"DrawingName":"","ElementTypes":["梁"]},{"DrawingName":"","ElementTypes":[]}])");
    const auto elements = readTypes(types);
    EXPECT_EQ(text(elements->toJson()), text(types));
    EXPECT_TRUE(elements->getMatchElementType(QString()).isEmpty());
    EXPECT_EQ(elements->getMatchDrawings(15), QStringList{""});
    elements->removeMapping(QString());
    EXPECT_EQ(elements->getDrawingElementMappings().size(), 2);

    const auto places =
        readPlaces(json(R"([{"regionID":1,"FloorName":"","DrawingNames":[],"DrawingFloorMappings":["",""]}])"));
    EXPECT_EQ(text(places->toJson()), R"([{"DrawingNames":["",""],"FloorName":"","regionID":1}])");
    EXPECT_TRUE(places->getMappingFloors(QString()).isEmpty());

    const auto tables = ORVCADDrawingParseData::fromJson(object(R"({"":{"drawingName":"","data":{"0":[""]}}})"));
    ASSERT_EQ(tables.size(), 1);
    EXPECT_EQ(tables.at(0).rows.at(0).cells, QStringList{""});
}

TEST(OddDrawingSetsTest, layerWithoutANameIsLeftOutAndItsGroupStays)
{
    const std::unique_ptr<ORVCADClassifiedLayers> group(
        ORVCADClassifiedLayers::fromJson(object(R"({"DrawingName":"","ElementType":26753,"ClassifiedLayers":0,"Layers":[
            {"LayerName":"","CADEdoIds":[1]},{"LayerName":" ","CADEdoIds":[-1,2147483648,-2147483648,1e300]}]})")));
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->getElementType(), 15); // 26753 is the code of 梁
    EXPECT_EQ(group->getLayersName(), QStringList{" "});
    EXPECT_EQ(group->getClassifiedLayers().at(0)->getCADEdoIds(), (QList<qint64>{-1, 0, -2147483648LL, 0}));
}

TEST(OddDrawingSetsTest, negativeAndHugeElevationsAreNumbersLikeAnyOther)
{
    const auto floors = readFloors({floorRecord("deep", -1e300, 1.0, -5), floorRecord("high", 1e300, -3.0, 2147483647),
                                    floorRecord("first", -0.0, 4.5, 1)});
    ASSERT_EQ(floors->getCount(), 3);
    EXPECT_EQ(floors->getLowestFloor()->name(), "deep");
    EXPECT_EQ(floors->getHighestFloor()->name(), "high");
    EXPECT_EQ(floors->getFirstFloor()->name(), "first");
    EXPECT_EQ(floors->getFloor(0)->stdCount(), -5);
    EXPECT_EQ(floors->getFloor(1)->stdCount(), 2147483647);
    EXPECT_EQ(floors->getMinGreaterZeroFloor(), nullptr); // the way up has a gap
}

TEST(OddDrawingSetsTest, countAndRegionBeyond32BitsReadAsZero)
{
    EXPECT_EQ(readFloors({floorRecord("F", 0, 3, 5e9)})->getFloor(0)->stdCount(), 0);
    EXPECT_EQ(readFloors({floorRecord("F", 0, 3, 1.5)})->getFloor(0)->stdCount(), 0);
    for (const char *region : {"-5000000000", "1e300", "-1e300", "0.5"}) {
        const auto places =
            readPlaces(json(QByteArray(R"([{"regionID":?,"FloorName":"","DrawingNames":[]}])").replace("?", region)));
        EXPECT_EQ(places->getMappingFloorNames(0).size(), 1) << region;
    }
    EXPECT_EQ(
        readPlaces(json(R"([{"regionID":-7,"FloorName":"","DrawingNames":[]}])"))->getMappingFloorNames(-7).size(), 1);
}

TEST(OddDrawingSetsTest, keysInOtherCasesAreOtherKeys)
{
    const QJsonObject floors = object(R"({"AreaName":"A","Floors":[]})");
    EXPECT_EQ(ORVCADFloors::fromJson(withKeysTurned(floors).toObject()), nullptr);
    const QJsonValue record = withKeysTurned(floorRecord("F", 0, 3, 1));
    EXPECT_EQ(readFloors({record})->getCount(), 0);
    EXPECT_TRUE(readTypes(withKeysTurned(json(R"([{"DrawingName":"a","ElementTypes":["梁"]}])")))
                    ->getDrawingElementMappings()
                    .isEmpty());
    EXPECT_EQ(
        text(readPlaces(withKeysTurned(json(R"([{"regionID":1,"FloorName":"F","DrawingNames":["a"]}])")))->toJson()),
        "[]");
    const QJsonObject group = object(R"({"DrawingName":"a","ElementType":26753,"ClassifiedLayers":0,"Layers":[]})");
    EXPECT_EQ(ORVCADClassifiedLayers::fromJson(withKeysTurned(group).toObject()), nullptr);
    EXPECT_EQ(ORVCADLayerClassifyResult::fromJson(object(R"({"layerclassifyitems":[]})")), nullptr);
}

TEST(OddDrawingSetsTest, tableWithKeysInOtherCasesHasNothingButItsPlaceInTheList)
{
    const auto tables = ORVCADDrawingParseData::fromJson(
        object(R"({"table0":{"Type":"柱表","DrawingName":"a","Data":{"0":["x"]},"Concrete":{}}})"));
    ASSERT_EQ(tables.size(), 1);
    EXPECT_EQ(tables.at(0).type, 0);
    EXPECT_EQ(tables.at(0).drawingName, "");
    EXPECT_TRUE(tables.at(0).rows.isEmpty());
}
