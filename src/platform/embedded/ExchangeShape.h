#pragma once

#include "platform/embedded/ExchangeObject.h"
#include "platform/embedded/HBXProjectRecords.h"

namespace hbx::embedded {

/** The shape object of the exchange form. Throws dwgx::JsonRefusal. */
ORVCADPLATFORM_EXPORT ShapeRecord shapeFromJson(const QJsonValue &value, const JsonPlace &place);
/** Geometry that was never set is null; members that stand at their start value are left out, but for sizes and the
 *  insertion point. */
ORVCADPLATFORM_EXPORT QJsonObject shapeToJson(const ShapeRecord &shape);

} // namespace hbx::embedded
