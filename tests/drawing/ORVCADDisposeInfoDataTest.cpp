#include "drawing/ORVCADDisposeInfoData.h"

#include "DrawingJson.h"
#include "DrawingSetFixture.h"

#include <QFile>

using namespace drawing_test;

namespace {

const char *const kEmptySet = R"({"classifyLayer":null,"floorInfos":{},"locateDrawing":null,"matchElementInfo":null,)"
                              R"("matchFloorInfo":null,"parseDrawing":{},"reviseScale":null,"splitDrawing":{}})";

QStringList g_warnings;

void keepWarning(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &message)
{
    g_warnings.append(message);
}

class ORVCADDisposeInfoDataTest : public DrawingSetFixture
{
protected:
    QByteArray saved() const
    {
        const QString path = QStringLiteral("drawing-set.json");
        set->saveToJson(path);
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

TEST_F(ORVCADDisposeInfoDataTest, thereIsOneSetInTheProcess) { EXPECT_EQ(ORVCADDisposeInfoData::getData(), set); }

TEST_F(ORVCADDisposeInfoDataTest, freshSetHasNullMembers)
{
    EXPECT_EQ(set->floors, nullptr);
    EXPECT_EQ(set->subDrawings, nullptr);
    EXPECT_EQ(set->parseData, nullptr);
    EXPECT_EQ(set->elementMappings, nullptr);
    EXPECT_EQ(set->floorMappings, nullptr);
    EXPECT_EQ(set->classifiedLayers, nullptr);
    EXPECT_EQ(set->scaleRevision, nullptr);
    EXPECT_EQ(set->location, nullptr);
}

TEST_F(ORVCADDisposeInfoDataTest, setIsMadeAnewAfterItWasFreed)
{
    set->floors = new ORVCADFloors;
    ORVCADDisposeInfoData::freeData();
    ORVCADDisposeInfoData::freeData(); // nothing to do
    EXPECT_EQ(ORVCADDisposeInfoData::getData()->floors, nullptr);
}

TEST_F(ORVCADDisposeInfoDataTest, freedSetDeletesWhatItOwnsAndLeavesSubDrawingsAndParseData)
{
    ORVCADSubDrawingDataSet subDrawings;
    ORVCADDrawingParseData parseData;
    subDrawings.addSubDrawing(QStringLiteral("/in/a.dwg"), {});
    parseData.getTables().append(ORVCADTableData());
    set->subDrawings = &subDrawings;
    set->parseData = &parseData;
    set->floors = new ORVCADFloors;
    set->elementMappings = new ORVCADDrawingElementMappings;
    set->floorMappings = new ORVCADDrawingFloorMappings;
    set->classifiedLayers = new ORVCADClassifiedLayersData;
    set->scaleRevision = new ORVCADScaleReviseData;
    set->location = new ORVCADDrawingLocationData;
    ORVCADDisposeInfoData::freeData(); // the leak check tells of what it leaves
    EXPECT_EQ(subDrawings.getCount(), 1);
    EXPECT_EQ(parseData.getTables().size(), 1);
}

TEST_F(ORVCADDisposeInfoDataTest, objectThatItsOwnerDeletesIsLookedAtNoMoreOnceTheMemberIsNull)
{
    auto *subDrawings = new ORVCADSubDrawingDataSet;
    subDrawings->addSubDrawing(QStringLiteral("/in/a.dwg"), {});
    set->subDrawings = subDrawings;
    set->subDrawings = nullptr;
    delete subDrawings;
    EXPECT_EQ(text(set->toJson()), kEmptySet);
}

TEST_F(ORVCADDisposeInfoDataTest, borrowedObjectThatDiesBeforeTheSetIsNotTouchedWhenTheSetEnds)
{
    auto *parseData = new ORVCADDrawingParseData;
    set->parseData = parseData;
    delete parseData;
    ORVCADDisposeInfoData::freeData();
    EXPECT_EQ(ORVCADDisposeInfoData::getData()->parseData, nullptr);
}

TEST_F(ORVCADDisposeInfoDataTest, freshSetIsWrittenWithAllEightKeys)
{
    EXPECT_EQ(text(set->toJson()), kEmptySet);
    EXPECT_EQ(saved(), QJsonDocument(object(kEmptySet)).toJson());
}

TEST_F(ORVCADDisposeInfoDataTest, floorsWithoutFloorsAndSubDrawingsWithoutSubDrawingsAreWrittenAsEmptyObjects)
{
    ORVCADSubDrawingDataSet subDrawings;
    subDrawings.setSavePath(QStringLiteral("/out"));
    set->subDrawings = &subDrawings;
    set->floors = new ORVCADFloors;
    set->floors->setAreaName(QStringLiteral("Tower A"));
    EXPECT_EQ(text(set->toJson()), kEmptySet);
}

TEST_F(ORVCADDisposeInfoDataTest, otherStagesWithoutEntriesAreWrittenAsTheirEmptyForms)
{
    ORVCADDrawingParseData parseData;
    set->parseData = &parseData;
    set->elementMappings = new ORVCADDrawingElementMappings;
    set->floorMappings = new ORVCADDrawingFloorMappings;
    set->classifiedLayers = new ORVCADClassifiedLayersData;
    set->scaleRevision = new ORVCADScaleReviseData;
    set->location = new ORVCADDrawingLocationData;
    EXPECT_EQ(text(set->toJson()), R"({"classifyLayer":[],"floorInfos":{},"locateDrawing":[],"matchElementInfo":[],)"
                                   R"("matchFloorInfo":[],"parseDrawing":{},"reviseScale":[],"splitDrawing":{}})");
}

TEST_F(ORVCADDisposeInfoDataTest, everyStageIsWrittenUnderItsKey)
{
    ORVCADSubDrawingDataSet subDrawings;
    ORVCADSubDrawingInfo part;
    part.drawingPath = QStringLiteral("/out/plan.dwg");
    subDrawings.addSubDrawing(QStringLiteral("/in/all.dwg"), part);
    set->subDrawings = &subDrawings;
    ORVCADDrawingParseData parseData;
    parseData.getTables().append(ORVCADTableData());
    set->parseData = &parseData;
    addFloor("F1", 0.0, 3.0);
    addDrawing("F1", "plan", {15});
    set->classifiedLayers = new ORVCADClassifiedLayersData;
    set->classifiedLayers->addLayers(new ORVCADClassifiedLayers(QStringLiteral("plan"), 15));
    set->scaleRevision = new ORVCADScaleReviseData;
    set->scaleRevision->addItem(new ORVCADScaleReviseDataItem(QStringLiteral("plan")));
    set->location = new ORVCADDrawingLocationData;
    set->location->addItem(new ORVCADDrawingLocationDataItem(QStringLiteral("plan")));

    const QJsonObject expected = object(R"({
        "splitDrawing": {"savePath": "", "drawingInfo": [{"parenDrawing": "all", "subDrawing": ["plan"], "count": 1}]},
        "parseDrawing": {"table0": {"type": "楼层表", "drawingName": "", "range": [0, 0, 0, 0], "data": {},
                                    "concrete": {}}},
        "floorInfos": {"AreaName": "", "Floors": [{"Name": "F1", "Code": "", "BottomElev": 0, "Height": 3,
                                                   "StdCount": 1, "Remark": ""}]},
        "matchFloorInfo": [{"regionID": 7, "FloorName": "F1", "DrawingNames": ["plan"]}],
        "matchElementInfo": [{"DrawingName": "plan", "ElementTypes": ["梁"]}],
        "classifyLayer": [{"DrawingName": "plan", "ElementType": "梁", "Layers": []}],
        "reviseScale": [{"drawingName": "plan", "originScale": 0, "newScale": 1}],
        "locateDrawing": [{"drawingName": "plan", "axisInfo": []}]})");
    EXPECT_EQ(text(set->toJson()), text(expected));
    EXPECT_EQ(saved(), QJsonDocument(expected).toJson());
}

TEST_F(ORVCADDisposeInfoDataTest, fileThatCannotBeOpenedIsAWarning)
{
    g_warnings.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepWarning);
    set->saveToJson(QStringLiteral("no such folder/drawing-set.json"));
    qInstallMessageHandler(before);
    EXPECT_EQ(g_warnings, QStringList{"Couldn't open save file."});
}
