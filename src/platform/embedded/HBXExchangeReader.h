#pragma once

#include "ORVCADPlatformExport.h"
#include "platform/embedded/HBXProjectRecords.h"

#include <QByteArray>

#include <optional>

namespace hbx::embedded {

struct ProjectError;

/** Reads the exchange form `hbx-project`, version 1 (docs/formats/hbx-project.md), whole and strictly. */
class ORVCADPLATFORM_EXPORT HBXExchangeReader
{
public:
    /** The building of a document. Ids count up from 1: each region, each of its floors, the floor's elements, then its
     *  draw objects in the order of creation.
     *  @param fileName  only for messages
     *  @return nothing, and the error filled, when any rule of the form is broken */
    static std::optional<ProjectRecord> read(const QByteArray &json, const QString &fileName, ProjectError &error);
};

} // namespace hbx::embedded
