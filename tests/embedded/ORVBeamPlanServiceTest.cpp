#include "platform/services/ORVBeamPlanService.h"

#include "embedded/EmbeddedBuilding.h"
#include "platform/embedded/HBXProject.h"
#include "platform/services/IWLRBeamSpan.h"
#include "platform/services/WLRBeamSpans.h"
#include "platform/services/WLRBeamSpansRepository.h"

namespace hbx::embedded {
namespace {

/** A beam of two pieces along the x axis, 10 m long, in a project of its own. */
class ORVBeamPlanServiceTest : public ::testing::Test
{
protected:
    ORVBeamPlanServiceTest()
    {
        project.store().load(emptyHouse());
        project.makeCurrent();
        element = elements().createElement(15, 3, floor(), "KL1");
        head = piece("LINESTRING(0 0, 5000 0)");
        tail = piece("LINESTRING(5000 0, 10000 0)");
        head->linkNext(tail);
    }
    IHBXModel &model() { return *project.service()->model(); }
    IHBXElements &elements() { return *model().elements(); }
    IHBXFloor *floor() { return model().regions()->at(0)->floors()->at(0); }
    IHBXElementDrawObj *piece(const char *axis)
    {
        IHBXElementDrawObj *object = model().drawObjects()->createDrawObj(floor(), element, true);
        model().drawObjects()->addDrawObj(object);
        dynamic_cast<IHBXCustomLineSolidShape *>(object->shape())->setLine(curveOf(axis));
        return object;
    }
    int countOf(IHBXElementDrawObj *beam, LoadBeamSpansSytle style)
    {
        const std::unique_ptr<WLRBeamSpans> spans(ORVBeamPlanService().createBeamSpans(beam, style));
        return spans ? spans->count() : -1;
    }
    void store() { ASSERT_TRUE(project.store().setSpans(head, {{{"SpanIndex", 1}}, {{"SpanIndex", 2}}})); }

    HBXProject project;
    IHBXElement *element = nullptr;
    IHBXElementDrawObj *head = nullptr;
    IHBXElementDrawObj *tail = nullptr;
};

TEST_F(ORVBeamPlanServiceTest, styleTellsWhetherStoredOrCutSpansAreGiven)
{
    EXPECT_EQ(countOf(head, kLoadStoredBeamSpans), -1);
    EXPECT_EQ(countOf(head, kCutBeamSpans), 1);
    EXPECT_EQ(countOf(head, kLoadStoredOrCutBeamSpans), 1);
    store();
    EXPECT_EQ(countOf(head, kLoadStoredBeamSpans), 2);
    EXPECT_EQ(countOf(head, kCutBeamSpans), 1);
    EXPECT_EQ(countOf(head, kLoadStoredOrCutBeamSpans), 2);
    EXPECT_EQ(countOf(head, static_cast<LoadBeamSpansSytle>(3)), -1);
}

TEST_F(ORVBeamPlanServiceTest, anyLinkOfAChainGivesTheSpansOfTheWhole)
{
    store();
    EXPECT_EQ(countOf(tail, kLoadStoredBeamSpans), 2);
    const std::unique_ptr<WLRBeamSpans> cut(ORVBeamPlanService().createBeamSpans(tail, kCutBeamSpans));
    EXPECT_EQ(cut->span(0)->spanLength(1), 10000);
}

TEST_F(ORVBeamPlanServiceTest, whatIsInNoChainHasNoSpans)
{
    IHBXElement *column = elements().createElement(25, 3, floor(), "KZ1");
    EXPECT_EQ(countOf(nullptr, kLoadStoredOrCutBeamSpans), -1);
    EXPECT_EQ(countOf(model().drawObjects()->createDrawObj(floor(), column, true), kLoadStoredOrCutBeamSpans), -1);
    EXPECT_EQ(countOf(model().drawObjects()->createDrawObj(floor(), element, true), kLoadStoredOrCutBeamSpans), -1);
}

TEST_F(ORVBeamPlanServiceTest, repositoryGivesAFreshSetOfTheStoredSpansById)
{
    const WLRBeamSpansRepository *repository = WLRBeamSpansRepository::getInstance();
    EXPECT_FALSE(repository->getBeamSpans(head->id()));
    store();
    const std::unique_ptr<WLRBeamSpans> first(repository->getBeamSpans(head->id()));
    const std::unique_ptr<WLRBeamSpans> second(repository->getBeamSpans(tail->id()));
    ASSERT_TRUE(first && second);
    EXPECT_NE(first, second);
    EXPECT_EQ(second->span(1)->spanIndex(), 2);
    EXPECT_FALSE(repository->getBeamSpans(4711));
}

TEST_F(ORVBeamPlanServiceTest, repositoryServesTheCurrentProject)
{
    store();
    HBXProject other;
    other.makeCurrent();
    EXPECT_FALSE(WLRBeamSpansRepository::getInstance()->getBeamSpans(head->id()));
    project.makeCurrent();
    EXPECT_TRUE(std::unique_ptr<WLRBeamSpans>(WLRBeamSpansRepository::getInstance()->getBeamSpans(head->id())));
}

TEST(WLRBeamSpansRepositoryTest, withoutAProjectThereAreNoSpans)
{
    ASSERT_FALSE(HBXProject::current());
    EXPECT_FALSE(WLRBeamSpansRepository::getInstance()->getBeamSpans(1));
}

} // namespace
} // namespace hbx::embedded
