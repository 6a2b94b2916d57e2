#include "MemoryObjects.h"

#include "MemoryModel.h"

#include <platform/host/HBXModelException.h>

#include <algorithm>
#include <iterator>

namespace {

template <std::size_t kCount> bool isAmong(const qint64 (&types)[kCount], qint64 type)
{
    return std::find(std::begin(types), std::end(types), type) != std::end(types);
}

constexpr qint64 kChainTypes[] = {15, 17, 18, 47};
constexpr qint64 kOpeningTypes[] = {4, 5, 6, 7};
constexpr qint64 kWallTypes[] = {0, 1, 202, 1001, 1003};
constexpr qint64 kHoleTypes[] = {24};
constexpr qint64 kSlabTypes[] = {19, 48};

bool mayStandIn(const IHBXElementDrawObj &object, const IHBXElementDrawObj &parent)
{
    const bool isOpening = isAmong(kOpeningTypes, object.type()) && isAmong(kWallTypes, parent.type());
    const bool isHole = isAmong(kHoleTypes, object.type()) && isAmong(kSlabTypes, parent.type());
    return (isOpening || isHole) && object.floor() == parent.floor();
}

} // namespace

MemoryElement::MemoryElement(MemoryModel &model, qint64 id, qint64 type, qint64 subType, IHBXFloor &floor, QString name)
    : m_model(model), m_id(id), m_type(type), m_subType(subType), m_floor(floor), m_name(std::move(name)),
      m_values(type, floor, nullptr)
{}

void MemoryElement::setName(const QString &name)
{
    if (name.isEmpty() || (name != m_name && m_model.memoryElements().isTaken(m_floor.id(), m_type, name)))
        throw HBXModelException(QStringLiteral("the name \"%1\" is empty or taken").arg(name));
    m_name = name;
}

void MemoryElement::remove()
{
    m_model.memoryDrawObjs().eraseOf(*this);
    m_model.memoryElements().erase(m_id); // this is gone
}

int MemoryElement::drawObjCount() const
{
    QList<IHBXElementDrawObj *> objects;
    m_model.memoryDrawObjs().queryOf(objects, *this);
    return objects.size();
}

void MemoryElement::drawObjs(QList<IHBXElementDrawObj *> &out, int) { m_model.memoryDrawObjs().queryOf(out, *this); }

MemoryObject::MemoryObject(MemoryModel &model, qint64 id, MemoryElement &element, IHBXFloor &floor)
    : m_model(model), m_id(id), m_element(element), m_floor(floor),
      m_values(element.type(), *element.floor(), &element.values()), m_shape(MemoryShape::make(element.type(), *this))
{}

IHBXElementDrawObj *MemoryObject::cloneDrawObj(int, int, int)
{
    MemoryObject &copy = m_model.memoryDrawObjs().make(m_element, m_floor);
    copy.m_values.copyFrom(m_values);
    if (m_shape)
        copy.m_shape = m_shape->copyFor(copy);
    return &copy;
}

void MemoryObject::remove()
{
    cutBehind();
    if (m_previous)
        m_previous->cutBehind();
    m_model.memoryDrawObjs().detachFrom(*this);
    m_model.memoryDrawObjs().erase(m_id); // this is gone
}

void MemoryObject::attachTo(IHBXElementDrawObj *parent)
{
    if (!parent || mayStandIn(*this, *parent))
        m_parent = parent;
}

bool MemoryObject::isInChains() const { return isAmong(kChainTypes, type()); }

IHBXElementDrawObj *MemoryObject::chainHead()
{
    if (!isInChains() || !m_isEntered)
        return nullptr;
    MemoryObject *head = this;
    while (head->m_previous)
        head = head->m_previous;
    return head;
}

void MemoryObject::cutBehind()
{
    if (m_next)
        m_next->m_previous = nullptr;
    m_next = nullptr;
}

void MemoryObject::linkNext(IHBXElementDrawObj *next)
{
    auto *following = dynamic_cast<MemoryObject *>(next);
    if (next && (!following || !isInChains() || following->element() != element()))
        return;
    for (const MemoryObject *link = following; link; link = link->m_next)
        if (link == this)
            return; // a ring
    cutBehind();
    if (!following)
        return;
    if (following->m_previous)
        following->m_previous->cutBehind();
    m_next = following;
    following->m_previous = this;
}
