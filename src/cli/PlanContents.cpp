#include "cli/PlanContents.h"

#include "cli/PlanStyle.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>

namespace orvcad {

namespace {

void add(const PlanObject &placed, PlanContents &contents)
{
    contents.box.Add(placed.box());
    contents.objects.push_back(placed);
    const qint64 type = placed.object->type();
    if (placed.topElev)
        contents.shades[type].add(*placed.topElev);
    PlanLegend::Entry &entry = contents.entries[planOrder(type)];
    entry = {type, entry.number + 1, entry.hasArea || placed.outline};
}

} // namespace

PlanContents planContentsOf(IHBXModel &model, const IHBXFloor &floor)
{
    QList<IHBXElementDrawObj *> objects;
    model.drawObjects()->queryDrawObjsOfFloor(objects, floor.id(), hbx::kAnyType, IHBXDrawObjs::kAnySubType, true);
    std::stable_sort(objects.begin(), objects.end(),
                     [](const auto *a, const auto *b) { return planOrder(a->type()) < planOrder(b->type()); });
    PlanContents contents;
    for (IHBXElementDrawObj *object : qAsConst(objects)) {
        const PlanObject placed = planObjectOf(*object);
        if (placed.hasGeometry())
            add(placed, contents);
        else
            ++contents.withoutGeometry;
    }
    return contents;
}

} // namespace orvcad
