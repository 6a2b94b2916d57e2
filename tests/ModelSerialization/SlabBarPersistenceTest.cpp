#include "ModelSerialization/SlabPersistenceFixture.h"

namespace {

class SlabBarPersistenceTest : public SlabPersistenceFixture
{
protected:
    /** Reads and gives the last element of a bar array. */
    template <typename Bar>
    const Bar *readBar(const char *array, std::vector<const Bar *> (Model::*list)() const, const QJsonObject &replaced)
    {
        readSampleWith(array, replaced);
        return (model.*list)().back();
    }
};

TEST_F(SlabBarPersistenceTest, negativeBarIsReadFromItsKeys)
{
    const auto *bar = readBar("negative_forced_bars", &Model::negativeForcedBars, {});
    EXPECT_EQ(bar->elementId, 7);
    EXPECT_EQ(bar->recongnizedID, QUuid("{00000000-0000-0000-0000-000000000007}"));
    EXPECT_EQ(bar->name, "FJ1");
    EXPECT_EQ(textOf(bar->line), "LINESTRING(0 500, 1800 500)");
    EXPECT_EQ(bar->labelPosition, 5);
    EXPECT_EQ(bar->leftStretchLength, 900);
    EXPECT_EQ(bar->rightStretchLength, 700.5);
    EXPECT_EQ(bar->leftHookLength, 100);
    EXPECT_EQ(bar->rightHookLength, 100);
    EXPECT_EQ(bar->barInfo, "C8@200");
    EXPECT_EQ(bar->refPoint, Point(900, 500));
    EXPECT_TRUE(bar->refPointValid);
    EXPECT_EQ(bar->distributeBarInfo, "A6@250");
    EXPECT_EQ(bar->saddleBarlineCount, "3");
    EXPECT_EQ(bar->rowNumber, 4);
}

TEST_F(SlabBarPersistenceTest, raftNegativeBarIsReadFromItsKeys)
{
    const auto *bar = readBar("raft_negative_forced_bars", &Model::raftNegativeForcedBars, {});
    EXPECT_EQ(bar->elementId, 4);
    EXPECT_EQ(bar->name, "FBFJ1");
    EXPECT_EQ(textOf(bar->line), "LINESTRING(0 0, 0 1800)");
    EXPECT_EQ(bar->labelPosition, 1);
    EXPECT_EQ(bar->leftStretchLength, 900.5);
    EXPECT_EQ(bar->rightStretchLength, 800.25);
    EXPECT_EQ(bar->barInfo, "C14@150");
    EXPECT_EQ(bar->refPoint, Point(0, 1800));
    EXPECT_TRUE(bar->refPointValid);
    EXPECT_EQ(bar->rowNumber, 1);
}

TEST_F(SlabBarPersistenceTest, forcedBarIsReadFromItsKeys)
{
    const auto *bar = readBar("forced_bars", &Model::forcedBars, {{"state_descript", "remark"}});
    EXPECT_EQ(bar->elementId, 8);
    EXPECT_EQ(textOf(bar->surface), "POLYGON((0 0, 4000 0, 4000 3000, 0 3000, 0 0))");
    EXPECT_EQ(bar->direction, Point(0.6, -0.8));
    EXPECT_EQ(bar->barInfo, "C8@150");
    EXPECT_EQ(bar->refPoint, Point(5, 6));
    EXPECT_TRUE(bar->refPointValid);
    EXPECT_EQ(bar->stateDescript, "remark");
    EXPECT_EQ(bar->forcedType, 1);
    EXPECT_EQ(bar->rowNumber, 3);
    EXPECT_EQ(bar->leftHookLength, 40);
    EXPECT_EQ(bar->rightHookLength, 45);
    EXPECT_EQ(textOf(bar->supportPoly), "POLYGON((0 0, 4100 0, 4100 3100, 0 3100, 0 0))");
}

TEST_F(SlabBarPersistenceTest, raftBarIsReadFromItsKeys)
{
    const auto *bar = readBar("raft_main_forced_bars", &Model::raftMainForcedBars, {});
    EXPECT_EQ(bar->elementId, 5);
    EXPECT_EQ(bar->direction, Point(0, 1));
    EXPECT_EQ(bar->stateDescript, "bottom");
    EXPECT_EQ(bar->forcedType, 2);
    EXPECT_EQ(bar->rowNumber, 1);
    EXPECT_EQ(bar->leftHookLength, 150);
    EXPECT_EQ(bar->rightHookLength, 160);
}

TEST_F(SlabBarPersistenceTest, supportOfRaftBarsIsNeitherWrittenNorRead)
{
    add<Model::RaftMainForcedBar>()->supportPoly = rectangle(0, 0, 10, 10);
    EXPECT_FALSE(writtenObject("raft_main_forced_bars").contains("SupportPoly"));
    const auto *bar = readBar("raft_main_forced_bars", &Model::raftMainForcedBars,
                              {{"SupportPoly", "POLYGON((0 0, 1 0, 1 1, 0 0))"}});
    EXPECT_EQ(bar->supportPoly, nullptr);
}

TEST_F(SlabBarPersistenceTest, straddleBarsAreReadFromTheirKeys)
{
    const auto *bar = readBar("straddle_forced_bars", &Model::straddleForcedBars, {});
    EXPECT_EQ(bar->elementId, 9);
    EXPECT_EQ(textOf(bar->surface), "POLYGON((0 0, 8000 0, 8000 3000, 0 3000, 0 0))");
    EXPECT_EQ(bar->direction, Point(1, 0));
    EXPECT_EQ(bar->refPoint, Point(7, 8));
    EXPECT_EQ(bar->labelPosition, 0);
    EXPECT_EQ(bar->leftStretchLength, 250);
    EXPECT_EQ(bar->rightStretchLength, 350);
    EXPECT_EQ(bar->leftHookLength, 30);
    EXPECT_EQ(bar->rightHookLength, 35);
    EXPECT_EQ(bar->distributeBarInfo, "A6@200");
    EXPECT_EQ(bar->saddleBarlineCount, "2");
    EXPECT_EQ(bar->rowNumber, 1);
    const auto *raftBar = readBar("raft_straddle_main_forced_bars", &Model::raftMainStraddleForcedBars, {});
    EXPECT_EQ(raftBar->elementId, 6);
    EXPECT_EQ(raftBar->labelPosition, 3);
    EXPECT_EQ(raftBar->leftStretchLength, 300);
    EXPECT_EQ(raftBar->rightStretchLength, 400);
    EXPECT_EQ(raftBar->leftHookLength, 50);
    EXPECT_EQ(raftBar->rightHookLength, 60);
    EXPECT_EQ(raftBar->rowNumber, 2);
    EXPECT_FALSE(raftBar->refPointValid);
}

TEST_F(SlabBarPersistenceTest, rightHookOfNegativeBarsIsWrittenFromTheLeftOne)
{
    auto *bar = add<Model::NegativeForcedBar>();
    bar->leftHookLength = 100;
    bar->rightHookLength = 200;
    auto *raftBar = add<Model::RaftNegativeForcedBar>();
    raftBar->leftHookLength = 100;
    raftBar->rightHookLength = 200;
    Model target;
    ASSERT_TRUE(Service::json2model(written(), &target, kAll));
    EXPECT_EQ(target.negativeForcedBars().at(0)->leftHookLength, 100);
    EXPECT_EQ(target.negativeForcedBars().at(0)->rightHookLength, 100);
    EXPECT_EQ(target.raftNegativeForcedBars().at(0)->rightHookLength, 100);
}

TEST_F(SlabBarPersistenceTest, rightHookOfNegativeBarsIsReadFromItsOwnKey)
{
    const QJsonObject hooks{{"left_hook_length", 100}, {"right_hook_length", 200}};
    EXPECT_EQ(readBar("negative_forced_bars", &Model::negativeForcedBars, hooks)->rightHookLength, 200);
    EXPECT_EQ(readBar("raft_negative_forced_bars", &Model::raftNegativeForcedBars, hooks)->rightHookLength, 200);
}

TEST_F(SlabBarPersistenceTest, hooksLoseTheirFraction)
{
    const QJsonObject hooks{{"left_hook_length", 100.9}, {"right_hook_length", -100.9}};
    const auto *negative = readBar("negative_forced_bars", &Model::negativeForcedBars, hooks);
    EXPECT_EQ(negative->leftHookLength, 100);
    EXPECT_EQ(negative->rightHookLength, -100);
    EXPECT_EQ(readBar("raft_negative_forced_bars", &Model::raftNegativeForcedBars, hooks)->leftHookLength, 100);
    EXPECT_EQ(readBar("forced_bars", &Model::forcedBars, hooks)->rightHookLength, -100);
    EXPECT_EQ(readBar("raft_main_forced_bars", &Model::raftMainForcedBars, hooks)->leftHookLength, 100);
    EXPECT_EQ(readBar("forced_bars", &Model::forcedBars, {{"left_hook_length", 3e9}})->leftHookLength, 0);
}

TEST_F(SlabBarPersistenceTest, hooksOfStraddleBarsWithAFractionReadAsZero)
{
    const QJsonObject hooks{{"left_hook_length", 100.9}, {"right_hook_length", 101}};
    const auto *bar = readBar("straddle_forced_bars", &Model::straddleForcedBars, hooks);
    EXPECT_EQ(bar->leftHookLength, 0);
    EXPECT_EQ(bar->rightHookLength, 101);
    EXPECT_EQ(readBar("raft_straddle_main_forced_bars", &Model::raftMainStraddleForcedBars, hooks)->leftHookLength, 0);
}

TEST_F(SlabBarPersistenceTest, remarkOfNegativeAndStraddleBarsIsReadAsOneCharacter)
{
    const QString null(QChar(0));
    EXPECT_EQ(readBar("negative_forced_bars", &Model::negativeForcedBars, {})->stateDescript, null);
    EXPECT_EQ(readBar("raft_negative_forced_bars", &Model::raftNegativeForcedBars, {})->stateDescript, null);
    EXPECT_EQ(readBar("straddle_forced_bars", &Model::straddleForcedBars, {})->stateDescript, null);
    EXPECT_EQ(readBar("raft_straddle_main_forced_bars", &Model::raftMainStraddleForcedBars, {})->stateDescript, null);
    const QJsonObject code{{"state_descript", 65.5}};
    EXPECT_EQ(readBar("negative_forced_bars", &Model::negativeForcedBars, code)->stateDescript, "A");
    EXPECT_EQ(readBar("straddle_forced_bars", &Model::straddleForcedBars, code)->stateDescript, "A");
}

TEST_F(SlabBarPersistenceTest, remarkOfBarsIsWrittenAsText)
{
    add<Model::NegativeForcedBar>()->stateDescript = "top";
    add<Model::RaftMainStraddleForcedBar>()->stateDescript = "through";
    EXPECT_EQ(writtenObject("negative_forced_bars")["state_descript"], "top");
    EXPECT_EQ(writtenObject("raft_straddle_main_forced_bars")["state_descript"], "through");
}

TEST_F(SlabBarPersistenceTest, remarkOfTheOtherBarsIsReadAsText)
{
    EXPECT_EQ(readBar("raft_main_forced_bars", &Model::raftMainForcedBars, {})->stateDescript, "bottom");
    EXPECT_EQ(readBar("forced_bars", &Model::forcedBars, {{"state_descript", 65}})->stateDescript, "");
}

TEST_F(SlabBarPersistenceTest, supportsOfStraddleBarsAreWrittenOneBehindTheOther)
{
    auto *bar = add<Model::StraddleForcedBar>();
    bar->supportPolys = {rectangle(0, 0, 1, 1), nullptr, rectangle(1, 0, 1, 1)};
    EXPECT_EQ(writtenObject("straddle_forced_bars")["SupportPolys"].toString(),
              "POLYGON((0 0, 1 0, 1 1, 0 1, 0 0));;POLYGON((1 0, 2 0, 2 1, 1 1, 1 0));");
}

TEST_F(SlabBarPersistenceTest, supportsOfStraddleBarsAreReadFromTheOutlineInstead)
{
    EXPECT_TRUE(readBar("straddle_forced_bars", &Model::straddleForcedBars, {})->supportPolys.empty());
    const auto *bar = readBar("straddle_forced_bars", &Model::straddleForcedBars,
                              {{"surface", "POLYGON((0 0, 1 0, 1 1, 0 0));;broken;POLYGON((0 0, 1 0, 1 1, 0 0))"}});
    EXPECT_EQ(bar->surface, nullptr);
    ASSERT_EQ(bar->supportPolys.size(), 3U) << "as many as there are semicolons";
    EXPECT_EQ(textOf(bar->supportPolys[0]), "POLYGON((0 0, 1 0, 1 1, 0 0))");
    EXPECT_EQ(bar->supportPolys[1], nullptr);
    EXPECT_EQ(bar->supportPolys[2], nullptr);
}

TEST_F(SlabBarPersistenceTest, barWithoutGeometryIsWrittenWithEmptyTexts)
{
    add<Model::ForcedBar>();
    add<Model::NegativeForcedBar>();
    add<Model::StraddleForcedBar>();
    EXPECT_EQ(writtenObject("forced_bars")["surface"], "");
    EXPECT_EQ(writtenObject("forced_bars")["SupportPoly"], "");
    EXPECT_EQ(writtenObject("negative_forced_bars")["line"], "");
    EXPECT_EQ(writtenObject("straddle_forced_bars")["SupportPolys"], "");
}

TEST_F(SlabBarPersistenceTest, missingLabelPositionReadsAsZeroNotAsTheDefault)
{
    readObject("negative_forced_bars", {});
    readObject("straddle_forced_bars", {});
    EXPECT_EQ(model.negativeForcedBars().at(0)->labelPosition, 0);
    EXPECT_EQ(model.straddleForcedBars().at(0)->labelPosition, 0);
}

} // namespace
