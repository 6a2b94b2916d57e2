#pragma once

#include "ModelSerialization/SlabBarKinds.h"

#include <vector>

/** The new bars of a local model as the host gets them. */
namespace slabhost {

struct NewSlabElements;

using SlabBarRecords = std::vector<SlabBarRecord>;

SlabBarRecords forcedBarsOf(const NewSlabElements &elements);
SlabBarRecords straddleForcedBarsOf(const NewSlabElements &elements);
SlabBarRecords negativeForcedBarsOf(const NewSlabElements &elements);
SlabBarRecords raftMainForcedBarsOf(const NewSlabElements &elements);
SlabBarRecords raftMainStraddleForcedBarsOf(const NewSlabElements &elements);
SlabBarRecords raftNegativeForcedBarsOf(const NewSlabElements &elements);

} // namespace slabhost
