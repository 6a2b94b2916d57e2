#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXProjectRecords.h"

#include <QByteArray>

namespace hbx::embedded {

/** Writes the exchange form `hbx-project`, version 1 (docs/formats/hbx-project.md). */
class ORVCADPLATFORM_EXPORT HBXExchangeWriter
{
public:
    /** The document, indented, members in alphabetic order. It reads back to the same building but for ids: regions,
     *  floors and elements stand in id order, and where draw objects were not made element by element their order of
     *  creation is stated. Objects that properties refer to get a key if they have none. A reference to an object that
     *  is gone is left out. */
    static QByteArray write(const ProjectRecord &project);
};

} // namespace hbx::embedded
