#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/dwgx/DWGXModel.h"

#include <QByteArray>

namespace dwgx {

/** A drawing as a `.cadi2` document, which reads back to the same drawing. A title or remark that is empty leaves the
 *  model's own. Viewer data must be finite. */
ORVCADPLATFORM_EXPORT QByteArray writeCadi2(const DWGXModel &model, const QString &title, const QString &remark);

} // namespace dwgx
