#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"

#include "ModelSerialization/HostFloor.h"
#include "ModelSerialization/SlabBarReading.h"
#include "ModelSerialization/SlabBarWriting.h"
#include "ModelSerialization/SlabHoleWriting.h"
#include "ModelSerialization/SlabPlateWriting.h"
#include "platform/host/IHBXService.h"

using namespace slabhost;
using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
using Local = ORVCADBoardLocalModel_Sample;
using BoxTree = dwgx::DWGXBaseBoxTree;

namespace {

using ReadBars = SlabBarRecords (*)(const Local &);
using WriteBars = void (*)(const SlabBarTarget &, const SlabBarKind &, SlabBarRecords);

/** One road of bars: what is read, and how it is written. */
struct BarRoad
{
    ReadBars read;
    const SlabBarKind &(*kind)();
    WriteBars write;
};
constexpr BarRoad kForcedBars{newForcedBars, forcedBarKind, writeAreaBars};
constexpr BarRoad kStraddleForcedBars{newStraddleForcedBars, straddleForcedBarKind, writeAreaBars};
constexpr BarRoad kNegativeForcedBars{newNegativeForcedBars, negativeForcedBarKind, writeLineBars};
constexpr BarRoad kRaftMainForcedBars{newRaftMainForcedBars, raftMainForcedBarKind, writeAreaBars};
constexpr BarRoad kRaftMainStraddleForcedBars{newRaftMainStraddleForcedBars, raftMainStraddleForcedBarKind,
                                              writeAreaBars};
constexpr BarRoad kRaftNegativeForcedBars{newRaftNegativeForcedBars, raftNegativeForcedBarKind, writeLineBars};

void writeBars(const BarRoad &road, const Local *local, IHBXService *service, BoxTree *boxTree, const QString &region,
               const QString &floorName, IdMap &ids)
{
    IHBXModel *model = local && service ? service->model() : nullptr;
    if (IHBXFloor *floor = findFloor(model, region, floorName))
        road.write({{*model, service->curState(), *floor, ids}, *service, boxTree}, road.kind(), road.read(*local));
}

} // namespace

Service::IdMap Service::local2hbx(const Local *local, IHBXService *service, BoxTree *boxTree, const QString &region,
                                  const QString &floor)
{
    IdMap ids;
    if (!service)
        return ids;
    IHBXModel *model = service->model();
    IHBXCurState *state = service->curState();
    localBoard2HBX(local, model, state, region, floor, ids);
    localRaft2HBX(local, model, state, region, floor, ids);
    localBoardHole2HBX(local, model, state, region, floor, ids);
    localForceBar2HBX(local, service, boxTree, region, floor, ids);
    localNegativeForcedBar2HBX(local, service, boxTree, region, floor, ids);
    localStraddleForcedBar2HBX(local, service, boxTree, region, floor, ids);
    localRaftMainForceBar2HBX(local, service, boxTree, region, floor, ids);
    localRaftStraddleMainForcedBar2HBX(local, service, boxTree, region, floor, ids);
    localRaftNegativeForcedBar2HBX(local, service, boxTree, region, floor, ids);
    return ids;
}

void Service::localBoard2HBX(const Local *local, IHBXModel *model, IHBXCurState *state, const QString &region,
                             const QString &floorName, IdMap &idMap)
{
    if (IHBXFloor *floor = local ? findFloor(model, region, floorName) : nullptr)
        writeBoards({*model, state, *floor, idMap}, *local);
}

void Service::localRaft2HBX(const Local *local, IHBXModel *model, IHBXCurState *state, const QString &region,
                            const QString &floorName, IdMap &idMap)
{
    if (IHBXFloor *floor = local ? findFloor(model, region, floorName) : nullptr)
        writeRafts({*model, state, *floor, idMap}, *local);
}

void Service::localBoardHole2HBX(const Local *local, IHBXModel *model, IHBXCurState *state, const QString &region,
                                 const QString &floorName, IdMap &idMap)
{
    if (IHBXFloor *floor = local ? findFloor(model, region, floorName) : nullptr)
        writeBoardHoles({*model, state, *floor, idMap}, *local);
}

void Service::localForceBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree, const QString &region,
                                const QString &floor, IdMap &idMap)
{
    writeBars(kForcedBars, local, service, boxTree, region, floor, idMap);
}

void Service::localStraddleForcedBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                         const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kStraddleForcedBars, local, service, boxTree, region, floor, idMap);
}

void Service::localRaftMainForceBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                        const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kRaftMainForcedBars, local, service, boxTree, region, floor, idMap);
}

void Service::localRaftStraddleMainForcedBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                                 const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kRaftMainStraddleForcedBars, local, service, boxTree, region, floor, idMap);
}

void Service::localNegativeForcedBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                         const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kNegativeForcedBars, local, service, boxTree, region, floor, idMap);
}

void Service::localRaftNegativeForcedBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                             const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kRaftNegativeForcedBars, local, service, boxTree, region, floor, idMap);
}
