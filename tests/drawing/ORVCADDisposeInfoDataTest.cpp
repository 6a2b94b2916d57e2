#include "drawing/ORVCADDisposeInfoData.h"

#include "DrawingJson.h"
#include "DrawingSetFilling.h"
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

TEST_F(ORVCADDisposeInfoDataTest, exampleDocumentIsWhatItsRecordsAreWrittenAs)
{
    ORVCADSubDrawingDataSet subDrawings;
    subDrawings.setSavePath(QStringLiteral("/project/parts"));
    for (const char *path : {"/project/parts/S-02.dwg", "/project/parts/S-01.dwg"}) { // the last one comes first
        ORVCADSubDrawingInfo part;
        part.drawingPath = QString::fromUtf8(path);
        subDrawings.addSubDrawing(QStringLiteral("/project/structure.dwg"), part);
    }
    set->subDrawings = &subDrawings;
    ORVCADTableData table;
    table.drawingName = QStringLiteral("S-01");
    table.range = {{0, 0, 100, 50}};
    table.rows = {{0, {"1", "0.000", "3.900"}}};
    table.concrete = {{0, {{"beam", "C30"}}}};
    ORVCADDrawingParseData parseData({table});
    set->parseData = &parseData;
    addFloor("F1", 0.0, 3.9);
    set->floors->setAreaName(QStringLiteral("Tower A"));
    set->floors->getFloor(0)->setCode(QStringLiteral("1"));
    addDrawing("F1", "S-02", {15});
    auto *beams = new ORVCADClassifiedLayers(QStringLiteral("S-02"), 15);
    auto *layer = new ORVCADClassifiedLayer(QStringLiteral("S-BEAM"));
    layer->getCADEdoIds() = {101, 102};
    beams->add(layer);
    set->classifiedLayers = new ORVCADClassifiedLayersData;
    set->classifiedLayers->addLayers(beams);
    set->scaleRevision = new ORVCADScaleReviseData;
    set->scaleRevision->addItem(new ORVCADScaleReviseDataItem(QStringLiteral("S-02")));
    set->scaleRevision->getScaleReviseData().at(0)->setOriginScale(100.0);
    set->location = new ORVCADDrawingLocationData;
    auto *place = new ORVCADDrawingLocationDataItem(QStringLiteral("S-02"));
    place->addAxisInfo({QStringLiteral("1"), QStringLiteral("A"), 1200.5, -300.0});
    set->location->addItem(place);
    EXPECT_EQ(text(set->toJson()), text(dataObject("drawing/drawing-set.json")));
}

TEST_F(ORVCADDisposeInfoDataTest, fullSetIsWrittenByteForByteAsTheExampleFileOfABuilding)
{
    QFile file(QStringLiteral(ORVCAD_EXAMPLES "/precast-hall.drawing-set.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray expected = file.readAll();
    ORVCADSubDrawingDataSet subDrawings;
    ORVCADDrawingParseData parseData;
    set->subDrawings = &subDrawings;
    set->parseData = &parseData;
    drawing_test::fillSet(object(expected), *set);
    EXPECT_EQ(saved(), expected);
}

TEST_F(ORVCADDisposeInfoDataTest, partsOfTheExampleDocumentAreReadByTheirReaders)
{
    const QJsonObject example = dataObject("drawing/drawing-set.json");
    set->floors = ORVCADFloors::fromJson(example.value("floorInfos").toObject());
    ASSERT_NE(set->floors, nullptr);
    EXPECT_EQ(set->floors->getFloor(0)->height(), 3.9);
    set->elementMappings = ORVCADDrawingElementMappings::fromJson(example.value("matchElementInfo"));
    EXPECT_EQ(set->elementMappings->getMatchElementType(QStringLiteral("S-02")), QSet<int>{15});
    set->floorMappings = ORVCADDrawingFloorMappings::fromJson(example.value("matchFloorInfo"));
    EXPECT_EQ(set->floorMappings->getMappingFloorNames(7), QStringList{""}); // the region id alone comes back
    const auto tables = ORVCADDrawingParseData::fromJson(example.value("parseDrawing").toObject());
    ASSERT_EQ(tables.size(), 1);
    EXPECT_EQ(tables.at(0).rows.at(0).cells, (QStringList{"1", "0.000", "3.900"}));
    const QJsonObject layers = example.value("classifyLayer").toArray().at(0).toObject();
    EXPECT_EQ(ORVCADClassifiedLayers::fromJson(layers), nullptr); // nobody writes the key that it demands
}

TEST_F(ORVCADDisposeInfoDataTest, fileThatCannotBeOpenedIsAWarning)
{
    g_warnings.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepWarning);
    set->saveToJson(QStringLiteral("no such folder/drawing-set.json"));
    qInstallMessageHandler(before);
    EXPECT_EQ(g_warnings, QStringList{"Couldn't open save file."});
}
