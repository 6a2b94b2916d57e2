#include "cli/ColumnDocumentCheck.h"

#include "JsonTexts.h"

using clitest::objectOf;
using clitest::textOf;
using orvcad::ColumnDocumentCheck;

namespace {

QJsonObject sample(const QString &name)
{
    return clitest::fileObject(QStringLiteral(ORVCAD_TEST_DATA "/columns/%1.json").arg(name));
}

std::string findings(const QJsonObject &document) { return textOf(ColumnDocumentCheck(document).findings()); }
std::string notKept(const QByteArray &document) { return textOf(ColumnDocumentCheck(objectOf(document)).notKept()); }

std::string findings(const QByteArray &document) { return findings(objectOf(document)); }

TEST(ColumnDocumentCheckTest, kindIsToldFromTheKeys)
{
    EXPECT_EQ(ColumnDocumentCheck(sample("results")).content()["kind"], "results");
    EXPECT_EQ(ColumnDocumentCheck(sample("check-input")).content()["kind"], "check-input");
    EXPECT_EQ(ColumnDocumentCheck(sample("identify-input")).content()["kind"], "identify-input");
    const QJsonObject input = sample("identify-input");
    EXPECT_EQ(ColumnDocumentCheck(input["oHoopBarSettingPar"].toObject()).content()["kind"], "hoop-bar-settings");
    EXPECT_EQ(ColumnDocumentCheck(input["oSemnTicParsePar"].toObject()).content()["kind"], "semantic-parameters");
}

TEST(ColumnDocumentCheckTest, recordThatKnowsMostKeysIsTaken)
{
    EXPECT_EQ(ColumnDocumentCheck(objectOf(R"({"columnOptions": {}, "axisLineList": []})")).content()["kind"],
              "check-input");
    EXPECT_EQ(
        ColumnDocumentCheck(objectOf(R"({"columnOptions": {}, "axisLineList": [], "eType": 1})")).content()["kind"],
        "identify-input");
    EXPECT_EQ(ColumnDocumentCheck(objectOf(R"({"drawing": "", "eType": 1, "elements": []})")).content()["kind"],
              "identify-input");
}

TEST(ColumnDocumentCheckTest, objectWithoutAKeyOfARecordIsNone)
{
    EXPECT_FALSE(ColumnDocumentCheck(QJsonObject()).isColumnRecord());
    const ColumnDocumentCheck check(objectOf(R"({"regions": [], "name": "House"})"));
    EXPECT_FALSE(check.isColumnRecord());
    EXPECT_TRUE(check.findings().empty());
    EXPECT_TRUE(check.title().isEmpty());
}

TEST(ColumnDocumentCheckTest, soundDocumentsHaveNoFindings)
{
    for (const char *name : {"results", "check-input", "identify-input"}) {
        EXPECT_EQ(findings(sample(name)), "") << name;
        EXPECT_EQ(ColumnDocumentCheck(sample(name)).missingKeys(), 0) << name;
    }
}

TEST(ColumnDocumentCheckTest, contentTellsWhatARecordHolds)
{
    EXPECT_EQ(ColumnDocumentCheck(sample("results")).content(),
              objectOf(R"({"kind": "results", "drawing": "柱平法图-01", "floorCode": "2", "columns": 1, "toCreate": 1,
                         "cadLines": 2, "cadTexts": 1})"));
    EXPECT_EQ(ColumnDocumentCheck(sample("check-input")).content(),
              objectOf(R"({"kind": "check-input", "floorCode": "-1", "axisLines": 2})"));
    EXPECT_EQ(ColumnDocumentCheck(sample("identify-input")).content(),
              objectOf(R"({"kind": "identify-input", "type": 7, "columnCodes": 2, "borderLayers": 2, "labelLayers": 1,
                         "axisLines": 2, "elements": 1, "floorWords": 2, "hoopPictures": 2, "hoopSettings": 1})"));
    const QJsonObject input = sample("identify-input");
    EXPECT_EQ(ColumnDocumentCheck(input["oHoopBarSettingPar"].toObject()).content(),
              objectOf(R"({"kind": "hoop-bar-settings", "hoopPictures": 2, "hoopSettings": 1})"));
    EXPECT_EQ(ColumnDocumentCheck(input["oSemnTicParsePar"].toObject()).content(),
              objectOf(R"({"kind": "semantic-parameters", "floorWords": 2})"));
}

TEST(ColumnDocumentCheckTest, missingKeysAreCountedAndNoFault)
{
    const ColumnDocumentCheck check(objectOf(R"({"resultData": [{"columnName": "KZ"}]})"));
    EXPECT_TRUE(check.findings().empty());
    EXPECT_EQ(check.missingKeys(), 2 + 9);
}

TEST(ColumnDocumentCheckTest, mistypedValueIsNamedWithItsPlace)
{
    EXPECT_EQ(findings(R"({"drawing": 5, "resultData": [7, {"bCreateElement": 1, "barInfo": {"nBSidePicID": 0.5},
                           "cadLineIDs": [1, "2", "x", {}], "cadTextIDs": 3,
                           "columnInfo": {"dAngle": "0.5", "m_type": 4e9}}]})"),
              "drawing: is not text\n"
              "resultData[0]: is no object\n"
              "resultData[1].barInfo.nBSidePicID: is not a whole number of 32 bits\n"
              "resultData[1].bCreateElement: is not true or false\n"
              "resultData[1].cadLineIDs[2]: is not a whole number of 64 bits\n"
              "resultData[1].cadLineIDs[3]: is not a whole number of 64 bits\n"
              "resultData[1].cadTextIDs: is no array\n"
              "resultData[1].columnInfo.dAngle: is not a number\n"
              "resultData[1].columnInfo.m_type: is not a whole number of 32 bits");
    EXPECT_EQ(findings(R"({"resultData": {}, "drawing": "", "floorCode": ""})"), "resultData: is no array");
    EXPECT_EQ(findings(R"({"resultData": [{"columnInfo": [], "barInfo": ""}]})"),
              "resultData[0].barInfo: is no object\nresultData[0].columnInfo: is no object");
}

TEST(ColumnDocumentCheckTest, badGeometryIsNamed)
{
    EXPECT_EQ(findings(R"({"resultData": [{"poly": "0,0,100,0", "cadPoly": "0,0;100,100;100,0;0,100;",
                           "columnInfo": {"position": "1,2,3", "insertPt": 4}}]})"),
              "resultData[0].poly: is no text of an outline\n"
              "resultData[0].cadPoly: is no valid outline\n"
              "resultData[0].columnInfo.position: is no text of a point\n"
              "resultData[0].columnInfo.insertPt: is not text");
    EXPECT_EQ(findings(R"({"strCurFloorCode": "1", "axisLineList": ["0,0,1,0", "0,0", "", 3]})"),
              "axisLineList[1]: is no text of a curve\n"
              "axisLineList[2]: is no text of a curve\n"
              "axisLineList[3]: is not text");
}

TEST(ColumnDocumentCheckTest, columnMayLackAnOutline)
{
    EXPECT_EQ(findings(R"({"resultData": [{"poly": "", "cadPoly": ""}]})"), "");
}

TEST(ColumnDocumentCheckTest, keyThatNothingReadsIsNamed)
{
    EXPECT_EQ(findings(R"({"eType": 1, "columnCodes": [], "oSemnticParsePar": {}, "columnOptions": {"kzMark": ""}})"),
              "columnOptions.kzMark: is no key of this record, and not read: AZMark is one\n"
              "oSemnticParsePar: is no key of this record, and not read: oSemnTicParsePar is one");
}

TEST(ColumnDocumentCheckTest, pictureWhoseIdIsKnownIsNamed)
{
    const QByteArray hoops = R"({"ColumnHoopBarPicInfos": [{"id": 4}, {"id": 5}, {"id": 4}, {"id": 5}]})";
    EXPECT_EQ(findings(hoops), "ColumnHoopBarPicInfos[2]: has the id 4 of picture 0, and is left out\n"
                               "ColumnHoopBarPicInfos[3]: has the id 5 of picture 1, and is left out");
    EXPECT_EQ(findings(R"({"eType": 1, "oHoopBarSettingPar": )" + hoops + '}'),
              "oHoopBarSettingPar.ColumnHoopBarPicInfos[2]: has the id 4 of picture 0, and is left out\n"
              "oHoopBarSettingPar.ColumnHoopBarPicInfos[3]: has the id 5 of picture 1, and is left out");
}

TEST(ColumnDocumentCheckTest, idBeyond32BitsInHoopSettingsIsNamed)
{
    EXPECT_EQ(findings(R"({"ColumnHoopBarSettings": [{"HoopBarBPicID": 5000000000}]})"),
              "ColumnHoopBarSettings[0].HoopBarBPicID: is not a whole number of 32 bits");
}

TEST(ColumnDocumentCheckTest, whatDoesNotSurviveIsNamedWithTheFindingThatTellsWhy)
{
    EXPECT_EQ(notKept(R"({"drawing": 5, "FloorCode": "1", "floorCode": "1", "resultData": [7, {"bCreateElement": 1,
                          "cadLineIDs": [1, "2", "x"], "columnInfo": {"dAngle": "0.5", "extra": {"a": 1}}}]})"),
              "FloorCode: is no key of this record, and not read: floorCode is one\n"
              "drawing: is not text\n"
              "resultData[0]: is no object\n"
              "resultData[1].bCreateElement: is not true or false\n"
              "resultData[1].cadLineIDs[1]: is written as the number 2\n"
              "resultData[1].cadLineIDs[2]: is not a whole number of 64 bits\n"
              "resultData[1].columnInfo.dAngle: is not a number\n"
              "resultData[1].columnInfo.extra: is no key of this record, and not read");
}

TEST(ColumnDocumentCheckTest, whatIsNoFaultMayStillBeWrittenOtherwise)
{
    EXPECT_EQ(notKept(R"({"strCurFloorCode": "1", "axisLineList": ["0,0,1,0", "0,0,1234567.5,0"]})"),
              "axisLineList[1]: is written as \"0,0,1.23457e+06,0\": geometry has one form and six digits");
    EXPECT_EQ(notKept(R"({"strCurFloorCode": "1", "columnOptions": {"MaxSearchExtent": 3e3}})"), "");
}

TEST(ColumnDocumentCheckTest, valueWithAFindingMaySurvive)
{
    const QByteArray crossed = R"({"resultData": [{"cadPoly": "0,0;100,100;100,0;0,100;"}]})";
    EXPECT_EQ(findings(crossed), "resultData[0].cadPoly: is no valid outline");
    EXPECT_EQ(notKept(crossed), "");
}

TEST(ColumnDocumentCheckTest, missingKeyIsNoLossThoughItIsWritten)
{
    EXPECT_EQ(notKept(R"({"resultData": [{}]})"), "");
}

TEST(ColumnDocumentCheckTest, picturesAreComparedByTheirIdsWhichAreWrittenInOrder)
{
    const QByteArray hoops = R"({"ColumnHoopBarPicInfos": [{"id": 8, "BarPicID": 62}, {"id": 3, "BarPicID": 41},
                                 {"id": 8, "BarPicID": 63}]})";
    EXPECT_EQ(notKept(hoops), "ColumnHoopBarPicInfos[2]: has the id 8 of picture 0, and is left out");
    EXPECT_EQ(notKept(R"({"eType": 1, "oHoopBarSettingPar": )" + hoops + '}'),
              "oHoopBarSettingPar.ColumnHoopBarPicInfos[2]: has the id 8 of picture 0, and is left out");
}

TEST(ColumnDocumentCheckTest, manyFaultsAreToldInTheTimeThatTheirNumberTakes)
{
    QJsonArray ids;
    for (int i = 0; i < 100000; ++i)
        ids.append("none");
    const ColumnDocumentCheck check({{"resultData", QJsonArray{QJsonObject{{"cadLineIDs", ids}}}}});
    EXPECT_EQ(check.findings().size(), 100000U);
    EXPECT_EQ(check.notKept().size(), 100000U);
}

TEST(ColumnDocumentCheckTest, limbTextWithoutPicturesIsNamed)
{
    QJsonObject input = sample("identify-input");
    QJsonObject element = input["elements"].toArray()[0].toObject();
    QJsonArray elements;
    for (const char *limbs : {"4*5", "4*6", "", "4*7", "four"}) {
        QJsonObject bar = element["bar"].toObject();
        bar["strLimb"] = limbs;
        element["bar"] = bar;
        elements.append(element);
    }
    input["elements"] = elements;
    EXPECT_EQ(findings(input), "elements[3].bar.strLimb: \"4*7\" has no picture in the hoop bar settings\n"
                               "elements[4].bar.strLimb: \"four\" has no picture in the hoop bar settings");
    input.remove("oHoopBarSettingPar");
    EXPECT_EQ(findings(input), "");
}

} // namespace
