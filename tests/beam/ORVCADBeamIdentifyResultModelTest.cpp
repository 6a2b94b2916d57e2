#include "beam/ORVCADBeamIdentifyResultModel.h"

#include "IdentifyResults.h"
#include "RecordChecks.h"

#include <QJsonArray>

namespace {

using Model = ORVCADBeamIdentifyResultModel;
using Labels = QList<ORVCADBeamEdoInfoTmp *>;

TEST(ORVCADBeamIdentifyResultModelTest, newModelIsEmpty)
{
    const Model model;
    EXPECT_TRUE(model.getElementInfo().isEmpty());
    expectSameJson(model.toJson(), jsonOf(R"({"elementInfoList": []})"));
}

TEST(ORVCADBeamIdentifyResultModelTest, wholeResultIsReadInArrayOrderAndWrittenBack)
{
    const QJsonObject json = jsonOf(R"({"elementInfoList": [
        {"strName": "KL1", "edoInfos": [{"nWidth": 300, "vecSegmentInfo": [{"ipLine": "0,0,6000,0"}]}],
         "seatEdoIDList": [{"nSeatID": 12}]},
        {"strName": "KL2"}]})");
    Model model;
    Model::fromJson(&model, json);
    const Labels labels = model.getElementInfo();
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(labels[0]->strName, "KL1");
    EXPECT_EQ(labels[0]->edoInfos[0]->vecSegmentInfo[0]->ipLine->Length(), 6000.0);
    EXPECT_EQ(labels[0]->getSeatEdoIDList(), QList<qint64>{12});
    EXPECT_EQ(labels[1]->strName, "KL2");
    EXPECT_EQ(model.toJson()["elementInfoList"].toArray(), (QJsonArray{labels[0]->toJson(), labels[1]->toJson()}));
    deleteContent(labels);
}

TEST(ORVCADBeamIdentifyResultModelTest, readingReplacesTheFormerListAndGivesItUp)
{
    Model model;
    const auto former = std::make_unique<ORVCADBeamEdoInfoTmp>();
    model.setElementInfo({former.get()});
    Model::fromJson(&model, jsonOf(R"({"elementInfoList": [{"strName": "KL1"}]})"));
    ASSERT_EQ(model.getElementInfo().size(), 1);
    EXPECT_EQ(model.getElementInfo()[0]->strName, "KL1");
    former->strName = "still here";
}

TEST(ORVCADBeamIdentifyResultModelTest, emptyOrMissingListLeavesAnEmptyListAfterDroppingTheFormerOne)
{
    for (const char *text : {R"({"elementInfoList": []})", "{}", R"({"elementInfoList": "text"})"}) {
        Model model;
        ORVCADBeamEdoInfoTmp former;
        model.setElementInfo({&former});
        Model::fromJson(&model, jsonOf(text));
        EXPECT_TRUE(model.getElementInfo().isEmpty()) << text;
    }
}

TEST(ORVCADBeamIdentifyResultModelTest, labelThatIsNoObjectIsARecordOfZeros)
{
    Model model;
    Model::fromJson(&model, jsonOf(R"({"elementInfoList": ["text"]})"));
    ASSERT_EQ(model.getElementInfo().size(), 1);
    expectSameJson(model.getElementInfo()[0]->toJson(), ORVCADBeamEdoInfoTmp().toJson());
}

TEST(ORVCADBeamIdentifyResultModelTest, labelsAreHandedOverWithoutACopy)
{
    auto *label = new ORVCADBeamEdoInfoTmp;
    Model model;
    model.setElementInfo({label});
    EXPECT_EQ(model.getElementInfo(), Labels{label});
    const Model moved = std::move(model);
    EXPECT_EQ(moved.getElementInfo(), Labels{label});
}

TEST(ORVCADBeamIdentifyResultModelTest, copySharesTheLabels)
{
    Model model;
    model.setElementInfo({new ORVCADBeamEdoInfoTmp});
    Model copy = model;
    EXPECT_EQ(copy.getElementInfo(), model.getElementInfo());
    copy.setElementInfo({}); // else both would delete it
}

TEST(ORVCADBeamIdentifyResultModelTest, nullTargetIsLeftAlone)
{
    Model::fromJson(nullptr, jsonOf(R"({"elementInfoList": [{"strName": "KL1"}]})"));
}

} // namespace
