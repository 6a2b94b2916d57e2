#pragma once

#include "ORVCADPlatformExport.h"

namespace hbx::embedded {

struct ProjectRecord;

/** Throws DatabaseRefusal when an id stands twice, was never given out or names nothing, and when units, children or
 *  chains do not hang together as a project makes them. */
ORVCADPLATFORM_EXPORT void checkLinks(const ProjectRecord &project);

} // namespace hbx::embedded
