#include "platform/embedded/HBXFloor.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXRegion.h"

namespace hbx::embedded {

HBXFloor::HBXFloor(HBXRegion &region, FloorRecord record) : m_region(region), m_record(std::move(record)) {}

IHBXRegion *HBXFloor::region() const { return &m_region; }

void HBXFloor::drawObjsOfTypes(QList<IHBXElementDrawObj *> &out, const QSet<qint64> &types, bool)
{
    out.clear();
    m_contents.forTypes(types, [&out](HBXTypeContents &type) { addTo(out, type.drawObjs); });
    sortById(out);
}

} // namespace hbx::embedded
