#pragma once

#include "cli/SlabReadBack.h"
#include "cli/SlabReplyCheck.h"

#include <QSet>
#include <QString>
#include <QUuid>

#include <map>
#include <vector>

class IHBXFloor;

namespace dwgx {
class DWGXBaseBoxTree;
}

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** Writes checked members of a reply into a floor of the host, and finds out why those that do not come in do not: the
 *  library says nothing, so each of them is given to the host once more, alone, and the host's journal is read. */
class SlabWriter
{
public:
    using Members = std::vector<const SlabReplyCheck::Member *>;
    using IdMap = std::map<qint64, QUuid>;

    /** The floor has to be the current one of the project. */
    SlabWriter(hbx::embedded::HBXProject &project, IHBXFloor &floor) : m_project(project), m_floor(floor) {}

    /** @param under  element types that bars are linked with; what has come in before counts */
    void write(const Members &members, const QSet<qint64> &under);

    /** Draw objects, and the identities of their members in the reply. */
    const IdMap &ids() const { return m_ids; }
    /** Draw objects, and the members that they were made of. */
    const SlabsMade &made() const { return m_membersMade; }
    /** Members that came in, by array. */
    int madeOf(const SlabArray &array) const;
    const std::vector<LeftOut> &leftOut() const { return m_leftOut; }

private:
    /** @return members that did not come in */
    Members run(const Members &members, dwgx::DWGXBaseBoxTree &slabs);
    void runAlone(const SlabReplyCheck::Member &member, dwgx::DWGXBaseBoxTree &slabs);

    hbx::embedded::HBXProject &m_project;
    IHBXFloor &m_floor;
    IdMap m_ids;
    SlabsMade m_membersMade;
    std::map<const SlabArray *, int> m_made;
    std::vector<LeftOut> m_leftOut;
};

} // namespace orvcad
