#pragma once

#include "platform/embedded/HBXProjectRecords.h"

namespace hbx::embedded {

/** Throws DatabaseRefusal when an id stands twice, was never given out or names nothing, and when units, children or
 *  chains do not hang together as a project makes them. */
void checkLinks(const ProjectRecord &project);

} // namespace hbx::embedded
