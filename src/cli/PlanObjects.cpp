#include "cli/PlanObjects.h"

#include "platform/geometry/OrientProjectCurve2d.h"
#include "platform/host/IHBXAxisGrid.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"
#include "platform/services/SlabElevations.h"

#include <memory>

namespace orvcad {

namespace {

namespace type = hbx::type;

constexpr qint64 kBars[] = {type::slabBar, type::slabNegativeBar, type::raftBar, type::raftNegativeBar};
const QString kTopElev = QString::fromStdWString(hbx::property::topElev);
constexpr qint64 kPlates[] = {type::slab, type::raft};

vks::CRefPtr<vks::CCurve2d> toPlan(IHBXShape &shape, const vks::CCurve2d *curve)
{
    vks::CCoord3<double> frame;
    shape.coordinates(frame, IHBXModel::g_bDefaultAutoCalc);
    return vks::OrientProjectCurve2d(frame, curve, vks::CCoord3<double>(), {0, 0, 1}, true);
}

std::vector<PlanObject::Axis> axesOf(IHBXElementDrawObj &object)
{
    std::vector<PlanObject::Axis> lines;
    const std::unique_ptr<IHBXAxisGrid> grid(IHBXAxisGrid::createFromObj(&object));
    if (!grid)
        return lines;
    grid->prepare();
    for (int group = 0; group < IHBXAxisGrid::kGroupCount; ++group) {
        std::vector<HBXAxis> axes;
        grid->axes(axes, group);
        for (const HBXAxis &axis : axes)
            for (const auto &curve : axis.curves)
                if (auto line = toPlan(*object.shape(), curve))
                    lines.push_back({axis.label, line});
    }
    return lines;
}

void readBar(IHBXElementDrawObj &object, PlanObject &placed)
{
    const IHBXProperties *properties = object.properties();
    if (!properties)
        return;
    properties->asCurve(placed.bar, hbx::property::curveData);
    properties->asString(placed.barText, hbx::property::barInfo);
}

} // namespace

vks::CBox2<double> PlanObject::box() const
{
    vks::CBox2<double> box;
    if (outline)
        box.Add(outline->Box());
    if (curve)
        box.Add(curve->Box());
    if (bar)
        box.Add(bar->Box());
    for (const Axis &axis : axes)
        box.Add(axis.line->Box());
    return box;
}

PlanObject planObjectOf(IHBXElementDrawObj &object)
{
    PlanObject placed;
    placed.object = &object;
    IHBXShape *shape = object.shape();
    if (!shape)
        return placed;
    placed.axes = axesOf(object);
    if (auto *planLine = dynamic_cast<IHBXLineShape2D *>(shape)) {
        vks::CRefPtr<vks::CCurve2d> curve;
        placed.curve = toPlan(*shape, planLine->curve(curve));
    } else if (placed.axes.empty()) {
        shape->worldPoly(placed.outline, IHBXModel::g_bDefaultAutoCalc);
    }
    if (hbx::isOneOf(object.type(), kBars))
        readBar(object, placed);
    if (placed.outline && hbx::isOneOf(object.type(), kPlates))
        placed.topElev = getSlabElev(&object, kTopElev);
    return placed;
}

} // namespace orvcad
