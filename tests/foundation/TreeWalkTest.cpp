#include "foundation/TreeWalk.h"

#include "TracedTree.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Tree = TracedNode::Tree;

class TreeWalkTest : public TracedTree
{
protected:
    /** The nodes that a walk from the root visits, until it has visited the last one told. */
    Names visited(FindChildOption option, const Tree *last = nullptr) const
    {
        Names names;
        gp::walk<Tree>(*root, option, [&](const Tree &node) {
            names.push_back(node.data()->name());
            return &node == last;
        });
        return names;
    }
};

TEST_F(TreeWalkTest, nodeIsVisitedInFrontOfItsChildren)
{
    EXPECT_THAT(visited(FindWholeSubtree), ElementsAre("r", "a", "d", "e", "b", "c", "f"));
}

TEST_F(TreeWalkTest, walkAmongDirectChildrenVisitsTheTopAlone)
{
    EXPECT_THAT(visited(FindDirectChildren), ElementsAre("r"));
}

TEST_F(TreeWalkTest, walkEndsWhereAVisitSaysTrue)
{
    EXPECT_THAT(visited(FindWholeSubtree, d), ElementsAre("r", "a", "d"));
    EXPECT_TRUE(gp::walk<Tree>(*root, FindWholeSubtree, [this](const Tree &node) { return &node == f; }));
    EXPECT_FALSE(gp::walk<Tree>(*root, FindWholeSubtree, [](const Tree &) { return false; }));
}

TEST_F(TreeWalkTest, topIsNoMatchOfItsOwn)
{
    const auto isTop = [this](const auto *node) { return node == root.get(); };
    EXPECT_EQ(gp::firstMatch<Tree>(*root, FindWholeSubtree, isTop), nullptr);
    EXPECT_THAT(gp::allMatches<Tree>(*root, FindWholeSubtree, isTop), IsEmpty());
}

TEST_F(TreeWalkTest, payloadsStandInTheOrderOfTheNodes)
{
    b->setData(f);
    EXPECT_THAT(gp::payloadsOf(root->childNodes()), ElementsAre(a, f, c));
    EXPECT_THAT(gp::payloadsOf(d->childNodes()), IsEmpty());
}

// ---- The searches of a node, which walk so

TEST_F(TreeWalkTest, directChildIsFoundBeforeADeeperOneThatStandsEarlier)
{
    const auto isDOrC = [this](auto *node) { return node == d || node == c; };
    EXPECT_EQ(root->findChild_if(isDOrC, FindWholeSubtree), c);
    EXPECT_EQ(root->findChild_if(isDOrC), c);
    EXPECT_THAT(namesOf(root->findChildren_if(isDOrC, FindWholeSubtree)), ElementsAre("c", "d"));
}

TEST_F(TreeWalkTest, searchGoesThroughOneSubtreeAfterTheOther)
{
    *d << made("g");
    Names order;
    root->findChild_if(
        [&](auto *node) {
            order.push_back(node->data()->name());
            return false;
        },
        FindWholeSubtree);
    EXPECT_THAT(order, ElementsAre("a", "b", "c", "d", "e", "g", "f"));
}

TEST_F(TreeWalkTest, searchAmongDirectChildrenStaysThere)
{
    const auto any = [](auto *) { return true; };
    EXPECT_THAT(namesOf(root->findChildren_if(any, FindDirectChildren)), ElementsAre("a", "b", "c"));
    EXPECT_EQ(root->findChild_if([this](auto *node) { return node == d; }), nullptr);
    EXPECT_EQ(b->findChild_if(any, FindWholeSubtree), nullptr);
}

TEST_F(TreeWalkTest, payloadIsFoundWithItsNodes)
{
    f->setData(b);
    EXPECT_EQ(root->findChild(d), nullptr);
    EXPECT_EQ(root->findChild(d, FindWholeSubtree), d);
    EXPECT_EQ(root->find_child_node_from_data(b, FindWholeSubtree), b);
    EXPECT_EQ(root->find_child_node_from_data(f, FindWholeSubtree), nullptr);
    EXPECT_THAT(root->find_childs_node_from_data(b, FindWholeSubtree), ElementsAre(b, f));
    EXPECT_THAT(root->find_childs_node_from_data(b), ElementsAre(b));
}

} // namespace
