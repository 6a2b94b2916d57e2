#pragma once

#include "ORVCADModelDataExport.h"
#include "platform/geometry/CCoord3.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/WorldOutline.h"

#include <QString>
#include <QStringView>
#include <QVarLengthArray>
#include <QtGlobal>

#include <string>

class IHBXProperties;

/** What the reading of slabs and bars asks a draw object of the host for. */
namespace slabhost {

using CurvePtr = vks::CRefPtr<vks::CCurve2d>;
using PolygonPtr = vks::CRefPtr<vks::CPolygon>;

/** The property values of a draw object. One that the object lacks, and every one of an object without properties, is 0,
 *  empty or null. */
class HostSlabValues
{
public:
    explicit HostSlabValues(IHBXElementDrawObj &object);

    int integer(const std::wstring &name) const;
    double number(const std::wstring &name) const;
    /** An elevation, m. */
    double metres(const std::wstring &name) const;
    QString text(const std::wstring &name) const;
    /** A length that is kept as text, without its fraction: beyond 32 bits the end of the range, 0 for other text. */
    qint32 hook(const std::wstring &name) const;
    /** The host's own: to be read and not changed. */
    CurvePtr curve(const std::wstring &name) const;

private:
    const IHBXProperties *m_properties;
};

/** The draw objects that "ReinforcementInfo" links a bar with: items joined by ";", each of fields joined by ",", of which
 *  the first is an id. */
class HostSlabLinks
{
public:
    explicit HostSlabLinks(QString reinforcementInfo);

    int count() const { return m_items.size(); }
    int fieldCount(int item) const;
    /** 0 for text that is no number. */
    qint64 id(int item) const;

private:
    static constexpr int kUsualCount = 4;

    QString m_text;
    QVarLengthArray<QStringView, kUsualCount> m_items; // of the text
};

// ---- Geometry, in the plan of the floor and in copies, unless something else is told

/** Outline of an object whose shape is of one of those kinds; null for another kind and without geometry. */
template <typename... Kinds> PolygonPtr outlineOf(IHBXElementDrawObj &object)
{
    const IHBXShape *shape = object.shape();
    const PolygonPtr outline = (dynamic_cast<const Kinds *>(shape) || ...) ? hbx::worldOutline(shape) : nullptr;
    return vks::cloneOrNull(outline);
}

/** A curve that is told in a frame: as it stands without one, else projected along the vertical. Null for null and where
 *  the frame stands upright. */
ORVCADMODELDATA_EXPORT CurvePtr curveInPlan(const vks::CCoord3<double> &frame, const vks::CCurve2d *curve);
/** Curve of a plan line; null for another kind of shape, and where the curve has no place in the plan. */
CurvePtr planCurve(IHBXElementDrawObj &object);

} // namespace slabhost
