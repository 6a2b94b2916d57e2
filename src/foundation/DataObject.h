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

template <typename Owner> class Hook<Owner>::Adapter : public My<std::nullptr_t, Hook<Owner> *>, public Hook<Owner>
{
public:
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
    explicit DataObject(Object_AI *parent = nullptr);
    explicit DataObject(const QString &name, Object_AI *parent = nullptr);
    ~DataObject() override;

    DataObject(const DataObject &) = delete;
    DataObject &operator=(const DataObject &) = delete;

    Object_AI &object() { return *this; }
    gp::Hook<DataObject>::Adapter &hook() { return *this; }

    /** First DataObject of that name in the subtree, direct children before deeper ones; null if there is none. */
    DataObject *findDataObject(const QString &name) const;
};

} // namespace cv
