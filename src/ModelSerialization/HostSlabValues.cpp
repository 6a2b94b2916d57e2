#include "ModelSerialization/HostSlabValues.h"

#include "ModelSerialization/SlabNumbers.h"
#include "encoding/NumberText.h"
#include "platform/geometry/KernelTolerance.h"
#include "platform/geometry/OrientProjectCurve2d.h"
#include "platform/host/IHBXLineShape2D.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXProperties.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace slabhost {
namespace {

constexpr double kMillimetresInMetre = 1000.0;
constexpr char16_t kLinkEnd = u';';
constexpr char16_t kFieldEnd = u',';

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

HostSlabLinks::HostSlabLinks(QString reinforcementInfo) : m_text(std::move(reinforcementInfo))
{
    QStringView rest(m_text);
    for (auto end = rest.indexOf(kLinkEnd); end >= 0; end = rest.indexOf(kLinkEnd)) {
        m_items.append(rest.left(end));
        rest = rest.mid(end + 1);
    }
    m_items.append(rest);
}

int HostSlabLinks::fieldCount(int item) const
{
    const QStringView text = m_items.at(item);
    return 1 + static_cast<int>(std::count(text.begin(), text.end(), QChar(kFieldEnd)));
}

qint64 HostSlabLinks::id(int item) const
{
    const QStringView text = m_items.at(item);
    const auto end = text.indexOf(kFieldEnd);
    return encoding::readLongLong(end < 0 ? text : text.left(end));
}

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
