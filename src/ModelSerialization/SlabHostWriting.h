#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"

#include <QString>
#include <QUuid>

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
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

/** Removes what was made from the host again, on every way out, unless it was released. A host that throws keeps it. */
template <typename Made> class MadeGuard
{
public:
    /** Null is allowed. */
    explicit MadeGuard(Made *made) : m_made(made) {}
    ~MadeGuard()
    {
        try {
            if (m_made)
                m_made->remove();
        } catch (...) {
            // The way out may be another exception.
        }
    }
    MadeGuard(const MadeGuard &) = delete;
    MadeGuard &operator=(const MadeGuard &) = delete;

    Made *get() const { return m_made; }
    Made *release() { return std::exchange(m_made, nullptr); }

    /** Releases what was made if a test of it holds. @return its id then, which is asked first: behind the test nothing
     *  can fail */
    template <typename Test> std::optional<qint64> keptIf(const Test &test)
    {
        if (!m_made)
            return {};
        const qint64 id = m_made->id();
        if (!test(*m_made))
            return {};
        release();
        return id;
    }

private:
    Made *m_made;
};
using DrawObjGuard = MadeGuard<IHBXElementDrawObj>;
using DrawObjId = std::optional<qint64>; ///< of a draw object that came in; nothing for one that did not

/** A draw object of an element on the target's floor, not entered; null when the host makes none. */
IHBXElementDrawObj *createDrawObj(const SlabTarget &target, IHBXElement &element);
/** Makes a draw object of an element on the target's floor.
 *  @param fill  (IHBXElementDrawObj &) -> bool: fills it and enters it
 *  @return nothing when the host makes none or fill is false: nothing is left in the host then */
template <typename Fill> DrawObjId writeDrawObj(const SlabTarget &target, IHBXElement &element, const Fill &fill)
{
    return DrawObjGuard(createDrawObj(target, element)).keptIf(fill);
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
    std::function<bool(const IHBXProperties &)> matches;       ///< whether the element of that name may be shared
    std::function<void(IHBXElement &, IHBXProperties &)> fill; ///< gives a new element its properties
};

/** An element for a group. */
struct GroupElement
{
    qint64 id = -1; ///< -1: there is none
    bool created = false;
};

/** The element of that name and type on the floor if it matches, else a new one, whose name may have a suffix. None when the
 *  host refuses a step in its own way, HBXModelException. */
GroupElement elementFor(const SlabTarget &target, const ElementRule &rule);
/** The element of a group. One that an earlier group shared, and that went since that group put nothing in, is found or made
 *  anew; null for a group that has none, and when the host refuses to find it in its own way. */
IHBXElement *elementOf(const SlabTarget &target, GroupElement &group, const ElementRule &rule);
/** Runs a write and takes what the host refuses in its own way, HBXModelException, for its end. */
DrawObjId writtenOrNone(const std::function<DrawObjId()> &write);

/** The elements of groups. One that was made for a group and has no draw object when the group is done, or when it comes to
 *  nothing, is removed again. */
class GroupElements
{
public:
    explicit GroupElements(const SlabTarget &target) : m_target(target) {}
    ~GroupElements();
    GroupElements(const GroupElements &) = delete;
    GroupElements &operator=(const GroupElements &) = delete;

    void add(const ElementRule &rule);
    GroupElement &operator[](std::size_t group) { return m_elements[group]; }
    void done(std::size_t group);

private:
    const SlabTarget &m_target;
    std::vector<GroupElement> m_elements;
};

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
 *  @param write   (IHBXElement &, const Record &) -> DrawObjId */
template <typename Record, typename RuleOf, typename Write>
void writeGroups(const SlabTarget &target, const std::vector<std::vector<Record>> &groups, const RuleOf &ruleOf,
                 const Write &write)
{
    GroupElements elements(target);
    for (const auto &group : groups)
        elements.add(ruleOf(group));
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (IHBXElement *element = elementOf(target, elements[i], ruleOf(groups[i])))
            for (const Record &record : groups[i])
                if (const DrawObjId id = writtenOrNone([&] { return write(*element, record); }))
                    target.ids.insert_or_assign(target.ids.end(), *id, record.id);
        elements.done(i);
    }
}

} // namespace slabhost
