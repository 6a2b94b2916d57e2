#pragma once

#include "slab/BoardLocalModel.h"

#include <algorithm>
#include <cstddef>
#include <type_traits>
#include <typeinfo>
#include <vector>

/** What goes through the elements of a local model. */
namespace slab {

using Tree = gp::TreeNode<cv::Object_AI *>;

/** Whether a node was made as an Element of a class that has none below it. */
template <typename Element> bool isMadeAs(const Tree::ChildNode *node)
{
    static_assert(std::is_final_v<Element>);
    return &typeid(*node) == &typeid(Element); // the library alone defines the class, so there is one address
}

/** Whether nodes were made as Elements: a dynamic cast, but asked once for each class met. */
template <typename Element> class MadeAs
{
public:
    bool operator()(const Tree::ChildNode *node)
    {
        if constexpr (std::is_final_v<Element>) {
            return isMadeAs<Element>(node);
        } else {
            const std::type_info *made = &typeid(*node);
            return made == m_last.made ? m_last.isElement : (m_last = verdictOn(made, node)).isElement;
        }
    }

private:
    struct Verdict
    {
        const std::type_info *made = nullptr;
        bool isElement = false;
    };

    Verdict verdictOn(const std::type_info *made, const Tree::ChildNode *node)
    {
        const auto known = std::find_if(m_known.begin(), m_known.end(),
                                        [made](const Verdict &verdict) { return verdict.made == made; });
        if (known != m_known.end())
            return *known;
        m_known.push_back({made, dynamic_cast<const Element *>(node) != nullptr});
        return m_known.back();
    }

    std::vector<Verdict> m_known;
    Verdict m_last;
};

/** Asks for the memory of a node that will soon be looked at: a large model lies out of the caches, and the nodes of a list
 *  come from anywhere. */
inline void askFor([[maybe_unused]] const Tree::ChildNode *node)
{
#if defined(__GNUC__)
    constexpr int lineSize = 64; // bytes
    __builtin_prefetch(node);
    __builtin_prefetch(reinterpret_cast<const char *>(node) + lineSize); // where its children are counted
#endif
}

/** Visits what findChildren_if gives for the whole subtree, in its order, at a fraction of its cost: elements hardly have
 *  children.
 *  @param visit  (const Tree::ChildNode *), which may not change the tree */
template <typename Visit> void forEachBelow(const Tree &root, const Visit &visit)
{
    constexpr std::size_t ahead = 12; // nodes between one that is asked for and the one that is looked at
    std::vector<const Tree *> waiting{&root};
    while (!waiting.empty()) {
        const Tree *parent = waiting.back();
        waiting.pop_back();
        const auto firstBelow = static_cast<std::ptrdiff_t>(waiting.size());
        const auto &nodes = parent->childNodes();
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            askFor(nodes[std::min(i + ahead, nodes.size() - 1)]);
            visit(nodes[i]);
            const auto *child = static_cast<const Tree *>(nodes[i]);
            if (child->childCount() != 0)
                waiting.push_back(child);
        }
        std::reverse(waiting.begin() + firstBelow, waiting.end());
    }
}

} // namespace slab
