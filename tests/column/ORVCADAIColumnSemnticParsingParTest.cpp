#include "column/ORVCADAIColumnSemnticParsingPar.h"

#include "ColumnDocuments.h"

namespace {

using Par = ORVCADAIColumnSemnticParsingPar;

const QStringList kElevWords{"sBaseTopElev",  "sBaseBtmElev",  "sCurBtmElev", "sCurTopElev", "sHighestElev",
                             "sFirstBtmElev", "sFirstTopElev", "sUpTopElev",  "sDownBtmElev"};
const QStringList kDetailElevs{"sUpestElev", "sDownestElev", "sCurUpElev", "sCurDownElev"};

Par sample()
{
    Par par;
    par.floorWordSetPar = {{"F1", "3.6", "0"}, {"F2", "7.2", "3.6"}};
    par.columnElevWordSetPar = {"text of sBaseTopElev",  "text of sBaseBtmElev", "text of sCurBtmElev",
                                "text of sCurTopElev",   "text of sHighestElev", "text of sFirstBtmElev",
                                "text of sFirstTopElev", "text of sUpTopElev",   "text of sDownBtmElev"};
    par.columnDetailElevPar = {"text of sUpestElev", "text of sDownestElev", "text of sCurUpElev",
                               "text of sCurDownElev"};
    return par;
}

QJsonObject sampleJson()
{
    return {
        {"columnElevWordSetPar", namedAfterTheirKeys(kElevWords)},
        {"floorWordSetPar", QJsonArray{QJsonObject{{"strFloorName", "F1"}, {"sUpElev", "3.6"}, {"sDownElev", "0"}},
                                       QJsonObject{{"strFloorName", "F2"}, {"sUpElev", "7.2"}, {"sDownElev", "3.6"}}}},
        {"columnDetailElevPar", namedAfterTheirKeys(kDetailElevs)}};
}

TEST(ORVCADAIColumnSemnticParsingParTest, everyWordStandsUnderItsKey)
{
    expectSameJson(sample().toJson(), sampleJson());
}

TEST(ORVCADAIColumnSemnticParsingParTest, everyKeyIsReadIntoItsField)
{
    const auto par = filled<Par>(sampleJson());
    EXPECT_EQ(par.floorWordSetPar.size(), 2);
    EXPECT_EQ(par.floorWordSetPar[1].strFloorName, "F2");
    EXPECT_EQ(par.floorWordSetPar[1].sUpElev, "7.2");
    EXPECT_EQ(par.floorWordSetPar[1].sDownElev, "3.6");
    EXPECT_EQ(par.columnElevWordSetPar.sBaseBtmElev, "text of sBaseBtmElev");
    EXPECT_EQ(par.columnDetailElevPar.sDownestElev, "text of sDownestElev");
    expectSameJson(par.toJson(), sampleJson());
}

TEST(ORVCADAIColumnSemnticParsingParTest, missingAndMistypedWordsReadEmpty)
{
    Par par = sample();
    par.floorWordSetPar.clear();
    par.fromJson(&par, {{"columnElevWordSetPar", QJsonObject{{"sBaseTopElev", 3.6}}}, {"columnDetailElevPar", "no"}});
    expectSameJson(par.toJson(), Par().toJson());
    EXPECT_EQ(Par().toJson()["columnElevWordSetPar"].toObject().size(), 9);
    EXPECT_EQ(Par().toJson()["columnDetailElevPar"].toObject().size(), 4);
}

TEST(ORVCADAIColumnSemnticParsingParTest, emptyFloorArrayIsWrittenAndReadAsAnEmptyList)
{
    EXPECT_EQ(Par().toJson()["floorWordSetPar"], QJsonArray());
    EXPECT_TRUE(filled<Par>({{"floorWordSetPar", QJsonArray()}}).floorWordSetPar.isEmpty());
}

TEST(ORVCADAIColumnSemnticParsingParTest, readingTwiceDoublesTheFloorList)
{
    Par par;
    par.fromJson(&par, sampleJson());
    par.fromJson(&par, sampleJson());
    ASSERT_EQ(par.floorWordSetPar.size(), 4);
    EXPECT_EQ(par.floorWordSetPar[2].strFloorName, "F1");
}

TEST(ORVCADAIColumnSemnticParsingParTest, floorEntryThatIsNoObjectReadsAsEmptyWords)
{
    const auto par = filled<Par>({{"floorWordSetPar", QJsonArray{7, "F1", QJsonValue()}}});
    ASSERT_EQ(par.floorWordSetPar.size(), 3);
    EXPECT_EQ(par.floorWordSetPar[1].strFloorName, "");
}

TEST(ORVCADAIColumnSemnticParsingParTest, targetIsFilledAndTheReceiverPlaysNoPart)
{
    const Par receiver = sample();
    Par target;
    receiver.fromJson(&target, {{"columnDetailElevPar", QJsonObject{{"sCurUpElev", "top"}}}});
    EXPECT_EQ(target.columnDetailElevPar.sCurUpElev, "top");
    EXPECT_TRUE(target.floorWordSetPar.isEmpty());
    expectSameJson(receiver.toJson(), sampleJson());
}

TEST(ORVCADAIColumnSemnticParsingParTest, nullTargetDoesNothing)
{
    const Par receiver = sample();
    receiver.fromJson(nullptr, {{"floorWordSetPar", QJsonArray{QJsonObject()}}});
    expectSameJson(receiver.toJson(), sampleJson());
}

} // namespace
