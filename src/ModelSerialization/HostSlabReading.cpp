#include "ModelSerialization/HostSlabReading.h"

#include "ModelSerialization/HostSlabValues.h"
#include "ModelSerialization/SlabHostKeys.h"
#include "platform/host/IHBXAxisGrid.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "platform/host/IHBXFaceSolidShape.h"
#include "platform/host/IHBXModel.h"

namespace slabhost {
namespace {

double thicknessOf(IHBXElementDrawObj &object)
{
    const auto *shape = dynamic_cast<const IHBXFaceSolidShape *>(object.shape());
    return shape ? -shape->height() : 0.0; // plates hang down from their top
}

/** What slabs and rafts have in common. */
template <typename Plate> void readPlate(IHBXElementDrawObj &object, const HostSlabValues &values, Plate &plate)
{
    plate.surface = outlineOf<IHBXFaceSolidShape>(object);
    plate.thickness = thicknessOf(object);
    plate.stateDescript = values.text(property::remark);
}

void readStrip(IHBXElementDrawObj &object, Local::Support &support)
{
    const auto *shape = dynamic_cast<const IHBXCustomLineSolidShape *>(object.shape());
    if (!shape)
        return;
    CurvePtr axis;
    if (shape->worldLine(axis, IHBXModel::g_bDefaultAutoCalc))
        support.line = axis->Clone();
    support.width = shape->width(IHBXModel::g_bDefaultAutoCalc);
    support.distanceToLeft = shape->distanceToLeft();
}

// ---- Axis nets

/** The groups of axes of one direction; the second counts where the first is empty. */
struct AxisGroups
{
    int first;
    int second;
};
constexpr AxisGroups kGroupsU{0, 1};
constexpr AxisGroups kGroupsV{2, 3};

std::vector<HBXAxis> axesOf(const IHBXAxisGrid &grid, AxisGroups groups)
{
    std::vector<HBXAxis> axes;
    grid.axes(axes, groups.first);
    if (axes.empty())
        grid.axes(axes, groups.second);
    return axes;
}

void readHalf(const std::vector<HBXAxis> &axes, const vks::CCoord3<double> &frame, AxisGridHalf &half)
{
    for (const HBXAxis &axis : axes)
        half.data.emplace_back(axis.label, axis.curves.empty() ? nullptr : curveInPlan(frame, axis.curves.front()));
    if (!axes.empty()) {
        half.start = axes.front().label;
        half.end = axes.back().label;
    }
}

} // namespace

void read(IHBXElementDrawObj &object, Local::Raft &raft)
{
    const HostSlabValues values(object);
    readPlate(object, values, raft);
    raft.topElev = values.metres(property::topElev);
    raft.bottomElev = values.metres(property::bottomElev);
}

void read(IHBXElementDrawObj &object, Local::Board &board)
{
    const HostSlabValues values(object);
    readPlate(object, values, board);
    board.elev = values.metres(property::topElev);
}

void read(IHBXElementDrawObj &object, Local::BoardHole &hole)
{
    const HostSlabValues values(object);
    hole.surface = outlineOf<IHBXCustomPointSolidShape, IHBXFaceSolidShape>(object);
    hole.longSpanReinforceBar = values.text(property::longSpanReinforcedBar);
    hole.shortSpanReinforceBar = values.text(property::shortSpanReinforcedBar);
    hole.obliqueReinforceBar = values.text(property::obliqueReinforcedBar);
    hole.stateDescript = values.text(property::remark);
}

void read(IHBXElementDrawObj &object, Local::Column &column)
{
    column.surface = outlineOf<IHBXFaceSolidShape, IHBXCustomPointSolidShape>(object);
    column.topElev = HostSlabValues(object).number(property::topElev);
}

void read(IHBXElementDrawObj &object, Local::Beam &beam)
{
    const HostSlabValues values(object);
    readStrip(object, beam);
    beam.startTopElev = values.number(property::startPtTopElev);
    beam.endTopElev = values.number(property::endPtTopElev);
}

void read(IHBXElementDrawObj &object, Local::Wall &wall)
{
    const HostSlabValues values(object);
    readStrip(object, wall);
    wall.wallStartTopElev = values.number(property::startPtTopElev);
    wall.wallEndTopElev = values.number(property::endPtTopElev);
}

void read(IHBXElementDrawObj &object, Local::AxisNet &net)
{
    net.stateDescript = HostSlabValues(object).text(property::remark);
    const std::unique_ptr<IHBXAxisGrid> grid(IHBXAxisGrid::createFromObj(&object));
    const IHBXShape *shape = object.shape();
    if (!grid || !shape)
        return;
    grid->prepare();
    vks::CCoord3<double> frame;
    shape->coordinates(frame, IHBXModel::g_bDefaultAutoCalc);
    if (const PolygonPtr outline = hbx::worldOutline(shape))
        net.surface = outline->Clone();
    net.axisGrid = std::make_shared<AxisGrid_Sample>();
    net.axisGrid->gridV.direction = 1; // that of U stays 0
    readHalf(axesOf(*grid, kGroupsU), frame, net.axisGrid->gridU);
    readHalf(axesOf(*grid, kGroupsV), frame, net.axisGrid->gridV);
}

} // namespace slabhost
