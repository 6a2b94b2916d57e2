#pragma once

#include "ORVCADPlatformExport.h"

#include <QtGlobal>

#include <vector>

namespace hbx::embedded {

/** What objects of some types may be attached to: openings to walls, holes to slabs and rafts. */
struct AttachmentRule
{
    std::vector<qint64> attached;
    std::vector<qint64> hosts;
    const char *otherHost; ///< reason when it names something else
};

/** The rule of objects of a type; null for types that are attached to nothing. */
ORVCADPLATFORM_EXPORT const AttachmentRule *attachmentRuleOf(qint64 type);

} // namespace hbx::embedded
