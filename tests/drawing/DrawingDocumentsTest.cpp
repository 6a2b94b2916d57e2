// Every reader of the drawing-set folder on documents that are cut off, mistyped, huge or nested without end.

#include "DrawingJson.h"
#include "drawing/ORVCADClassifiedLayers.h"
#include "drawing/ORVCADDrawingElementMappings.h"
#include "drawing/ORVCADDrawingFloorMappings.h"
#include "drawing/ORVCADDrawingParseData.h"
#include "drawing/ORVCADFloorSDCData.h"
#include "drawing/ORVCADFloors.h"
#include "drawing/ORVCADLayerClassifyResult.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <memory>

using namespace drawing_test;

namespace {

/** Reads a document and writes again what came of it: "null" where it was refused. */
using Road = QByteArray (*)(const QJsonValue &);

template <typename Record> QByteArray written(const Record *record)
{
    const std::unique_ptr<const Record> owned(record);
    return owned ? text(owned->toJson()) : QByteArray("null");
}

struct Format
{
    const char *name;
    Road road;
    const char *document;
    const char *survivor; ///< what the last record is written as; null where a bad record costs more than itself
};

const Format kFormats[] = {
    {"Floors", [](const QJsonValue &json) { return written(ORVCADFloors::fromJson(json.toObject())); },
     R"({"AreaName":"A","Floors":[
        {"Name":"F1","Code":"1","BottomElev":0,"Height":3,"StdCount":1,"Remark":""},
        {"Name":"F2","Code":"2","BottomElev":3,"Height":3,"StdCount":2,"Remark":"x"}]})",
     R"("Name":"F2")"},
    {"ClassifiedLayers",
     [](const QJsonValue &json) { return written(ORVCADClassifiedLayers::fromJson(json.toObject())); },
     R"({"DrawingName":"plan","ElementType":26753,"ClassifiedLayers":0,"Layers":[
        {"LayerName":"a","CADEdoIds":[1,2,3]},{"LayerName":"b","CADEdoIds":[4]}]})",
     R"({"CADEdoIds":[4],"LayerName":"b"})"},
    {"AnalysisLayers",
     [](const QJsonValue &json) {
         return written(ORVCADClassifiedLayers::fromHBXJson(QStringLiteral("plan"), 74, json.toObject()));
     },
     R"({"FileName":"S-01","etAxisGrid":[
        {"LayerName":"axis","EdoIDList":[{"EdoID":1},{"EdoID":2}]},
        {"LayerName":"axis","EdoIDList":[{"EdoID":3}]},{"LayerName":"AXIS 2","EdoIDList":[{"EdoID":4}]}]})",
     R"({"CADEdoIds":[4],"LayerName":"AXIS 2"})"},
    {"LayerClassifyResult",
     [](const QJsonValue &json) { return written(ORVCADLayerClassifyResult::fromJson(json.toObject())); },
     R"({"LayerClassifyItems":[{"ClassifiedJsonFilePath":"a","DrawingName":"plan","ElementType":15},
        {"ClassifiedJsonFilePath":"b","DrawingName":"plan","ElementType":25}]})",
     R"("ClassifiedJsonFilePath":"b")"},
    {"ElementMappings", [](const QJsonValue &json) { return written(ORVCADDrawingElementMappings::fromJson(json)); },
     R"([{"DrawingName":"plan","ElementTypes":["梁","柱"]},{"DrawingName":"other","ElementTypes":[]}])",
     R"({"DrawingName":"other","ElementTypes":[]})"},
    {"FloorMappings", [](const QJsonValue &json) { return written(ORVCADDrawingFloorMappings::fromJson(json)); },
     R"([{"regionID":1,"FloorName":"F1","DrawingNames":["a"],"DrawingFloorMappings":["a","b"]},
        {"regionID":2,"FloorName":"F1","DrawingNames":["a"],"DrawingFloorMappings":"F1"}])",
     R"({"DrawingNames":[],"FloorName":"F1","regionID":2})"},
    {"ParseData",
     [](const QJsonValue &json) {
         return text(ORVCADDrawingParseData(ORVCADDrawingParseData::fromJson(json.toObject())).toJson());
     },
     R"({"concrete":{"0":{"beam":"C30"}},"table0":{"type":"楼层表","drawingName":"plan","range":[1,2,3,4],
        "data":{"0":["a","b"],"1":["c"]},"concrete":{"0":{"beam":"C30"}}}})",
     nullptr},
    {"FloorExchange",
     [](const QJsonValue &json) {
         bool ok = false;
         const auto floors = ORVCADFloorSDCData().unserialize(json.toObject(), ok);
         return QByteArray(ok ? "" : "refused ") + text(ORVCADFloorSDCData().serialize(floors));
     },
     R"({"FloorSDCData":[{"ID":1,"Description":"F1","Height":3.3,"Region":{"ID":1,"Description":"A"},
        "ConcreteAnchorJoint":[{"TypeID":1,"Anchor1":"35d","Remark":""}]},{"Region":{}}]})",
     nullptr},
};

const QJsonArray kOddValues = {
    QJsonValue(),         true, 0, -1, 1.5, 2147483648.0, 1e300, "", "x", QJsonArray(), QJsonArray{7}, QJsonObject(),
    QJsonObject{{"a", 1}}};

using Take = std::function<void(const QJsonValue &)>;

/** Gives the document once for every value in it and every odd one put in its place, and once without the value. */
void forEachMutant(const QJsonValue &value, const Take &take)
{
    for (const QJsonValue odd : kOddValues)
        take(odd);
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        forEachMutant(array.at(i), [&](const QJsonValue &mutant) {
            QJsonArray changed = array;
            changed.replace(i, mutant);
            take(changed);
        });
        QJsonArray shorter = array;
        shorter.removeAt(i);
        take(shorter);
    }
    const QJsonObject object = value.toObject();
    for (const QString &key : object.keys()) {
        forEachMutant(object.value(key), [&](const QJsonValue &mutant) {
            QJsonObject changed = object;
            changed.insert(key, mutant);
            take(changed);
        });
        QJsonObject smaller = object;
        smaller.remove(key);
        take(smaller);
    }
}

/** The list of records of a document: the document itself, or the one array in it. */
QJsonArray recordsOf(const QJsonValue &document)
{
    if (document.isArray())
        return document.toArray();
    const QJsonObject object = document.toObject();
    const auto list = std::find_if(object.begin(), object.end(), [](const QJsonValue &one) { return one.isArray(); });
    return list == object.end() ? QJsonArray() : list->toArray();
}

QJsonValue withRecords(const QJsonValue &document, const QJsonArray &records)
{
    if (document.isArray())
        return records;
    QJsonObject object = document.toObject();
    const auto list = std::find_if(object.begin(), object.end(), [](const QJsonValue &one) { return one.isArray(); });
    if (list != object.end())
        object.insert(list.key(), records);
    return object;
}

class DrawingDocumentsTest : public testing::TestWithParam<Format>
{};

} // namespace

TEST_P(DrawingDocumentsTest, wholeDocumentIsTaken)
{
    const QByteArray back = GetParam().road(json(GetParam().document));
    EXPECT_NE(back, "null");
    EXPECT_NE(back, "[]");
    EXPECT_FALSE(back.startsWith("refused"));
}

TEST_P(DrawingDocumentsTest, documentCutOffAnywhereIsReadAsNothing)
{
    const QByteArray whole(GetParam().document);
    for (int length = 0; length < whole.size(); ++length) {
        const QJsonDocument document = QJsonDocument::fromJson(whole.left(length));
        ASSERT_TRUE(document.isNull()) << length;
        EXPECT_EQ(GetParam().road(document.object()), GetParam().road(QJsonValue())) << length;
    }
}

TEST_P(DrawingDocumentsTest, oddValueAnywhereIsReadInTheSameWayTwice)
{
    int mutants = 0;
    forEachMutant(json(GetParam().document), [&](const QJsonValue &mutant) {
        ++mutants;
        const QByteArray once = GetParam().road(mutant);
        EXPECT_FALSE(once.isEmpty());
        EXPECT_EQ(GetParam().road(mutant), once) << text(mutant).constData();
    });
    EXPECT_GT(mutants, 100);
}

TEST_P(DrawingDocumentsTest, oddRecordCostsItselfAlone)
{
    if (!GetParam().survivor)
        return; // the strict reader, and the one that has no list of records
    const QJsonValue whole = json(GetParam().document);
    const QJsonArray records = recordsOf(whole);
    forEachMutant(records.at(0), [&](const QJsonValue &mutant) {
        QJsonArray changed = records;
        changed.replace(0, mutant);
        EXPECT_TRUE(GetParam().road(withRecords(whole, changed)).contains(GetParam().survivor))
            << text(mutant).constData();
    });
}

TEST_P(DrawingDocumentsTest, deepNestingInPlaceOfAnyMemberIsReadAsAMistypedValue)
{
    QJsonValue deep = 7;
    for (int level = 0; level < 500; ++level)
        deep = level % 2 == 0 ? QJsonValue(QJsonArray{deep}) : QJsonValue(QJsonObject{{"a", deep}});
    const QJsonObject whole = json(GetParam().document).toObject();
    for (const QString &key : whole.keys()) {
        QJsonObject changed = whole;
        changed.insert(key, deep);
        QJsonObject flat = whole;
        flat.insert(key, QJsonObject{{"a", 7}});
        EXPECT_EQ(GetParam().road(changed), GetParam().road(flat)) << key.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, DrawingDocumentsTest, testing::ValuesIn(kFormats),
                         [](const auto &format) { return std::string(format.param.name); });

TEST(DrawingDocumentsOfSizeTest, rowNumbersOfATableDoNotDriveTheReader)
{
    const QJsonObject root = object(R"({"t":{"data":{"2147483647":["a"],"99999999999999999999":["b"],"-1":["c"]}}})");
    const auto tables = ORVCADDrawingParseData::fromJson(root);
    ASSERT_EQ(tables.size(), 1);
    EXPECT_TRUE(tables.at(0).rows.isEmpty());
}

TEST(DrawingDocumentsOfSizeTest, tableOfHundredThousandRowsIsReadAndWritten)
{
    constexpr int kRows = 100000;
    ORVCADTableData table;
    for (int i = 0; i < kRows; ++i)
        table.rows.append({i, {QStringLiteral("cell")}});
    const auto back = ORVCADDrawingParseData::fromJson(ORVCADDrawingParseData({table}).toJson());
    ASSERT_EQ(back.size(), 1);
    EXPECT_EQ(back.at(0).rows.size(), kRows);
}

TEST(DrawingDocumentsOfSizeTest, hundredThousandMappingsAreReadAndAnswered)
{
    constexpr int kRecords = 100000;
    QJsonArray elements;
    QJsonArray floors;
    for (int i = 0; i < kRecords; ++i) {
        elements.append(QJsonObject{{"DrawingName", QString::number(i)}, {"ElementTypes", QJsonArray{"梁"}}});
        floors.append(QJsonObject{{"regionID", i},
                                  {"FloorName", 0},
                                  {"DrawingNames", 0},
                                  {"DrawingFloorMappings", QJsonArray{QString::number(i)}}});
    }
    const std::unique_ptr<ORVCADDrawingElementMappings> types(ORVCADDrawingElementMappings::fromJson(elements));
    const std::unique_ptr<ORVCADDrawingFloorMappings> places(ORVCADDrawingFloorMappings::fromJson(floors));
    int found = 0;
    for (int i = 0; i < kRecords; ++i)
        found += types->getMatchElementType(QString::number(i)).contains(15) &&
                 places->getMappingFloors(QString::number(i)).value(0).first == i;
    EXPECT_EQ(found, kRecords);
}

TEST(DrawingDocumentsOfSizeTest, hugeNamesAreKept)
{
    const QString huge(1000000, QChar(0x6881));
    const std::unique_ptr<ORVCADDrawingElementMappings> mappings(ORVCADDrawingElementMappings::fromJson(
        QJsonArray{QJsonObject{{"DrawingName", huge}, {"ElementTypes", QJsonArray{huge}}}}));
    EXPECT_EQ(mappings->getMatchElementType(huge), QSet<int>{-1});
}
