#pragma once

#include "platform/embedded/HBXIdList.h"
#include "platform/embedded/HBXPlaceIndex.h"
#include "platform/services/HBXElementTypes.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <map>
#include <memory>

namespace hbx::embedded {

class HBXElement;
class HBXElementDrawObj;

/** What stands on a floor of one type. */
struct HBXTypeContents
{
    HBXIdList<HBXElement> elements;
    HBXIdList<HBXElementDrawObj> drawObjs; ///< entered ones
    QHash<QString, HBXIdList<HBXElement>> elementsByName;
    /** By wanted name: a suffix up to which all are taken. A name that becomes free lowers that of its own base. */
    QHash<QString, int> takenSuffixes;
    HBXPlaceIndex places; ///< of the draw objects
    /** Of bars, by the middles of their "CurveData": a slab or raft may have thousands in one outline. Null where there are
     *  none. */
    std::unique_ptr<HBXPlaceIndex> barMiddles;
};

/** Everything on a floor, by type: no query of a type looks at others. */
class HBXFloorContents
{
public:
    HBXTypeContents &ofType(qint64 type) { return m_types[type]; }
    /** Calls work with the contents of the type, or of all types for kAnyType. */
    template <typename Work> void forType(qint64 type, Work work)
    {
        if (type == kAnyType)
            for (auto &entry : m_types)
                work(entry.second);
        else if (const auto found = m_types.find(type); found != m_types.end())
            work(found->second);
    }
    /** The same for several types, each once. */
    template <typename Work> void forTypes(const QSet<qint64> &types, Work work)
    {
        if (types.contains(kAnyType))
            forType(kAnyType, work);
        else
            for (const qint64 type : types)
                forType(type, work);
    }

private:
    std::map<qint64, HBXTypeContents> m_types;
};

} // namespace hbx::embedded
