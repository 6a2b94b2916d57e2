#include "column/ORVCADColumnCloudCheckInputModel.h"

#include "ColumnDocuments.h"
#include "ColumnInputs.h"

namespace {

using Model = ORVCADColumnCloudCheckInputModel;

Model sample()
{
    Model model;
    model.columnOptions = columninputs::options();
    model.strCurFloorCode = "-1";
    model.axisLineList = columninputs::axisLines();
    return model;
}

TEST(ORVCADColumnCloudCheckInputModelTest, everyFieldIsWrittenUnderItsKey)
{
    EXPECT_EQ(textOf(sample().toJson()), columnDocument("check-input").toStdString());
}

TEST(ORVCADColumnCloudCheckInputModelTest, everyKeyIsReadIntoItsField)
{
    const auto model = filled<Model>(jsonOf(columnDocument("check-input")));
    EXPECT_EQ(textOf(model.toJson()), columnDocument("check-input").toStdString());
    EXPECT_EQ(model.strCurFloorCode, "-1");
    EXPECT_EQ(model.columnOptions.MaxSearchExtent, 3000);
    EXPECT_TRUE(model.columnOptions.bSideBarAverageDistribution);
    EXPECT_EQ(model.axisLineList.size(), 2U);
}

TEST(ORVCADColumnCloudCheckInputModelTest, hasNoType)
{
    EXPECT_EQ(Model().toJson().keys(), (QStringList{"axisLineList", "columnOptions", "strCurFloorCode"}));
}

TEST(ORVCADColumnCloudCheckInputModelTest, missingAndMistypedValuesReadEmptyAndAxisLinesAreAddedTo)
{
    Model model = sample();
    model.fromJson(&model, mistypedThroughout(jsonOf(columnDocument("check-input"))));
    EXPECT_EQ(model.axisLineList.size(), 2U);
    model.axisLineList.clear();
    expectSameJson(model.toJson(), Model().toJson());
    model.fromJson(&model, jsonOf(columnDocument("check-input")));
    model.fromJson(&model, jsonOf(columnDocument("check-input")));
    EXPECT_EQ(model.axisLineList.size(), 4U);
}

TEST(ORVCADColumnCloudCheckInputModelTest, copySharesItsAxisLines)
{
    const Model source = sample();
    const Model copy = source; // NOLINT(performance-unnecessary-copy-initialization): what is tested
    EXPECT_EQ(copy.axisLineList, source.axisLineList);
}

TEST(ORVCADColumnCloudCheckInputModelTest, nullTargetDoesNothingAndTheReceiverPlaysNoPart)
{
    const Model receiver = sample();
    receiver.fromJson(nullptr, {{"strCurFloorCode", "9"}});
    Model target;
    receiver.fromJson(&target, {{"strCurFloorCode", "9"}});
    EXPECT_EQ(target.strCurFloorCode, "9");
    EXPECT_TRUE(target.axisLineList.empty());
    EXPECT_EQ(receiver.strCurFloorCode, "-1");
}

} // namespace
