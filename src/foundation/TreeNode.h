#pragma once

#include <QtGlobal>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

/** First layer of the object system: trees of owned nodes that tell of each change of their children.
 *
 *      struct Storey : gp::TreeNode<Storey *> { Storey() : TreeNode(this) {} };
 *
 *  A node carries a payload, the pointer to the object that it is part of, and callers speak in payloads: children,
 *  parents and searches give them. Nodes are made with new. A parent owns its children and deletes them when it dies; a
 *  node without a parent belongs to whoever made it. A node that is deleted leaves its parent by itself.
 *
 *  A tree belongs to one thread. */

/** Told to a node, and then to those above it, when its children change. */
struct Event
{
    enum Type {
        ChildAboutToBeAdded = 0,   ///< a ChildEvent, as are the next three
        ChildAdded = 1,            ///< the child stands in the list and knows its parent
        ChildAboutToBeRemoved = 2, ///< the child stands in the list still
        ChildRemoved = 3,          ///< the child stands in the list no more
        ChildrenAboutToChange = 6, ///< before the four above
        ChildrenChanged = 7        ///< after them
    };

    explicit Event(int eventType) : type(eventType) {}
    virtual ~Event() = default;

    int type;          ///< one of Type
    bool stop = false; ///< set by a handler to keep the event from the nodes above
};

/** How far searches go. */
enum FindChildOption {
    FindDirectChildren = 0,
    FindWholeSubtree = 1 ///< children and all that stands under them, not the node itself
};

/** Holds the payload: a pointer to the object that the node is part of. */
template <typename T> class Embedded
{
public:
    explicit Embedded(const T &data = T()) : m_data(data) {}

    const T &data() const { return m_data; }
    void setData(const T &data) { m_data = data; }

private:
    T m_data;
};

namespace gp {

/** What a node is to its parent. Only a Tree can be made of it. */
template <typename Tree, typename T> class ChildNode : public Embedded<T>
{
public:
    ChildNode(const ChildNode &) = delete;
    ChildNode &operator=(const ChildNode &) = delete;
    /** Leaves the parent, with events there whose payload is an address only: the object behind it is gone. */
    virtual ~ChildNode() { detach(); }

    Tree *parentNode() const { return m_parent; }
    bool hasParent() const { return m_parent != nullptr; }
    /** Payload of the parent, null for a root. */
    T parent() const { return m_parent ? m_parent->data() : T(); }

private:
    friend Tree;

    explicit ChildNode(const T &data) : Embedded<T>(data) {}

    /** Leaves the parent with events there. The link is cleared before, which tells the parent not to delete. */
    void detach()
    {
        if (Tree *parent = std::exchange(m_parent, nullptr))
            parent->removeChild(this);
    }

    Tree *m_parent = nullptr;
};

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
    using ChildNode = gp::ChildNode<TreeNode, T>;
    /** On a node. */
    using Predicate = std::function<bool(ChildNode *)>;

    /** The events 0 to 3. */
    struct ChildEvent : Event
    {
        ChildEvent(int eventType, const T &childData) : Event(eventType), child(childData) {}
        T child; ///< payload of the child that comes or goes
    };

    explicit TreeNode(const T &data = T()) : ChildNode(data) {}
    /** Deletes what stands below, without recursion, and leaves the parent. */
    ~TreeNode() override;

    // ---- Children. Where nothing else is said, positions are not checked.

    quint64 childCount() const { return m_children.size(); }
    const std::vector<ChildNode *> &childNodes() const { return m_children; }
    T child(qint64 position) const { return node(position)->data(); }
    T operator[](qint64 position) const { return child(position); }
    ChildNode *node(qint64 position) const { return m_children[static_cast<std::size_t>(position)]; }
    /** Position of the first direct child with this payload, -1 if there is none. */
    qint64 indexOf(const T &data) const;
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
    T findChild_if(const Predicate &predicate, FindChildOption option = FindDirectChildren) const;
    std::vector<T> findChildren_if(const Predicate &predicate, FindChildOption option = FindDirectChildren) const;
    /** The same for nodes with a payload. */
    ChildNode *find_child_node_from_data(const T &data, FindChildOption option = FindDirectChildren) const;
    std::vector<ChildNode *> find_childs_node_from_data(const T &data,
                                                        FindChildOption option = FindDirectChildren) const;

    // ---- Insertion takes the child into ownership, out of any other parent. Events go to the old parent (6, 2, 3, 7)
    // ---- and then to this node (6, 0, 1, 7). A child that would come to stand under itself is refused with false.
    // ---- The forms with a payload throw std::logic_error for null, those with a node std::invalid_argument, and the
    // ---- former set the payload of a node that has none.

    /** Inserts where findInsertPos says. @return that position, -1 if nothing was inserted */
    qint64 insertChild(const T &data) { return insertChild(nodeOf(data)); }
    virtual qint64 insertChild(ChildNode *child);
    /** Inserts at a position up to childCount(), which appends; false beyond. For one that is a child of this node
     *  already nothing is sent: it changes places with the child at that position, or goes to the end for childCount();
     *  false where it stands there already. */
    bool insertChild(std::size_t position, const T &data) { return insertChild(position, nodeOf(data)); }
    virtual bool insertChild(std::size_t position, ChildNode *child);
    bool appendChild(const T &data) { return appendChild(nodeOf(data)); }
    bool appendChild(ChildNode *child) { return insertChild(m_children.size(), child); }
    TreeNode &operator<<(const T &data);

    // ---- Removal

    /** Takes a child out without events and without deleting it: it belongs to the caller. */
    void removeChild(ChildNode &child);
    /** Takes a child out with the events 6, 2, 3, 7 and deletes it; nothing for one that is no child. */
    void removeChild(ChildNode *child);
    /** Deletes the object told, wherever it stands: it leaves its parent as it dies. False for null. */
    bool removeChild(const T &data, FindChildOption option);
    /** Deletes every node with this payload, and with it what stands under it. */
    void removeChildren(const T &data, FindChildOption option);
    /** Deletes every child without events. */
    void clearChildNodes();

    // ---- Place in the tree

    /** Topmost node; the node itself for a root. */
    TreeNode *rootNode() const;
    T root() const { return rootNode()->data(); }
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
    void send(int type);
    void send_child_event(int type, const T &child);
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
    template <typename Visit> bool walk(FindChildOption option, const Visit &visit) const;
    template <typename Matches> ChildNode *first(FindChildOption option, const Matches &matches) const;
    template <typename Matches> Children all(FindChildOption option, const Matches &matches) const;
    static std::vector<T> payloads(const Children &nodes);

    Children m_children;
};

/** A tree of its own, told by the tag, for objects that stand in several trees. */
template <typename Tag, typename T> class My : public TreeNode<T, 0>
{
public:
    using TreeNode<T, 0>::TreeNode;
};

} // namespace gp

#include "foundation/TreeNodeBody.h" // IWYU pragma: keep
