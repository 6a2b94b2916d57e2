#pragma once

#include "ORVCADModelDataExport.h"
#include "foundation/Object_AI.h"
#include "foundation/TreeNode.h"

#include <QString>

#include <cstddef>

namespace gp {

/** A tree of its own, told by the tag, for objects that stand in several trees. */
template <typename Tag, typename T> class My : public TreeNode<T, 0>
{
public:
    using TreeNode<T, 0>::TreeNode;
};

/** The side that an object shows in a second tree. Its Adapter is the node there, and a base of Owner. */
template <typename Owner> class Hook
{
public:
    class Adapter;
    virtual ~Hook() = default;

protected:
    Hook() = default;
};

/** The node in the second tree, which carries itself as its payload. */
template <typename Owner> class Hook<Owner>::Adapter : public My<std::nullptr_t, Hook<Owner> *>, public Hook<Owner>
{
public:
    /** A root of a tree of its own. */
    Adapter() { this->setData(this); }

    /** The object that this is the second side of. */
    Owner *owner() { return static_cast<Owner *>(this); }
};

} // namespace gp

namespace cv {

/** An object that stands in two trees at once: that of the objects, and one of hooks. As both have the same operations,
 *  object() and hook() say which is meant. Each parent owns it, so whichever dies first deletes it, and it leaves the
 *  other. */
class ORVCADMODELDATA_EXPORT DataObject : public Object_AI, public gp::Hook<DataObject>::Adapter
{
public:
    /** Stands under the parent in the tree of objects, which then owns it; in the tree of hooks it is a root. */
    explicit DataObject(Object_AI *parent = nullptr);
    /** The same with a name. */
    explicit DataObject(const QString &name, Object_AI *parent = nullptr);
    ~DataObject() override;

    DataObject(const DataObject &) = delete;
    DataObject &operator=(const DataObject &) = delete;

    /** Its side in the tree of objects. */
    Object_AI &object() { return *this; }
    /** Its side in the tree of hooks. */
    gp::Hook<DataObject>::Adapter &hook() { return *this; }

    /** First DataObject of that name in the subtree, direct children before deeper ones; null if there is none. */
    DataObject *findDataObject(const QString &name) const;
};

} // namespace cv
