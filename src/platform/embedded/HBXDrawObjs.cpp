#include "platform/embedded/HBXDrawObjs.h"

#include "platform/embedded/HBXFloorQuery.h"
#include "platform/embedded/HBXModel.h"
#include "platform/embedded/HBXPlacedShape.h"
#include "platform/embedded/HBXSameObject.h"
#include "platform/embedded/HBXShapeKinds.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>

namespace hbx::embedded {
namespace {

/** Two ways of asking for any sub-type. */
constexpr qint64 kAnySubTypes[] = {IHBXDrawObjs::kAnySubType, IHBXDrawObjs::kAnySubType16};

} // namespace

IHBXElementDrawObj *HBXDrawObjs::createDrawObj(IHBXFloor *floor, IHBXElement *element, bool)
{
    HBXElement *own = m_model.elements()->own(element);
    return own && own->floor() == floor ? makeNew(*own, own->type(), own->subType()) : nullptr;
}

HBXElementDrawObj *HBXDrawObjs::makeNew(HBXElement &element, qint64 type, qint64 subType)
{
    const auto kind = shapeKindOfType(type);
    if (!kind)
        return nullptr;
    HBXElementDrawObj &object = make(element, *kind, m_model.newId(), type, subType);
    object.placedShape().followProperties(nullptr);
    addMissingChildren(object);
    return &object;
}

HBXElementDrawObj &HBXDrawObjs::make(HBXElement &element, IHBXShape::Kind kind, qint64 id, qint64 type, qint64 subType)
{
    HBXElementDrawObj &made = m_byId.add(std::make_unique<HBXElementDrawObj>(element, id, type, subType, kind));
    element.allDrawObjs().insert(id, &made);
    return made;
}

void HBXDrawObjs::addDrawObj(IHBXElementDrawObj *drawObj)
{
    HBXElementDrawObj *object = own(drawObj);
    if (!object || (object->owner() && !object->owner()->isEntered())) // a child comes with its owner
        return;
    enter(*object);
    for (HBXElementDrawObj *child : object->children())
        enter(*child);
}

void HBXDrawObjs::enter(HBXElementDrawObj &object)
{
    if (object.isEntered())
        return;
    HBXTypeContents &contents = object.ownFloor().contents().ofType(object.type());
    m_inOrder.insert(object.id(), &object);
    contents.drawObjs.insert(object.id(), &object);
    contents.places.placeChanged(object);
    if (isBarType(object.type())) {
        if (!contents.barMiddles)
            contents.barMiddles = std::make_unique<HBXPlaceIndex>(HBXPlaceIndex::kBarMiddles);
        contents.barMiddles->placeChanged(object);
    }
    object.ownElement().countEntered(1);
    object.setEntered();
}

void HBXDrawObjs::queryDrawObjs(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &floorIds,
                                const QSet<qint64> &elementTypes, bool)
{
    queryFloors(out, *m_model.regions(), floorIds, elementTypes, &HBXTypeContents::drawObjs);
}

void HBXDrawObjs::queryDrawObjsOfFloor(QList<IHBXElementDrawObj *> &out, int floorId, int elementType, int subType,
                                       bool on)
{
    queryDrawObjs(out, {floorId}, {elementType}, on);
    if (isOneOf(subType, kAnySubTypes))
        return;
    const auto isOther = [subType](const IHBXElementDrawObj *object) { return object->subType() != subType; };
    out.erase(std::remove_if(out.begin(), out.end(), isOther), out.end());
}

void HBXDrawObjs::queryDrawObjsInBox(QList<IHBXElementDrawObj *> &out, int floorId, int elementType,
                                     const vks::CBox2<double> &box, double tolerance)
{
    out.clear();
    if (HBXFloor *floor = m_model.regions()->floorById(floorId))
        out = floor->drawObjsMeeting(box, tolerance, {elementType});
}

HBXElementDrawObj *HBXDrawObjs::cloneOf(HBXElementDrawObj &original)
{
    DrawObjRecord record = original.record();
    record.spans.clear();
    record.key.clear();
    HBXElementDrawObj &copy =
        make(original.ownElement(), record.shape.kind, m_model.newId(), record.type, record.subType);
    copy.restore(record);
    addMissingChildren(copy);
    const std::size_t count = std::min(copy.children().size(), original.children().size());
    for (std::size_t i = 0; i < count; ++i)
        copy.children()[i]->restore(original.children()[i]->record());
    return &copy;
}

void HBXDrawObjs::remove(HBXElementDrawObj &object)
{
    for (HBXElementDrawObj *child : std::vector<HBXElementDrawObj *>(object.children()))
        remove(*child);
    object.untie();
    object.ownElement().allDrawObjs().remove(object.id());
    if (object.isEntered())
        leave(object);
    m_byId.destroy(object.id());
}

void HBXDrawObjs::leave(HBXElementDrawObj &object)
{
    const qint64 id = object.id();
    HBXTypeContents &contents = object.ownFloor().contents().ofType(object.type());
    contents.drawObjs.remove(id);
    contents.places.remove(object);
    if (contents.barMiddles)
        contents.barMiddles->remove(object);
    m_inOrder.remove(id);
    object.ownElement().countEntered(-1);
    m_model.changes().drawObjs.removed(id);
    if (!object.owner())
        m_model.journal().add({JournalEntry::kObjectRemoved, id, object.ownElement().ownName(), QString()});
}

void HBXDrawObjs::addChildren(HBXElement &unit)
{
    HBXElement *parent = m_model.elements()->own(unit.parent());
    for (HBXElementDrawObj *owner : parent->allDrawObjs().objects())
        addChild(*owner, unit);
}

void HBXDrawObjs::addChild(HBXElementDrawObj &owner, HBXElement &unit)
{
    HBXElementDrawObj *child = makeNew(unit, unit.type(), unit.subType());
    child->setOwner(owner);
    child->placedShape().takePlaceOf(owner.placedShape());
    if (owner.isEntered())
        enter(*child);
    owner.dropWorld();
}

void HBXDrawObjs::addMissingChildren(HBXElementDrawObj &owner)
{
    for (HBXElement *unit : owner.ownElement().units()) {
        const auto isOfUnit = [unit](const HBXElementDrawObj *child) { return &child->ownElement() == unit; };
        if (std::none_of(owner.children().begin(), owner.children().end(), isOfUnit))
            addChild(owner, *unit);
    }
}

void HBXDrawObjs::clear()
{
    m_inOrder = {};
    m_byId.clear();
}

void HBXDrawObjs::load(const std::vector<DrawObjRecord> &records)
{
    for (const DrawObjRecord &record : records) {
        HBXElement *element = m_model.elements()->elementById(record.elementId);
        if (!element || drawObjById(record.id))
            continue;
        make(*element, record.shape.kind, record.id, record.type, record.subType).restore(record);
    }
    for (const DrawObjRecord &record : records)
        tie(record);
    for (const DrawObjRecord &record : records)
        if (HBXElementDrawObj *object = drawObjById(record.id))
            enter(*object);
    m_model.changes().drawObjs.clear(); // all of these are stored
    for (const DrawObjRecord &record : records)
        if (drawObjById(record.id))
            m_model.changes().drawObjs.stored(record.id);
    for (HBXElementDrawObj *object : m_inOrder.objects())
        addMissingChildren(*object);
}

void HBXDrawObjs::tie(const DrawObjRecord &record)
{
    HBXElementDrawObj *object = drawObjById(record.id);
    if (!object)
        return;
    HBXElementDrawObj *owner = drawObjById(record.owner);
    const bool isOfOwnersUnit = owner && object->ownElement().parent() == &owner->ownElement();
    if (isOfOwnersUnit && !object->owner())
        object->setOwner(*owner);
    if (HBXElementDrawObj *parent = drawObjById(record.attachedTo))
        object->attachTo(parent);
    if (HBXElementDrawObj *next = drawObjById(record.next))
        object->linkNext(next);
}

} // namespace hbx::embedded
