#include "ModelSerialization/ORVCADBeamHBXModelConvertService.h"

#include "ModelSerialization/BeamProperties.h"
#include "ModelSerialization/BeamSpanReading.h"
#include "encoding/GeometryInfo.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"
#include "platform/services/ORVBeamPlanService.h"
#include "platform/services/WLRBeamSpans.h"
#include "platform/services/WLRBeamSpansRepository.h"

#include <set>

namespace {

void readElement(IHBXElement &element, qint64 elementType, BaseBeamEntInfo &record)
{
    if (const IHBXFloor *floor = element.floor())
        record.FloorName = floor->name();
    if (const IHBXRegion *region = element.region())
        record.RegionName = region->name();
    element.name(record.Name);
    record.ElementType = elementType;
    record.ElementSubType = element.subType();
    if (const IHBXProperties *properties = element.properties())
        beam::readEntProperties(*properties, elementType, record);
}

std::set<IHBXElementDrawObj *> chainHeads(IHBXElement &element)
{
    QList<IHBXElementDrawObj *> drawObjs;
    element.drawObjs(drawObjs, 0);
    std::set<IHBXElementDrawObj *> heads;
    for (IHBXElementDrawObj *drawObj : qAsConst(drawObjs))
        if (IHBXElementDrawObj *head = drawObj ? drawObj->chainHead() : nullptr)
            heads.insert(head);
    return heads;
}

/** The objects of a chain in order, each once, also when the host closes it to a ring. */
std::vector<IHBXElementDrawObj *> chainFrom(IHBXElementDrawObj *head)
{
    std::vector<IHBXElementDrawObj *> chain;
    std::set<IHBXElementDrawObj *> seen;
    for (IHBXElementDrawObj *node = head; node && seen.insert(node).second; node = node->nextInChain())
        chain.push_back(node);
    return chain;
}

void readSpans(WLRBeamSpans &spans, BeamEdoInfo &edoInfo)
{
    for (int i = 0; i < spans.count(); ++i)
        edoInfo.spans.push_back(beam::getBeamSpanInfo(spans.span(i)));
}

} // namespace

ORVCADBeamHBXModelConvertService::Beams ORVCADBeamHBXModelConvertService::convertHBXToCollectDataModel(
    const std::list<IHBXElement *> &elements)
{
    Beams beams;
    for (IHBXElement *element : elements) {
        beams.push_back(std::make_shared<BeamModelDataInfo>());
        beams.back()->elementInfo = getBeamEntProp(element);
        beams.back()->edoInfos = getBeamEdoProp(element);
    }
    return beams;
}

ORVCADBeamHBXModelConvertService::Beams ORVCADBeamHBXModelConvertService::convertHBXToCollectDataModel(
    IHBXModel *model, const QSet<long long> &floorIds, const QSet<long long> &elementTypes)
{
    if (!model)
        return {};
    QList<IHBXElement *> elements;
    model->elements()->queryElements(elements, floorIds, elementTypes, true);
    return convertHBXToCollectDataModel(std::list<IHBXElement *>(elements.begin(), elements.end()));
}

std::unique_ptr<BaseBeamEntInfo> ORVCADBeamHBXModelConvertService::getBeamEntProp(IHBXElement *element)
{
    const qint64 elementType = element ? element->type() : 0;
    std::unique_ptr<BaseBeamEntInfo> record = BeamModelDataInfo::makeElementInfo(elementType);
    try {
        if (element)
            readElement(*element, elementType, *record);
    } catch (...) {
        // What was read up to here stands in the record.
    }
    return record;
}

std::vector<std::shared_ptr<BeamEdoInfo>> ORVCADBeamHBXModelConvertService::getBeamEdoProp(IHBXElement *element)
{
    std::vector<std::shared_ptr<BeamEdoInfo>> edoInfos;
    if (!element)
        return edoInfos;
    for (IHBXElementDrawObj *head : chainHeads(*element)) {
        auto edoInfo = std::make_shared<BeamEdoInfo>();
        if (const std::unique_ptr<WLRBeamSpans> spans = initBeamSpans(head))
            readSpans(*spans, *edoInfo);
        for (IHBXElementDrawObj *node : chainFrom(head)) {
            const int index = static_cast<int>(edoInfo->segments.size());
            edoInfo->segments.push_back(getBeamEdoLinkNodeProp(node));
            edoInfo->segments.back()->Index = index;
        }
        edoInfos.push_back(edoInfo);
    }
    return edoInfos;
}

std::shared_ptr<BeamSegmentInfo> ORVCADBeamHBXModelConvertService::getBeamEdoLinkNodeProp(IHBXElementDrawObj *drawObj)
{
    auto record = std::make_shared<BeamSegmentInfo>();
    if (const auto *shape = dynamic_cast<IHBXCustomLineSolidShape *>(drawObj->shape())) {
        vks::CRefPtr<vks::CCurve2d> axis;
        record->WordLine = getCurveInfo(shape->worldLine(axis, IHBXModel::g_bDefaultAutoCalc));
        record->LineWidth = shape->width(IHBXModel::g_bDefaultAutoCalc);
    }
    try {
        if (const IHBXProperties *properties = drawObj->properties())
            beam::readSegmentProperties(*properties, *record);
    } catch (...) {
        // What was read up to here stands in the record.
    }
    return record;
}

/** The stored ones, else those that the host makes; null when there are none. */
std::unique_ptr<WLRBeamSpans> ORVCADBeamHBXModelConvertService::initBeamSpans(IHBXElementDrawObj *head)
{
    std::unique_ptr<WLRBeamSpans> spans(WLRBeamSpansRepository::getInstance()->getBeamSpans(head->id()));
    if (!spans)
        spans.reset(ORVBeamPlanService().createBeamSpans(head, kLoadStoredOrCutBeamSpans));
    return spans;
}
