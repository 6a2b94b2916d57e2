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

TEST(TreeNodeLifetimeTest, nodeThatDiesSeesItsChildrenAndNoParent)
{
    int alive = 0;
    auto root = std::make_unique<Counted>(alive);
    auto *child = new Counted(alive);
    root->appendChild(child);
    child->appendChild(new Counted(alive));
    quint64 children = 0;
    child->dying = [&] { children = child->hasParent() ? 99 : child->childCount(); };
    root.reset();
    EXPECT_EQ(children, 1U);
    EXPECT_EQ(alive, 0);
}

TEST(TreeNodeLifetimeTest, dyingNodeMayDeleteItsSibling)
{
    int alive = 0;
    auto root = std::make_unique<Counted>(alive);
    auto *first = new Counted(alive);
    auto *second = new Counted(alive);
    *root << first << second << new Counted(alive);
    second->appendChild(new Counted(alive));
    first->dying = [&] { delete second; };
    root.reset();
    EXPECT_EQ(alive, 0);
}

TEST(TreeNodeLifetimeTest, dyingNodeMayDeleteANodeTwoLevelsBelowTheSameParent)
{
    int alive = 0;
    auto root = std::make_unique<Counted>(alive);
    auto *middle = new Counted(alive);
    auto *first = new Counted(alive);
    auto *second = new Counted(alive);
    root->appendChild(middle);
    *middle << first << second;
    first->dying = [&] { delete second; };
    root.reset();
    EXPECT_EQ(alive, 0);
}

TEST(TreeNodeLifetimeTest, treeDeletedByADyingNodeIsGoneAtOnce)
{
    int alive = 0;
    auto root = std::make_unique<Counted>(alive);
    auto *child = new Counted(alive);
    root->appendChild(child);
    auto other = std::make_unique<Counted>(alive);
    other->appendChild(new Counted(alive));
    int left = 0;
    child->dying = [&] {
        other.reset();
        left = alive;
    };
    root.reset();
    EXPECT_EQ(left, 0) << "root and child are counted out already";
    EXPECT_EQ(alive, 0);
}

} // namespace
