#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/host/IHBXShape.h"

#include <QtGlobal>

#include <optional>

namespace hbx::embedded {

/** The kind of shape that a new draw object of a type gets; nothing for a type that has none. */
ORVCADPLATFORM_EXPORT std::optional<IHBXShape::Kind> shapeKindOfType(qint64 type);

} // namespace hbx::embedded
