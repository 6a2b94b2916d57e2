#include "cli/DrawingSetShape.h"

#include "DrawingSets.h"

using clitest::emptySet;
using clitest::setWith;

namespace {

std::string placeOfFault(const QJsonObject &set)
{
    const auto fault = orvcad::drawingSetFault(set);
    return fault ? (fault->place + QStringLiteral(": ") + fault->reason).toStdString() : "sound";
}

TEST(DrawingSetShapeTest, setInWhichNothingHasRunAndTheExampleAreSound)
{
    EXPECT_EQ(placeOfFault(emptySet()), "sound");
    EXPECT_EQ(placeOfFault(clitest::fileObject(QStringLiteral(ORVCAD_EXAMPLES "/precast-hall.drawing-set.json"))),
              "sound");
}

TEST(DrawingSetShapeTest, faultInAStageIsToldWithItsKeyPath)
{
    const struct
    {
        const char *key;
        QByteArray value;
        const char *fault;
    } cases[] = {
        {"splitDrawing", "null", "splitDrawing: is no object"},
        {"splitDrawing", R"({"savePath": ""})", "splitDrawing.drawingInfo: is missing"},
        {"splitDrawing",
         R"({"savePath": "", "drawingInfo": [{"parenDrawing": "a", "subDrawing": ["b", 7], "count": 2}]})",
         "splitDrawing.drawingInfo[0].subDrawing[1]: is no text"},
        {"parseDrawing", R"({"table0": 7})", "parseDrawing.table0: is no object"},
        {"parseDrawing",
         R"({"table0": {"type": "", "drawingName": "", "range": [1, 2, 3], "data": {}, "concrete": {}}})",
         "parseDrawing.table0.range: is no array of 4 entries"},
        {"parseDrawing",
         R"({"t": {"type": "", "drawingName": "", "range": [1, 2, 3, 4.5], "data": {"0": [1]}, "concrete": {}}})",
         "parseDrawing.t.range[3]: is no whole number from -2147483647 to 2147483647"},
        {"parseDrawing",
         R"({"t": {"type": "", "drawingName": "", "range": [1, 2, 3, 4], "data": {"0": ["a", 1]}, "concrete": {}}})",
         "parseDrawing.t.data.0[1]: is no text"},
        {"floorInfos", R"({"AreaName": "A", "Floors": [{"Name": "F1", "BottomElev": 0, "Height": "3"}]})",
         "floorInfos.Floors[0].Height: is no number"},
        {"matchFloorInfo", "{}", "matchFloorInfo: is no array"},
        {"matchFloorInfo", R"([{"regionID": 0.5, "FloorName": "", "DrawingNames": []}])",
         "matchFloorInfo[0].regionID: is no whole number"},
        {"matchElementInfo", R"([{"DrawingName": "a", "elementTypes": []}])",
         "matchElementInfo[0].ElementTypes: is missing"},
        {"classifyLayer", R"([{"DrawingName": "a", "ElementType": 15, "Layers": []}])",
         "classifyLayer[0].ElementType: is no text"},
        {"classifyLayer",
         R"([{"DrawingName": "a", "ElementType": "", "Layers": [{"LayerName": "l", "CADEdoIds": [1, "2"]}]}])",
         "classifyLayer[0].Layers[0].CADEdoIds[1]: is no whole number"},
        {"reviseScale", R"([{"drawingName": "a", "originScale": "1:100", "newScale": 1}])",
         "reviseScale[0].originScale: is neither a number nor null"},
        {"locateDrawing",
         R"([{"drawingName": "a", "axisInfo": [{"bayNum": "1", "depthNum": "A", "point": [1, null]}, 7]}])",
         "locateDrawing[0].axisInfo[1]: is no object"},
        {"stage", "7", "stage: is no member of this format"},
    };
    for (const auto &broken : cases)
        EXPECT_EQ(placeOfFault(setWith(broken.key, broken.value)), broken.fault) << broken.value.toStdString();
}

TEST(DrawingSetShapeTest, stageThatIsMissingIsToldBeforeAFaultInAnother)
{
    EXPECT_EQ(placeOfFault(clitest::without(setWith("splitDrawing", "7"), "locateDrawing")),
              "locateDrawing: is missing");
}

TEST(DrawingSetShapeTest, floorOfTheFloorsDocumentMayLackItsCode)
{
    EXPECT_EQ(placeOfFault(setWith("floorInfos", R"({"AreaName": "A", "Floors": [
                  {"Name": "F1", "BottomElev": 0, "Height": 3, "StdCount": 1, "Remark": ""}]})")),
              "sound");
}

TEST(DrawingSetShapeTest, membersOfRecordsThatTheFormatDoesNotKnowArePassedOver)
{
    EXPECT_EQ(placeOfFault(
                  setWith("reviseScale", R"([{"drawingName": "a", "originScale": null, "newScale": 1, "author": 7}])")),
              "sound");
}

TEST(DrawingSetShapeTest, membersThatArePassedOverAreToldWithTheirPlaces)
{
    const auto unread = [](const QJsonObject &set) { return clitest::textOf(orvcad::unreadInDrawingSet(set)); };
    EXPECT_EQ(unread(emptySet()), "");
    EXPECT_EQ(unread(setWith("matchElementInfo", R"([{"DrawingName": "S", "ElementTypes": [], "Scale": 1}])")),
              "matchElementInfo[0].Scale: is no member of this format, and not read");
}

} // namespace
