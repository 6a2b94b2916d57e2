#include "platform/embedded/HBXChangeLog.h"

namespace hbx::embedded {

void HBXChangedIds::removed(qint64 id)
{
    m_changed.erase(id);
    if (m_stored.erase(id))
        m_removed.insert(id);
}

void HBXChangedIds::take(std::vector<qint64> &changedIds, std::vector<qint64> &removedIds)
{
    changedIds = m_changed.ascending();
    removedIds = m_removed.ascending();
    for (const qint64 id : changedIds)
        m_stored.insert(id);
    m_changed.clear();
    m_removed.clear();
}

void HBXChangedIds::giveBack(const std::vector<qint64> &changedIds, const std::vector<qint64> &removedIds)
{
    for (const qint64 id : changedIds)
        if (!m_removed.contains(id))
            m_changed.insert(id);
    for (const qint64 id : removedIds)
        m_removed.insert(id);
}

void HBXChangedIds::clear() { *this = HBXChangedIds(); }

} // namespace hbx::embedded
