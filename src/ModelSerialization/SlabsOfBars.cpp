#include "ModelSerialization/SlabsOfBars.h"

#include "ModelSerialization/HostSlabValues.h"
#include "ModelSerialization/SlabHostKeys.h"
#include "platform/dwgx/DWGXBaseBoxTree.h"
#include "platform/geometry/CPositionJudge.h"
#include "platform/geometry/KernelTolerance.h"
#include "platform/host/IHBXCurState.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXService.h"
#include "platform/services/HbxRelation.h"
#include "platform/services/HbxTolerance.h"
#include "platform/services/SlabElevations.h"
#include "platform/services/WLRReinfInfoOperator.h"

#include <algorithm>

namespace slabhost {
namespace {

const QString kTopElev = QString::fromStdWString(property::topElev);
constexpr double kSupportAllowance = 150.0; // mm: either end of a bar lies over a support
constexpr double kBoxMargin = 1.0;          // mm beyond the tolerance: boxes only narrow the search
constexpr int kLinkKind = 1;
constexpr vks::EnCurvePolygonPosition kUnderCurve[] = {vks::kCurveInAndOut, vks::kCurveIn, vks::kCurveInTouching,
                                                       vks::kCurveOnBoundary};
constexpr vks::EnPolygonPolygonPosition kUnderArea[] = {vks::kPolygonsOverlap,       vks::kPolygonInside,
                                                        vks::kPolygonInsideTouching, vks::kPolygonHoldsTouching,
                                                        vks::kPolygonHolds,          vks::kPolygonsSame};

template <typename Values, typename Value> bool isOneOf(const Values &values, Value value)
{
    return std::find(std::begin(values), std::end(values), value) != std::end(values);
}

std::vector<IHBXElementDrawObj *> slabsInBox(dwgx::DWGXBaseBoxTree *boxTree, const vks::CBox2<double> &box)
{
    std::vector<void *> found;
    if (boxTree)
        boxTree->getIntersectantData(box, found);
    std::vector<IHBXElementDrawObj *> slabs;
    slabs.reserve(found.size());
    for (void *slab : found)
        slabs.push_back(static_cast<IHBXElementDrawObj *>(slab));
    return slabs;
}

/** Those of the slabs for which a test of their outline holds. */
template <typename Test>
std::vector<IHBXElementDrawObj *> slabsThat(std::vector<IHBXElementDrawObj *> slabs, const Test &test)
{
    const auto fails = [&test](IHBXElementDrawObj *slab) { return !test(hbx::worldOutline(slab->shape())); };
    slabs.erase(std::remove_if(slabs.begin(), slabs.end(), fails), slabs.end());
    return slabs;
}

// ---- Overlap of negative bars

CurvePtr drawnCurve(IHBXElementDrawObj *bar)
{
    CurvePtr curve;
    IHBXProperties *properties = bar ? bar->properties() : nullptr;
    return properties ? properties->asCurve(curve, property::curveData) : curve;
}

bool shareStretch(const vks::CCurve2d *a, const vks::CCurve2d *b)
{
    return vks::CPositionJudge().GetCurveCurvePosition(a, b) > vks::kCurvesMeet;
}

/** A negative bar that looks for others which cover it. */
struct BarInQuestion
{
    const vks::CCurve2d &line;
    CurvePtr drawn;
    double elevation; ///< mm

    bool isCoveredBy(IHBXElementDrawObj &other) const
    {
        return shareStretch(&line, planCurve(other)) &&
               hbx::isEqual(elevation, getNegReinfElev(&other), vks::lengthTolerance(elevation)) &&
               shareStretch(drawn, drawnCurve(&other));
    }
};

/** The bars of a type on the current floor that may lie along a line. */
QList<IHBXElementDrawObj *> barsAt(IHBXService &service, const vks::CCurve2d &line, int elementType)
{
    QList<IHBXElementDrawObj *> bars;
    const double reach = vks::g_DistEpsilon + kBoxMargin;
    if (const IHBXFloor *floor = service.curState()->floor()) // bars whose boxes lie apart share nothing
        service.model()->drawObjects()->queryDrawObjsInBox(bars, floor->id(), elementType, line.Box(), reach);
    return bars;
}

} // namespace

IHBXElementDrawObj *findBoardByCurve(dwgx::DWGXBaseBoxTree *boxTree, const vks::CCurve2d *curve)
{
    if (!curve)
        return nullptr;
    const CurvePtr free = curve->Clone();
    free->SetStartT(kSupportAllowance);
    free->SetEndT(curve->Length() - kSupportAllowance);
    const auto slabs = slabsThat(slabsInBox(boxTree, curve->Box()), [&free](const PolygonPtr &outline) {
        return isOneOf(kUnderCurve, hbx::linePolyPosition(free, outline, 0.0));
    });
    const auto isLower = [](IHBXElementDrawObj *a, IHBXElementDrawObj *b) {
        return getSlabElev(a, kTopElev) < getSlabElev(b, kTopElev);
    };
    const auto lowest = std::min_element(slabs.begin(), slabs.end(), isLower);
    return lowest == slabs.end() ? nullptr : *lowest;
}

std::vector<IHBXElementDrawObj *> findBoardEdosByPoly(dwgx::DWGXBaseBoxTree *boxTree, const vks::CPolygon *polygon)
{
    if (!polygon)
        return {};
    return slabsThat(slabsInBox(boxTree, polygon->Box()), [polygon](const PolygonPtr &outline) {
        return isOneOf(kUnderArea, hbx::polyPolyPosition(polygon, outline, 0.0));
    });
}

void syncReinfInfo(IHBXService *service, IHBXElementDrawObj *bar, const std::vector<IHBXElementDrawObj *> &slabs)
{
    WLRReinfInfoOperator links(service);
    if (!bar)
        return;
    for (IHBXElementDrawObj *slab : slabs) {
        links.addReinfInfo2Reinf(bar, slab, kLinkKind);
        links.addReinfInfo2Slab(slab, bar, kLinkKind);
    }
}

bool checkBFJOverlap(IHBXService *service, int slabId, const vks::CCurve2d *curve, int elementType, int selfId)
{
    if (!service || !curve)
        return false;
    IHBXDrawObjs &drawObjs = *service->model()->drawObjects();
    const double elevation = getSlabElev(drawObjs.drawObjById(slabId), kTopElev);
    const BarInQuestion bar{*curve, drawnCurve(drawObjs.drawObjById(selfId)), elevation};
    const auto bars = barsAt(*service, *curve, elementType);
    return std::none_of(bars.begin(), bars.end(),
                        [&](IHBXElementDrawObj *other) { return other->id() != selfId && bar.isCoveredBy(*other); });
}

} // namespace slabhost
