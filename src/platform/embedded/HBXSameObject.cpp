#include "platform/embedded/HBXSameObject.h"

#include "platform/embedded/HBXElementDrawObj.h"
#include "platform/embedded/HBXPlacedShape.h"
#include "platform/embedded/HBXPropertyValue.h"
#include "platform/geometry/PolygonRelation.h"
#include "platform/services/HBXElementTypes.h"
#include "platform/services/HBXPropertyNames.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

namespace hbx::embedded {
namespace {

constexpr double kElevationTolerance = 1e-6; // mm: the noise of metres and millimetres
constexpr qint64 kBarTypes[] = {type::slabBar, type::slabNegativeBar, type::raftBar, type::raftNegativeBar};
constexpr const std::wstring *kBarNumbers[] = {&property::type, &property::position}; // 0 where not set

/** Points on a curve that tell a line or arc from any other; a full circle is told by four. */
constexpr double kProbes[] = {0.0, 0.25, 0.5, 0.75, 1.0}; // parts of the length

bool liesAlong(const vks::CCurve2d &curve, const vks::CCurve2d &other)
{
    return std::all_of(std::begin(kProbes), std::end(kProbes), [&](double part) {
        const auto point = curve.GetPoint(curve.StartT() + curve.Length() * part);
        return other.DistanceTo(point) <= kSamePlaceTolerance;
    });
}

bool isNear(const vks::CVec2<double> &a, const vks::CVec2<double> &b) { return a.DistanceTo(b) <= kSamePlaceTolerance; }

bool haveSameGeometry(const HBXPlacedShape &a, const HBXPlacedShape &b)
{
    const auto curve = a.shapeKind() == IHBXShape::kPlanLine ? a.worldCurve() : nullptr;
    if (curve)
        return shareWholeLength(curve, b.worldCurve());
    return vks::PolygonPolygonPosition(a.worldPolygon(), b.worldPolygon(), kSamePlaceTolerance) == vks::kPolygonsSame;
}

bool haveSameElevation(const HBXElementDrawObj &a, const HBXElementDrawObj &b, const PropertyEntry &entry)
{
    const bool isNone = isNoValue(a.propertySet().valueOf(entry));
    if (isNone || isNoValue(b.propertySet().valueOf(entry)))
        return isNone && isNoValue(b.propertySet().valueOf(entry));
    const double difference = a.propertySet().doubleValue(entry) - b.propertySet().doubleValue(entry);
    return std::fabs(difference) <= kElevationTolerance;
}

bool haveSameElevations(const HBXElementDrawObj &a, const HBXElementDrawObj &b)
{
    const TypeProperties *known = a.propertySet().known();
    return !known || std::all_of(known->entries().begin(), known->entries().end(), [&](const PropertyEntry &entry) {
        return entry.kind != PropertyKind::Elevation || haveSameElevation(a, b, entry);
    });
}

/** Drawn bars: the direction counts, since hooks and labels stand at its ends. */
bool areSameCurves(const vks::CCurve2d *a, const vks::CCurve2d *b)
{
    if (!a || !b)
        return a == b;
    return isNear(a->StartPoint(), b->StartPoint()) && isNear(a->MidPoint(), b->MidPoint()) &&
           isNear(a->EndPoint(), b->EndPoint());
}

bool areSameBars(const HBXElementDrawObj &a, const HBXElementDrawObj &b)
{
    const HBXProperties &ofA = a.propertySet();
    const HBXProperties &ofB = b.propertySet();
    const auto isSameNumber = [&](const std::wstring *name) { return ofA.asInt(*name) == ofB.asInt(*name); };
    if (!std::all_of(std::begin(kBarNumbers), std::end(kBarNumbers), isSameNumber))
        return false;
    QString textA;
    QString textB;
    vks::CRefPtr<vks::CCurve2d> curveA;
    vks::CRefPtr<vks::CCurve2d> curveB;
    return ofA.asString(textA, property::barInfo) == ofB.asString(textB, property::barInfo) &&
           areSameCurves(ofA.asCurve(curveA, property::curveData), ofB.asCurve(curveB, property::curveData));
}

} // namespace

bool isBarType(qint64 type) { return isOneOf(type, kBarTypes); }

vks::CBox2<double> barMiddle(const HBXElementDrawObj &bar)
{
    vks::CBox2<double> box;
    vks::CRefPtr<vks::CCurve2d> held;
    if (const vks::CCurve2d *curve = bar.propertySet().asCurve(held, property::curveData))
        box.Add(curve->MidPoint());
    return box;
}

bool shareWholeLength(const vks::CCurve2d *a, const vks::CCurve2d *b)
{
    return a && b && !a->IsEmpty() && !b->IsEmpty() && liesAlong(*a, *b) && liesAlong(*b, *a);
}

bool areSame(const HBXElementDrawObj &a, const HBXElementDrawObj &b)
{
    return a.type() == b.type() && haveSameElevations(a, b) && (!isBarType(a.type()) || areSameBars(a, b)) &&
           haveSameGeometry(a.placedShape(), b.placedShape());
}

} // namespace hbx::embedded
