#include "column/ORVCADIdentifyColumnResultData.h"

#include "ColumnDocuments.h"
#include "encoding/ORVCADJsonCGeometryObjOper.h"

#include <memory>
#include <utility>

namespace {

using Record = ORVCADIdentifyColumnResultData;

QJsonObject sampleJson() { return jsonOf(columnDocument("results"))["resultData"].toArray()[0].toObject(); }

/** Fills the record with the values of the document. */
void fill(Record &record)
{
    record.barInfo = {"12C20", "4C22", "2C20", "3C18", "A8@100/200", "4*6", 41, 62};
    record.pfnSection = "500*600";
    record.columnInfo = new dwgx::DWGXColumnInfo;
    dwgx::DWGXColumnInfo &info = *record.columnInfo;
    info.dSteelWeight = 125.5;
    info.ePolyType = 1;
    info.eColumnType = 2;
    info.bEdoInfoValid = true;
    info.bMirror = true;
    info.dAngle = 0.25;
    info.strParam = "100*6;100*7;250,300";
    info.position = {12000, 8400.5};
    info.insertPt = {250, 300};
    info.dWidth = 500.5;
    info.dHeight = 600;
    info.dRadius = 275.25;
    info.m_type = 4;
    const ORVCADJsonCGeometryObjOper geometry;
    record.poly = geometry.getPolyInfo(QStringLiteral("0,0;500,0;500,600;0,600;"));
    record.cadPoly = geometry.getPolyInfo(QStringLiteral("250,300,275.5"));
    record.columnName = "KZ-1";
    record.floorCode = "3";
    record.cadLineIDs = {101, 9007199254740992};
    record.cadTextIDs = {205};
    record.bCreateElement = true;
}

TEST(ORVCADIdentifyColumnResultDataTest, newRecordIsEmptyAndHasNoColumnInfo)
{
    const Record record;
    EXPECT_EQ(record.barInfo.pfnVertBar, "");
    EXPECT_EQ(record.barInfo.nBSidePicID, 0);
    EXPECT_EQ(record.pfnSection, "");
    EXPECT_EQ(record.columnInfo, nullptr);
    EXPECT_FALSE(record.poly);
    EXPECT_FALSE(record.cadPoly);
    EXPECT_EQ(record.columnName, "");
    EXPECT_EQ(record.floorCode, "");
    EXPECT_TRUE(record.cadLineIDs.empty());
    EXPECT_TRUE(record.cadTextIDs.empty());
    EXPECT_FALSE(record.bCreateElement);
}

TEST(ORVCADIdentifyColumnResultDataTest, everyFieldIsWrittenUnderItsKey)
{
    Record record;
    fill(record);
    expectSameJson(record.toJson(), sampleJson());
}

TEST(ORVCADIdentifyColumnResultDataTest, everyKeyIsReadIntoItsField)
{
    Record record;
    record.fromJson(&record, sampleJson());
    expectSameJson(record.toJson(), sampleJson());
    EXPECT_EQ(record.barInfo.pfnCornerBar, "4C22");
    EXPECT_EQ(record.barInfo.nHSidePicID, 62);
    EXPECT_EQ(record.pfnSection, "500*600");
    EXPECT_EQ(record.columnName, "KZ-1");
    EXPECT_EQ(record.floorCode, "3");
    EXPECT_EQ(record.cadLineIDs, (std::vector<qint64>{101, 9007199254740992}));
    EXPECT_EQ(record.cadTextIDs, (std::vector<qint64>{205}));
    EXPECT_TRUE(record.bCreateElement);
    EXPECT_NEAR(record.poly->Area(), 300000, 1e-6);
    EXPECT_TRUE(record.cadPoly->IsCircle());
    const dwgx::DWGXColumnInfo &info = *record.columnInfo;
    EXPECT_EQ(info.dSteelWeight, 125.5);
    EXPECT_EQ(info.ePolyType, 1);
    EXPECT_EQ(info.eColumnType, 2);
    EXPECT_TRUE(info.bEdoInfoValid);
    EXPECT_TRUE(info.bMirror);
    EXPECT_EQ(info.dAngle, 0.25);
    EXPECT_EQ(info.strParam, "100*6;100*7;250,300");
    EXPECT_EQ(info.position, vks::CVec2<double>(12000, 8400.5));
    EXPECT_EQ(info.insertPt, vks::CVec2<double>(250, 300));
    EXPECT_EQ(info.dWidth, 500.5);
    EXPECT_EQ(info.dHeight, 600);
    EXPECT_EQ(info.dRadius, 275.25);
    EXPECT_EQ(info.m_type, 4);
}

TEST(ORVCADIdentifyColumnResultDataTest, recordWithoutAColumnInfoCannotBeWritten)
{
    Record record;
    fill(record);
    delete std::exchange(record.columnInfo, nullptr);
    EXPECT_EQ(record.toJson(), QJsonObject());
}

TEST(ORVCADIdentifyColumnResultDataTest, missingColumnInfoIsReadAsANewOne)
{
    for (const QJsonObject &json : {QJsonObject(), QJsonObject{{"columnInfo", "none"}}}) {
        Record record;
        record.fromJson(&record, json);
        ASSERT_NE(record.columnInfo, nullptr);
        EXPECT_EQ(record.columnInfo->dSteelWeight, 0.0);
        EXPECT_EQ(record.columnInfo->strParam, "");
        EXPECT_EQ(record.columnInfo->m_type, 0);
        EXPECT_FALSE(record.columnInfo->bMirror);
        EXPECT_EQ(record.columnInfo->position, vks::CVec2<double>());
    }
}

TEST(ORVCADIdentifyColumnResultDataTest, formerColumnInfoIsGivenUpAndNotDeleted)
{
    Record record;
    fill(record);
    const std::unique_ptr<dwgx::DWGXColumnInfo> former(record.columnInfo);
    record.fromJson(&record, {});
    EXPECT_NE(record.columnInfo, former.get());
    EXPECT_EQ(former->dSteelWeight, 125.5);
    EXPECT_EQ(record.columnInfo->dSteelWeight, 0.0);
}

TEST(ORVCADIdentifyColumnResultDataTest, columnInfoIsDeletedAsWhatItIs)
{
    struct Tracked : dwgx::DWGXColumnInfo
    {
        explicit Tracked(bool &deletedFlag) : deleted(deletedFlag) {}
        ~Tracked() override { deleted = true; }
        bool &deleted;
    };
    bool deleted = false;
    {
        Record record;
        record.columnInfo = new Tracked(deleted);
    }
    EXPECT_TRUE(deleted);
}

TEST(ORVCADIdentifyColumnResultDataTest, missingAndMistypedValuesReadAsZeroOrEmptyAndIdsAreAddedTo)
{
    QJsonObject json = mistypedThroughout(sampleJson());
    json["columnInfo"] = mistypedThroughout(sampleJson()["columnInfo"].toObject());
    json["barInfo"] = mistypedThroughout(sampleJson()["barInfo"].toObject());
    for (const QJsonObject &bad : {json, QJsonObject()}) {
        Record record;
        fill(record);
        const std::unique_ptr<dwgx::DWGXColumnInfo> former(record.columnInfo);
        record.fromJson(&record, bad);
        EXPECT_EQ(record.cadLineIDs.size(), 2U);
        EXPECT_EQ(record.cadTextIDs.size(), 1U);
        record.cadLineIDs.clear();
        record.cadTextIDs.clear();
        Record empty;
        empty.columnInfo = new dwgx::DWGXColumnInfo;
        expectSameJson(record.toJson(), empty.toJson());
    }
}

TEST(ORVCADIdentifyColumnResultDataTest, idsAreAddedToThoseThatAreThere)
{
    Record record;
    record.cadLineIDs = {1};
    record.fromJson(&record, jsonOf(R"({"cadLineIDs": [2, 3]})"));
    EXPECT_EQ(record.cadLineIDs, (std::vector<qint64>{1, 2, 3}));
}

TEST(ORVCADIdentifyColumnResultDataTest, idIsReadFromANumberOrATextOfDigits)
{
    Record record;
    record.fromJson(&record, jsonOf(R"({"cadTextIDs": [5000000000, "42", -7, 2.6, true, null, "x", {}, [1], 1e300]})"));
    EXPECT_EQ(record.cadTextIDs, (std::vector<qint64>{5000000000, 42, -7, 3, 1, 0, 0, 0, 0, 0}));
}

TEST(ORVCADIdentifyColumnResultDataTest, writtenIdAbove53BitsLosesItsLastDigitsAndAReadOneKeepsThem)
{
    Record record;
    fill(record);
    record.cadLineIDs = {9007199254740993}; // 2^53 + 1
    EXPECT_EQ(record.toJson()["cadLineIDs"].toArray()[0].toDouble(), 9007199254740992.0);
    EXPECT_TRUE(QJsonDocument(record.toJson()).toJson().contains("9007199254740992"));
    Record read;
    read.fromJson(&read, jsonOf(R"({"cadLineIDs": [9007199254740993]})"));
    EXPECT_EQ(read.cadLineIDs[0], 9007199254740993);
}

TEST(ORVCADIdentifyColumnResultDataTest, badGeometryIsNullOrTheOrigin)
{
    Record record;
    record.fromJson(&record, jsonOf(R"({"poly": "0,0,100,0", "cadPoly": "none",
        "columnInfo": {"position": "1,2,3", "insertPt": "1,x"}})"));
    EXPECT_FALSE(record.poly);
    EXPECT_FALSE(record.cadPoly);
    EXPECT_EQ(record.columnInfo->position, vks::CVec2<double>());
    EXPECT_EQ(record.columnInfo->insertPt, vks::CVec2<double>());
    EXPECT_EQ(record.toJson()["poly"], "");
}

TEST(ORVCADIdentifyColumnResultDataTest, geometryTextShortensNumbersToSixDigits)
{
    Record record;
    record.fromJson(&record,
                    jsonOf(R"({"columnInfo": {"position": "1234567.891,0.1234567", "dAngle": 0.1234567891}})"));
    const QJsonObject info = record.toJson()["columnInfo"].toObject();
    EXPECT_EQ(info["position"], "1.23457e+06,0.123457");
    EXPECT_EQ(info["dAngle"], 0.1234567891); // a number keeps all of its digits
}

TEST(ORVCADIdentifyColumnResultDataTest, nullTargetDoesNothingAndTheReceiverPlaysNoPart)
{
    Record receiver;
    fill(receiver);
    receiver.fromJson(nullptr, {});
    Record target;
    receiver.fromJson(&target, {{"columnName", "Z9"}});
    EXPECT_EQ(target.columnName, "Z9");
    EXPECT_EQ(target.pfnSection, "");
    expectSameJson(receiver.toJson(), sampleJson());
}

} // namespace
