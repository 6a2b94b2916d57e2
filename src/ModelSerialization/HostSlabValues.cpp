#include "ModelSerialization/HostSlabValues.h"

#include "ModelSerialization/SlabNumbers.h"
#include "platform/geometry/KernelTolerance.h"
#include "platform/geometry/OrientProjectCurve2d.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"

#include <cmath>

namespace slabhost {
namespace {

constexpr double kMillimetresInMetre = 1000.0;

} // namespace

HostSlabValues::HostSlabValues(IHBXElementDrawObj &object) : m_properties(object.properties()) {}

int HostSlabValues::integer(const std::wstring &name) const { return m_properties ? m_properties->asInt(name) : 0; }

double HostSlabValues::number(const std::wstring &name) const
{
    return m_properties ? m_properties->asDouble(name) : 0.0;
}

double HostSlabValues::metres(const std::wstring &name) const { return number(name) / kMillimetresInMetre; }

QString HostSlabValues::text(const std::wstring &name) const
{
    QString value;
    if (m_properties)
        m_properties->asString(value, name);
    return value;
}

qint32 HostSlabValues::hook(const std::wstring &name) const { return clampedInt(text(name).toDouble()); }

CurvePtr HostSlabValues::curve(const std::wstring &name) const
{
    CurvePtr value;
    if (m_properties)
        m_properties->asCurve(value, name);
    return value;
}

HostSlabLinks::HostSlabLinks(const QString &reinforcementInfo) : m_items(reinforcementInfo.split(QLatin1Char(';'))) {}

QStringList HostSlabLinks::fields(int item) const { return m_items.at(item).split(QLatin1Char(',')); }

qint64 HostSlabLinks::id(int item) const { return fields(item).constFirst().toLongLong(); }

CurvePtr curveInPlan(const vks::CCoord3<double> &frame, const vks::CCurve2d *curve)
{
    if (!curve)
        return nullptr;
    if (frame.IsAbsent())
        return curve->Clone();
    const bool isUpright = !(std::fabs(frame.Normal().z) > vks::g_DistEpsilon);
    const vks::CCoord3<double> plan;
    return isUpright ? nullptr : vks::OrientProjectCurve2d(frame, curve, plan, plan.Normal(), false);
}

CurvePtr planCurve(IHBXElementDrawObj &object)
{
    const auto *shape = dynamic_cast<const IHBXLineShape2D *>(object.shape());
    if (!shape)
        return nullptr;
    vks::CCoord3<double> frame;
    CurvePtr curve;
    return curveInPlan(shape->coordinates(frame, IHBXModel::g_bDefaultAutoCalc), shape->curve(curve));
}

} // namespace slabhost
