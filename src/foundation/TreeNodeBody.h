#pragma once

#include "foundation/TreeNode.h"

namespace gp {

template <typename T, int Index> TreeNode<T, Index>::~TreeNode()
{
    // A node that dies in the loop of clearChildNodes leaves its children to that loop: a chain of any length then needs
    // no more of the stack than one node does.
    if (diesWithParent())
        clearing().owner->takeOver(m_children);
    else
        clearChildNodes();
}

template <typename T, int Index> void TreeNode<T, Index>::clearChildNodes()
{
    // From the back, the first child last in the list: what destructors take out or put in meanwhile does no harm.
    std::reverse(m_children.begin(), m_children.end());
    const Clearing outer = clearing();
    while (!m_children.empty()) {
        ChildNode *child = m_children.back();
        m_children.pop_back();
        child->m_parent = nullptr;
        clearing() = {this, child};
        delete child;
    }
    clearing() = outer;
}

template <typename T, int Index> void TreeNode<T, Index>::takeOver(Children &orphans)
{
    for (auto orphan = orphans.rbegin(); orphan != orphans.rend(); ++orphan) {
        (*orphan)->m_parent = this;
        m_children.push_back(*orphan);
    }
    orphans.clear();
}

// ---- Readers

/** Calls visit for this node and, where asked, for each below it, a node in front of its children, until one call says
 *  true. @return whether one did */
template <typename T, int Index>
template <typename Visit>
bool TreeNode<T, Index>::walk(FindChildOption option, const Visit &visit) const
{
    if (visit(*this))
        return true;
    if (option == FindDirectChildren)
        return false;
    Children waiting(m_children.rbegin(), m_children.rend());
    while (!waiting.empty()) {
        const TreeNode &next = *treeOf(waiting.back());
        waiting.pop_back();
        if (visit(next))
            return true;
        waiting.insert(waiting.end(), next.m_children.rbegin(), next.m_children.rend());
    }
    return false;
}

template <typename T, int Index>
template <typename Matches>
auto TreeNode<T, Index>::first(FindChildOption option, const Matches &matches) const -> ChildNode *
{
    ChildNode *result = nullptr;
    walk(option, [&](const TreeNode &node) {
        const auto found = std::find_if(node.m_children.begin(), node.m_children.end(), matches);
        if (found != node.m_children.end())
            result = *found;
        return result != nullptr;
    });
    return result;
}

template <typename T, int Index>
template <typename Matches>
auto TreeNode<T, Index>::all(FindChildOption option, const Matches &matches) const -> Children
{
    Children result;
    walk(option, [&](const TreeNode &node) {
        std::copy_if(node.m_children.begin(), node.m_children.end(), std::back_inserter(result), matches);
        return false;
    });
    return result;
}

template <typename T, int Index> std::vector<T> TreeNode<T, Index>::payloads(const Children &nodes)
{
    std::vector<T> list(nodes.size());
    std::transform(nodes.begin(), nodes.end(), list.begin(), [](const ChildNode *node) { return node->data(); });
    return list;
}

template <typename T, int Index> qint64 TreeNode<T, Index>::indexOf(const T &data) const
{
    const auto found = std::find_if(m_children.begin(), m_children.end(),
                                    [&data](const ChildNode *child) { return child->data() == data; });
    return found == m_children.end() ? -1 : found - m_children.begin();
}

template <typename T, int Index> std::vector<T> TreeNode<T, Index>::children(FindChildOption option) const
{
    std::vector<T> list;
    get_children(list, option);
    return list;
}

template <typename T, int Index>
void TreeNode<T, Index>::get_children(std::vector<T> &list, FindChildOption option) const
{
    if (option == FindDirectChildren) {
        const std::vector<T> direct = payloads(m_children);
        list.insert(list.end(), direct.begin(), direct.end());
        return;
    }
    walk(option, [&](const TreeNode &node) {
        if (&node != this)
            list.push_back(node.data());
        return false;
    });
}

template <typename T, int Index> T TreeNode<T, Index>::findChild(const T &data, FindChildOption option) const
{
    const ChildNode *found = find_child_node_from_data(data, option);
    return found ? found->data() : T();
}

template <typename T, int Index>
T TreeNode<T, Index>::findChild_if(const Predicate &predicate, FindChildOption option) const
{
    const ChildNode *found = first(option, std::cref(predicate));
    return found ? found->data() : T();
}

template <typename T, int Index>
std::vector<T> TreeNode<T, Index>::findChildren_if(const Predicate &predicate, FindChildOption option) const
{
    return payloads(all(option, std::cref(predicate)));
}

template <typename T, int Index>
auto TreeNode<T, Index>::find_child_node_from_data(const T &data, FindChildOption option) const -> ChildNode *
{
    return first(option, [&data](const ChildNode *child) { return child->data() == data; });
}

template <typename T, int Index>
auto TreeNode<T, Index>::find_childs_node_from_data(const T &data, FindChildOption option) const
    -> std::vector<ChildNode *>
{
    return all(option, [&data](const ChildNode *child) { return child->data() == data; });
}

template <typename T, int Index> TreeNode<T, Index> *TreeNode<T, Index>::rootNode() const
{
    const TreeNode *node = this;
    while (node->m_parent)
        node = node->m_parent;
    return const_cast<TreeNode *>(node); // as for every other node that a reader gives
}

template <typename T, int Index> bool TreeNode<T, Index>::standsAtOrBelow(const ChildNode *node) const
{
    const TreeNode *above = this;
    while (above && above != node)
        above = above->m_parent;
    return above != nullptr;
}

template <typename T, int Index> auto TreeNode<T, Index>::placeOf(const ChildNode *child) -> typename Children::iterator
{
    if (!m_children.empty() && m_children.back() == child) // the last is often the first to go
        return m_children.end() - 1;
    return std::find(m_children.begin(), m_children.end(), child);
}

// ---- Insertion

template <typename T, int Index> auto TreeNode<T, Index>::nodeOf(const T &data) -> ChildNode *
{
    ChildNode *node = nullptr;
    if constexpr (std::is_convertible_v<T, ChildNode *>)
        node = data;
    else if constexpr (!std::is_base_of_v<ChildNode, std::remove_pointer_t<T>>) // a node in private is none
        node = dynamic_cast<ChildNode *>(data);
    if (!node)
        throw std::logic_error("May be the child node is base class of ChildNode with protected Mode!");
    if (!node->data())
        node->setData(data);
    return node;
}

template <typename T, int Index> qint64 TreeNode<T, Index>::insertChild(ChildNode *child)
{
    if (!child)
        throw std::invalid_argument("child can't be nullptr!");
    const std::size_t position = findInsertPos(child);
    // Meant: a child that goes to the end of its own parent is told as childCount(), one past where it then stands.
    return insertChild(position, child) ? static_cast<qint64>(position) : -1;
}

template <typename T, int Index> bool TreeNode<T, Index>::insertChild(std::size_t position, ChildNode *child)
{
    if (position > m_children.size())
        return false;
    if (!child)
        throw std::invalid_argument("child can't be nullptr!");
    if (child->m_parent == this) {
        const auto place = placeOf(child);
        if (place != m_children.end())
            return moveWithin(place, position);
    }
    if (standsAtOrBelow(child))
        return false;
    child->detach();
    takeIn(position, child);
    return true;
}

template <typename T, int Index> TreeNode<T, Index> &TreeNode<T, Index>::operator<<(const T &data)
{
    appendChild(data);
    return *this;
}

template <typename T, int Index>
bool TreeNode<T, Index>::moveWithin(typename Children::iterator from, std::size_t position)
{
    // Meant: nothing is sent, and two children change places while those between them stay.
    const auto to = m_children.begin() + static_cast<std::ptrdiff_t>(position);
    if (to == from || (to == m_children.end() && from == to - 1))
        return false;
    if (to == m_children.end())
        std::rotate(from, from + 1, to);
    else
        std::iter_swap(from, to);
    return true;
}

template <typename T, int Index> void TreeNode<T, Index>::takeIn(std::size_t position, ChildNode *child)
{
    send(Event::ChildrenAboutToChange);
    send_child_event(Event::ChildAboutToBeAdded, child->data());
    position = std::min(position, m_children.size()); // a handler may have taken out others
    m_children.insert(m_children.begin() + static_cast<std::ptrdiff_t>(position), child);
    child->m_parent = this;
    send_child_event(Event::ChildAdded, child->data());
    send(Event::ChildrenChanged);
}

// ---- Removal

template <typename T, int Index> void TreeNode<T, Index>::removeChild(ChildNode &child)
{
    const auto place = placeOf(&child);
    if (place != m_children.end())
        m_children.erase(place);
    if (child.m_parent == this)
        child.m_parent = nullptr;
}

template <typename T, int Index> void TreeNode<T, Index>::removeChild(ChildNode *child)
{
    if (placeOf(child) == m_children.end())
        return;
    const T data = child->data();
    send(Event::ChildrenAboutToChange);
    send_child_event(Event::ChildAboutToBeRemoved, data);
    const auto place = placeOf(child); // a handler may have moved it
    if (place != m_children.end())
        m_children.erase(place);
    send_child_event(Event::ChildRemoved, data);
    send(Event::ChildrenChanged);
    if (child->m_parent == this) {
        child->m_parent = nullptr;
        delete child;
    }
}

template <typename T, int Index> bool TreeNode<T, Index>::removeChild(const T &data, FindChildOption)
{
    if (!data)
        return false;
    delete data;
    return true;
}

template <typename T, int Index> void TreeNode<T, Index>::removeChildren(const T &data, FindChildOption option)
{
    const T wanted = data; // the reference may lead into a node that dies
    Children found = find_childs_node_from_data(wanted, option);
    const auto diesWithAnother = [&](const ChildNode *node) {
        const TreeNode *above = node->m_parent;
        while (above != this && above->data() != wanted)
            above = above->m_parent;
        return above != this;
    };
    found.erase(std::remove_if(found.begin(), found.end(), diesWithAnother), found.end());
    for (ChildNode *node : found)
        delete node;
}

template <typename T, int Index> void TreeNode<T, Index>::deleteLater(ChildNode *node, bool throwIfNull)
{
    if (!node && throwIfNull)
        throw std::logic_error("can't delete zero value!");
    delete node;
}

// ---- Place in the tree

template <typename T, int Index> void TreeNode<T, Index>::setParent(const T &parent)
{
    if (this->parent() == parent)
        return;
    TreeNode *node = parent ? treeOf(nodeOf(parent)) : nullptr;
    if (node && node->standsAtOrBelow(this))
        return;
    this->detach();
    if (node)
        node->appendChild(this);
}

template <typename T, int Index> void TreeNode<T, Index>::setParentNode(TreeNode *parent)
{
    if (parent == this->m_parent || (parent && parent->standsAtOrBelow(this)))
        return;
    this->detach();
    if (parent)
        parent->insertChild(this);
}

template <typename T, int Index> void TreeNode<T, Index>::set_parent_node(TreeNode *parent)
{
    if (parent && parent->standsAtOrBelow(this))
        return;
    this->detach();
    this->m_parent = parent;
}

template <typename T, int Index> void TreeNode<T, Index>::move_ralations(TreeNode *from, TreeNode *to)
{
    if (!from || !to || (from->m_parent && from->m_parent->standsAtOrBelow(to)))
        return;
    TreeNode *parent = from->m_parent;
    from->detach();
    if (to->m_parent != parent)
        to->detach();
    if (parent)
        parent->insertChild(to);
    if (from == to)
        return;

    // From the back: taking each from the front would move all the others every time.
    std::reverse(from->m_children.begin(), from->m_children.end());
    const Children moving(from->m_children.rbegin(), from->m_children.rend());
    for (ChildNode *child : moving) {
        child->detach();
        to->insertChild(child);
    }
}

// ---- Events

template <typename T, int Index> void TreeNode<T, Index>::send(int type)
{
    Event event(type);
    propagate_event(&event);
}

template <typename T, int Index> void TreeNode<T, Index>::send_child_event(int type, const T &child)
{
    ChildEvent event(type, child);
    propagate_event(&event);
}

template <typename T, int Index> void TreeNode<T, Index>::propagate_event(Event *event)
{
    for (TreeNode *node = this; node; node = event->stop ? nullptr : node->m_parent)
        node->event(event);
}

} // namespace gp
