#include "platform/embedded/HBXCheck.h"

#include "platform/dwgx/Reason.h"
#include "platform/embedded/HBXModel.h"
#include "platform/embedded/HBXPlacedShape.h"
#include "platform/embedded/HBXSameObject.h"
#include "platform/geometry/KernelTolerance.h"

#include <algorithm>

namespace hbx::embedded {
namespace {

struct OutlineFault
{
    unsigned check;
    const char *reason;
};
/** In the order in which a fault makes sense: each check takes the ones before for granted. */
constexpr OutlineFault kOutlineFaults[] = {
    {vks::CPolygon::kNotEmpty, QT_TRANSLATE_NOOP("host", "The outline of the draw object has no edges.")},
    {vks::CPolygon::kClosed, QT_TRANSLATE_NOOP("host", "The outline of the draw object is open.")},
    {vks::CPolygon::kNoShortEdge,
     QT_TRANSLATE_NOOP("host", "The outline of the draw object has an edge of no length.")},
    {vks::CPolygon::kHasArea, QT_TRANSLATE_NOOP("host", "The outline of the draw object has no area.")},
    {vks::CPolygon::kNoCrossing,
     QT_TRANSLATE_NOOP("host", "The outline of the draw object crosses or overlaps itself.")},
    {vks::CPolygon::kHolesInside,
     QT_TRANSLATE_NOOP("host", "A hole in the outline of the draw object is not inside it.")},
    {vks::CPolygon::kAllChecks, QT_TRANSLATE_NOOP("host", "The outline of the draw object is invalid.")},
};

QString outlineFault(const vks::CPolygon *outline)
{
    if (!outline || outline->IsValid(vks::CPolygon::kAllChecks, nullptr, nullptr))
        return QString();
    const auto *fault = std::find_if(std::begin(kOutlineFaults), std::end(kOutlineFaults), [outline](const auto &row) {
        return !outline->IsValid(row.check, nullptr, nullptr);
    });
    return dwgx::Reason::tr(fault->reason);
}

QString curveFault(const vks::CCurve2d *curve)
{
    const bool hasLength = !curve || curve->Length() > vks::g_DistEpsilon;
    return hasLength ? QString() : dwgx::Reason::tr("The curve of the draw object has no length.");
}

} // namespace

bool HBXCheck::checkDrawObj(IHBXElementDrawObj *drawObj, HBXCheckError &error, std::map<qint64, QString> &collisions)
{
    error = {};
    collisions.clear();
    HBXElementDrawObj *object = m_model.drawObjects()->own(drawObj);
    if (!object) {
        error.reason = dwgx::Reason::tr("There is no draw object of this building to check.");
        return false;
    }
    error.reason = faultOf(*object);
    if (error.reason.isEmpty())
        collisions = collisionsOf(*object);
    if (!collisions.empty())
        error.reason = collisions.begin()->second;
    if (error.reason.isEmpty())
        return true;
    m_model.journal().add({JournalEntry::kCheckRefused, object->id(), object->ownElement().ownName(), error.reason});
    return false;
}

QString HBXCheck::faultOf(HBXElementDrawObj &object) const
{
    const HBXPlacedShape &shape = object.placedShape();
    if (!m_model.regions()->own(object.floor()))
        return dwgx::Reason::tr("The draw object stands on no floor.");
    if (!shape.hasGeometry())
        return dwgx::Reason::tr("The draw object has no geometry.");
    const QString fault = curveFault(shape.worldCurve());
    const bool isArea = shape.shapeKind() != IHBXShape::kPlanLine; // a plan line's outline encloses nothing
    return fault.isEmpty() && isArea ? outlineFault(shape.worldPolygon()) : fault;
}

HBXPlaceIndex::Objects HBXCheck::inSamePlace(HBXElementDrawObj &object)
{
    HBXTypeContents &contents = object.ownFloor().contents().ofType(object.type());
    const vks::CBox2<double> &box = object.placedShape().worldBox();
    const vks::CBox2<double> middle = contents.barMiddles ? barMiddle(object) : vks::CBox2<double>();
    if (!middle.IsValid())
        return contents.places.sameBox(box, kSamePlaceTolerance);
    HBXPlaceIndex::Objects bars = contents.barMiddles->sameBox(middle, 2.0 * kSamePlaceTolerance); // areSame decides
    const auto isElsewhere = [&](const HBXElementDrawObj *bar) {
        return !HBXPlaceIndex::areSameBoxes(bar->placedShape().worldBox(), box, kSamePlaceTolerance);
    };
    bars.erase(std::remove_if(bars.begin(), bars.end(), isElsewhere), bars.end());
    return bars;
}

std::map<qint64, QString> HBXCheck::collisionsOf(HBXElementDrawObj &object) const
{
    std::map<qint64, QString> collisions;
    for (const HBXElementDrawObj *other : inSamePlace(object))
        if (other != &object && areSame(object, *other))
            collisions.emplace(other->id(), dwgx::Reason::tr("The draw object is the same as draw object %1 of \"%2\".")
                                                .arg(other->id())
                                                .arg(other->ownElement().ownName()));
    return collisions;
}

} // namespace hbx::embedded
