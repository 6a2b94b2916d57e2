#include "platform/embedded/HBXElements.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/HBXFloorQuery.h"
#include "platform/embedded/HBXModel.h"
#include "platform/host/HBXModelException.h"
#include "platform/services/HBXElementTypeTable.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

#include <algorithm>

namespace hbx::embedded {
namespace {

constexpr qint64 kUnitTypes[] = {type::isolatedFoundationUnit, type::pileCapUnit};

/** Sub-types of holes and the "SectionTypeID" that a new one gets: rectangle, circle, any outline. */
struct HoleSection
{
    qint64 subType;
    int sectionType;
};
constexpr HoleSection kHoleSections[] = {
    {subtype::rectangularHole, 0}, {subtype::roundHole, 1}, {subtype::otherHole, 2}};

PropertyRecords firstProperties(qint64 type, qint64 subType)
{
    for (const HoleSection &section : kHoleSections)
        if (type == type::slabHole && subType == section.subType)
            return {{QString::fromStdWString(property::sectionTypeId), section.sectionType}};
    return {};
}

/** A name that becomes free may be one that others were counted up past. */
void giveBackSuffix(QHash<QString, int> &takenSuffixes, const QString &name)
{
    const int dash = name.lastIndexOf(QLatin1Char('-'));
    const auto taken = dash < 0 ? takenSuffixes.end() : takenSuffixes.find(name.left(dash));
    const int suffix = name.midRef(dash + 1).toInt();
    if (taken != takenSuffixes.end() && suffix > 0)
        *taken = std::min(*taken, suffix - 1);
}

/** Base of a name where none is given: what the type is called. */
QString typeName(qint64 type)
{
    const ElementTypeInfo *info = elementTypeInfo(type);
    return info ? info->name() : QString::number(type);
}

} // namespace

bool isUnitType(qint64 type) { return isOneOf(type, kUnitTypes); }

IHBXElement *HBXElements::createElement(qint64 type, qint64 subType, IHBXElement *parent, IHBXFloor *floor, int,
                                        const QString &name, int)
{
    HBXFloor *ownFloor = m_model.regions()->own(floor);
    HBXElement *owner = isUnitType(type) ? own(parent) : nullptr;
    const bool lacksOwner = isUnitType(type) && (!owner || isUnitType(owner->type()));
    if (!ownFloor || lacksOwner || !HBXPropertyCatalogue::instance().isKnownType(type))
        return nullptr;
    const bool mayShare = isUnitType(type) && !name.isEmpty();
    ElementRecord record;
    record.id = m_model.newId();
    record.type = type;
    record.subType = subType;
    record.name = mayShare ? name : freeName(*ownFloor, type, name);
    record.orderNumber = owner ? owner->nextOrderNumber() : 0;
    record.properties = firstProperties(type, subType);
    HBXElement &element = add(*ownFloor, owner, record);
    m_model.changes().elementChanged(element.id());
    if (owner)
        m_model.drawObjects()->addChildren(element);
    return &element;
}

IHBXElement *HBXElements::createElement(qint64 type, qint64 subType, IHBXFloor *floor, const QString &name)
{
    return createElement(type, subType, nullptr, floor, 0, name, 0);
}

IHBXElement *HBXElements::findElement(const QString &name, int floorId, qint64 type, bool, int)
{
    HBXElement *first = nullptr;
    HBXFloor *floor = m_model.regions()->floorById(floorId);
    if (!floor)
        return nullptr;
    floor->contents().forType(type, [&](HBXTypeContents &contents) {
        const auto named = contents.elementsByName.find(name);
        HBXElement *candidate = named == contents.elementsByName.end() ? nullptr : named->at(0);
        if (candidate && (!first || candidate->id() < first->id()))
            first = candidate;
    });
    return first;
}

void HBXElements::queryElements(QList<IHBXElement *> &out, const QSet<qint64> &floorIds,
                                const QSet<qint64> &elementTypes, bool)
{
    queryFloors(out, *m_model.regions(), floorIds, elementTypes, &HBXTypeContents::elements);
}

void HBXElements::queryElementsOnFloor(QList<IHBXElement *> &out, qint64 floorId, qint64 type, bool on)
{
    queryElements(out, {floorId}, {type}, on);
}

QString &HBXElements::uniqueName(QString &out, qint64 floorId, qint64 type, const QString &name)
{
    HBXFloor *floor = m_model.regions()->floorById(floorId);
    return out = floor ? freeName(*floor, type, name) : name;
}

bool HBXElements::isTaken(HBXFloor &floor, qint64 type, const QString &name) const
{
    bool isFound = false;
    floor.contents().forType(
        type, [&](const HBXTypeContents &contents) { isFound = isFound || contents.elementsByName.contains(name); });
    return isFound;
}

QString HBXElements::freeName(HBXFloor &floor, qint64 type, const QString &name) const
{
    QString base = name.isEmpty() ? typeName(type) : name;
    if (!isTaken(floor, type, base))
        return base;
    int fromFirst = 0; // a name for any type may become free in any of them
    int &suffix = type == kAnyType ? fromFirst : floor.contents().ofType(type).takenSuffixes[base];
    const auto candidate = [&] { return base + QLatin1Char('-') + QString::number(suffix + 1); };
    while (isTaken(floor, type, candidate()))
        ++suffix;
    return candidate();
}

QString HBXElements::refusalOf(const HBXElement &element, const QString &name) const
{
    if (name.isEmpty())
        return dwgx::Reason::tr("An element cannot have an empty name.");
    const bool isFree =
        name == element.ownName() || isUnitType(element.type()) || !isTaken(element.ownFloor(), element.type(), name);
    return isFree ? QString() : dwgx::Reason::tr("The floor has another element of the name \"%1\".").arg(name);
}

void HBXElements::rename(HBXElement &element, const QString &name)
{
    const QString refusal = refusalOf(element, name);
    if (!refusal.isEmpty()) {
        m_model.journal().add({JournalEntry::kWriteThrew, element.id(), element.ownName(), refusal});
        throw HBXModelException(refusal);
    }
    if (name == element.ownName())
        return;
    forgetName(element);
    element.restoreName(name);
    indexName(element);
    m_model.changes().elementChanged(element.id());
}

HBXElement &HBXElements::add(HBXFloor &floor, HBXElement *parent, const ElementRecord &record)
{
    HBXElement &added = m_byId.add(std::make_unique<HBXElement>(m_model, floor, parent, record));
    m_inOrder.insert(record.id, &added);
    floor.contents().ofType(record.type).elements.insert(record.id, &added);
    indexName(added);
    return added;
}

void HBXElements::indexName(HBXElement &element)
{
    HBXTypeContents &contents = element.ownFloor().contents().ofType(element.type());
    contents.elementsByName[element.ownName()].insert(element.id(), &element);
}

void HBXElements::forgetName(HBXElement &element)
{
    HBXTypeContents &contents = element.ownFloor().contents().ofType(element.type());
    const auto named = contents.elementsByName.find(element.ownName());
    named->remove(element.id());
    if (named->isEmpty())
        contents.elementsByName.erase(named);
    giveBackSuffix(contents.takenSuffixes, element.ownName());
}

void HBXElements::remove(HBXElement &element)
{
    for (HBXElement *unit : std::vector<HBXElement *>(element.units()))
        remove(*unit);
    for (HBXElementDrawObj *object : element.allDrawObjs().objects())
        m_model.drawObjects()->remove(*object);
    const qint64 id = element.id();
    m_model.journal().add({JournalEntry::kElementRemoved, id, element.ownName(), QString()});
    m_model.changes().elements.removed(id);
    element.leaveParent();
    forgetName(element);
    element.ownFloor().contents().ofType(element.type()).elements.remove(id);
    m_inOrder.remove(id);
    m_byId.destroy(id);
}

void HBXElements::clear()
{
    m_inOrder = {};
    m_byId.clear();
}

void HBXElements::load(const ElementRecord &record)
{
    HBXFloor *floor = m_model.regions()->floorById(record.floorId);
    HBXElement *parent = isUnitType(record.type) ? elementById(record.parentId) : nullptr;
    if (floor && !elementById(record.id)) {
        add(*floor, parent && !isUnitType(parent->type()) ? parent : nullptr, record);
        m_model.changes().elements.stored(record.id);
    }
}

} // namespace hbx::embedded
