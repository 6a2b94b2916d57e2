#include "column/ORVCADAIIdentifyColumnResultModel.h"

#include "ColumnDocuments.h"

namespace {

using Model = ORVCADAIIdentifyColumnResultModel;

TEST(ORVCADAIIdentifyColumnResultModelTest, readsAndWritesAReplyByteForByte)
{
    const auto model = filled<Model>(jsonOf(columnDocument("results")));
    EXPECT_EQ(model.drawing, QStringLiteral("柱平法图-01"));
    EXPECT_EQ(model.floorCode, "2");
    ASSERT_EQ(model.resultData.size(), 1U);
    EXPECT_EQ(model.resultData[0]->columnName, "KZ-1");
    EXPECT_EQ(textOf(model.toJson()), columnDocument("results").toStdString());
}

TEST(ORVCADAIIdentifyColumnResultModelTest, replyWithoutResultsGivesAnEmptyList)
{
    const auto model = filled<Model>({{"drawing", "D"}, {"floorCode", "1"}});
    EXPECT_EQ(model.drawing, "D");
    EXPECT_TRUE(model.resultData.empty());
}

TEST(ORVCADAIIdentifyColumnResultModelTest, newModelWritesThreeKeys)
{
    expectSameJson(Model().toJson(), jsonOf(R"({"drawing": "", "floorCode": "", "resultData": []})"));
}

TEST(ORVCADAIIdentifyColumnResultModelTest, recordsAreAddedBehindThoseThatAreThere)
{
    Model model;
    const QJsonObject json = jsonOf(R"({"resultData": [{"columnName": "A"}, {"columnName": "B"}]})");
    model.fromJson(&model, json);
    const auto before = model.resultData;
    model.fromJson(&model, json);
    ASSERT_EQ(model.resultData.size(), 4U);
    EXPECT_EQ(model.resultData[0], before[0]);
    EXPECT_EQ(model.resultData[3]->columnName, "B");
    EXPECT_NE(model.resultData[2], before[0]);
}

TEST(ORVCADAIIdentifyColumnResultModelTest, entryThatIsNoObjectBecomesAnEmptyRecord)
{
    const auto model = filled<Model>(jsonOf(R"({"resultData": [7, null, "x", []]})"));
    ASSERT_EQ(model.resultData.size(), 4U);
    for (const auto &record : model.resultData) {
        EXPECT_EQ(record->columnName, "");
        EXPECT_NE(record->columnInfo, nullptr);
    }
}

TEST(ORVCADAIIdentifyColumnResultModelTest, missingAndMistypedTextsReadEmpty)
{
    Model model;
    model.drawing = "D";
    model.floorCode = "1";
    model.fromJson(&model, {{"drawing", 5}, {"resultData", QJsonObject()}});
    expectSameJson(model.toJson(), Model().toJson());
}

TEST(ORVCADAIIdentifyColumnResultModelTest, nullRecordAndOneWithoutAColumnInfoAreLeftOut)
{
    Model model;
    auto whole = std::make_shared<ORVCADIdentifyColumnResultData>();
    whole->columnInfo = new dwgx::DWGXColumnInfo;
    whole->columnName = "kept";
    model.resultData = {nullptr, std::make_shared<ORVCADIdentifyColumnResultData>(), whole};
    const QJsonArray written = model.toJson()["resultData"].toArray();
    ASSERT_EQ(written.size(), 1);
    EXPECT_EQ(written[0].toObject()["columnName"], "kept");
}

TEST(ORVCADAIIdentifyColumnResultModelTest, copySharesItsRecords)
{
    const auto model = filled<Model>(jsonOf(columnDocument("results")));
    const Model copy = model; // NOLINT(performance-unnecessary-copy-initialization): what is tested
    EXPECT_EQ(copy.resultData, model.resultData);
}

TEST(ORVCADAIIdentifyColumnResultModelTest, nullTargetDoesNothingAndTheReceiverPlaysNoPart)
{
    const auto receiver = filled<Model>(jsonOf(columnDocument("results")));
    receiver.fromJson(nullptr, {{"drawing", "other"}});
    Model target;
    receiver.fromJson(&target, {{"drawing", "other"}});
    EXPECT_EQ(target.drawing, "other");
    EXPECT_TRUE(target.resultData.empty());
    EXPECT_EQ(textOf(receiver.toJson()), columnDocument("results").toStdString());
}

} // namespace
