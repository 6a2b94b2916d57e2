#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/dwgx/DWGXModel.h"
#include "platform/dwgx/StrictJson.h"

#include <QByteArray>

#include <memory>

namespace dwgx {

/** The drawing of a `.cadi2` document, with its extension data. Null, and the refusal filled, when the text breaks any
 *  rule of the format (docs/formats/cadi2.md); else the refusal stays as it is. */
ORVCADPLATFORM_EXPORT std::unique_ptr<DWGXModel> readCadi2(const QByteArray &json, JsonRefusal &refusal);

} // namespace dwgx
