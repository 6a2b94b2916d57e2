#include "platform/embedded/HBXElement.h"

#include "platform/embedded/HBXModel.h"
#include "platform/embedded/HBXPlacedShape.h"

#include <algorithm>
#include <limits>

namespace hbx::embedded {

HBXElement::HBXElement(HBXModel &model, HBXFloor &floor, HBXElement *parent, const ElementRecord &record)
    : m_model(model), m_floor(floor), m_parent(parent), m_id(record.id), m_type(record.type), m_subType(record.subType),
      m_orderNumber(record.orderNumber), m_name(record.name),
      m_properties(HBXPropertyCatalogue::instance().properties(record.type), *this, nullptr)
{
    m_properties.setRecords(record.properties);
    if (!m_parent)
        return;
    m_parent->m_units.push_back(this);
    m_parent->m_greatestOrderNumber = std::max(m_parent->m_greatestOrderNumber, m_orderNumber);
}

IHBXRegion *HBXElement::region() const { return m_floor.region(); }

IHBXFloor *HBXElement::floor() const { return &m_floor; }

void HBXElement::setName(const QString &name) { m_model.elements()->rename(*this, name); }

void HBXElement::remove() { m_model.elements()->remove(*this); }

void HBXElement::drawObjs(QList<IHBXElementDrawObj *> &out, int)
{
    out.clear();
    m_drawObjs.forEach([&out](HBXElementDrawObj &object) {
        if (object.isEntered())
            out.append(&object);
    });
}

const IHBXFloor *HBXElement::elevationFloor() const { return &m_floor; }

void HBXElement::propertyWritten(const PropertyEntry &entry)
{
    m_model.changes().elementChanged(m_id);
    if (entry.role != PropertyRole::Shape)
        return;
    m_drawObjs.forEach([&entry](HBXElementDrawObj &object) {
        const PropertyEntry *own = object.propertySet().find(QStringView(entry.name));
        if (own && !object.propertySet().ownValue(*own))
            object.placedShape().followProperties(own);
    });
}

void HBXElement::propertyRefused(const QString &reason)
{
    m_model.journal().add({JournalEntry::kWriteThrew, m_id, m_name, reason});
}

int HBXElement::nextOrderNumber() const
{
    return m_greatestOrderNumber < std::numeric_limits<int>::max() ? m_greatestOrderNumber + 1 : m_greatestOrderNumber;
}

void HBXElement::leaveParent()
{
    if (!m_parent)
        return;
    auto &units = m_parent->m_units;
    units.erase(std::remove(units.begin(), units.end(), this), units.end());
    m_parent = nullptr;
}

ElementRecord HBXElement::record() const
{
    ElementRecord record;
    record.id = m_id;
    record.floorId = m_floor.id();
    record.parentId = m_parent ? m_parent->m_id : 0;
    record.name = m_name;
    record.type = m_type;
    record.subType = m_subType;
    record.orderNumber = m_orderNumber;
    record.properties = m_properties.records();
    return record;
}

} // namespace hbx::embedded
