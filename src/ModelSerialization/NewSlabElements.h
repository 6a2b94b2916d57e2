#pragma once

#include "ORVCADModelDataExport.h"
#include "slab/ORVCADBoardLocalModel_Sample.h"

#include <vector>

namespace slabhost {

/** The elements of a local model that the host does not have yet, those without an id of it, by class and in the order of
 *  the children. The model is gone through once for all of them, since a large one lies out of the caches. It goes on
 *  owning them. */
struct ORVCADMODELDATA_EXPORT NewSlabElements
{
    using Model = ORVCADBoardLocalModel_Sample;

    explicit NewSlabElements(const Model &local);

    std::vector<const Model::Board *> boards;
    std::vector<const Model::Raft *> rafts;
    std::vector<const Model::BoardHole *> holes; ///< of both
    std::vector<const Model::ForcedBar *> forcedBars;
    std::vector<const Model::StraddleForcedBar *> straddleForcedBars;
    std::vector<const Model::NegativeForcedBar *> negativeForcedBars;
    std::vector<const Model::RaftMainForcedBar *> raftMainForcedBars;
    std::vector<const Model::RaftMainStraddleForcedBar *> raftMainStraddleForcedBars;
    std::vector<const Model::RaftNegativeForcedBar *> raftNegativeForcedBars;
};

} // namespace slabhost
