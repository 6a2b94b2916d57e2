#include "platform/embedded/ExchangeFloorReader.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/ChainRing.h"
#include "platform/embedded/ExchangeFormat.h"
#include "platform/embedded/ExchangeShape.h"
#include "platform/embedded/ExchangeSpan.h"
#include "platform/embedded/HBXAttachment.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <numeric>

namespace hbx::embedded {
namespace {

namespace key = exchange::key;
using Types = std::initializer_list<qint64>;

const Types kUnits{type::isolatedFoundationUnit, type::pileCapUnit};

const TypeProperties &catalogueOf(const JsonPlace &typePlace, qint64 type)
{
    const TypeProperties *properties = HBXPropertyCatalogue::instance().properties(type);
    if (!properties)
        typePlace.refuse(dwgx::Reason::tr("is no type that the host knows"));
    return *properties;
}

PropertyRecords readProperties(const ExchangeObject &json, qint64 type, bool forDrawObject, std::vector<KeyUse> &uses)
{
    const TypeProperties &catalogue = catalogueOf(json.placeOf(key::type), type);
    if (!json.has(key::properties))
        return {};
    return propertiesFromJson(json.value(key::properties), json.placeOf(key::properties), catalogue, forDrawObject,
                              uses);
}

SectionRecord readSection(const QJsonValue &value, const JsonPlace &place)
{
    const ExchangeObject json(value, place, {key::number, key::kind});
    const int kind = json.integer32(key::kind);
    return {json.wide(key::number), kind};
}

/** A position in an array, counted from 0. */
int position(const QJsonValue &value, const JsonPlace &place)
{
    const int found = value.toInt(-1);
    if (found < 0)
        place.refuse(dwgx::Reason::tr("is no position"));
    return found;
}

} // namespace

void ExchangeFloorReader::read()
{
    m_json.each(key::elements,
                [this](const QJsonValue &value, const JsonPlace &place, int) { readElement(value, place); });
    giveIds();
    link();
    storeDrawObjs();
}

void ExchangeFloorReader::readElement(const QJsonValue &value, const JsonPlace &place)
{
    const ExchangeObject json(
        value, place,
        {key::name, key::type, key::subType, key::properties, key::orderNumber, key::drawObjects, key::units});
    Element element;
    element.name = json.name(key::name);
    element.type = json.wide(key::type);
    if (isOneOf(element.type, kUnits))
        json.placeOf(key::type).refuse(dwgx::Reason::tr("is a unit's, which stands in the units of its owner"));
    checkName(json, element);
    element.id = addElement(json, element.type, 0);
    element.subType = m_reading.project.elements.back().subType;
    json.each(key::units,
              [&](const QJsonValue &unit, const JsonPlace &unitPlace, int) { readUnit(unit, unitPlace, element); });
    m_elements.push_back(std::move(element));
    json.each(key::drawObjects, [this](const QJsonValue &object, const JsonPlace &objectPlace, int) {
        readDrawObject(object, objectPlace, m_elements.size() - 1);
    });
}

void ExchangeFloorReader::checkName(const ExchangeObject &json, const Element &element)
{
    const QPair<qint64, QString> name(element.type, element.name);
    if (m_elementByName.contains(name))
        json.placeOf(key::name).refuse(
            dwgx::Reason::tr("\"%1\" stands twice on the floor for type %2").arg(element.name).arg(element.type));
    m_elementByName.insert(name, m_elements.size());
}

qint64 ExchangeFloorReader::addElement(const ExchangeObject &json, qint64 type, qint64 parentId)
{
    std::vector<KeyUse> none; // properties of elements name no draw objects
    ElementRecord record;
    record.floorId = m_floorId;
    record.parentId = parentId;
    record.name = json.name(key::name);
    record.type = type;
    record.subType = json.wideOr(key::subType, 0);
    record.orderNumber = json.integer32Or(key::orderNumber, 0);
    record.properties = readProperties(json, type, false, none);
    record.id = m_reading.takeId();
    m_reading.project.elements.push_back(std::move(record));
    return m_reading.project.elements.back().id;
}

void ExchangeFloorReader::readUnit(const QJsonValue &value, const JsonPlace &place, Element &owner)
{
    const ExchangeObject json(
        value, place, {key::name, key::type, key::subType, key::properties, key::orderNumber, key::drawObjects});
    const qint64 type = json.wide(key::type);
    if (!isOneOf(type, kUnits))
        json.placeOf(key::type).refuse(dwgx::Reason::tr("is no unit's"));
    if (json.has(key::drawObjects) && !json.array(key::drawObjects).isEmpty())
        json.placeOf(key::drawObjects).refuse(dwgx::Reason::tr("is not empty: a unit's are children of its owner's"));
    const qint64 id = addElement(json, type, owner.id);
    owner.units.push_back({id, type, m_reading.project.elements.back().subType});
}

ExchangeFloorReader::Attachment ExchangeFloorReader::readAttachment(const ExchangeObject &json)
{
    const QJsonArray terms = json.array(key::attachedTo);
    if (terms.size() != 3 || !terms.at(0).isDouble() || !terms.at(1).isString() || terms.at(2).toInt(-1) < 0)
        json.placeOf(key::attachedTo).refuse(dwgx::Reason::tr("is not [type, element name, position]"));
    return {terms.at(0).toInt(-1), terms.at(1).toString(), terms.at(2).toInt()};
}

void ExchangeFloorReader::readDrawObject(const QJsonValue &value, const JsonPlace &place, std::size_t elementIndex)
{
    const ExchangeObject json(value, place,
                              {key::shape, key::type, key::subType, key::properties, key::section, key::layer,
                               key::state, key::key, key::order, key::next, key::children, key::attachedTo,
                               key::spans});
    Element &element = m_elements[elementIndex];
    Placed object;
    object.element = elementIndex;
    object.position = static_cast<int>(element.placed.size());
    object.order = json.integer32Or(key::order, static_cast<int>(m_placed.size()));
    readCommon(json, object, {element.id, element.type, element.subType});
    if (json.has(key::next))
        object.next = position(json.value(key::next), json.placeOf(key::next));
    json.each(key::spans, [&](const QJsonValue &span, const JsonPlace &spanPlace, int) {
        object.record.spans.push_back(spanFromJson(span, spanPlace));
    });
    if (json.has(key::attachedTo))
        object.attachment = readAttachment(json);
    const std::size_t index = m_placed.size();
    element.placed.push_back(index);
    m_placed.push_back(std::move(object));
    std::vector<bool> taken(element.units.size());
    json.each(key::children, [&](const QJsonValue &child, const JsonPlace &childPlace, int) {
        readChild(child, childPlace, index, taken);
    });
}

void ExchangeFloorReader::readChild(const QJsonValue &value, const JsonPlace &place, std::size_t ownerIndex,
                                    std::vector<bool> &taken)
{
    const ExchangeObject json(value, place,
                              {key::unit, key::shape, key::type, key::subType, key::properties, key::section,
                               key::layer, key::state, key::key, key::order});
    const auto unit = static_cast<std::size_t>(position(json.value(key::unit), json.placeOf(key::unit)));
    if (unit >= taken.size())
        json.placeOf(key::unit).refuse(dwgx::Reason::tr("is no position in the owner's units"));
    if (taken[unit])
        json.placeOf(key::unit).refuse(dwgx::Reason::tr("has two children of one object"));
    taken[unit] = true;
    Placed child;
    child.element = m_placed[ownerIndex].element;
    child.owner = ownerIndex;
    // A child is made with its owner, behind it.
    child.order = json.has(key::order) ? json.integer32Or(key::order, 0) : m_placed[ownerIndex].order;
    readCommon(json, child, m_elements[child.element].units[unit]);
    m_placed.push_back(std::move(child));
}

void ExchangeFloorReader::readCommon(const ExchangeObject &json, Placed &object, const Unit &definition)
{
    DrawObjRecord &record = object.record;
    record.elementId = definition.id;
    record.type = json.wideOr(key::type, definition.type);
    record.subType = json.wideOr(key::subType, definition.subType);
    record.shape = shapeFromJson(json.value(key::shape), json.placeOf(key::shape));
    record.properties = readProperties(json, record.type, true, object.keyUses);
    if (json.has(key::section))
        record.section = readSection(json.value(key::section), json.placeOf(key::section));
    record.layer = json.integer32Or(key::layer, 0);
    record.state = json.integer32Or(key::state, 0);
    readKey(json, record);
}

void ExchangeFloorReader::readKey(const ExchangeObject &json, DrawObjRecord &record)
{
    if (!json.has(key::key))
        return;
    record.key = json.name(key::key);
    if (m_reading.idByKey.contains(record.key))
        json.placeOf(key::key).refuse(dwgx::Reason::tr("\"%1\" stands twice in the file").arg(record.key));
    m_reading.idByKey.insert(record.key, 0);
}

void ExchangeFloorReader::giveIds()
{
    m_creationOrder.resize(m_placed.size());
    std::iota(m_creationOrder.begin(), m_creationOrder.end(), std::size_t(0));
    std::stable_sort(m_creationOrder.begin(), m_creationOrder.end(),
                     [this](std::size_t a, std::size_t b) { return m_placed[a].order < m_placed[b].order; });
    for (const std::size_t index : m_creationOrder) {
        DrawObjRecord &record = m_placed[index].record;
        record.id = m_reading.takeId();
        if (!record.key.isEmpty())
            m_reading.idByKey.insert(record.key, record.id);
    }
}

void ExchangeFloorReader::link()
{
    for (Placed &object : m_placed) {
        if (object.owner)
            object.record.owner = m_placed[*object.owner].record.id;
        if (object.next >= 0)
            linkNext(object);
        if (object.attachment)
            attach(object);
    }
    for (const Placed &object : m_placed)
        checkChain(object);
    for (const Element &element : m_elements)
        checkRings(element);
}

void ExchangeFloorReader::linkNext(Placed &object)
{
    const std::vector<std::size_t> &siblings = m_elements[object.element].placed;
    if (!isOneOf(object.record.type, kChainTypes))
        refuse(object, key::next, dwgx::Reason::tr("belongs to beams only"));
    if (static_cast<std::size_t>(object.next) >= siblings.size())
        refuse(object, key::next, dwgx::Reason::tr("is no position in the element's drawObjects"));
    Placed &next = m_placed[siblings[static_cast<std::size_t>(object.next)]];
    if (next.isFollowed)
        refuse(object, key::next, dwgx::Reason::tr("names an object that is another one's next, too"));
    next.isFollowed = true;
    object.record.next = next.record.id;
}

void ExchangeFloorReader::checkChain(const Placed &object) const
{
    if (object.record.spans.empty())
        return;
    if (!isOneOf(object.record.type, kChainTypes))
        refuse(object, key::spans, dwgx::Reason::tr("belongs to beams only"));
    if (object.isFollowed)
        refuse(object, key::spans, dwgx::Reason::tr("belongs to the head of the chain"));
}

void ExchangeFloorReader::checkRings(const Element &element) const
{
    std::vector<int> next;
    for (const std::size_t index : element.placed)
        next.push_back(m_placed[index].next);
    if (const auto position = firstInRing(next))
        refuse(m_placed[element.placed[*position]], key::next, dwgx::Reason::tr(kClosesRing));
}

void ExchangeFloorReader::attach(Placed &object)
{
    const AttachmentRule *rule = attachmentRuleOf(object.record.type);
    if (!rule)
        refuse(object, key::attachedTo, dwgx::Reason::tr("belongs to doors, windows and holes only"));
    const Attachment &wanted = *object.attachment;
    const auto found = m_elementByName.constFind({wanted.type, wanted.element});
    if (!isOneOf(wanted.type, rule->hosts) || found == m_elementByName.constEnd())
        refuse(object, key::attachedTo, dwgx::Reason::tr(rule->otherHost));
    const std::vector<std::size_t> &hosts = m_elements[*found].placed;
    if (static_cast<std::size_t>(wanted.position) >= hosts.size())
        refuse(object, key::attachedTo, dwgx::Reason::tr("names no draw object of \"%1\"").arg(wanted.element));
    object.record.attachedTo = m_placed[hosts[static_cast<std::size_t>(wanted.position)]].record.id;
}

void ExchangeFloorReader::storeDrawObjs()
{
    std::vector<DrawObjRecord> &drawObjs = m_reading.project.drawObjs;
    for (const std::size_t index : m_creationOrder) {
        Placed &object = m_placed[index];
        if (!object.keyUses.empty())
            m_reading.keyUses.push_back({drawObjs.size(), std::move(object.keyUses)});
        drawObjs.push_back(std::move(object.record));
    }
}

void ExchangeFloorReader::refuse(const Placed &object, QLatin1String member, const QString &reason) const
{
    const JsonPlace elements(m_json.place(), key::elements);
    const JsonPlace element(elements, static_cast<int>(object.element));
    const JsonPlace drawObjects(element, key::drawObjects);
    const JsonPlace drawObject(drawObjects, object.position);
    JsonPlace(drawObject, member).refuse(reason);
}

} // namespace hbx::embedded
