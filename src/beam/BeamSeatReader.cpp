#include "beam/BeamSeatReader.h"

#include "beam/BeamSeatType.h"
#include "platform/geometry/KernelTolerance.h"
#include "platform/geometry/OrientProjectCurve2d.h"
#include "platform/host/IHBXCustomLineSolidShape.h"
#include "platform/host/IHBXCustomPointSolidShape.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXSection.h"
#include "platform/host/IHBXSectionHolder.h"
#include "platform/host/WorldOutline.h"
#include "platform/services/HbxRelation.h"
#include "platform/services/HbxTolerance.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace beam {
namespace {

using Seat = ORVBeamSDCSeatInfoModel;
using Curve = vks::CRefPtr<vks::CCurve2d>;
using Polygon = vks::CRefPtr<vks::CPolygon>;

/** The section in the host's library that a column has which is none. */
constexpr int kSkippedSectionKind = 8;
constexpr qint64 kSkippedSectionNumber = 124;
/** Value of "Type" of a column of the special kind. */
constexpr int kSpecialColumn = 2;

/** Search distance around a seat, mm; around a wall a share of its thickness up to a greatest one. */
constexpr double kOffsetDist = 100.0;
constexpr double kWallOffsetShare = 0.41;
constexpr double kGreatestWallOffset = 180.0;

/** A centre line that lies off its axis by no more than this stays where it is, mm. */
constexpr double kLeastLineOffset = 1.0;

/** 0 for a number that does not fit. */
int narrowed(qint64 number)
{
    const bool fits = number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
    return fits ? static_cast<int>(number) : 0;
}

bool hasSkippedSection(IHBXElementDrawObj &object)
{
    IHBXSectionHolder *holder = object.sectionHolder();
    const IHBXSection *section = holder ? holder->section() : nullptr;
    return section && section->kind() == kSkippedSectionKind && section->number() == kSkippedSectionNumber;
}

bool isUnit(const IHBXElement *element)
{
    return element && (element->type() == type::isolatedFoundationUnit || element->type() == type::pileCapUnit);
}

/** The child of the unit that ranks highest, the last of equal ones; null without a unit that ranks 0 or higher. */
IHBXElementDrawObj *topUnit(const IHBXElementDrawObj &object)
{
    IHBXElementDrawObj *top = nullptr;
    int highest = 0; // meant: a negative number never wins
    for (int i = 0; i < object.childCount(); ++i) {
        IHBXElementDrawObj *child = object.child(i);
        const IHBXElement *unit = child ? child->element() : nullptr;
        if (!isUnit(unit) || unit->orderNumber() < highest)
            continue;
        highest = unit->orderNumber();
        top = child;
    }
    return top;
}

/** World box of the plan, at height 0; the empty box without geometry. */
vks::CBox3<double> boxOf(const IHBXShape &shape)
{
    vks::CBox2<double> plan;
    shape.box(plan, IHBXModel::g_bDefaultAutoCalc);
    if (!plan.IsValid())
        return {};
    return {{plan.minPt.x, plan.minPt.y, 0.0}, {plan.maxPt.x, plan.maxPt.y, 0.0}};
}

void readNames(Seat &seat, const IHBXElement *element)
{
    if (!element)
        return;
    if (const IHBXFloor *floor = element->floor())
        seat.FloorName = floor->name();
    if (const IHBXRegion *region = element->region())
        seat.RegionName = region->name();
    element->name(seat.EntName);
}

void readValue(const IHBXProperties &properties, const std::wstring &name, int &out) { out = properties.asInt(name); }

void readValue(const IHBXProperties &properties, const std::wstring &name, double &out)
{
    out = properties.asDouble(name);
}

void readValue(const IHBXProperties &properties, const std::wstring &name, QString &out)
{
    properties.asString(out, name);
}

void readValue(const IHBXProperties &properties, const std::wstring &name, Polygon &out)
{
    Polygon stored;
    out = vks::cloneOrNull(properties.asPolygon(stored, name));
}

/** A property of the host and the field that it goes to, read as a value of the kind Read. */
template <typename Read, typename T> struct PropertyRow
{
    const std::wstring &name;
    T Seat::*field;
};

template <typename T> PropertyRow<T, T> row(const std::wstring &name, T Seat::*field) { return {name, field}; }
template <typename Read, typename T> PropertyRow<Read, T> rowAs(const std::wstring &name, T Seat::*field)
{
    return {name, field};
}

/** Reads the rows in order, those whose property is there. */
template <typename... Read, typename... T>
void readRows(Seat &seat, const IHBXProperties *properties, const PropertyRow<Read, T> &...rows)
{
    const auto readRow = [&](const auto &row, auto value) {
        if (!properties || !properties->hasProperty(row.name))
            return;
        readValue(*properties, row.name, value);
        seat.*row.field = value;
    };
    (readRow(rows, Read()), ...);
}

/** What foundations, piles and tie beams are made anew from; elevations apart. */
void readSection(Seat &seat, const IHBXProperties *own)
{
    readRows(seat, own, row(property::sectionPoly, &Seat::SectionPoly), row(property::axisOffset, &Seat::AxisOffset),
             row(property::axisOffsetJzbz, &Seat::AxisOffset), // the second name wins
             row(property::type1, &Seat::Type), rowAs<int>(property::height, &Seat::Height),
             row(property::sectionWidth, &Seat::SectionWidth), row(property::sectionHeight, &Seat::SectionHeight));
}

/** The two elevations, from the draw object and from its element. */
void readElevations(Seat &seat, IHBXElementDrawObj &object, const std::wstring &top, const std::wstring &bottom)
{
    const IHBXProperties *own = object.properties();
    IHBXElement *element = object.element();
    const IHBXProperties *common = element ? element->properties() : nullptr;
    readRows(seat, own, row(top, &Seat::EDOTopElev));
    readRows(seat, common, row(top, &Seat::TopElev));
    readRows(seat, own, row(bottom, &Seat::EDOBtmElev));
    readRows(seat, common, row(bottom, &Seat::BtmElev));
}

void readRebuildData(Seat &seat, IHBXElementDrawObj &object, const IHBXShape &shape)
{
    readSection(seat, object.properties());
    if (dynamic_cast<const IHBXCustomLineSolidShape *>(&shape)) {
        // Meant: of a tie beam, top and bottom are the tops at its start and end.
        readElevations(seat, object, property::startPtTopElev, property::endPtTopElev);
        return;
    }
    if (const auto *solid = dynamic_cast<const IHBXCustomPointSolidShape *>(&shape)) {
        seat.Angle = solid->angle();
        seat.Mirror = solid->mirror();
    }
    readElevations(seat, object, property::topElev, property::bottomElev);
}

Curve worldLineOf(const IHBXCustomLineSolidShape &solid)
{
    Curve line;
    return vks::cloneOrNull(solid.worldLine(line, IHBXModel::g_bDefaultAutoCalc));
}

bool isOffset(double distance)
{
    const double size = std::fabs(distance);
    return hbx::isGreater(size, kLeastLineOffset, vks::lengthTolerance(size));
}

/** Moves the centre line from the axis to the middle of the object. */
void centreLine(Seat &seat, const IHBXProperties *properties)
{
    const double axisOffset = properties ? properties->asDouble(property::axisOffset) : 0.0;
    const double thickness = properties ? properties->asDouble(property::thickness) : 0.0;
    const double distance = axisOffset - thickness * 0.5;
    if (!isOffset(distance))
        return;
    if (const Curve moved = hbx::offSetCurve(seat.ipCenterLine, distance))
        seat.ipCenterLine = moved;
}

void readLine(Seat &seat, const IHBXCustomLineSolidShape &solid, const BeamSeatType &type,
              const IHBXProperties *properties)
{
    Curve local;
    seat.bLineShape = true;
    seat.ipWallLine = vks::cloneOrNull(solid.localLine(local, IHBXModel::g_bDefaultAutoCalc));
    seat.ipCenterLine = worldLineOf(solid);
    const bool hasThickness = properties && properties->hasProperty(property::thickness);
    // Meant: it is the object without a thickness whose thickness is asked for.
    if (type.kind == BeamSeatType::kBeam || hasThickness)
        return;
    centreLine(seat, properties);
    seat.ipWorldLine = worldLineOf(solid);
}

void readWall(Seat &seat, const IHBXProperties *properties)
{
    if (!properties || !properties->hasProperty(property::thickness))
        return;
    seat.bHasWallThicknessProperty = true;
    seat.dWallThickness = properties->asDouble(property::thickness);
    seat.dOffsetDist = std::min(seat.dWallThickness * kWallOffsetShare, kGreatestWallOffset);
}

/** The curve of a solid or plan line in the shape's own coordinates; null for other kinds. */
Curve ownCurve(const IHBXShape &shape)
{
    Curve curve;
    if (shape.kind() == IHBXShape::kPlanLine) {
        if (const auto *planLine = dynamic_cast<const IHBXLineShape2D *>(&shape))
            planLine->curve(curve);
    } else if (shape.kind() == IHBXShape::kLine) {
        if (const auto *solid = dynamic_cast<const IHBXCustomLineSolidShape *>(&shape))
            solid->curve(curve, IHBXModel::g_bDefaultAutoCalc);
    }
    return curve;
}

Curve seatLineOf(const IHBXShape &shape)
{
    const Curve curve = ownCurve(shape);
    vks::CCoord3<double> frame;
    if (!curve || shape.coordinates(frame, IHBXModel::g_bDefaultAutoCalc).IsAbsent())
        return nullptr;
    const vks::CVec3<double> zAxis(0.0, 0.0, 1.0);
    return vks::OrientProjectCurve2d(frame, curve, vks::CCoord3<double>(), zAxis, true);
}

void readColumn(Seat &seat, const IHBXProperties *properties)
{
    seat.bIsColumn = true;
    seat.bIsAColumn =
        properties && properties->hasProperty(property::type) && properties->asInt(property::type) == kSpecialColumn;
}

} // namespace

std::unique_ptr<ORVBeamSDCSeatInfoModel> readBeamSeat(IHBXElementDrawObj &object)
{
    const BeamSeatType &type = seatType(object.type());
    if (type.number == beam::type::column && hasSkippedSection(object))
        return nullptr;
    const IHBXShape *placed = object.shape();
    const Polygon outline = hbx::worldOutline(placed);
    if (!outline)
        return nullptr;
    const IHBXShape &shape = *placed; // there is one: it gave the outline
    const IHBXProperties *properties = object.properties();

    auto seat = std::make_unique<Seat>();
    seat->seatElementType = narrowed(object.type());
    seat->nElementSubType = narrowed(object.subType());
    IHBXElementDrawObj *unit = type.hasUnits ? topUnit(object) : nullptr;
    seat->ipWorldPoly = vks::cloneOrNull(unit ? hbx::worldOutline(unit->shape()) : outline);
    seat->nEDOID = narrowed(object.id());
    if (type.kind == BeamSeatType::kColumn)
        readColumn(*seat, properties);
    seat->dOffsetDist = kOffsetDist;
    seat->eLineShapeClass = shape.kind();
    seat->box = boxOf(shape);
    readNames(*seat, object.element());
    if (type.isRebuilt())
        readRebuildData(*seat, object, shape);
    if (const auto *solid = dynamic_cast<const IHBXCustomLineSolidShape *>(&shape))
        readLine(*seat, *solid, type, properties);
    if (type.kind == BeamSeatType::kWall)
        readWall(*seat, properties);
    seat->ipSeatLine = seatLineOf(shape);
    return seat;
}

} // namespace beam
