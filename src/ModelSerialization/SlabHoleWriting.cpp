#include "ModelSerialization/SlabHoleWriting.h"

#include "ModelSerialization/NewSlabElements.h"
#include "ModelSerialization/SectionInfoText.h"
#include "ModelSerialization/SlabHostKeys.h"
#include "ModelSerialization/SlabHostWriting.h"
#include "ModelSerialization/SlabNumbers.h"
#include "platform/geometry/Angle.h"
#include "platform/geometry/CArc2d.h"
#include "platform/geometry/CLine2d.h"
#include "platform/geometry/KernelTolerance.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"
#include "platform/host/IHBXSectionPointSolidShape.h"
#include "platform/services/DwgxRound.h"
#include "platform/services/HbxTolerance.h"
#include "platform/services/NormalAngle.h"
#include "platform/services/ORVFindSlabHoleParentUtils.h"
#include "platform/services/PolyIsCongruent.h"

#include <cmath>
#include <tuple>

namespace slabhost {
namespace {

using Model = ORVCADBoardLocalModel_Sample;
using Point = vks::CVec2<double>;
using Polygon = vks::CRefPtr<vks::CPolygon>;

constexpr double kNearFullTurn = 0.0010123456789;    // rad
constexpr double kSectionStepsPerMillimetre = -0.02; // meant: subtracted, see sectionLines
constexpr bool kSizeFlag = false;
constexpr bool kSectionFlag = true;

/** "SectionTypeID". */
enum HoleKind { kRectangle = 0, kCircle = 1, kOtherOutline = 2 };
constexpr qint64 kSubTypes[] = {subtype::rectangularHole, subtype::roundHole, subtype::otherHole}; // by HoleKind

struct HoleRecord
{
    QUuid id;
    QString name;
    QString barInfo;
    Polygon surface;
    int kind = kOtherOutline;
    int width = 0;  // mm, along x
    int length = 0; // mm, along y
    int radius = 0; // mm
};

int radiusOf(const vks::CPolygon &circle)
{
    const auto *arc = dynamic_cast<const vks::CArc2d *>(circle.GetCurve(0));
    return arc ? clampedInt(arc->Radius()) : 0;
}

void measure(HoleRecord &record)
{
    if (!record.surface)
        return;
    if (record.surface->IsRectangle(vks::g_AngleEpsilon)) {
        record.kind = kRectangle;
        record.width = dwgx::round(record.surface->Box().Width());
        record.length = dwgx::round(record.surface->Box().Height());
    } else if (record.surface->IsCircle()) {
        record.kind = kCircle;
        record.radius = radiusOf(*record.surface);
    }
}

QString nameBySize(const HoleRecord &record)
{
    switch (record.kind) {
    case kRectangle:
        return QStringLiteral("BD-%1*%2").arg(record.width).arg(record.length);
    case kCircle:
        return QStringLiteral("BD-r=%1").arg(record.radius);
    default:
        return QStringLiteral("BD-异形");
    }
}

HoleRecord recordOf(const Model::BoardHole &hole)
{
    HoleRecord record;
    record.id = hole.recongnizedID;
    record.barInfo = hole.barInfo;
    if (hole.surface)
        record.surface = hole.surface->Clone();
    measure(record);
    record.name = hole.name.isEmpty() ? nameBySize(record) : hole.name;
    return record;
}

std::vector<HoleRecord> recordsOf(const std::vector<const Model::BoardHole *> &holes)
{
    std::vector<HoleRecord> records;
    records.reserve(holes.size());
    for (const Model::BoardHole *hole : holes)
        records.push_back(recordOf(*hole));
    return records;
}

/** Meant: an outline that is neither rectangle nor circle matches any other one. */
bool matches(const HoleRecord &record, const IHBXProperties &properties)
{
    if (properties.asInt(property::sectionTypeId) != record.kind)
        return false;
    if (record.kind == kRectangle)
        return properties.asInt(property::width) == record.width && properties.asInt(property::length) == record.length;
    return record.kind != kCircle || properties.asInt(property::radius) == record.radius;
}

void fill(const HoleRecord &record, IHBXElement &element, IHBXProperties &properties)
{
    if (record.kind == kRectangle) {
        properties.setInt(property::width, record.width, kSizeFlag);
        properties.setInt(property::length, record.length, kSizeFlag);
    } else if (record.kind == kCircle) {
        properties.setInt(property::radius, record.radius, kSizeFlag);
    } else {
        properties.setInt(property::sectionTypeId, record.kind, kSectionFlag);
        fillAlienHoleProp(record.surface, &element);
    }
}

ElementRule ruleOf(const HoleRecord &record)
{
    return {type::slabHole, kSubTypes[record.kind], record.name,
            [record](const IHBXProperties &properties) { return matches(record, properties); },
            [record](IHBXElement &element, IHBXProperties &properties) { fill(record, element, properties); }};
}

// ---- Draw objects

bool isEqual(double a, double b) { return hbx::isEqual(a, b, vks::lengthTolerance(std::fabs(a))); }

/** Two sides that meet have one length. */
bool isSquare(const vks::CPolygon &outline)
{
    const vks::CCurve2d *first = outline.GetCurve(0);
    const vks::CCurve2d *second = outline.GetCurve(1);
    return first && second && isEqual(first->Length(), second->Length());
}

Polygon rectangle(double width, double length)
{
    const Point corners[] = {{0.0, 0.0}, {width, 0.0}, {width, length}, {0.0, length}};
    vks::CRefPtr<vks::CLoop> loop = new vks::CLoop;
    for (int i = 0; i < 4; ++i)
        loop->AddCurve(new vks::CLine2d(corners[i], corners[(i + 1) % 4]), false);
    Polygon polygon = new vks::CPolygon;
    polygon->AddLoop(loop, true);
    return polygon;
}

/** A rectangle that is turned by half a turn lies as it did. */
double inHalfTurn(double angle)
{
    double rest = normalAngle2PI_max2PI(angle, kNearFullTurn);
    if (rest > vks::kPi)
        rest -= vks::kPi;
    return rest > vks::kPi / 2 ? rest - vks::kPi : rest;
}

double angleOf(IHBXElement &element, const vks::CPolygon &outline)
{
    const IHBXProperties *properties = element.properties();
    if (!properties || properties->asInt(property::sectionTypeId) != kRectangle)
        return 0.0;
    return holeAngle(properties->asDouble(property::width), properties->asDouble(property::length), outline);
}

/** False for an object that is no hole. */
bool place(IHBXElementDrawObj &hole, const Point &centre, double angle)
{
    auto *shape = dynamic_cast<IHBXSectionPointSolidShape *>(hole.shape());
    if (!shape)
        return false;
    shape->setInsertPoint(&centre);
    shape->setAngle(angle);
    return true;
}

/** False for a clone without a shape, and when the host's check refuses it. */
bool enterHole(const SlabTarget &target, IHBXElementDrawObj &hole, IHBXElementDrawObj &parent, const Point &centre,
               double angle)
{
    IHBXShape *shape = hole.shape();
    if (!shape)
        return false;
    shape->setCoordinates(vks::CCoord3<double>());
    place(hole, centre, angle);
    hole.attachTo(&parent);
    target.model.drawObjects()->addDrawObj(&hole);
    return passesCheck(target, hole);
}

DrawObjId writeHole(const SlabTarget &target, IHBXElement &element, const HoleRecord &record)
{
    if (!record.surface)
        return {};
    const Point centre = record.surface->Box().Center();
    const double angle = angleOf(element, *record.surface);
    const DrawObjGuard probe(createDrawObj(target, element)); // it only serves to find the parent
    if (!probe.get() || !place(*probe.get(), centre, angle))
        return {};
    IHBXElementDrawObj *parent = ORVFindSlabHoleParentUtils(target.state, probe.get()).getSlabHoleParent();
    if (!parent)
        return {};
    DrawObjGuard made(probe.get()->cloneDrawObj(0, 0, 1));
    return made.keptIf([&](IHBXElementDrawObj &hole) { return enterHole(target, hole, *parent, centre, angle); });
}

/** Meant: one more than the whole steps of 50 mm. */
int sectionLines(double halfSize) { return 1 - clampedInt(dwgx::round(halfSize) * kSectionStepsPerMillimetre); }

} // namespace

double holeAngle(double width, double length, const vks::CPolygon &outline)
{
    double turn = 0.0;
    const bool isCongruent = orvcadcommon::PolyIsCongruent(rectangle(width, length), &outline, turn);
    const double angle = isCongruent ? inHalfTurn(turn) : 0.0;
    if (!isSquare(outline))
        return angle;
    if (isEqual(angle, 0.0))
        return vks::kPi / 2;
    return isEqual(angle, vks::kPi / 2) ? 0.0 : angle;
}

void fillAlienHoleProp(const vks::CPolygon *polygon, IHBXElement *const &element)
{
    IHBXProperties *properties = element ? element->properties() : nullptr;
    const vks::CBox2<double> box = polygon ? polygon->Box() : vks::CBox2<double>();
    if (!properties || !box.IsValid())
        return;
    const Polygon section = polygon->Clone();
    section->Translate(-box.minPt);
    const Point half(box.Width() / 2, box.Height() / 2);
    properties->setPolygon(property::sectionPoly, section, kSizeFlag);
    properties->setPoint(property::insertPt, &half, kSizeFlag);
    const QString info = sectionInfoText(sectionLines(half.x), sectionLines(half.y));
    properties->setString(property::sectionInfo, info, kSizeFlag);
    // Meant: the other way round than of a rectangle.
    properties->setInt(property::width, dwgx::round(box.Height()), kSizeFlag);
    properties->setInt(property::length, dwgx::round(box.Width()), kSizeFlag);
}

void writeBoardHoles(const SlabTarget &target, const NewSlabElements &elements)
{
    const auto keyOf = [](const HoleRecord &record) {
        return std::tuple(record.name, record.barInfo, record.width, record.length, record.radius, record.kind);
    };
    writeGroups(
        target, grouped(recordsOf(elements.holes), keyOf),
        [](const std::vector<HoleRecord> &group) { return ruleOf(group.front()); },
        [&target](IHBXElement &element, const HoleRecord &record) { return writeHole(target, element, record); });
}

} // namespace slabhost
