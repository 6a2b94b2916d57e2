#include "MemoryModel.h"

#include <platform/host/IHBXShape.h>

#include <algorithm>
#include <iterator>

namespace {

// Units of foundations (82, 83) and what else this host does not know is not made.
const QSet<qint64> kTypes = {0, 1, 4, 5, 6, 7, 15, 17, 18, 19, 22, 23, 24, 25, 47, 48, 52, 74, 202, 1001, 1002, 1003};

template <typename Object> Object *findIn(const std::map<qint64, std::unique_ptr<Object>> &objects, qint64 id)
{
    const auto found = objects.find(id);
    return found == objects.end() ? nullptr : found->second.get();
}

template <typename Object> Object *atOrNull(const QList<Object *> &objects, int position)
{
    return position >= 0 && position < objects.size() ? objects[position] : nullptr;
}

bool isAny(int subType) { return subType == IHBXDrawObjs::kAnySubType || subType == IHBXDrawObjs::kAnySubType16; }

} // namespace

// ---- Elements

bool MemoryElements::isTaken(qint64 floorId, qint64 type, const QString &name) const
{
    return std::any_of(m_elements.begin(), m_elements.end(), [&](const auto &entry) {
        const MemoryElement &element = *entry.second;
        return element.type() == type && element.floor()->id() == floorId && element.nameText() == name;
    });
}

IHBXElement *MemoryElements::createElement(qint64 type, qint64 subType, IHBXElement *, IHBXFloor *floor, int,
                                           const QString &name, int)
{
    if (!floor || !kTypes.contains(type))
        return nullptr;
    QString free;
    uniqueName(free, floor->id(), type, name.isEmpty() ? QStringLiteral("E") : name);
    const qint64 id = m_model.nextId();
    return (m_elements[id] = std::make_unique<MemoryElement>(m_model, id, type, subType, *floor, free)).get();
}

IHBXElement *MemoryElements::createElement(qint64 type, qint64 subType, IHBXFloor *floor, const QString &name)
{
    return createElement(type, subType, nullptr, floor, 0, name, 0);
}

IHBXElement *MemoryElements::elementById(qint64 id) { return findIn(m_elements, id); }

IHBXElement *MemoryElements::findElement(const QString &name, int floorId, qint64 type, bool, int)
{
    QList<IHBXElement *> found;
    query(found, [&](const MemoryElement &element) {
        return element.nameText() == name && element.floor()->id() == floorId && (type == -1 || element.type() == type);
    });
    return atOrNull(found, 0);
}

void MemoryElements::queryElements(QList<IHBXElement *> &out, const QSet<qint64> &floorIds,
                                   const QSet<qint64> &elementTypes, bool)
{
    query(out, [&](const MemoryElement &element) {
        return floorIds.contains(element.floor()->id()) && elementTypes.contains(element.type());
    });
}

void MemoryElements::queryElementsOnFloor(QList<IHBXElement *> &out, qint64 floorId, qint64 type, bool)
{
    query(out, [&](const MemoryElement &element) {
        return element.floor()->id() == floorId && (type == -1 || element.type() == type);
    });
}

QString &MemoryElements::uniqueName(QString &out, qint64 floorId, qint64 type, const QString &name)
{
    QString free = name;
    for (int suffix = 1; isTaken(floorId, type, free); ++suffix)
        free = name + QLatin1Char('-') + QString::number(suffix);
    return out = free;
}

IHBXElement *MemoryElements::at(int position)
{
    QList<IHBXElement *> all;
    query(all, [](const MemoryElement &) { return true; });
    return atOrNull(all, position);
}

template <typename Test> void MemoryElements::query(QList<IHBXElement *> &out, const Test &test) const
{
    out.clear();
    for (const auto &[id, element] : m_elements)
        if (test(*element))
            out.append(element.get());
}

// ---- Draw objects

MemoryObject &MemoryDrawObjs::make(MemoryElement &element, IHBXFloor &floor)
{
    const qint64 id = m_model.nextId();
    return *(m_objects[id] = std::make_unique<MemoryObject>(m_model, id, element, floor));
}

void MemoryDrawObjs::eraseOf(const MemoryElement &element)
{
    QList<MemoryObject *> ofElement;
    for (const auto &[id, object] : m_objects)
        if (object->element() == &element)
            ofElement.append(object.get());
    for (MemoryObject *object : qAsConst(ofElement))
        object->remove();
}

void MemoryDrawObjs::detachFrom(const MemoryObject &parent)
{
    for (const auto &[id, object] : m_objects)
        if (object->parent() == &parent)
            object->attachTo(nullptr);
}

void MemoryDrawObjs::queryOf(QList<IHBXElementDrawObj *> &out, const IHBXElement &element) const
{
    query(out, [&](const MemoryObject &object) { return object.element() == &element; });
}

IHBXElementDrawObj *MemoryDrawObjs::createDrawObj(IHBXFloor *floor, IHBXElement *element, bool)
{
    auto *own = dynamic_cast<MemoryElement *>(element);
    return floor && own ? &make(*own, *floor) : nullptr;
}

void MemoryDrawObjs::addDrawObj(IHBXElementDrawObj *drawObj)
{
    if (auto *own = dynamic_cast<MemoryObject *>(drawObj))
        own->enter();
}

IHBXElementDrawObj *MemoryDrawObjs::drawObjById(qint64 id) { return findIn(m_objects, id); }

void MemoryDrawObjs::queryDrawObjs(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &floorIds,
                                   const QSet<qint64> &elementTypes, bool)
{
    query(out, [&](const MemoryObject &object) {
        return floorIds.contains(object.floor()->id()) && elementTypes.contains(object.type());
    });
}

void MemoryDrawObjs::queryDrawObjsOfFloor(QList<IHBXElementDrawObj *> &out, int floorId, int elementType, int subType,
                                          bool)
{
    query(out, [&](const MemoryObject &object) {
        return object.floor()->id() == floorId && object.type() == elementType &&
               (isAny(subType) || object.subType() == subType);
    });
}

int MemoryDrawObjs::count() const
{
    QList<IHBXElementDrawObj *> all;
    query(all, [](const MemoryObject &) { return true; });
    return all.size();
}

IHBXElementDrawObj *MemoryDrawObjs::at(int position)
{
    QList<IHBXElementDrawObj *> all;
    query(all, [](const MemoryObject &) { return true; });
    return atOrNull(all, position);
}

template <typename Test> void MemoryDrawObjs::query(QList<IHBXElementDrawObj *> &out, const Test &test) const
{
    out.clear();
    for (const auto &[id, object] : m_objects)
        if (object->isEntered() && test(*object))
            out.append(object.get());
}

// ---- The rest

bool MemoryCheck::checkDrawObj(IHBXElementDrawObj *drawObj, HBXCheckError &error, std::map<qint64, QString> &collisions)
{
    error.reason.clear();
    collisions.clear();
    vks::CBox2<double> box;
    const IHBXShape *shape = drawObj ? drawObj->shape() : nullptr;
    if (shape && shape->box(box, true).IsValid())
        return true;
    error.reason = QStringLiteral("it has no geometry");
    return false;
}

MemoryFloor &MemoryModel::addFloor(MemoryRegion &region, const FloorPlan &plan)
{
    return region.addFloor(static_cast<int>(nextId()), plan, *this);
}
