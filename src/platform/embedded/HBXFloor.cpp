#include "platform/embedded/HBXFloor.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXRegion.h"

#include <algorithm>
#include <vector>

namespace hbx::embedded {

HBXFloor::HBXFloor(HBXRegion &region, FloorRecord record) : m_region(region), m_record(std::move(record)) {}

IHBXRegion *HBXFloor::region() const { return &m_region; }

void HBXFloor::drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool)
{
    std::vector<const HBXIdList<HBXElementDrawObj> *> lists;
    m_contents.forTypes(types, [&lists](const HBXTypeContents &type) { lists.push_back(&type.drawObjs); });
    HBXIdList<HBXElementDrawObj>::merge(lists, out);
}

IHBXElementDrawObj *HBXFloor::findDrawObj(qint64 id, const QSet<qint64> &types)
{
    HBXElementDrawObj *found = nullptr;
    m_contents.forTypes(types, [&](const HBXTypeContents &type) {
        if (!found)
            found = type.drawObjs.find(id);
    });
    return found;
}

QList<IHBXElementDrawObj *> HBXFloor::drawObjsMeeting(const vks::CBox2<double> &box, double tolerance,
                                                      const QSet<qint64> &types)
{
    QList<IHBXElementDrawObj *> found;
    m_contents.forTypes(types, [&](HBXTypeContents &type) {
        for (HBXElementDrawObj *object : type.places.meeting(box, tolerance))
            found.append(object);
    });
    const auto isEarlier = [](const IHBXElementDrawObj *a, const IHBXElementDrawObj *b) { return a->id() < b->id(); };
    std::sort(found.begin(), found.end(), isEarlier);
    return found;
}

} // namespace hbx::embedded
