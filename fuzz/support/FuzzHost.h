#pragma once

#include "platform/embedded/HBXProject.h"

#include <memory>

/** A small building in an embedded host, for what writes into one. */
namespace fuzz {

/** A fresh project of the small building. */
std::unique_ptr<hbx::embedded::HBXProject> smallProject();

/** Whatever was written into it: the project goes out, comes in again, and is the same; it is saved, too. */
void requireSound(hbx::embedded::HBXProject &project);
/** The project is saved, opened again, and is the same. */
void requireKept(hbx::embedded::HBXProject &project);

} // namespace fuzz
