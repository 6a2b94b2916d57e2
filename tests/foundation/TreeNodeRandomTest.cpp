#include "foundation/TreeNode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <vector>

namespace {

constexpr int kOperations = 100000;
constexpr std::size_t kMostNodes = 120;

/** Counts its deaths by number. */
struct Numbered : gp::TreeNode<Numbered *>
{
    Numbered(int ownNumber, std::vector<int> &deathCounts) : TreeNode(this), number(ownNumber), deaths(deathCounts) {}
    ~Numbered() override { ++deaths[static_cast<std::size_t>(number)]; }

    int number;
    std::vector<int> &deaths;
};

/** What the tree has to be: for each number its children in order and its parent, -1 for a root. */
struct Plain
{
    std::vector<std::vector<int>> children;
    std::vector<int> parents;
    std::vector<bool> alive;

    std::vector<int> &childrenOf(int node) { return children[static_cast<std::size_t>(node)]; }
    int &parentOf(int node) { return parents[static_cast<std::size_t>(node)]; }

    void add()
    {
        children.emplace_back();
        parents.push_back(-1);
        alive.push_back(true);
    }
    bool isAtOrBelow(int node, int above)
    {
        while (node != -1 && node != above)
            node = parentOf(node);
        return node != -1;
    }
    void detach(int node)
    {
        if (parentOf(node) == -1)
            return;
        std::vector<int> &siblings = childrenOf(parentOf(node));
        siblings.erase(std::find(siblings.begin(), siblings.end(), node));
        parentOf(node) = -1;
    }
    bool insert(int parent, std::size_t position, int node)
    {
        std::vector<int> &siblings = childrenOf(parent);
        if (position > siblings.size())
            return false;
        if (parentOf(node) == parent)
            return move(siblings, position, node);
        if (isAtOrBelow(parent, node))
            return false;
        detach(node);
        siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(position), node);
        parentOf(node) = parent;
        return true;
    }
    static bool move(std::vector<int> &siblings, std::size_t position, int node)
    {
        const auto from =
            static_cast<std::size_t>(std::find(siblings.begin(), siblings.end(), node) - siblings.begin());
        if (position == from || (position == siblings.size() && from + 1 == position))
            return false;
        if (position < siblings.size()) {
            std::swap(siblings[from], siblings[position]);
        } else {
            siblings.erase(siblings.begin() + static_cast<std::ptrdiff_t>(from));
            siblings.push_back(node);
        }
        return true;
    }
    void kill(int node)
    {
        detach(node);
        while (!childrenOf(node).empty())
            kill(childrenOf(node).back());
        alive[static_cast<std::size_t>(node)] = false;
    }
};

/** Does each operation to the tree and to the plain model. */
class RandomTree
{
public:
    RandomTree() { m_deaths.reserve(kOperations); } // its address stays

    /** Deletes every tree that is left. */
    void finish()
    {
        for (std::size_t i = 0; i < m_nodes.size(); ++i)
            if (m_plain.alive[i] && m_plain.parents[i] == -1)
                delete m_nodes[i];
        EXPECT_EQ(std::count(m_deaths.begin(), m_deaths.end(), 1), static_cast<std::ptrdiff_t>(m_deaths.size()));
    }

    int below(std::size_t limit) { return static_cast<int>(m_random() % limit); }
    std::size_t living() const { return m_living.size(); }
    /** One of the living, a new one if there are none. */
    int any()
    {
        while (!m_living.empty()) {
            int &number = m_living[static_cast<std::size_t>(below(m_living.size()))];
            if (m_plain.alive[static_cast<std::size_t>(number)])
                return number;
            number = m_living.back();
            m_living.pop_back();
        }
        add();
        return m_living.back();
    }
    void add()
    {
        m_deaths.push_back(0);
        m_nodes.push_back(new Numbered(static_cast<int>(m_nodes.size()), m_deaths));
        m_plain.add();
        m_living.push_back(static_cast<int>(m_nodes.size()) - 1);
    }
    void insertAnywhere(int parent, int child)
    {
        const auto position = static_cast<std::size_t>(below(node(parent)->childCount() + 2));
        EXPECT_EQ(node(parent)->insertChild(position, node(child)), m_plain.insert(parent, position, child));
    }
    void append(int parent, int child)
    {
        const std::size_t end = m_plain.childrenOf(parent).size();
        const qint64 expected = m_plain.insert(parent, end, child) ? static_cast<qint64>(end) : -1;
        EXPECT_EQ(node(parent)->insertChild(node(child)), expected);
    }
    void reparent(int parent, int child)
    {
        node(child)->setParent(node(parent));
        if (m_plain.parentOf(child) != parent)
            m_plain.insert(parent, m_plain.childrenOf(parent).size(), child);
    }
    void makeRoot(int, int child)
    {
        node(child)->setParentNode(nullptr);
        m_plain.detach(child);
    }
    void takeOut(int, int child)
    {
        if (Numbered *parent = node(child)->parent())
            parent->removeChild(static_cast<Numbered::ChildNode &>(*node(child)));
        m_plain.detach(child);
    }
    void moveRelations(int from, int to)
    {
        Numbered::move_ralations(node(from), node(to));
        const int parent = m_plain.parentOf(from);
        if (parent != -1 && m_plain.isAtOrBelow(parent, to))
            return;
        m_plain.detach(from);
        if (m_plain.parentOf(to) != parent)
            m_plain.detach(to);
        if (parent != -1)
            m_plain.insert(parent, m_plain.childrenOf(parent).size(), to);
        const std::vector<int> children = m_plain.childrenOf(from);
        for (const int child : children)
            if (m_plain.parentOf(child) != to)
                m_plain.insert(to, m_plain.childrenOf(to).size(), child);
    }
    void kill(int, int child)
    {
        Numbered *parent = node(child)->parent();
        if (parent && below(2) == 0)
            parent->removeChild(static_cast<Numbered::ChildNode *>(node(child)));
        else
            delete node(child);
        m_plain.kill(child);
    }
    void clear(int parent, int)
    {
        node(parent)->clearChildNodes();
        while (!m_plain.childrenOf(parent).empty())
            m_plain.kill(m_plain.childrenOf(parent).back());
    }

    /** Every living node has its children in order and its parent; every other died once. */
    void compare()
    {
        for (std::size_t i = 0; i < m_nodes.size(); ++i) {
            ASSERT_EQ(m_deaths[i], m_plain.alive[i] ? 0 : 1) << i;
            if (m_plain.alive[i])
                compare(*m_nodes[i], static_cast<int>(i));
        }
    }
    void compare(const Numbered &real, int number)
    {
        std::vector<int> children;
        for (const Numbered *child : real.children())
            children.push_back(child->number);
        ASSERT_EQ(children, m_plain.childrenOf(number)) << number;
        ASSERT_EQ(real.parent() ? real.parent()->number : -1, m_plain.parentOf(number)) << number;
    }

private:
    Numbered *node(int number) { return m_nodes[static_cast<std::size_t>(number)]; }

    std::mt19937 m_random{20240611};
    std::vector<int> m_deaths;
    std::vector<Numbered *> m_nodes;
    std::vector<int> m_living; ///< and some that died since they were last drawn
    Plain m_plain;
};

TEST(TreeNodeRandomTest, treeIsWhatAPlainModelOfItIs)
{
    // Several of the gentle ones for each that destroys, so that trees grow.
    constexpr std::array operations = {&RandomTree::insertAnywhere, &RandomTree::insertAnywhere,
                                       &RandomTree::append,         &RandomTree::append,
                                       &RandomTree::reparent,       &RandomTree::reparent,
                                       &RandomTree::makeRoot,       &RandomTree::takeOut,
                                       &RandomTree::moveRelations,  &RandomTree::kill};
    RandomTree tree;
    std::size_t most = 0;
    for (int i = 0; i < kOperations && !HasFailure(); ++i) {
        if (tree.living() < kMostNodes && tree.below(4) == 0)
            tree.add();
        const auto operation = tree.below(200) == 0
                                   ? &RandomTree::clear
                                   : operations[static_cast<std::size_t>(tree.below(operations.size()))];
        const int first = tree.any();
        (tree.*operation)(first, tree.any());
        most = std::max(most, tree.living());
        if (i % 100 == 0)
            tree.compare();
    }
    tree.compare();
    tree.finish();
    EXPECT_GT(most, kMostNodes / 2) << "otherwise little was tried";
}

} // namespace
