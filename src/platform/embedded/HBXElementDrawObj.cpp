#include "platform/embedded/HBXElementDrawObj.h"

#include "platform/embedded/HBXAttachment.h"
#include "platform/embedded/HBXModel.h"
#include "platform/embedded/HBXPlacedShape.h"
#include "platform/embedded/HBXSameObject.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>
#include <utility>

namespace hbx::embedded {
namespace {

void removeFrom(std::vector<HBXElementDrawObj *> &objects, const HBXElementDrawObj *object)
{
    objects.erase(std::remove(objects.begin(), objects.end(), object), objects.end());
}

/** Objects that are not entered are in no record, and so are not referred to. */
qint64 referenceTo(const HBXElementDrawObj *object) { return object && object->isEntered() ? object->id() : 0; }

} // namespace

HBXElementDrawObj::HBXElementDrawObj(HBXElement &element, qint64 id, qint64 type, qint64 subType, IHBXShape::Kind kind)
    : m_element(element), m_id(id), m_type(type), m_subType(subType),
      m_properties(HBXPropertyCatalogue::instance().properties(type), *this, &element.propertySet()),
      m_shape(HBXPlacedShape::make(kind, *this)), m_status(*this)
{}

HBXElementDrawObj::~HBXElementDrawObj() = default;

IHBXRegion *HBXElementDrawObj::region() const { return m_element.region(); }

IHBXFloor *HBXElementDrawObj::floor() const { return m_element.floor(); }

HBXFloor &HBXElementDrawObj::ownFloor() const { return m_element.ownFloor(); }

HBXModel &HBXElementDrawObj::model() const { return m_element.model(); }

IHBXElement *HBXElementDrawObj::element() const { return &m_element; }

IHBXShape *HBXElementDrawObj::shape() { return m_shape->asShape(); }

IHBXElementDrawObj *HBXElementDrawObj::cloneDrawObj(int, int, int)
{
    return m_owner ? nullptr : model().drawObjects()->cloneOf(*this);
}

void HBXElementDrawObj::remove() { model().drawObjects()->remove(*this); }

IHBXElementDrawObj *HBXElementDrawObj::child(int index) const
{
    return index >= 0 && index < childCount() ? m_children[static_cast<std::size_t>(index)] : nullptr;
}

IHBXElementDrawObj *HBXElementDrawObj::parent() const { return m_attachedTo ? m_attachedTo : m_owner; }

void HBXElementDrawObj::setEntered()
{
    m_isEntered = true;
    recordChanged();
    if (m_previous)
        m_previous->recordChanged(); // their records now name this object
    for (HBXElementDrawObj *attached : m_attached)
        attached->recordChanged();
}

void HBXElementDrawObj::setOwner(HBXElementDrawObj &owner)
{
    m_owner = &owner;
    owner.m_children.push_back(this);
}

// --- attachment

void HBXElementDrawObj::attachTo(IHBXElementDrawObj *parent)
{
    HBXElementDrawObj *own = model().drawObjects()->own(parent);
    const bool isRefused = parent && !(own && canBeAttachedTo(*own));
    if (isRefused || own == m_attachedTo)
        return;
    setAttachedTo(own);
    shapeChanged();
}

bool HBXElementDrawObj::canBeAttachedTo(const HBXElementDrawObj &other) const
{
    const AttachmentRule *rule = attachmentRuleOf(m_type);
    return rule && isOneOf(other.m_type, rule->hosts) && &other.ownFloor() == &ownFloor();
}

void HBXElementDrawObj::setAttachedTo(HBXElementDrawObj *parent)
{
    if (m_attachedTo)
        removeFrom(m_attachedTo->m_attached, this);
    m_attachedTo = parent;
    if (m_attachedTo)
        m_attachedTo->m_attached.push_back(this);
}

// --- chain

IHBXElementDrawObj *HBXElementDrawObj::chainHead()
{
    if (!isOneOf(m_type, kChainTypes) || !m_isEntered)
        return nullptr;
    HBXElementDrawObj *head = this;
    while (head->m_previous && head->m_previous->m_isEntered)
        head = head->m_previous;
    return head;
}

void HBXElementDrawObj::linkNext(IHBXElementDrawObj *next)
{
    HBXElementDrawObj *own = model().drawObjects()->own(next);
    const bool isRefused = next && !(own && canBeFollowedBy(*own));
    if (isRefused || own == m_next)
        return;
    cutBehind();
    if (own)
        linkBehind(*own);
}

bool HBXElementDrawObj::canBeFollowedBy(const HBXElementDrawObj &next) const
{
    return isOneOf(m_type, kChainTypes) && &next.m_element == &m_element && !next.reaches(*this);
}

/** Whether a walk along the chain comes to another object. Forward from here and backward from there in step, so that a
 *  long chain costs nothing when a single object is put in front of it or behind. */
bool HBXElementDrawObj::reaches(const HBXElementDrawObj &other) const
{
    const HBXElementDrawObj *forward = this;
    const HBXElementDrawObj *backward = &other;
    while (forward && backward) {
        if (forward == &other || backward == this)
            return true;
        forward = forward->m_next;
        backward = backward->m_previous;
    }
    return false;
}

void HBXElementDrawObj::cutBehind()
{
    if (!m_next)
        return;
    m_next->m_previous = nullptr;
    m_next = nullptr;
    recordChanged();
}

void HBXElementDrawObj::linkBehind(HBXElementDrawObj &next)
{
    if (next.m_previous)
        next.m_previous->cutBehind();
    m_next = &next;
    next.m_previous = this;
    recordChanged();
    if (next.m_spans.empty())
        return;
    HBXElementDrawObj *head = this;
    while (head->m_previous)
        head = head->m_previous;
    if (head->m_spans.empty())
        head->setSpans(std::move(next.m_spans));
    next.setSpans({});
}

void HBXElementDrawObj::untie()
{
    cutBehind();
    if (m_previous)
        m_previous->cutBehind();
    setAttachedTo(nullptr);
    for (HBXElementDrawObj *attached : std::exchange(m_attached, {})) {
        attached->m_attachedTo = nullptr;
        attached->shapeChanged();
    }
    if (m_owner) {
        removeFrom(m_owner->m_children, this);
        m_owner->dropWorld();
    }
}

void HBXElementDrawObj::setSpans(std::vector<QJsonObject> spans)
{
    m_spans = std::move(spans);
    recordChanged();
}

// --- properties and shape

const IHBXFloor *HBXElementDrawObj::elevationFloor() const { return m_element.floor(); }

void HBXElementDrawObj::propertyWritten(const PropertyEntry &entry)
{
    recordChanged();
    if (entry.role == PropertyRole::Shape)
        m_shape->followProperties(&entry);
    const bool isBarCurve = m_isEntered && entry.kind == PropertyKind::Curve && isBarType(m_type);
    if (isBarCurve)
        ownFloor().contents().ofType(m_type).barMiddles->placeChanged(*this);
}

void HBXElementDrawObj::propertyRefused(const QString &reason)
{
    model().journal().add({JournalEntry::kWriteThrew, m_id, m_element.ownName(), reason});
}

void HBXElementDrawObj::recordChanged()
{
    if (m_isEntered)
        model().changes().drawObjChanged(m_id);
}

void HBXElementDrawObj::shapeChanged()
{
    recordChanged();
    dropWorld();
    if (m_owner)
        m_owner->dropWorld();
    for (HBXElementDrawObj *attached : m_attached)
        attached->dropWorld();
}

void HBXElementDrawObj::dropWorld()
{
    m_shape->dropWorld();
    if (m_isEntered)
        ownFloor().contents().ofType(m_type).places.placeChanged(*this);
}

void HBXElementDrawObj::shapeMoved()
{
    for (HBXElementDrawObj *child : m_children)
        child->m_shape->takePlaceOf(*m_shape);
}

// --- records

DrawObjRecord HBXElementDrawObj::record() const
{
    DrawObjRecord record;
    record.id = m_id;
    record.elementId = m_element.id();
    record.type = m_type;
    record.subType = m_subType;
    record.shape = m_shape->record();
    record.properties = m_properties.records();
    record.next = referenceTo(m_next);
    record.owner = referenceTo(m_owner);
    record.attachedTo = referenceTo(m_attachedTo);
    record.spans = m_spans;
    if (m_section)
        record.section = m_section->record();
    record.layer = m_status.layer();
    record.state = m_status.state();
    record.key = m_key;
    return record;
}

void HBXElementDrawObj::restore(const DrawObjRecord &record)
{
    m_properties.setRecords(record.properties);
    m_shape->restore(record.shape);
    m_spans = record.spans;
    m_section.reset();
    if (record.section)
        m_section.emplace(*record.section);
    m_status.restore(record.layer, record.state);
    m_key = record.key;
}

} // namespace hbx::embedded
