#include "ModelSerialization/ORVCADBeamLocalModel2HBXService.h"

#include "ModelSerialization/BeamHostWriting.h"
#include "ModelSerialization/BeamProperties.h"
#include "ModelSerialization/BeamSubTypes.h"
#include "ModelSerialization/HostFloor.h"
#include "ModelSerialization/SeatProperties.h"
#include "beam/BeamKeys.h"
#include "beam/BeamModelDataInfo.h"
#include "beam/ORVBeamSDCSeatInfoModel.h"
#include "encoding/RecordKinds.h"
#include "platform/host/HBXBatch.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXService.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

using namespace beam;

namespace {

/** Numbers behind the batch keys. */
constexpr int kBeamSite = 320;
constexpr int kTieBeamSite = 532;
constexpr int kPileSite = 613;
constexpr int kFoundationSite = 712;

constexpr int kPileMadeAsAnother = 169;
constexpr int kPileMadeInstead = 128;

constexpr int kRectangularPile = 64;
constexpr int kRectangularTieBeam = 70;

/** Modes of making an element, as the host is told them. */
constexpr int kElementMode = 0;
constexpr int kFoundationMode = 1;
constexpr int kUnitMode = 2;

struct FoundationKind
{
    qint64 elementType;
    qint64 subType;
    qint64 unitType;
    qint64 unitSubType;
};
constexpr FoundationKind kIsolatedFoundation = {type::isolatedFoundation, 41, type::isolatedFoundationUnit, 43};
constexpr FoundationKind kPileCap = {type::pileCap, 48, type::pileCapUnit, 51};

/** By number; records that are missing come last and have no number. */
bool comesBefore(const std::shared_ptr<BeamSegmentInfo> &a, const std::shared_ptr<BeamSegmentInfo> &b)
{
    return a && (!b || a->Index < b->Index);
}

QJsonArray spanArray(const BeamEdoInfo &placed)
{
    return encoding::Appended<decltype(placed.spans)>::toValue(placed.spans).toArray();
}

/** From the end to the start, as the host is told it. */
void linkChain(const std::vector<IHBXElementDrawObj *> &chain)
{
    for (std::size_t i = chain.size(); i > 1; --i)
        chain[i - 2]->linkNext(chain[i - 1]);
}

} // namespace

ORVCADBeamLocalModel2HBXService::ORVCADBeamLocalModel2HBXService(IHBXService *service) : m_service(service) {}

IHBXModel *ORVCADBeamLocalModel2HBXService::model() const { return m_service ? m_service->model() : nullptr; }

bool ORVCADBeamLocalModel2HBXService::reconstructBeam(const std::shared_ptr<BeamModelDataInfo> &beam)
{
    if (!model() || !beam)
        return false;
    const HBXBatch batch(*model(), batchKey(kBeamSite));
    IHBXElement *element = nullptr;
    if (!localModel2BeamEnt(beam->elementInfo.get(), element))
        return false;
    for (const auto &edoInfo : beam->edoInfos)
        localModel2BeamEdo(edoInfo.get(), element); // meant: the result is dropped
    return true;
}

bool ORVCADBeamLocalModel2HBXService::localModel2BeamEnt(BaseBeamEntInfo *beam, IHBXElement *&element)
{
    if (!model() || !beam)
        return false;
    beam->ElementSubType = subTypeMade(beam->ElementType, beam->ElementSubType);
    IHBXFloor *floor = findFloor(model(), beam->RegionName, beam->FloorName);
    if (!floor)
        return false;
    IHBXElements &elements = *model()->elements();
    element = elements.findElement(beam->Name, floor->id(), beam->ElementType, true, 0);
    if (!element)
        element =
            elements.createElement(beam->ElementType, beam->ElementSubType, nullptr, floor, kElementMode, QString(), 0);
    if (!element || !setName(*element, beam->Name))
        return false;
    model()->refresh(0);
    writeAll(entPropertyTexts(*beam, WriteStep::AxisOffset), element); // meant: the result is not looked at
    const bool isWritten = reconstructBeam_BeamInfo_CreateEnt_SetType(element, beam) &&
                           reconstructBeam_BeamInfo_CreateEnt_SetSpanCount(element, beam) &&
                           reconstructBeam_BeamInfo_CreateEnt_SetSection(element, beam) == kDone &&
                           reconstructBeam_BeamInfo_CreateEnt_SetBar(element, beam);
    if (isWritten)
        model()->refresh(0);
    return isWritten;
}

bool ORVCADBeamLocalModel2HBXService::reconstructBeam_BeamInfo_CreateEnt_SetType(IHBXElement *element,
                                                                                 BaseBeamEntInfo *beam)
{
    return beam && writeAll(entPropertyTexts(*beam, WriteStep::Type), element);
}

bool ORVCADBeamLocalModel2HBXService::reconstructBeam_BeamInfo_CreateEnt_SetSpanCount(IHBXElement *element,
                                                                                      BaseBeamEntInfo *beam)
{
    return beam && writeAll(entPropertyTexts(*beam, WriteStep::SpanCount), element);
}

int ORVCADBeamLocalModel2HBXService::reconstructBeam_BeamInfo_CreateEnt_SetSection(IHBXElement *element,
                                                                                   BaseBeamEntInfo *beam)
{
    if (!beam)
        return kSectionNotWritten;
    if (beam->SectionPoly.isEmpty())
        return writeAll(entPropertyTexts(*beam, WriteStep::Section), element) ? kDone : kSectionNotWritten;
    if (!mayHaveOutline(beam->ElementSubType))
        return kSectionNotWritten;
    Polygon outline;
    reconstructPoly(beam->SectionPoly, outline); // meant: a bad text leaves null, which is accepted
    return reconstruct_CreateAbnormityEnt_SetSectionInfo(element, outline) ? kDone : kSectionInfoNotWritten;
}

bool ORVCADBeamLocalModel2HBXService::reconstructBeam_BeamInfo_CreateEnt_SetBar(IHBXElement *element,
                                                                                BaseBeamEntInfo *beam)
{
    if (!beam)
        return false;
    const bool isOfKindWritten = writeAll(entPropertyTexts(*beam, WriteStep::BarsOfKind), element);
    const bool isCommonWritten = writeAll(entPropertyTexts(*beam, WriteStep::CommonBars), element);
    return isOfKindWritten || isCommonWritten;
}

int ORVCADBeamLocalModel2HBXService::localModel2BeamEdo(BeamEdoInfo *edoInfo, IHBXElement *element)
{
    if (!edoInfo || edoInfo->segments.empty())
        return kSegmentsNotConsecutive;
    auto &segments = edoInfo->segments;
    std::stable_sort(segments.begin(), segments.end(), comesBefore);
    std::vector<IHBXElementDrawObj *> chain;
    std::optional<QJsonArray> spans; // made once: every draw object of the chain records all of them
    qint64 expected = segments.front() ? segments.front()->Index : 0; // meant: it need not be 0
    for (const auto &segment : segments) {
        if (!segment || segment->Index != expected++)
            return kSegmentsNotConsecutive;
        IHBXElementDrawObj *drawObj = nullptr;
        const int result = createBeamNode(segment.get(), element, drawObj);
        if (result != kDone)
            return result;
        if (!spans)
            spans = spanArray(*edoInfo);
        m_beamSpanInfo[drawObj->id()] = *spans;
        if (segment->Index == 0 && element->type() != type::linkBeam)
            writeEdoProp(property::spanCount, QString::number(edoInfo->spans.size()), drawObj, PropType::Text, true);
        chain.push_back(drawObj);
    }
    linkChain(chain);
    return kDone;
}

int ORVCADBeamLocalModel2HBXService::reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode(BeamSegmentInfo *segment,
                                                                                       IHBXElement *element,
                                                                                       BeamEdoInfo *edoInfo,
                                                                                       IHBXElementDrawObj *&drawObj)
{
    const int result = createBeamNode(segment, element, drawObj);
    if (result == kDone)
        reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode_RecordSpanInfo(drawObj, edoInfo);
    return result;
}

/** One draw object of a chain without its spans. */
int ORVCADBeamLocalModel2HBXService::createBeamNode(BeamSegmentInfo *segment, IHBXElement *element,
                                                    IHBXElementDrawObj *&drawObj)
{
    drawObj = createEnteredDrawObj(element);
    return drawObj ? reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode_SetProp(drawObj, segment) : kNoDrawObj;
}

int ORVCADBeamLocalModel2HBXService::reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode_SetProp(
    IHBXElementDrawObj *drawObj, BeamSegmentInfo *segment)
{
    auto *shape = drawObj ? dynamic_cast<IHBXCustomLineSolidShape *>(drawObj->shape()) : nullptr;
    if (!shape || !segment || !model())
        return kNoLineShape;
    Curve axis;
    reconstructCurve(segment->WordLine, axis); // meant: a bad text gives the shape a null curve
    shape->setLine(axis);
    const bool isWidthWritten = writeAll(segmentPropertyTexts(*segment, WriteStep::Width), drawObj);
    model()->refresh(0);
    const bool isOffsetWritten = writeAll(segmentPropertyTexts(*segment, WriteStep::AxisOffset), drawObj);
    if (!isWidthWritten && !isOffsetWritten)
        return kSizesNotWritten;
    const bool areElevationsWritten = writeAll(segmentPropertyTexts(*segment, WriteStep::Elevations), drawObj);
    return areElevationsWritten ? kDone : kElevationsNotWritten;
}

void ORVCADBeamLocalModel2HBXService::reconstructBeam_BeamInfo_CreateEdo_CreateBeamNode_RecordSpanInfo(
    IHBXElementDrawObj *drawObj, BeamEdoInfo *edoInfo)
{
    if (drawObj && edoInfo)
        m_beamSpanInfo[drawObj->id()] = spanArray(*edoInfo);
}

bool ORVCADBeamLocalModel2HBXService::saveBeamSpanInfo()
{
    const QString folder = QCoreApplication::applicationDirPath();
    if (!QDir().exists(folder))
        return false;
    QFile file(folder + QDir::separator() + QStringLiteral("BeamSpanInfo.json"));
    if (!QDir().mkpath(QFileInfo(file).absolutePath()))
        return false;
    if (!file.open(QIODevice::WriteOnly))
        return true; // meant: a file that cannot be written is no failure
    QJsonObject spans;
    for (auto entry = m_beamSpanInfo.cbegin(); entry != m_beamSpanInfo.cend(); ++entry)
        spans.insert(QString::number(entry.key()), entry.value());
    file.write(QJsonDocument(spans).toJson());
    return true;
}

bool ORVCADBeamLocalModel2HBXService::reconstructFoundation(const Seat &seat)
{
    using Service = ORVCADBeamLocalModel2HBXService;
    return reconstructSeat(seat, kFoundationSite, &Service::localModel2FoundationEnt,
                           &Service::localModel2FoundationEdo);
}

bool ORVCADBeamLocalModel2HBXService::reconstructPile(const Seat &seat)
{
    using Service = ORVCADBeamLocalModel2HBXService;
    return reconstructSeat(seat, kPileSite, &Service::localModel2PileEnt, &Service::localModel2PileEdo);
}

bool ORVCADBeamLocalModel2HBXService::reconstructTieBeam(const Seat &seat)
{
    using Service = ORVCADBeamLocalModel2HBXService;
    return reconstructSeat(seat, kTieBeamSite, &Service::localModel2TieBeamEnt, &Service::localModel2TieBeamEdo);
}

bool ORVCADBeamLocalModel2HBXService::reconstructSeat(
    const Seat &seat, int site, bool (ORVCADBeamLocalModel2HBXService::*makeEnt)(const Seat &, IHBXElement *&),
    bool (ORVCADBeamLocalModel2HBXService::*makeEdo)(const Seat &, IHBXElement *))
{
    if (!model())
        return false;
    const HBXBatch batch(*model(), batchKey(site));
    IHBXElement *element = nullptr;
    return (this->*makeEnt)(seat, element) && (this->*makeEdo)(seat, element);
}

bool ORVCADBeamLocalModel2HBXService::checkBeforeReconstruct(const Seat &seat, IHBXElement *&element, IHBXFloor *&floor)
{
    if (!model() || !seat)
        return false;
    IHBXFloor *found = findFloor(model(), seat->RegionName, seat->FloorName);
    if (!found)
        return false;
    floor = found;
    element = model()->elements()->findElement(seat->EntName, floor->id(), seat->seatElementType, true, 0);
    return true;
}

/** The seat's element, found by name or made. False where there is no such floor, the element being as it was, and when
 *  the host makes none. */
bool ORVCADBeamLocalModel2HBXService::findOrCreateElement(const Seat &seat, qint64 subType, int mode,
                                                          IHBXElement *&element)
{
    IHBXFloor *floor = nullptr;
    if (!checkBeforeReconstruct(seat, element, floor))
        return false;
    if (!element)
        element =
            model()->elements()->createElement(seat->seatElementType, subType, nullptr, floor, mode, QString(), 0);
    return element != nullptr;
}

bool ORVCADBeamLocalModel2HBXService::localModel2FoundationEnt(const Seat &seat, IHBXElement *&element)
{
    const bool isPileCap = seat && seat->seatElementType == type::pileCap;
    const qint64 subType = isPileCap ? kPileCap.subType : kIsolatedFoundation.subType;
    if (!findOrCreateElement(seat, subType, kFoundationMode, element) || !setName(*element, seat->EntName))
        return false;
    writeAll(seatPropertyTexts(*seat, SeatStep::FoundationHeight), element);
    IHBXElement *unit = createUnit(*seat, *element);
    if (!unit)
        return false;
    const bool isHeightWritten = writeAll(seatPropertyTexts(*seat, SeatStep::FoundationHeight), unit);
    // Meant: the outline stays in world coordinates.
    const bool isOutlineWritten = reconstruct_CreateAbnormityEnt_SetSectionInfo(unit, seat->ipWorldPoly);
    return isHeightWritten || isOutlineWritten;
}

/** A new unit each time, also below a foundation that was there. */
IHBXElement *ORVCADBeamLocalModel2HBXService::createUnit(const ORVBeamSDCSeatInfoModel &seat, IHBXElement &foundation)
{
    const FoundationKind &kind = seat.seatElementType == type::isolatedFoundation ? kIsolatedFoundation : kPileCap;
    IHBXElement *unit = model()->elements()->createElement(kind.unitType, kind.unitSubType, &foundation,
                                                           foundation.floor(), kUnitMode, QString(), 0);
    if (!unit)
        return nullptr;
    try {
        model()->refresh(0);
        unit->setName(seat.EntName + QStringLiteral("-1")); // meant: -1, whatever the number of units
    } catch (...) {
        // Meant: unlike a foundation, the unit keeps the name that it has.
    }
    return unit;
}

bool ORVCADBeamLocalModel2HBXService::localModel2PileEnt(const Seat &seat, IHBXElement *&element)
{
    if (!seat)
        return false;
    if (seat->nElementSubType == kPileMadeAsAnother)
        seat->nElementSubType = kPileMadeInstead;
    if (!findOrCreateElement(seat, seat->nElementSubType, kElementMode, element) || !setName(*element, seat->EntName))
        return false;
    const bool isKindWritten = writeAll(seatPropertyTexts(*seat, SeatStep::PileKind), element);
    const bool isSectionWritten = writePileSection(element, *seat);
    model()->refresh(0);
    return isKindWritten || isSectionWritten;
}

/** True when the width of a rectangle was accepted. Meant: nothing else counts. */
bool ORVCADBeamLocalModel2HBXService::writePileSection(IHBXElement *element, const ORVBeamSDCSeatInfoModel &seat)
{
    if (seat.nElementSubType == kRectangularPile) {
        const bool isWidthWritten = writeAll(seatPropertyTexts(seat, SeatStep::PileWidth), element);
        writeAll(seatPropertyTexts(seat, SeatStep::PileDepth), element);
        return isWidthWritten;
    }
    const Polygon outline = vks::cloneOrNull(seat.ipWorldPoly);
    if (outline)
        outline->Translate(-outline->Box().minPt);
    reconstruct_CreateAbnormityEnt_SetSectionInfo(element, outline);
    writeAll(seatPropertyTexts(seat, SeatStep::PileHeight), element);
    return false;
}

bool ORVCADBeamLocalModel2HBXService::localModel2TieBeamEnt(const Seat &seat, IHBXElement *&element)
{
    if (!seat || !findOrCreateElement(seat, seat->nElementSubType, kElementMode, element))
        return false;
    setName(*element, seat->EntName); // meant: unlike a pile, a tie beam keeps the name that it has
    if (seat->nElementSubType == kRectangularTieBeam)
        return writeAll(seatPropertyTexts(*seat, SeatStep::TieBeamSection), element);
    return reconstruct_CreateAbnormityEnt_SetSectionInfo(element, seat->SectionPoly);
}

bool ORVCADBeamLocalModel2HBXService::localModel2FoundationEdo(const Seat &seat, IHBXElement *element)
{
    IHBXElementDrawObj *drawObj = seat ? placeAtSeat(*seat, element) : nullptr;
    return drawObj && writeAll(seatPropertyTexts(*seat, SeatStep::FoundationPlace), drawObj);
}

bool ORVCADBeamLocalModel2HBXService::localModel2PileEdo(const Seat &seat, IHBXElement *element)
{
    IHBXElementDrawObj *drawObj = seat ? placeAtSeat(*seat, element) : nullptr;
    return drawObj && writeAll(seatPropertyTexts(*seat, SeatStep::PilePlace), drawObj);
}

bool ORVCADBeamLocalModel2HBXService::localModel2TieBeamEdo(const Seat &seat, IHBXElement *element)
{
    IHBXElementDrawObj *drawObj = seat ? createEnteredDrawObj(element) : nullptr;
    auto *shape = drawObj ? dynamic_cast<IHBXCustomLineSolidShape *>(drawObj->shape()) : nullptr;
    if (!shape)
        return false;
    shape->setLine(seat->ipCenterLine);
    return writeAll(seatPropertyTexts(*seat, SeatStep::TieBeamPlace), drawObj);
}

IHBXElementDrawObj *ORVCADBeamLocalModel2HBXService::createEnteredDrawObj(IHBXElement *element)
{
    if (!model() || !element)
        return nullptr;
    IHBXDrawObjs &drawObjs = *model()->drawObjects();
    IHBXElementDrawObj *drawObj = drawObjs.createDrawObj(element->floor(), element, true);
    if (drawObj)
        drawObjs.addDrawObj(drawObj);
    return drawObj;
}

/** A new draw object at the middle of the seat's box; null, and the draw object stays, when it is no point solid. */
IHBXElementDrawObj *ORVCADBeamLocalModel2HBXService::placeAtSeat(const ORVBeamSDCSeatInfoModel &seat,
                                                                 IHBXElement *element)
{
    IHBXElementDrawObj *drawObj = createEnteredDrawObj(element);
    auto *shape = drawObj ? dynamic_cast<IHBXCustomPointSolidShape *>(drawObj->shape()) : nullptr;
    if (!shape)
        return nullptr;
    try {
        const vks::CVec2<double> centre = seat.ipWorldPoly ? boxCentre(*seat.ipWorldPoly) : vks::CVec2<double>();
        if (seat.ipWorldPoly)
            shape->setInsertPoint(&centre);
    } catch (...) {
        // The draw object stands where the host put it.
    }
    return drawObj;
}

bool ORVCADBeamLocalModel2HBXService::reconstruct_CreateAbnormityEnt_SetSectionInfo(IHBXElement *element,
                                                                                    vks::CPolygon *polygon)
{
    // Meant: a text that is no number, so that the host gets 0.
    bool isWritten = writeEntProp(property::sectionTypeId, QStringLiteral("%"), element, PropType::Integer, false);
    IHBXProperties *properties = element && polygon ? element->properties() : nullptr;
    if (properties)
        writeOutline(*properties, *polygon);
    if (element && polygon && element->type() == type::pile) {
        const bool isInfoWritten =
            writeEntProp(property::sectionInfo, sectionInfo(*polygon), element, PropType::Text, false);
        isWritten = isWritten || isInfoWritten;
    }
    return isWritten;
}

bool ORVCADBeamLocalModel2HBXService::writeEntProp(const std::wstring &name, const QString &value, IHBXElement *element,
                                                   PropType type, bool flag)
{
    return writeProperty({name, type, flag, value}, element);
}

bool ORVCADBeamLocalModel2HBXService::writeEdoProp(const std::wstring &name, const QString &value,
                                                   IHBXElementDrawObj *drawObj, PropType type, bool flag)
{
    return writeProperty({name, type, flag, value}, drawObj);
}
