#pragma once

namespace load {

class LoadRunner;

/** A building as a whole, at growing sizes: imported, opened, a floor exported, a reply applied to a floor and saved, saved
 *  as another file, exported. */
void runBuildingSteps(LoadRunner &runner);

} // namespace load
