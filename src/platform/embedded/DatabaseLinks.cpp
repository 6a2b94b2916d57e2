#include "platform/embedded/DatabaseLinks.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/ChainRing.h"
#include "platform/embedded/DatabaseRefusal.h"
#include "platform/embedded/HBXProjectRecords.h"

#include <QSet>

#include <algorithm>

namespace hbx::embedded {
namespace {

[[noreturn]] void refuse(const char *table, qint64 id, const char *column, const QString &reason)
{
    throw DatabaseRefusal{QStringLiteral("%1[id=%2].%3").arg(QLatin1String(table)).arg(id).arg(QLatin1String(column)),
                          reason};
}

/** The record of an id in a list in id order; null when there is none. */
template <typename Record> const Record *find(const std::vector<Record> &records, qint64 id)
{
    const auto found = std::lower_bound(records.begin(), records.end(), id,
                                        [](const Record &record, qint64 wanted) { return record.id < wanted; });
    return found != records.end() && found->id == id ? &*found : nullptr;
}

class LinkCheck
{
public:
    explicit LinkCheck(const ProjectRecord &project) : m_project(project) {}

    void run()
    {
        checkIds("region", m_project.regions);
        checkIds("floor", m_project.floors);
        checkIds("element", m_project.elements);
        checkIds("draw_object", m_project.drawObjs);
        for (const FloorRecord &floor : m_project.floors)
            require(find(m_project.regions, floor.regionId), "floor", floor.id, "region_id");
        for (const ElementRecord &element : m_project.elements)
            checkElement(element);
        for (const DrawObjRecord &drawObj : m_project.drawObjs)
            checkDrawObj(drawObj);
        checkChains();
    }

private:
    template <typename Record> void checkIds(const char *table, const std::vector<Record> &records)
    {
        for (const Record &record : records) {
            if (record.id < 1 || record.id >= m_project.nextId)
                refuse(table, record.id, "id", dwgx::Reason::tr("was never given out"));
            if (m_ids.contains(record.id))
                refuse(table, record.id, "id", dwgx::Reason::tr("stands twice in the project"));
            m_ids.insert(record.id);
        }
    }

    static void require(bool isGood, const char *table, qint64 id, const char *column)
    {
        if (!isGood)
            refuse(table, id, column, dwgx::Reason::tr("names nothing that fits"));
    }

    void checkElement(const ElementRecord &element) const
    {
        require(find(m_project.floors, element.floorId), "element", element.id, "floor_id");
        if (element.parentId == 0)
            return;
        const ElementRecord *parent = find(m_project.elements, element.parentId);
        require(parent && parent->parentId == 0 && parent->floorId == element.floorId, "element", element.id,
                "parent_id");
    }

    void checkDrawObj(const DrawObjRecord &drawObj)
    {
        const ElementRecord *element = find(m_project.elements, drawObj.elementId);
        require(element, "draw_object", drawObj.id, "element_id");
        if (drawObj.attachedTo != 0)
            require(find(m_project.drawObjs, drawObj.attachedTo), "draw_object", drawObj.id, "attached_to");
        if (drawObj.owner != 0) {
            const DrawObjRecord *owner = find(m_project.drawObjs, drawObj.owner);
            require(owner && owner->owner == 0 && element->parentId == owner->elementId, "draw_object", drawObj.id,
                    "owner_id");
        }
        if (drawObj.next == 0)
            return;
        const bool isFree = !m_followed.contains(drawObj.next);
        require(isFree && find(m_project.drawObjs, drawObj.next), "draw_object", drawObj.id, "next_id");
        m_followed.insert(drawObj.next);
    }

    void checkChains() const
    {
        std::vector<int> next;
        for (const DrawObjRecord &drawObj : m_project.drawObjs)
            next.push_back(drawObj.next == 0 ? -1 : placeOf(drawObj.next));
        if (const auto place = firstInRing(next))
            refuse("draw_object", m_project.drawObjs[*place].id, "next_id", dwgx::Reason::tr(kClosesRing));
    }

    /** Place of an object that is known to be there. */
    int placeOf(qint64 drawObjId) const
    {
        return static_cast<int>(find(m_project.drawObjs, drawObjId) - m_project.drawObjs.data());
    }

    const ProjectRecord &m_project;
    QSet<qint64> m_ids;
    QSet<qint64> m_followed;
};

} // namespace

void checkLinks(const ProjectRecord &project) { LinkCheck(project).run(); }

} // namespace hbx::embedded
