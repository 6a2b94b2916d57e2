#pragma once

#include "ModelSerialization/SlabBarKinds.h"

#include <vector>

class ORVCADBoardLocalModel_Sample;

/** The bars of a local model that are not in the host yet, as the host gets them. */
namespace slabhost {

using SlabBarRecords = std::vector<SlabBarRecord>;

SlabBarRecords newForcedBars(const ORVCADBoardLocalModel_Sample &local);
SlabBarRecords newStraddleForcedBars(const ORVCADBoardLocalModel_Sample &local);
SlabBarRecords newNegativeForcedBars(const ORVCADBoardLocalModel_Sample &local);
SlabBarRecords newRaftMainForcedBars(const ORVCADBoardLocalModel_Sample &local);
SlabBarRecords newRaftMainStraddleForcedBars(const ORVCADBoardLocalModel_Sample &local);
SlabBarRecords newRaftNegativeForcedBars(const ORVCADBoardLocalModel_Sample &local);

} // namespace slabhost
