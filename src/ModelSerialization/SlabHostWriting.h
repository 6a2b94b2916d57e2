#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"

#include <QString>
#include <QUuid>

#include <cstddef>
#include <functional>
#include <map>
#include <utility>
#include <vector>

class IHBXCurState;
class IHBXFloor;
class IHBXModel;
class IHBXProperties;

/** The steps that all writers of slabs, holes and bars take in the host. */
namespace slabhost {

/** Which draw object of the host stands for which element of the local model. */
using IdMap = std::map<qint64, QUuid>;

/** Where a writer writes. */
struct SlabTarget
{
    IHBXModel &model;
    IHBXCurState *state; ///< may be null
    IHBXFloor &floor;
    IdMap &ids; ///< receives what was written
};

// ---- Draw objects

/** Removes a new draw object from the host again, on every way out, unless it was released. */
class DrawObjGuard
{
public:
    /** Null is allowed. */
    explicit DrawObjGuard(IHBXElementDrawObj *object) : m_object(object) {}
    ~DrawObjGuard()
    {
        if (m_object)
            m_object->remove();
    }
    DrawObjGuard(const DrawObjGuard &) = delete;
    DrawObjGuard &operator=(const DrawObjGuard &) = delete;

    IHBXElementDrawObj *get() const { return m_object; }
    IHBXElementDrawObj *release() { return std::exchange(m_object, nullptr); }

private:
    IHBXElementDrawObj *m_object;
};

/** A draw object of an element on the target's floor, not entered; null when the host makes none. */
IHBXElementDrawObj *createDrawObj(const SlabTarget &target, IHBXElement &element);
/** Makes a draw object of an element on the target's floor.
 *  @param fill  (IHBXElementDrawObj &) -> bool: fills it and enters it
 *  @return null when the host makes none or fill is false: nothing is left in the host then */
template <typename Fill>
IHBXElementDrawObj *writeDrawObj(const SlabTarget &target, IHBXElement &element, const Fill &fill)
{
    DrawObjGuard made(createDrawObj(target, element));
    return made.get() && fill(*made.get()) ? made.release() : nullptr;
}
/** The verdict of the host's check; its reasons are dropped. */
bool passesCheck(const SlabTarget &target, IHBXElementDrawObj &object);

// ---- Elements

/** Makes an element of the first of name, name-1, name-2, … that no element of the type has on the floor. Null when the
 *  host makes none or refuses the name; nothing is left in the host then. */
ORVCADMODELDATA_EXPORT IHBXElement *buildOneHBXElement(IHBXModel *model, IHBXFloor *floor, const QString &name,
                                                       int type, int subType);

/** Which element the records of a group share. */
struct ElementRule
{
    qint64 type;
    qint64 subType;
    QString name;
    std::function<bool(const IHBXProperties &)> matches; ///< whether the element of that name may be shared
    std::function<void(IHBXElement &)> fill;             ///< gives a new element its properties
};

/** An element for a group. */
struct GroupElement
{
    qint64 id = -1; ///< -1: there is none
    bool created = false;
};

/** The element of that name and type on the floor if it matches, else a new one, whose name may have a suffix. */
GroupElement elementFor(const SlabTarget &target, const ElementRule &rule);
/** The element of a group. One that an earlier group shared, and that went since that group put nothing in, is found or made
 *  anew; null for a group that has none. */
IHBXElement *elementOf(const SlabTarget &target, GroupElement &group, const ElementRule &rule);
/** Runs a write and takes what the host refuses in its own way, HBXModelException, for its end. */
IHBXElementDrawObj *writtenOrNull(const std::function<IHBXElementDrawObj *()> &write);

/** Parts records by a key, in the order in which they come. */
template <typename Record, typename KeyOf>
std::vector<std::vector<Record>> grouped(std::vector<Record> records, const KeyOf &keyOf)
{
    std::map<decltype(keyOf(records.front())), std::size_t> places;
    std::vector<std::vector<Record>> groups;
    for (Record &record : records) {
        const auto [place, isNew] = places.emplace(keyOf(record), groups.size());
        if (isNew)
            groups.emplace_back();
        groups[place->second].push_back(std::move(record));
    }
    return groups;
}

/** Writes groups of records. First each group gets its element, then each record its draw object; records of a group
 *  whose element cannot be made are left out. Each draw object that was made goes into the target's ids. An element that
 *  was made for a group and got no draw object is removed again.
 *  @param ruleOf  (const std::vector<Record> &) -> ElementRule
 *  @param write   (IHBXElement &, const Record &) -> IHBXElementDrawObj *, null for a record that did not come in */
template <typename Record, typename RuleOf, typename Write>
void writeGroups(const SlabTarget &target, const std::vector<std::vector<Record>> &groups, const RuleOf &ruleOf,
                 const Write &write)
{
    std::vector<GroupElement> elements;
    elements.reserve(groups.size());
    for (const auto &group : groups)
        elements.push_back(elementFor(target, ruleOf(group)));
    for (std::size_t i = 0; i < groups.size(); ++i) {
        IHBXElement *element = elementOf(target, elements[i], ruleOf(groups[i]));
        if (!element)
            continue;
        for (const Record &record : groups[i])
            if (const auto *object = writtenOrNull([&] { return write(*element, record); }))
                target.ids[object->id()] = record.id;
        if (elements[i].created && element->drawObjCount() == 0)
            element->remove();
    }
}

} // namespace slabhost
