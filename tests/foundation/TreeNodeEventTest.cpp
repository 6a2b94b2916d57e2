#include "TracedNode.h"

#include <gmock/gmock.h>

#include <memory>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/** Two roots; "old" has the child "c" and stands under nothing, "new" stands under "top". */
class TreeNodeEventTest : public testing::Test
{
protected:
    TreeNodeEventTest()
    {
        old->appendChild(child);
        top->appendChild(fresh);
        trace.take();
    }

    Trace trace;
    std::unique_ptr<TracedNode> old{new TracedNode(trace, "old")};
    std::unique_ptr<TracedNode> top{new TracedNode(trace, "top")};
    TracedNode *fresh = new TracedNode(trace, "new");
    TracedNode *child = new TracedNode(trace, "c");
};

TEST_F(TreeNodeEventTest, insertionTellsTheParentAndThoseAbove)
{
    fresh->appendChild(new TracedNode(trace, "n"));
    EXPECT_THAT(trace.lines,
                ElementsAre("new 6", "top 6", "new 0 n", "top 0 n", "new 1 n", "top 1 n", "new 7", "top 7"));
}

TEST_F(TreeNodeEventTest, reparentingTellsTheOldParentAndThenTheNewOne)
{
    top->appendChild(child);
    EXPECT_THAT(trace.lines,
                ElementsAre("old 6", "old 2 c", "old 3 c", "old 7", "top 6", "top 0 c", "top 1 c", "top 7"));
}

TEST_F(TreeNodeEventTest, setParentTellsAsInsertionDoes)
{
    child->setParent(top.get());
    EXPECT_THAT(trace.take(),
                ElementsAre("old 6", "old 2 c", "old 3 c", "old 7", "top 6", "top 0 c", "top 1 c", "top 7"));
    child->setParentNode(old.get());
    EXPECT_THAT(trace.take(),
                ElementsAre("top 6", "top 2 c", "top 3 c", "top 7", "old 6", "old 0 c", "old 1 c", "old 7"));
    child->setParent(nullptr);
    EXPECT_THAT(trace.take(), ElementsAre("old 6", "old 2 c", "old 3 c", "old 7"));
    delete child;
}

TEST_F(TreeNodeEventTest, removalDeletesAfterTheLastEvent)
{
    old->removeChild(static_cast<TracedNode::ChildNode *>(child));
    EXPECT_THAT(trace.lines, ElementsAre("old 6", "old 2 c", "old 3 c", "old 7", "~c"));
}

TEST_F(TreeNodeEventTest, deletedChildLeavesItsParentWithEventsOnce)
{
    delete child;
    EXPECT_THAT(trace.lines, ElementsAre("~c", "old 6", "old 2 c", "old 3 c", "old 7"));
    EXPECT_EQ(old->childCount(), 0U);
}

TEST_F(TreeNodeEventTest, deletedNodeDeletesItsChildrenBeforeItLeavesItsParent)
{
    fresh->appendChild(child);
    trace.take();
    delete fresh;
    EXPECT_THAT(trace.lines, ElementsAre("~new", "~c", "top 6", "top 2 new", "top 3 new", "top 7"));
}

TEST_F(TreeNodeEventTest, dyingParentSendsNothing)
{
    fresh->appendChild(child);
    trace.take();
    top.reset();
    EXPECT_THAT(trace.lines, ElementsAre("~top", "~new", "~c"));
}

TEST_F(TreeNodeEventTest, stoppedEventDoesNotReachThoseAbove)
{
    fresh->stops = true;
    fresh->appendChild(child);
    EXPECT_THAT(trace.take(),
                ElementsAre("old 6", "old 2 c", "old 3 c", "old 7", "new 6", "new 0 c", "new 1 c", "new 7"));
    child->appendChild(new TracedNode(trace, "n"));
    EXPECT_THAT(trace.take(), ElementsAre("c 6", "new 6", "c 0 n", "new 0 n", "c 1 n", "new 1 n", "c 7", "new 7"));
}

TEST_F(TreeNodeEventTest, relationsMoveWithTheEventsOfEachStep)
{
    old->setParent(top.get());
    old->stops = true;
    auto *to = new TracedNode(trace, "to");
    to->stops = true;
    trace.take();
    TracedNode::move_ralations(old.get(), to);
    EXPECT_THAT(trace.lines, ElementsAre("top 6", "top 2 old", "top 3 old", "top 7", // the old node leaves its parent
                                         "top 6", "top 0 to", "top 1 to", "top 7",   // the other comes in its place
                                         "old 6", "old 2 c", "old 3 c", "old 7",     // and each child follows
                                         "to 6", "to 0 c", "to 1 c", "to 7"));
}

TEST_F(TreeNodeEventTest, listAndLinkAreWhatEachEventSays)
{
    Names seen;
    top->onEvent = [&](Event *event) {
        seen.push_back(std::to_string(event->type) + (top->contains(child) ? " listed" : " not listed") +
                       (child->parent() == top.get() ? " linked" : " not linked"));
    };
    top->appendChild(child);
    EXPECT_THAT(
        seen, ElementsAre("6 not listed not linked", "0 not listed not linked", "1 listed linked", "7 listed linked"));
    seen.clear();
    child->setParent(nullptr);
    EXPECT_THAT(seen, ElementsAre("6 listed not linked", "2 listed not linked", "3 not listed not linked",
                                  "7 not listed not linked"));
    delete child;
}

TEST_F(TreeNodeEventTest, handlerThatTakesOutOthersDoesNotHarmAnInsertion)
{
    top->onEvent = [&](Event *event) {
        if (event->type == Event::ChildrenAboutToChange)
            top->removeChild(*fresh);
    };
    EXPECT_TRUE(top->insertChild(1, child));
    EXPECT_THAT(top->childNodes(), ElementsAre(child));
    delete fresh;
}

TEST_F(TreeNodeEventTest, handlerThatMovesTheChildAwayDoesNotHarmARemoval)
{
    old->onEvent = [&](Event *event) {
        if (event->type == Event::ChildAboutToBeRemoved && child->parent() == old.get())
            top->appendChild(child);
    };
    old->removeChild(static_cast<TracedNode::ChildNode *>(child));
    EXPECT_THAT(old->childNodes(), IsEmpty());
    EXPECT_THAT(top->childNodes(), ElementsAre(fresh, child));
}

TEST_F(TreeNodeEventTest, handlerThatThrowsLeavesTheChildARoot)
{
    top->onEvent = [](Event *event) {
        if (event->type == Event::ChildAboutToBeAdded)
            throw std::runtime_error("no");
    };
    EXPECT_THROW(top->appendChild(child), std::runtime_error);
    EXPECT_FALSE(child->hasParent());
    EXPECT_THAT(top->childNodes(), ElementsAre(fresh));
    EXPECT_THAT(old->childNodes(), IsEmpty());
    delete child;
}

TEST(EventTest, typesHaveTheirNumbersAndNothingIsStoppedAtFirst)
{
    EXPECT_EQ(Event::ChildAboutToBeAdded, 0);
    EXPECT_EQ(Event::ChildAdded, 1);
    EXPECT_EQ(Event::ChildAboutToBeRemoved, 2);
    EXPECT_EQ(Event::ChildRemoved, 3);
    EXPECT_EQ(Event::ChildrenAboutToChange, 6);
    EXPECT_EQ(Event::ChildrenChanged, 7);
    EXPECT_FALSE(Event(6).stop);
    EXPECT_EQ(FindDirectChildren, 0);
    EXPECT_EQ(FindWholeSubtree, 1);
}

} // namespace
