#pragma once

#include <utility>

// What a tree (TreeNode.h) is made of: the events that its nodes are told, how far searches in it go, and what a node is
// to its parent.

/** Told to a node, and then to those above it, when its children change. */
struct Event
{
    /** What happens to the children. Nothing sends 4 and 5. */
    enum Type {
        ChildAboutToBeAdded = 0,   ///< a ChildEvent, as are the next three
        ChildAdded = 1,            ///< the child stands in the list and knows its parent
        ChildAboutToBeRemoved = 2, ///< the child stands in the list still
        ChildRemoved = 3,          ///< the child stands in the list no more
        ChildrenAboutToChange = 6, ///< before the four above
        ChildrenChanged = 7        ///< after them
    };

    /** Any number goes: what is none of Type means what its sender says. */
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
    /** Null until one is told. */
    explicit Embedded(const T &data = T()) : m_data(data) {}

    /** Null for a node that was told none. */
    const T &data() const { return m_data; }
    /** Searches go by the new payload from now on; no event tells. */
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

    /** Null for a root. */
    Tree *parentNode() const { return m_parent; }
    /** False for a root. */
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

} // namespace gp
