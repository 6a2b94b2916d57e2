#pragma once

#include "platform/embedded/ExchangeObject.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

namespace hbx::embedded {

/** Geometry of the exchange form. JSON null is null geometry both ways; whatever else is no sound geometry of its kind
 *  is refused by throwing dwgx::JsonRefusal. */
ORVCADPLATFORM_EXPORT vks::CRefPtr<vks::CPolygon> polygonFromJson(const QJsonValue &value, const JsonPlace &place);
/** Any curve: that of a bar without a direction has no length. */
ORVCADPLATFORM_EXPORT vks::CRefPtr<vks::CCurve2d> curveFromJson(const QJsonValue &value, const JsonPlace &place);
/** The axis or plan curve of a shape, which has a length. */
ORVCADPLATFORM_EXPORT vks::CRefPtr<vks::CCurve2d> placedCurveFromJson(const QJsonValue &value, const JsonPlace &place);
ORVCADPLATFORM_EXPORT vks::CVec2<double> pointFromJson(const QJsonValue &value, const JsonPlace &place);

ORVCADPLATFORM_EXPORT QJsonValue geometryToJson(const vks::CGeometry *geometry);
ORVCADPLATFORM_EXPORT QJsonArray pointToJson(const vks::CVec2<double> &point);

} // namespace hbx::embedded
