#include "foundation/TreeNode.h"

#include "TracedTree.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeNodeTest : public TracedTree
{};

/** Payloads need not be nodes by type: this one is a node in private. */
struct Hidden : protected gp::TreeNode<Hidden *>
{};

/** Stands in two trees of one payload type. */
struct Twofold : gp::TreeNode<Twofold *, 0>, gp::TreeNode<Twofold *, 1>
{};

// ---- Readers

TEST_F(TreeNodeTest, childrenAreReadByPosition)
{
    EXPECT_EQ(root->childCount(), 3U);
    EXPECT_EQ(root->child(1), b);
    EXPECT_EQ(root->node(2), c);
    EXPECT_EQ((*root)[0], a);
    EXPECT_THAT(root->childNodes(), ElementsAre(a, b, c));
    EXPECT_EQ(b->childCount(), 0U);
}

TEST_F(TreeNodeTest, childrenOfTheSubtreeStandInFrontOfTheirOwn)
{
    EXPECT_THAT(children(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(namesOf(root->children(FindWholeSubtree)), ElementsAre("a", "d", "e", "b", "c", "f"));
    EXPECT_THAT(b->children(FindWholeSubtree), IsEmpty());
}

TEST_F(TreeNodeTest, getChildrenAppendsToTheList)
{
    std::vector<TracedNode *> list{f};
    root->get_children(list);
    c->get_children(list, FindWholeSubtree);
    EXPECT_THAT(namesOf(list), ElementsAre("f", "a", "b", "c", "f"));
}

TEST_F(TreeNodeTest, containsAndIndexOfLookAtDirectChildren)
{
    EXPECT_TRUE(root->contains(c));
    EXPECT_EQ(root->indexOf(c), 2);
    EXPECT_FALSE(root->contains(d));
    EXPECT_EQ(root->indexOf(d), -1);
    EXPECT_FALSE(root->contains(nullptr));
}

TEST_F(TreeNodeTest, indexOfGivesTheFirstOfSeveral)
{
    c->setData(b);
    EXPECT_EQ(root->indexOf(b), 1);
    EXPECT_EQ(root->indexOf(c), -1);
}

TEST_F(TreeNodeTest, parentsAndRootsAreReadUpwards)
{
    EXPECT_EQ(d->parent(), a);
    EXPECT_EQ(d->parentNode(), a);
    EXPECT_TRUE(d->hasParent());
    EXPECT_EQ(d->root(), root.get());
    EXPECT_EQ(d->rootNode(), root.get());
}

TEST_F(TreeNodeTest, rootNodeOfARootIsTheNodeItself)
{
    EXPECT_EQ(root->rootNode(), root.get());
    EXPECT_EQ(root->root(), root.get());
    EXPECT_EQ(root->parent(), nullptr);
    EXPECT_EQ(root->parentNode(), nullptr);
    EXPECT_FALSE(root->hasParent());
}

// ---- Insertion

TEST_F(TreeNodeTest, positionOnePastTheEndAppends)
{
    TracedNode *g = made("g");
    EXPECT_TRUE(root->insertChild(3, g));
    EXPECT_THAT(children(), ElementsAre("a", "b", "c", "g"));
    EXPECT_EQ(g->parent(), root.get());
}

TEST_F(TreeNodeTest, positionTwoPastTheEndGivesFalseAndChangesNothing)
{
    TracedNode g(trace, "g");
    EXPECT_FALSE(root->insertChild(4, &g));
    EXPECT_FALSE(root->insertChild(4, d));
    EXPECT_THAT(children(), ElementsAre("a", "b", "c"));
    EXPECT_FALSE(g.hasParent());
    EXPECT_EQ(d->parent(), a);
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, insertionShiftsTheChildrenBehind)
{
    EXPECT_TRUE(root->insertChild(1, made("g")));
    EXPECT_THAT(children(), ElementsAre("a", "g", "b", "c"));
}

TEST_F(TreeNodeTest, insertionWithoutPositionTellsWhereItWent)
{
    EXPECT_EQ(root->insertChild(made("g")), 3);
    root->position = [] { return 1U; };
    EXPECT_EQ(root->insertChild(made("h")), 1);
    EXPECT_THAT(children(), ElementsAre("a", "h", "b", "c", "g"));
}

TEST_F(TreeNodeTest, refusedPlaceGivesMinusOne)
{
    TracedNode g(trace, "g");
    root->position = [] { return 4U; };
    EXPECT_EQ(root->insertChild(&g), -1);
    EXPECT_FALSE(g.hasParent());
}

TEST_F(TreeNodeTest, childAtThatPositionAlreadyGivesFalseAndSendsNothing)
{
    EXPECT_FALSE(root->insertChild(1, b));
    EXPECT_FALSE(root->insertChild(3, c));
    EXPECT_FALSE(root->appendChild(c));
    EXPECT_EQ(root->insertChild(c), -1);
    EXPECT_THAT(children(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, movingAChildInsideItsParentSwapsTwoAndSendsNothing)
{
    EXPECT_TRUE(root->insertChild(2, a));
    EXPECT_THAT(children(), ElementsAre("c", "b", "a"));
    EXPECT_TRUE(root->insertChild(0, b));
    EXPECT_THAT(children(), ElementsAre("b", "c", "a"));
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, movingAChildToTheEndShiftsTheOthersAndSendsNothing)
{
    EXPECT_TRUE(root->insertChild(3, a));
    EXPECT_THAT(children(), ElementsAre("b", "c", "a"));
    EXPECT_TRUE(root->appendChild(b));
    EXPECT_THAT(children(), ElementsAre("c", "a", "b"));
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, childThatGoesToTheEndOfItsParentIsToldOnePastItsPlace)
{
    EXPECT_EQ(root->insertChild(a), 3);
    EXPECT_THAT(children(), ElementsAre("b", "c", "a"));
}

TEST_F(TreeNodeTest, nullNodeThrows)
{
    TracedNode::ChildNode *none = nullptr;
    EXPECT_THAT([&] { root->insertChild(0, none); },
                testing::ThrowsMessage<std::invalid_argument>("child can't be nullptr!"));
    EXPECT_THAT([&] { root->insertChild(none); },
                testing::ThrowsMessage<std::invalid_argument>("child can't be nullptr!"));
    EXPECT_THAT([&] { root->appendChild(none); },
                testing::ThrowsMessage<std::invalid_argument>("child can't be nullptr!"));
    EXPECT_FALSE(root->insertChild(4, none)) << "the position is looked at first";
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, nullPayloadThrows)
{
    TracedNode *none = nullptr;
    const auto refused = testing::ThrowsMessage<std::logic_error>(
        "May be the child node is base class of ChildNode with protected Mode!");
    EXPECT_THAT([&] { root->insertChild(0, none); }, refused);
    EXPECT_THAT([&] { root->insertChild(none); }, refused);
    EXPECT_THAT([&] { root->appendChild(none); }, refused);
    EXPECT_THAT([&] { *root << none; }, refused);
}

TEST(TreeNodePayloadTest, payloadThatIsANodeInPrivateThrows)
{
    gp::TreeNode<Hidden *> node;
    Hidden hidden;
    EXPECT_THAT([&] { node.appendChild(&hidden); },
                testing::ThrowsMessage<std::logic_error>(
                    "May be the child node is base class of ChildNode with protected Mode!"));
}

TEST_F(TreeNodeTest, nodeWithoutPayloadGetsItWhenInserted)
{
    TracedNode *g = made("g");
    g->setData(nullptr);
    root->appendChild(g);
    EXPECT_EQ(g->data(), g);

    TracedNode *h = made("h");
    h->setData(g);
    root->appendChild(h);
    EXPECT_EQ(h->data(), g) << "one that is there stays";
}

TEST_F(TreeNodeTest, nodeIsRefusedBelowItself)
{
    EXPECT_FALSE(root->appendChild(root.get()));
    EXPECT_FALSE(d->appendChild(a));
    EXPECT_EQ(d->insertChild(a), -1);
    EXPECT_FALSE(d->appendChild(root.get()));
    EXPECT_THAT(children(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(trace.lines, IsEmpty());
}

// ---- Removal

TEST_F(TreeNodeTest, quietRemovalNeitherTellsNorDeletes)
{
    root->removeChild(*b);
    EXPECT_THAT(children(), ElementsAre("a", "c"));
    EXPECT_FALSE(b->hasParent());
    root->removeChild(*d);
    EXPECT_EQ(d->parent(), a) << "the link of another's child stays";
    EXPECT_THAT(trace.lines, IsEmpty());
    delete b;
}

TEST_F(TreeNodeTest, removalOfANodeThatIsNoChildDoesNothing)
{
    root->removeChild(static_cast<TracedNode::ChildNode *>(d));
    root->removeChild(static_cast<TracedNode::ChildNode *>(nullptr));
    EXPECT_EQ(d->parent(), a);
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, removalByPayloadDeletesTheObjectWhereverItStands)
{
    EXPECT_TRUE(root->removeChild(d, FindDirectChildren));
    EXPECT_THAT(namesOf(a->children()), ElementsAre("e"));
    EXPECT_TRUE(root->removeChild(b, FindWholeSubtree));
    EXPECT_THAT(children(), ElementsAre("a", "c"));
}

TEST_F(TreeNodeTest, removalOfANullPayloadGivesFalse)
{
    TracedNode *none = nullptr;
    EXPECT_FALSE(root->removeChild(none, FindWholeSubtree));
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, everyNodeWithThePayloadIsRemovedOnce)
{
    b->setData(a);
    e->setData(a); // dies with a
    f->setData(a);
    root->removeChildren(a->data(), FindWholeSubtree);
    EXPECT_THAT(namesOf(root->children(FindWholeSubtree)), ElementsAre("c"));
    EXPECT_EQ(std::count(trace.lines.begin(), trace.lines.end(), "~e"), 1);
}

TEST_F(TreeNodeTest, removalOfAPayloadAmongDirectChildrenLeavesDeeperOnes)
{
    f->setData(b);
    root->removeChildren(b->data(), FindDirectChildren);
    EXPECT_THAT(root->childNodes(), ElementsAre(a, c));
    EXPECT_EQ(c->childCount(), 1U);
}

TEST_F(TreeNodeTest, clearingDeletesInOrderAndSendsNothing)
{
    root->clearChildNodes();
    EXPECT_THAT(trace.lines, ElementsAre("~a", "~d", "~e", "~b", "~c", "~f"));
    EXPECT_EQ(root->childCount(), 0U);
    *root << made("g");
    EXPECT_THAT(children(), ElementsAre("g"));
}

TEST_F(TreeNodeTest, deleteLaterDeletesAtOnce)
{
    a->deleteLater();
    EXPECT_THAT(children(), ElementsAre("b", "c"));
    b->deleteLater(true);
    EXPECT_THAT(children(), ElementsAre("c"));
}

TEST_F(TreeNodeTest, deleteLaterOfANullNodeDoesNothing)
{
    TracedNode::deleteLater(nullptr, false);
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, deleteLaterOfANullNodeThrowsWhenAskedTo)
{
    EXPECT_THAT([] { TracedNode::deleteLater(nullptr, true); },
                testing::ThrowsMessage<std::logic_error>("can't delete zero value!"));
}

// ---- Place in the tree

TEST_F(TreeNodeTest, setParentGoesToTheEndAndSetParentNodeWhereTheParentSays)
{
    root->position = [] { return 0U; };
    d->setParent(root.get());
    e->setParentNode(root.get());
    EXPECT_THAT(children(), ElementsAre("e", "a", "b", "c", "d"));
    EXPECT_EQ(a->childCount(), 0U);
}

TEST_F(TreeNodeTest, noParentMakesARootWithoutDeletingIt)
{
    a->setParent(nullptr);
    b->setParentNode(nullptr);
    EXPECT_THAT(children(), ElementsAre("c"));
    EXPECT_FALSE(a->hasParent());
    EXPECT_FALSE(b->hasParent());
    EXPECT_EQ(a->childCount(), 2U);
    delete a;
    delete b;
}

TEST_F(TreeNodeTest, presentParentIsNoChange)
{
    a->setParent(root.get());
    a->setParentNode(root.get());
    root->setParent(nullptr);
    EXPECT_THAT(children(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, parentAtOrBelowTheNodeIsNoChange)
{
    a->setParent(d);
    a->setParentNode(d);
    a->set_parent_node(d);
    root->setParent(root.get());
    EXPECT_EQ(a->parent(), root.get());
    EXPECT_FALSE(root->hasParent());
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST_F(TreeNodeTest, parentThatRefusesLeavesARoot)
{
    c->position = [] { return 9U; };
    d->setParentNode(c);
    EXPECT_FALSE(d->hasParent());
    EXPECT_EQ(c->childCount(), 1U);
    delete d;
}

TEST_F(TreeNodeTest, storedParentLinkIsNotAChild)
{
    d->set_parent_node(b);
    EXPECT_EQ(d->parent(), b);
    EXPECT_EQ(b->childCount(), 0U);
    EXPECT_THAT(trace.take(), ElementsAre("a 6", "r 6", "a 2 d", "r 2 d", "a 3 d", "r 3 d", "a 7", "r 7"));
    EXPECT_TRUE(b->appendChild(d)) << "such a link does not stand in the way of insertion";
    EXPECT_THAT(b->childNodes(), ElementsAre(d));
}

TEST_F(TreeNodeTest, nodeWithAStoredParentLinkDiesQuietly)
{
    d->set_parent_node(b);
    trace.take();
    delete d;
    EXPECT_THAT(trace.lines, ElementsAre("~d"));
}

TEST_F(TreeNodeTest, relationsMoveToAFreshNode)
{
    TracedNode *g = made("g");
    TracedNode::move_ralations(a, g);
    EXPECT_THAT(children(), ElementsAre("b", "c", "g"));
    EXPECT_THAT(namesOf(g->children()), ElementsAre("d", "e"));
    EXPECT_EQ(d->parent(), g);
    EXPECT_FALSE(a->hasParent());
    EXPECT_EQ(a->childCount(), 0U);
    delete a;
}

TEST_F(TreeNodeTest, relationsMoveToANodeWithOtherOnes)
{
    TracedNode::move_ralations(a, f);
    EXPECT_THAT(children(), ElementsAre("b", "c", "f"));
    EXPECT_THAT(namesOf(f->children()), ElementsAre("d", "e"));
    EXPECT_EQ(c->childCount(), 0U);
    delete a;
}

TEST_F(TreeNodeTest, relationsOfARootMakeARoot)
{
    TracedNode::move_ralations(root.get(), b);
    EXPECT_FALSE(b->hasParent());
    EXPECT_THAT(namesOf(b->children()), ElementsAre("a", "c"));
    EXPECT_EQ(root->childCount(), 0U);
    delete b;
}

TEST_F(TreeNodeTest, relationsMoveToOneOfTheOwnChildren)
{
    TracedNode::move_ralations(a, d);
    EXPECT_THAT(children(), ElementsAre("b", "c", "d"));
    EXPECT_THAT(namesOf(d->children()), ElementsAre("e"));
    delete a;
}

TEST_F(TreeNodeTest, relationsMovedToTheNodeItselfPutItAtTheEnd)
{
    TracedNode::move_ralations(a, a);
    EXPECT_THAT(children(), ElementsAre("b", "c", "a"));
    EXPECT_THAT(namesOf(a->children()), ElementsAre("d", "e"));
}

TEST_F(TreeNodeTest, relationsDoNotMoveUpwardsNorToNothing)
{
    TracedNode::move_ralations(d, a);
    TracedNode::move_ralations(a, nullptr);
    TracedNode::move_ralations(nullptr, a);
    EXPECT_THAT(namesOf(root->children(FindWholeSubtree)), ElementsAre("a", "d", "e", "b", "c", "f"));
    EXPECT_THAT(trace.lines, IsEmpty());
}

TEST(TreeNodePayloadTest, objectStandsInTwoTreesOfOnePayloadType)
{
    using First = gp::TreeNode<Twofold *, 0>;
    using Second = gp::TreeNode<Twofold *, 1>;
    Twofold above;
    Twofold other;
    auto *below = new Twofold;
    above.First::appendChild(below);
    other.Second::appendChild(below);
    EXPECT_EQ(below->First::parentNode(), &above);
    EXPECT_EQ(below->Second::parentNode(), &other);
    above.First::clearChildNodes();
    EXPECT_EQ(other.Second::childCount(), 0U);
}

} // namespace
