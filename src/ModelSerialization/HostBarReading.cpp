#include "ModelSerialization/HostBarReading.h"

#include "ModelSerialization/HostSlabValues.h"
#include "ModelSerialization/SlabHostKeys.h"
#include "platform/geometry/KernelTolerance.h"
#include "platform/geometry/PolygonRepair.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXFaceShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/services/HbxRelation.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace slabhost {
namespace {

constexpr double kRepairDistance = 1.0;                  // mm
constexpr double kRepairAngle = 0.001;                   // rad
constexpr double kNoPointSquare = 4.930380657631324e-32; // mm²: a point that near to the origin is none
constexpr double kLabelDifference = 0.5;                 // mm: labels that differ by more tell the sides apart
constexpr int kLeft = 1;                                 // of hbx::pointSegSide

int keptOr(int value, std::initializer_list<int> kept, int other)
{
    return std::find(kept.begin(), kept.end(), value) != kept.end() ? value : other;
}

template <typename Bar> void readTexts(const HostSlabValues &values, Bar &bar)
{
    bar.leftHookLength = values.hook(property::leftHook);
    bar.rightHookLength = values.hook(property::rightHook);
    bar.barInfo = values.text(property::barInfo);
    bar.stateDescript = values.text(property::remark);
}

template <typename Bar> void readDistribution(const HostSlabValues &values, Bar &bar)
{
    bar.distributeBarInfo = values.text(property::distributedBar);
    bar.saddleBarlineCount = values.text(property::saddleBarLineCount);
}

template <typename Bar> void readLabels(const HostSlabValues &values, Bar &bar)
{
    bar.leftStretchLength = values.integer(property::leftLabel);
    bar.rightStretchLength = values.integer(property::rightLabel);
}

// ---- Area bars

void readArea(IHBXElementDrawObj &object, const HostSlabValues &values, Local::AbstractForcedBar &bar)
{
    constexpr int directed = 1;
    bar.surface = vks::PolygonRepair(outlineOf<IHBXFaceShape2D>(object), kRepairDistance, kRepairAngle, directed);
    if (const CurvePtr drawn = values.curve(property::curveData)) {
        bar.direction = drawn->EndVt();
        bar.refPoint = drawn->EndPoint();
        bar.refPointValid = bar.refPoint.SqrLength() > kNoPointSquare;
    }
    readTexts(values, bar);
}

template <typename Bar> void readStraddlingLabels(const HostSlabValues &values, Bar &bar)
{
    constexpr int otherwise = 2;
    readLabels(values, bar);
    bar.labelPosition = keptOr(values.integer(property::labelPosition), {0, 1, 3}, otherwise);
}

/** The outline of the slab that a link names, the host's own; null when there is none. */
PolygonPtr linkedOutline(IHBXModel &model, const HostSlabLinks &links, int item)
{
    IHBXElementDrawObj *slab = model.drawObjects()->drawObjById(links.id(item));
    return slab ? hbx::worldOutline(slab->shape()) : nullptr;
}

// ---- Line bars

int labelPositionOf(const HostSlabValues &values, double leftStretch, double rightStretch)
{
    constexpr int otherwise = 2;
    constexpr int withinSupport = 5;
    constexpr int supportCounts = 2; // of "IncludeSupport"
    if (leftStretch == 0.0 || rightStretch == 0.0)
        return keptOr(values.integer(property::labelPosition), {0, 1, 2, 3, 4}, otherwise);
    return values.integer(property::includeSupport) == supportCounts ? withinSupport : otherwise;
}

/** Whether the drawn bar starts on the other side of its line than it should. */
bool runsBackwards(const vks::CCurve2d *line, const vks::CCurve2d *drawn)
{
    return line && drawn && hbx::pointSegSide(drawn->StartPoint(), line, vks::g_DistEpsilon) != kLeft;
}

/** All but labels and their place, which have to be read. */
template <typename Bar> void readLine(IHBXElementDrawObj &object, const HostSlabValues &values, Bar &bar)
{
    const CurvePtr drawn = values.curve(property::curveData);
    bar.line = planCurve(object);
    const bool hasSides = std::fabs(bar.leftStretchLength - bar.rightStretchLength) > kLabelDifference;
    if (hasSides && runsBackwards(bar.line, drawn))
        bar.line->Reverse();
    readTexts(values, bar);
    const auto meetings = hbx::extIntersect(drawn, bar.line, vks::g_DistEpsilon);
    bar.refPointValid = !meetings.empty();
    if (bar.refPointValid)
        bar.refPoint = meetings.front();
}

} // namespace

void read(IHBXModel &model, IHBXElementDrawObj &object, Local::ForcedBar &bar)
{
    const HostSlabValues values(object);
    bar.forcedType = keptOr(values.integer(property::position), {1, 2, 3}, 0);
    readArea(object, values, bar);
    bar.supportPoly = linkedOutline(model, HostSlabLinks(values.text(property::reinforcementInfo)), 0);
}

void read(IHBXModel &model, IHBXElementDrawObj &object, Local::StraddleForcedBar &bar)
{
    const HostSlabValues values(object);
    readArea(object, values, bar);
    readStraddlingLabels(values, bar);
    readDistribution(values, bar);
    const HostSlabLinks links(values.text(property::reinforcementInfo));
    for (int i = 0; i < links.count() - 1; ++i) // meant: the last item stands behind the last ";"
        if (PolygonPtr outline = linkedOutline(model, links, i))
            bar.supportPolys.push_back(std::move(outline));
}

void read(IHBXModel &, IHBXElementDrawObj &object, Local::NegativeForcedBar &bar)
{
    const HostSlabValues values(object);
    readLabels(values, bar);
    bar.labelPosition = labelPositionOf(values, bar.leftStretchLength, bar.rightStretchLength);
    readLine(object, values, bar);
    readDistribution(values, bar);
}

void read(IHBXModel &, IHBXElementDrawObj &object, Local::RaftMainForcedBar &bar)
{
    const HostSlabValues values(object);
    bar.forcedType = keptOr(values.integer(property::position), {1, 2}, 0);
    readArea(object, values, bar);
}

void read(IHBXModel &, IHBXElementDrawObj &object, Local::RaftMainStraddleForcedBar &bar)
{
    const HostSlabValues values(object);
    readArea(object, values, bar);
    readStraddlingLabels(values, bar);
}

void read(IHBXModel &, IHBXElementDrawObj &object, Local::RaftNegativeForcedBar &bar)
{
    const HostSlabValues values(object);
    // Meant: the labels are read only now, so the place of the label never goes by them.
    bar.labelPosition = labelPositionOf(values, bar.leftStretchLength, bar.rightStretchLength);
    readLabels(values, bar);
    readLine(object, values, bar);
}

} // namespace slabhost
