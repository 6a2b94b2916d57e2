#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXIdSet.h"

#include <QtGlobal>

#include <vector>

namespace hbx::embedded {

/** Which objects of one kind differ from what the store holds. */
class ORVCADPLATFORM_EXPORT HBXChangedIds
{
public:
    void changed(qint64 id) { m_changed.insert(id); }
    /** An object that the store never had leaves no trace. */
    void removed(qint64 id);
    /** The store has an object from now on: one that was loaded. */
    void stored(qint64 id) { m_stored.insert(id); }

    /** Moves the ids out, ascending; the store has all changed ones then. */
    void take(std::vector<qint64> &changedIds, std::vector<qint64> &removedIds);
    /** Puts ids back that take() gave; one that was removed since stays removed. */
    void giveBack(const std::vector<qint64> &changedIds, const std::vector<qint64> &removedIds);
    void clear();

private:
    HBXIdSet m_changed;
    HBXIdSet m_removed;
    HBXIdSet m_stored;
};

/** What differs from the last save, as the objects report it. */
class HBXChangeLog
{
public:
    void elementChanged(qint64 id) { elements.changed(id); }
    void drawObjChanged(qint64 id) { drawObjs.changed(id); }

    HBXChangedIds elements;
    HBXChangedIds drawObjs; ///< entered ones
};

} // namespace hbx::embedded
