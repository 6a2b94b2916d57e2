#pragma once

#include "cli/SlabReplyCheck.h"

#include <map>
#include <vector>

class IHBXFloor;

namespace hbx::embedded {
class HBXProject;
}

namespace orvcad {

/** Members of a reply by the draw objects that were made of them. */
using SlabsMade = std::map<qint64, const SlabReplyCheck::Member *>;

/** Reads what was made of a reply out of the host again, and tells each value that is another one there: the roads of the
 *  library round, cut and share between objects of one element, and say nothing. What is not exported, a bar that lies in no
 *  slab, is not looked at; neither are names, which the host gives, remarks and the place of labels. */
std::vector<LeftOut> changedInHost(const hbx::embedded::HBXProject &project, const IHBXFloor &floor,
                                   const SlabsMade &made);

} // namespace orvcad
