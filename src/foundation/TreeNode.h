#pragma once

#include "foundation/ChildNode.h"
#include "foundation/TreeWalk.h"

#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <stdexcept>
#include <type_traits>
#include <vector>

/** First layer of the object system: trees of owned nodes that tell of each change of their children.
 *
 *      struct Room : gp::TreeNode<Room *> { Room() : TreeNode(this) {} };
 *
 *  A node carries a payload, the pointer to the object that it is part of, and callers speak in payloads: children,
 *  parents and searches give them. Nodes are made with new. A parent owns its children and deletes them when it dies; a
 *  node without a parent belongs to whoever made it. A node that is deleted leaves its parent by itself.
 *
 *  A tree belongs to one thread. */
namespace gp {

/** A node with its children in order.
 *
 *  @tparam T      pointer to the object that the node is part of
 *  @tparam Index  tells apart the trees of an object that stands in several with one type of payload
 *
 *  Handlers (event) may read and change trees, but not delete the child that an event is about. One that throws leaves
 *  the change where it is: a child on its way from one parent to another is then a root and belongs to the caller. None
 *  may throw while an object dies. */
template <typename T, int Index = 0> class TreeNode : public ChildNode<TreeNode<T, Index>, T>
{
public:
    using ChildNode = gp::ChildNode<TreeNode, T>;       ///< a node as its parent knows it
    using Predicate = std::function<bool(ChildNode *)>; ///< whether a node is one that is sought

    /** The events 0 to 3. */
    struct ChildEvent : Event
    {
        /** Nothing checks that the number is one of those. */
        ChildEvent(int eventType, const T &childData) : Event(eventType), child(childData) {}
        T child; ///< payload of the child that comes or goes
    };

    explicit TreeNode(const T &data = T()) : ChildNode(data) {} ///< a root without children
    /** Deletes what stands below, without recursion, and leaves the parent. */
    ~TreeNode() override;

    // ---- Children. Where nothing else is said, positions are not checked.

    quint64 childCount() const { return m_children.size(); }                  ///< direct ones alone
    const std::vector<ChildNode *> &childNodes() const { return m_children; } ///< in order; changes as they do
    T child(qint64 position) const { return node(position)->data(); }         ///< payload of a direct child, from 0
    T operator[](qint64 position) const { return child(position); }           ///< the same
    /** The direct child itself, which this node goes on owning. */
    ChildNode *node(qint64 position) const { return m_children[static_cast<std::size_t>(position)]; }
    qint64 indexOf(const T &data) const; ///< of the first direct child with this payload, -1 if there is none
    /** Whether a direct child has this payload. */
    virtual bool contains(const T &data) const { return indexOf(data) >= 0; }

    /** Payloads in order; of the whole subtree each child in front of what stands under it. */
    std::vector<T> children(FindChildOption option = FindDirectChildren) const;
    /** Appends the same to a list. */
    void get_children(std::vector<T> &list, FindChildOption option = FindDirectChildren) const;

    // ---- Searches look at all direct children first, then at the subtree of each, so that a direct child is found
    // ---- before a deeper one that stands earlier. A predicate may not change the tree.

    /** First payload that matches, null if none does. */
    T findChild(const T &data, FindChildOption option = FindDirectChildren) const;
    /** The same for a predicate. */
    T findChild_if(const Predicate &predicate, FindChildOption option = FindDirectChildren) const;
    /** All payloads that match, in the order of the search. */
    std::vector<T> findChildren_if(const Predicate &predicate, FindChildOption option = FindDirectChildren) const;
    /** The same for nodes with a payload. */
    ChildNode *find_child_node_from_data(const T &data, FindChildOption option = FindDirectChildren) const;
    /** All of them, in the order of the search. */
    std::vector<ChildNode *> find_childs_node_from_data(const T &data,
                                                        FindChildOption option = FindDirectChildren) const;

    // ---- Insertion takes the child into ownership, out of any other parent. Events go to the old parent (6, 2, 3, 7)
    // ---- and then to this node (6, 0, 1, 7). A child that would come to stand under itself is refused with false.
    // ---- The forms with a payload throw std::logic_error for null, those with a node std::invalid_argument, and the
    // ---- former set the payload of a node that has none.

    /** Inserts where findInsertPos says. @return that position, -1 if nothing was inserted */
    qint64 insertChild(const T &data) { return insertChild(nodeOf(data)); }
    virtual qint64 insertChild(ChildNode *child); ///< the same with a node
    /** Inserts at a position up to childCount(), which appends; false beyond. For one that is a child of this node
     *  already nothing is sent: it changes places with the child at that position, or goes to the end for childCount();
     *  false where it stands there already. */
    bool insertChild(std::size_t position, const T &data) { return insertChild(position, nodeOf(data)); }
    virtual bool insertChild(std::size_t position, ChildNode *child); ///< the same; all insertion ends here
    /** Inserts at the end, whatever findInsertPos says; false where the child stands there already. */
    bool appendChild(const T &data) { return appendChild(nodeOf(data)); }
    bool appendChild(ChildNode *child) { return insertChild(m_children.size(), child); } ///< the same with a node
    /** Appends; nothing tells of a refusal. */
    TreeNode &operator<<(const T &data)
    {
        appendChild(data);
        return *this;
    }

    // ---- Removal

    /** Takes a child out without events and without deleting it: it belongs to the caller. */
    void removeChild(ChildNode &child);
    /** Takes a child out with the events 6, 2, 3, 7 and deletes it; nothing for one that is no child. */
    void removeChild(ChildNode *child);
    /** Deletes the object told, wherever it stands: it leaves its parent as it dies. False for null. */
    bool removeChild(const T &data, FindChildOption option);
    /** Deletes every node with this payload, and with it what stands under it. */
    void removeChildren(const T &data, FindChildOption option);
    void clearChildNodes(); ///< deletes every child without events

    // ---- Place in the tree

    TreeNode *rootNode() const;                   ///< topmost node; the node itself for a root
    T root() const { return rootNode()->data(); } ///< its payload
    /** Goes to the end of another parent; null makes a root, which belongs to the caller. Nothing happens for the present
     *  parent, and for a place at or below the node itself. */
    void setParent(const T &parent);
    /** The same, to where the new parent's findInsertPos says. A parent that refuses leaves the node a root. */
    void setParentNode(TreeNode *parent);
    /** Leaves the present parent with events and stores the link alone: the new parent does not list this node, does not
     *  own it, and has to live longer. */
    void set_parent_node(TreeNode *parent);
    /** Puts a node in the place of another: among the children of its parent, and over its children. While they move,
     *  those that are left stand in reverse order. Nothing for null, or where `from` stands below `to`. */
    static void move_ralations(TreeNode *from, TreeNode *to);
    /** Deletes at once, whatever the name says. */
    void deleteLater(bool throwIfNull = false) { deleteLater(this, throwIfNull); }
    /** The same for a node that may be null: nothing then, or std::logic_error. */
    static void deleteLater(ChildNode *node, bool throwIfNull);

protected:
    /** Hook for what happens to the children of this node or of one below it. */
    virtual void event(Event *) {}
    /** Where a child without a position goes; beyond childCount() refuses it. Override to keep an order. */
    virtual std::size_t findInsertPos(ChildNode *) const { return m_children.size(); }

    /** Tells this node and those above it. */
    void send(int type)
    {
        Event event(type);
        propagate_event(&event);
    }
    void send_child_event(int type, const T &child); ///< the same with the child that the event is about
    /** Hands an event to this node and upwards, until a handler stops it. */
    void propagate_event(Event *event);

    /** In a destructor: whether the node dies because one above it does, or was cleared. */
    bool diesWithParent() const { return clearing().dying == this; }

private:
    using Children = std::vector<ChildNode *>;
    friend ChildNode;

    /** What clearChildNodes is busy with: whose children it deletes, and which of them right now. */
    struct Clearing
    {
        TreeNode *owner = nullptr;
        const ChildNode *dying = nullptr;
    };
    static Clearing &clearing()
    {
        static thread_local Clearing current;
        return current;
    }

    static ChildNode *nodeOf(const T &data);
    static TreeNode *treeOf(ChildNode *node) { return static_cast<TreeNode *>(node); } // nothing else is a ChildNode
    bool standsAtOrBelow(const ChildNode *node) const;
    typename Children::iterator placeOf(const ChildNode *child);
    bool moveWithin(typename Children::iterator from, std::size_t position);
    void takeIn(std::size_t position, ChildNode *child);
    void takeOver(Children &orphans);

    Children m_children;
};

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
        const std::vector<T> direct = payloadsOf(m_children);
        list.insert(list.end(), direct.begin(), direct.end());
        return;
    }
    walk(*this, option, [&](const TreeNode &node) {
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
    const ChildNode *found = firstMatch(*this, option, std::cref(predicate));
    return found ? found->data() : T();
}

template <typename T, int Index>
std::vector<T> TreeNode<T, Index>::findChildren_if(const Predicate &predicate, FindChildOption option) const
{
    return payloadsOf(allMatches(*this, option, std::cref(predicate)));
}

template <typename T, int Index>
auto TreeNode<T, Index>::find_child_node_from_data(const T &data, FindChildOption option) const -> ChildNode *
{
    return firstMatch(*this, option, [&data](const ChildNode *child) { return child->data() == data; });
}

template <typename T, int Index>
auto TreeNode<T, Index>::find_childs_node_from_data(const T &data, FindChildOption option) const
    -> std::vector<ChildNode *>
{
    return allMatches(*this, option, [&data](const ChildNode *child) { return child->data() == data; });
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
