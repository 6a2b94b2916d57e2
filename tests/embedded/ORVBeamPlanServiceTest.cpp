#include "platform/services/ORVBeamPlanService.h"

#include "embedded/BeamChainProject.h"
#include "platform/services/IWLRBeamSpan.h"
#include "platform/services/WLRBeamSpans.h"

namespace hbx::embedded {
namespace {

class ORVBeamPlanServiceTest : public BeamChainProject
{
protected:
    /** How many spans are given, -1 for null. */
    static int countOf(IHBXElementDrawObj *beam, LoadBeamSpansSytle style)
    {
        const std::unique_ptr<WLRBeamSpans> spans(ORVBeamPlanService().createBeamSpans(beam, style));
        return spans ? spans->count() : -1;
    }
};

TEST_F(ORVBeamPlanServiceTest, styleTellsWhetherStoredOrCutSpansAreGiven)
{
    EXPECT_EQ(countOf(head, kLoadStoredBeamSpans), -1);
    EXPECT_EQ(countOf(head, kCutBeamSpans), 1);
    EXPECT_EQ(countOf(head, kLoadStoredOrCutBeamSpans), 1);
    storeTwoSpans();
    EXPECT_EQ(countOf(head, kLoadStoredBeamSpans), 2);
    EXPECT_EQ(countOf(head, kCutBeamSpans), 1);
    EXPECT_EQ(countOf(head, kLoadStoredOrCutBeamSpans), 2);
    EXPECT_EQ(countOf(head, static_cast<LoadBeamSpansSytle>(3)), -1);
}

TEST_F(ORVBeamPlanServiceTest, anyLinkOfAChainGivesTheSpansOfTheWhole)
{
    storeTwoSpans();
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

} // namespace
} // namespace hbx::embedded
