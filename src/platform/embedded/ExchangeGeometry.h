#pragma once

#include "platform/embedded/ExchangeObject.h"
#include "platform/geometry/CCurve2d.h"
#include "platform/geometry/CPolygon.h"

namespace hbx::embedded {

/** Geometry of the exchange form. JSON null is null geometry both ways; whatever else is no sound geometry of its kind
 *  is refused by throwing dwgx::JsonRefusal. */
vks::CRefPtr<vks::CPolygon> polygonFromJson(const QJsonValue &value, const JsonPlace &place);
vks::CRefPtr<vks::CCurve2d> curveFromJson(const QJsonValue &value, const JsonPlace &place);
vks::CVec2<double> pointFromJson(const QJsonValue &value, const JsonPlace &place);

QJsonValue geometryToJson(const vks::CGeometry *geometry);
QJsonArray pointToJson(const vks::CVec2<double> &point);

} // namespace hbx::embedded
