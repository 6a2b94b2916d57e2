#include "platform/embedded/HBXChangeLog.h"

#include <algorithm>
#include <utility>

namespace hbx::embedded {
namespace {

std::vector<qint64> sorted(const std::unordered_set<qint64> &ids)
{
    std::vector<qint64> ascending(ids.begin(), ids.end());
    std::sort(ascending.begin(), ascending.end());
    return ascending;
}

} // namespace

void HBXChangedIds::removed(qint64 id)
{
    m_changed.erase(id);
    if (m_stored.erase(id) > 0)
        m_removed.insert(id);
}

void HBXChangedIds::take(std::vector<qint64> &changedIds, std::vector<qint64> &removedIds)
{
    changedIds = sorted(m_changed);
    removedIds = sorted(m_removed);
    m_stored.insert(m_changed.begin(), m_changed.end());
    m_changed.clear();
    m_removed.clear();
}

void HBXChangedIds::giveBack(const std::vector<qint64> &changedIds, const std::vector<qint64> &removedIds)
{
    for (const qint64 id : changedIds)
        if (m_removed.count(id) == 0)
            m_changed.insert(id);
    m_removed.insert(removedIds.begin(), removedIds.end());
}

void HBXChangedIds::clear() { *this = HBXChangedIds(); }

} // namespace hbx::embedded
