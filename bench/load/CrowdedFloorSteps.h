#pragma once

namespace load {

class LoadRunner;
struct EntryText;

/** Large replies for one floor, at growing sizes: whatever looks at all that stands there for each thing that is made shows
 *  here. */
void runCrowdedFloorSteps(LoadRunner &runner);

/** The reply of one of these steps; of -1 the building that they all begin with, which has no entries. */
const EntryText &crowdReply(int number);

} // namespace load
