#include "HostContract.h"

#include "platform/host/IHBXCurState.h"

using namespace host_contract;

TEST_P(HostServiceContract, serviceFrontsOneModelWithAllItsCollections)
{
    ASSERT_NE(service().model(), nullptr);
    EXPECT_EQ(service().model(), service().model());
    EXPECT_NE(model().regions(), nullptr);
    EXPECT_NE(model().elements(), nullptr);
    EXPECT_NE(model().drawObjects(), nullptr);
    EXPECT_NE(model().checker(), nullptr);
}

TEST_P(HostServiceContract, currentStateTellsTheSelectedRegionAndFloor)
{
    IHBXCurState &state = need(service().curState(), "current state");
    ASSERT_NE(state.region(), nullptr);
    ASSERT_NE(state.floor(), nullptr);
    EXPECT_EQ(state.region()->name(), QStringLiteral("House"));
    EXPECT_EQ(state.floor()->name(), QStringLiteral("Level 1"));
}

TEST_P(HostServiceContract, currentStateGivesTheModelsOwnRegionAndFloor)
{
    IHBXCurState &state = need(service().curState(), "current state");
    EXPECT_EQ(state.region(), &region("House"));
    EXPECT_EQ(state.floor(), &level1());
}

TEST_P(HostServiceContract, layersOfTheCurrentStateStayWhileNothingIsSelected)
{
    IHBXCurState &state = need(service().curState(), "current state");
    const int layer = state.layer();
    const int current = state.currentLayer(-1);
    placed(19);
    EXPECT_EQ(state.layer(), layer);
    EXPECT_EQ(state.currentLayer(-1), current);
}

TEST_P(HostServiceContract, unnamedSettingStaysTheSame)
{
    EXPECT_EQ(service().unnamedSetting(), service().unnamedSetting());
}

TEST_P(HostServiceContract, hostsOfOneFactoryShareNothing)
{
    makeElement(19, QStringLiteral("Mine"));
    const std::shared_ptr<IHBXService> other = GetParam()->makeHost();
    ASSERT_TRUE(other && other->model());
    EXPECT_EQ(other->model()->elements()->count() + 1, elements().count());
}
