#pragma once

#include "foundation/ChildNode.h"

#include <algorithm>
#include <iterator>
#include <type_traits>
#include <vector>

// How searches go through a tree, without recursion, so that a chain may be of any length. A Tree is a TreeNode, and
// every node of it is one: nothing else is a ChildNode. What is called may not change the tree.

namespace gp {

/** Calls visit for a node and, where asked, for each below it, a node in front of its children, until one call says
 *  true. @return whether one did */
template <typename Tree, typename Visit> bool walk(const Tree &top, FindChildOption option, const Visit &visit)
{
    if (visit(top))
        return true;
    if (option == FindDirectChildren)
        return false;
    auto waiting = std::vector(top.childNodes().rbegin(), top.childNodes().rend());
    while (!waiting.empty()) {
        const Tree &next = static_cast<const Tree &>(*waiting.back());
        waiting.pop_back();
        if (visit(next))
            return true;
        waiting.insert(waiting.end(), next.childNodes().rbegin(), next.childNodes().rend());
    }
    return false;
}

/** The first that matches: all direct children come first, then the subtree of each. Null if none does. */
template <typename Tree, typename Matches>
typename Tree::ChildNode *firstMatch(const Tree &top, FindChildOption option, const Matches &matches)
{
    typename Tree::ChildNode *result = nullptr;
    walk(top, option, [&](const Tree &node) {
        const auto &children = node.childNodes();
        const auto found = std::find_if(children.begin(), children.end(), matches);
        if (found != children.end())
            result = *found;
        return result != nullptr;
    });
    return result;
}

/** All that match, in the same order. */
template <typename Tree, typename Matches>
auto allMatches(const Tree &top, FindChildOption option, const Matches &matches)
{
    std::vector<typename Tree::ChildNode *> result;
    walk(top, option, [&](const Tree &node) {
        const auto &children = node.childNodes();
        std::copy_if(children.begin(), children.end(), std::back_inserter(result), matches);
        return false;
    });
    return result;
}

/** What the nodes carry, in order. */
template <typename Node> auto payloadsOf(const std::vector<Node *> &nodes)
{
    using Payload = std::decay_t<decltype(nodes.front()->data())>;
    std::vector<Payload> list(nodes.size());
    std::transform(nodes.begin(), nodes.end(), list.begin(), [](const Node *node) { return node->data(); });
    return list;
}

} // namespace gp
