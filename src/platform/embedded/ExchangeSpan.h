#pragma once

#include "platform/embedded/ExchangeObject.h"

namespace hbx::embedded {

/** One span of a beam chain: the keys of the beam span record, none of them required, each of its own kind. Throws
 *  dwgx::JsonRefusal. */
ORVCADPLATFORM_EXPORT QJsonObject spanFromJson(const QJsonValue &value, const JsonPlace &place);

} // namespace hbx::embedded
