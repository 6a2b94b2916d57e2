#include "platform/services/WLRBeamSpansRepository.h"

#include "embedded/BeamChainProject.h"
#include "platform/services/IWLRBeamSpan.h"
#include "platform/services/WLRBeamSpans.h"

namespace hbx::embedded {
namespace {

using WLRBeamSpansRepositoryTest = BeamChainProject;

TEST_F(WLRBeamSpansRepositoryTest, eachCallGivesAFreshSetOfTheStoredSpansById)
{
    const WLRBeamSpansRepository *repository = WLRBeamSpansRepository::getInstance();
    EXPECT_FALSE(repository->getBeamSpans(head->id()));
    storeTwoSpans();
    const std::unique_ptr<WLRBeamSpans> first(repository->getBeamSpans(head->id()));
    const std::unique_ptr<WLRBeamSpans> second(repository->getBeamSpans(tail->id()));
    ASSERT_TRUE(first && second);
    EXPECT_NE(first, second);
    EXPECT_EQ(second->span(1)->spanIndex(), 2);
    EXPECT_FALSE(repository->getBeamSpans(4711));
}

TEST_F(WLRBeamSpansRepositoryTest, spansAreThoseOfTheCurrentProject)
{
    storeTwoSpans();
    HBXProject other;
    other.makeCurrent();
    EXPECT_FALSE(WLRBeamSpansRepository::getInstance()->getBeamSpans(head->id()));
    project.makeCurrent();
    EXPECT_TRUE(std::unique_ptr<WLRBeamSpans>(WLRBeamSpansRepository::getInstance()->getBeamSpans(head->id())));
}

TEST(NoProjectBeamSpansTest, thereAreNoSpans)
{
    ASSERT_FALSE(HBXProject::current());
    EXPECT_FALSE(WLRBeamSpansRepository::getInstance()->getBeamSpans(1));
}

} // namespace
} // namespace hbx::embedded
