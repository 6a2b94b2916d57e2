#include "cli/DrawingSetInfo.h"

#include "DrawingSets.h"

using clitest::emptySet;
using clitest::setWith;
using orvcad::DrawingSetInfo;

namespace {

TEST(DrawingSetInfoTest, headlineCountsStagesDrawingsAndFloors)
{
    EXPECT_EQ(DrawingSetInfo(emptySet()).headline(), "Drawing set: 0 of 8 stages, 0 drawings, 0 floors");
    EXPECT_EQ(DrawingSetInfo(clitest::fileObject(QStringLiteral(ORVCAD_EXAMPLES "/precast-hall.drawing-set.json")))
                  .headline(),
              "Drawing set of Hall: 8 of 8 stages, 9 drawings, 3 floors");
}

TEST(DrawingSetInfoTest, drawingIsPutTogetherFromAllStages)
{
    QJsonObject set = setWith("splitDrawing", R"({"savePath": "", "drawingInfo": [
        {"parenDrawing": "set-1", "subDrawing": ["S-01"], "count": 1}]})");
    set["matchElementInfo"] = clitest::valueOf(R"([{"DrawingName": "S-01", "ElementTypes": ["柱"]}])");
    set["classifyLayer"] = clitest::valueOf(R"([{"DrawingName": "S-01", "ElementType": "柱", "Layers": [
        {"LayerName": "S-COLU", "CADEdoIds": [1, 2, 3]}, {"LayerName": "S-COLU", "CADEdoIds": [4]}]}])");
    set["reviseScale"] = clitest::valueOf(R"([{"drawingName": "S-01", "originScale": 50, "newScale": 1}])");
    const QJsonValue shown = DrawingSetInfo(set).toJson();
    EXPECT_EQ(shown["drawings"], QJsonValue(QJsonArray{QJsonObject{{"name", "S-01"},
                                                                   {"parent", "set-1"},
                                                                   {"floors", QJsonArray()},
                                                                   {"types", QJsonArray{"柱"}},
                                                                   {"tables", 0},
                                                                   {"layers", 2},
                                                                   {"objects", 4},
                                                                   {"originScale", 50},
                                                                   {"newScale", 1},
                                                                   {"crossings", 0}}}));
    EXPECT_EQ(shown["layers"][0]["names"], QJsonValue(QJsonArray{"S-COLU"}));
    EXPECT_EQ(shown["layers"][0]["layers"], 2);
}

TEST(DrawingSetInfoTest, floorThatOnlyAMappingNamesStandsBehindThoseOfTheFloorsDocument)
{
    QJsonObject set = setWith("matchFloorInfo", R"([{"regionID": 5000000000, "FloorName": "Attic",
                                                     "DrawingNames": ["plan"]}])");
    set["floorInfos"] = QJsonObject{
        {"AreaName", "A"},
        {"Floors",
         QJsonArray{QJsonObject{{"Name", "F1"}, {"BottomElev", 0}, {"Height", 3}, {"StdCount", 2}, {"Remark", ""}}}}};
    const QJsonValue shown = DrawingSetInfo(set).toJson();
    ASSERT_EQ(shown["floors"].toArray().size(), 2);
    EXPECT_TRUE(shown["floors"].toArray()[0].toObject()["code"].isNull());
    EXPECT_EQ(shown["floors"].toArray()[0].toObject()["standardCount"], 2);
    EXPECT_EQ(shown["floors"].toArray()[1].toObject(), (QJsonObject{{"name", "Attic"},
                                                                    {"code", QJsonValue()},
                                                                    {"bottomElev", QJsonValue()},
                                                                    {"height", QJsonValue()},
                                                                    {"standardCount", QJsonValue()},
                                                                    {"drawings", QJsonArray{"plan"}}}));
    EXPECT_EQ(shown["drawings"][0]["floors"][0]["regionID"].toDouble(), 5e9);
}

TEST(DrawingSetInfoTest, emptyNamesUnknownTypesAndScalesThatWereNoNumbersAreShown)
{
    QJsonObject set = setWith("reviseScale", R"([{"drawingName": "", "originScale": null, "newScale": 1}])");
    set["classifyLayer"] =
        QJsonArray{QJsonObject{{"DrawingName", ""}, {"ElementType", "castle"}, {"Layers", QJsonArray()}}};
    const QJsonValue shown = DrawingSetInfo(set).toJson();
    ASSERT_EQ(shown["drawings"].toArray().size(), 1);
    EXPECT_TRUE(shown["drawings"].toArray()[0].toObject()["originScale"].isNull());
    EXPECT_EQ(shown["layers"].toArray()[0].toObject()["number"], -1);
    EXPECT_TRUE(DrawingSetInfo(set).text().contains("\n\"\"       -  "));
}

TEST(DrawingSetInfoTest, thousandFloorsOfOneNameAreAllShown)
{
    QJsonArray floors;
    for (int i = 0; i < 1000; ++i)
        floors.append(
            QJsonObject{{"Name", "F"}, {"BottomElev", -1e9 * i}, {"Height", 1e300}, {"StdCount", -i}, {"Remark", ""}});
    QJsonObject set = emptySet();
    set["floorInfos"] = QJsonObject{{"AreaName", ""}, {"Floors", floors}};
    const QJsonArray shown = DrawingSetInfo(set).toJson()["floors"].toArray();
    ASSERT_EQ(shown.size(), 1000);
    EXPECT_EQ(shown[999].toObject()["standardCount"], -999);
}

} // namespace
