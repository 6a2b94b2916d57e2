#include "TracedNode.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>

namespace {

using testing::ElementsAre;

constexpr int kMany = 200000;

/** Counts those alive, and can do something as it dies. */
struct Counted : gp::TreeNode<Counted *>
{
    explicit Counted(int &alive) : TreeNode(this), m_alive(alive) { ++m_alive; }
    ~Counted() override
    {
        --m_alive;
        if (dying)
            dying();
    }

    std::function<void()> dying;

private:
    int &m_alive;
};

TEST(TreeNodeLifetimeTest, wideTreeIsBuiltReadAndDestroyedInLinearTime)
{
    int alive = 0;
    {
        Counted root(alive);
        for (int i = 0; i < kMany; ++i)
            root.appendChild(new Counted(alive));
        EXPECT_EQ(root.children(FindWholeSubtree).size(), kMany);
        EXPECT_EQ(root.findChildren_if([](auto *) { return true; }, FindWholeSubtree).size(), kMany);
        EXPECT_EQ(root.indexOf(root.child(kMany - 1)), kMany - 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(TreeNodeLifetimeTest, wideTreeMovesToAnotherNodeInLinearTime)
{
    int alive = 0;
    {
        Counted from(alive);
        Counted to(alive);
        for (int i = 0; i < kMany; ++i)
            from.appendChild(new Counted(alive));
        const auto children = from.childNodes();
        Counted::move_ralations(&from, &to);
        EXPECT_EQ(to.childNodes(), children);
    }
    EXPECT_EQ(alive, 0);
}

TEST(TreeNodeLifetimeTest, deepChainNeedsNoStack)
{
    int alive = 0;
    {
        auto top = std::make_unique<Counted>(alive);
        for (int i = 1; i < kMany; ++i) {
            auto above = std::make_unique<Counted>(alive);
            above->appendChild(top.release());
            top = std::move(above);
        }
        EXPECT_EQ(top->children(FindWholeSubtree).size(), kMany - 1);
        EXPECT_EQ(top->findChild_if([](auto *) { return false; }, FindWholeSubtree), nullptr);
    }
    EXPECT_EQ(alive, 0);
}

TEST(TreeNodeLifetimeTest, treeDiesFromTheTopInOrder)
{
    Trace trace;
    auto root = std::make_unique<TracedNode>(trace, "r");
    const auto under = [&trace](TracedNode *parent, const char *name) {
        auto *node = new TracedNode(trace, name);
        parent->appendChild(node);
        return node;
    };
    under(under(root.get(), "a"), "b");
    under(under(under(root.get(), "c"), "d"), "e");
    under(root.get(), "f");
    trace.take();
    root.reset();
    EXPECT_THAT(trace.lines, ElementsAre("~r", "~a", "~b", "~c", "~d", "~e", "~f"));
}

/** A tree of counted nodes, which each test takes down. */
class DyingNodeTest : public testing::Test
{
protected:
    Counted *under(Counted &parent)
    {
        auto *node = new Counted(alive);
        parent.appendChild(node);
        return node;
    }
    void takeDown()
    {
        root.reset();
        EXPECT_EQ(alive, 0);
    }

    int alive = 0;
    std::unique_ptr<Counted> root = std::make_unique<Counted>(alive);
};

TEST_F(DyingNodeTest, nodeThatDiesSeesItsChildrenAndNoParent)
{
    auto *child = under(*root);
    under(*child);
    quint64 children = 0;
    child->dying = [&] { children = child->hasParent() ? 99 : child->childCount(); };
    takeDown();
    EXPECT_EQ(children, 1U);
}

TEST_F(DyingNodeTest, dyingNodeMayDeleteItsSibling)
{
    auto *first = under(*root);
    auto *second = under(*root);
    under(*root);
    under(*second);
    first->dying = [&] { delete second; };
    takeDown();
}

TEST_F(DyingNodeTest, dyingNodeMayDeleteANodeTwoLevelsBelowTheSameParent)
{
    auto *middle = under(*root);
    auto *first = under(*middle);
    auto *second = under(*middle);
    first->dying = [&] { delete second; };
    takeDown();
}

TEST_F(DyingNodeTest, treeDeletedByADyingNodeIsGoneAtOnce)
{
    auto *child = under(*root);
    auto other = std::make_unique<Counted>(alive);
    under(*other);
    int left = 0;
    child->dying = [&] {
        other.reset();
        left = alive;
    };
    takeDown();
    EXPECT_EQ(left, 0) << "root and child are counted out already";
}

} // namespace
