#include "platform/host/IHBXDrawObjs.h"

#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXShape.h"

#include <algorithm>

namespace {

bool liesIn(IHBXElementDrawObj &object, const vks::CBox2<double> &reach)
{
    vks::CBox2<double> box;
    const IHBXShape *shape = object.shape();
    return shape && shape->box(box, IHBXModel::g_bDefaultAutoCalc).Intersects(reach);
}

} // namespace

void IHBXDrawObjs::queryDrawObjsInBox(QList<IHBXElementDrawObj *> &out, int floorId, int elementType,
                                      const vks::CBox2<double> &box, double tolerance)
{
    out.clear();
    if (!box.IsValid())
        return;
    queryDrawObjsOfFloor(out, floorId, elementType, kAnySubType, true);
    const auto isElsewhere = [reach = box.Grown(tolerance)](IHBXElementDrawObj *object) {
        return !liesIn(*object, reach);
    };
    out.erase(std::remove_if(out.begin(), out.end(), isElsewhere), out.end());
}
