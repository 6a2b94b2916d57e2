#include "ModelSerialization/ORVCADBoardLocalModelTransformHBXService_Sample.h"

#include "ModelSerialization/HostFloor.h"
#include "ModelSerialization/NewSlabElements.h"
#include "ModelSerialization/SlabBarReading.h"
#include "ModelSerialization/SlabBarWriting.h"
#include "ModelSerialization/SlabHoleWriting.h"
#include "ModelSerialization/SlabPlateWriting.h"
#include "platform/host/IHBXService.h"

#include <optional>

using namespace slabhost;
using Service = ORVCADBoardLocalModelTransformHBXService_Sample;
using Local = ORVCADBoardLocalModel_Sample;
using BoxTree = dwgx::DWGXBaseBoxTree;

namespace {

using WriteParts = void (*)(const SlabTarget &, const NewSlabElements &);
using ReadBars = SlabBarRecords (*)(const NewSlabElements &);
using WriteBars = void (*)(const SlabBarTarget &, const SlabBarKind &, SlabBarRecords);

/** One road of bars: what is read, and how it is written. */
struct BarRoad
{
    ReadBars read;
    const SlabBarKind &(*kind)();
    WriteBars write;
};
constexpr BarRoad kForcedBars{forcedBarsOf, forcedBarKind, writeAreaBars};
constexpr BarRoad kStraddleForcedBars{straddleForcedBarsOf, straddleForcedBarKind, writeAreaBars};
constexpr BarRoad kNegativeForcedBars{negativeForcedBarsOf, negativeForcedBarKind, writeLineBars};
constexpr BarRoad kRaftMainForcedBars{raftMainForcedBarsOf, raftMainForcedBarKind, writeAreaBars};
constexpr BarRoad kRaftMainStraddleForcedBars{raftMainStraddleForcedBarsOf, raftMainStraddleForcedBarKind,
                                              writeAreaBars};
constexpr BarRoad kRaftNegativeForcedBars{raftNegativeForcedBarsOf, raftNegativeForcedBarKind, writeLineBars};

/** Of no model there are none. */
using Elements = std::optional<NewSlabElements>;

Elements newOf(const Local *local) { return local ? Elements(*local) : std::nullopt; }

void writeParts(WriteParts write, const Elements &elements, IHBXModel *model, IHBXCurState *state,
                const QString &region, const QString &floorName, IdMap &ids)
{
    if (IHBXFloor *floor = elements ? findFloor(model, region, floorName) : nullptr)
        write({*model, state, *floor, ids}, *elements);
}

void writeBars(const BarRoad &road, const Elements &elements, IHBXService *service, BoxTree *boxTree,
               const QString &region, const QString &floorName, IdMap &ids)
{
    IHBXModel *model = elements && service ? service->model() : nullptr;
    if (IHBXFloor *floor = findFloor(model, region, floorName))
        road.write({{*model, service->curState(), *floor, ids}, *service, boxTree}, road.kind(), road.read(*elements));
}

} // namespace

Service::IdMap Service::local2hbx(const Local *local, IHBXService *service, BoxTree *boxTree, const QString &region,
                                  const QString &floor)
{
    IdMap ids;
    if (!service)
        return ids;
    const Elements elements = newOf(local);
    IHBXModel *model = service->model();
    IHBXCurState *state = service->curState();
    for (const WriteParts write : {writeBoards, writeRafts, writeBoardHoles})
        writeParts(write, elements, model, state, region, floor, ids);
    for (const BarRoad &road : {kForcedBars, kNegativeForcedBars, kStraddleForcedBars, kRaftMainForcedBars,
                                kRaftMainStraddleForcedBars, kRaftNegativeForcedBars})
        writeBars(road, elements, service, boxTree, region, floor, ids);
    return ids;
}

void Service::localBoard2HBX(const Local *local, IHBXModel *model, IHBXCurState *state, const QString &region,
                             const QString &floor, IdMap &idMap)
{
    writeParts(writeBoards, newOf(local), model, state, region, floor, idMap);
}

void Service::localRaft2HBX(const Local *local, IHBXModel *model, IHBXCurState *state, const QString &region,
                            const QString &floor, IdMap &idMap)
{
    writeParts(writeRafts, newOf(local), model, state, region, floor, idMap);
}

void Service::localBoardHole2HBX(const Local *local, IHBXModel *model, IHBXCurState *state, const QString &region,
                                 const QString &floor, IdMap &idMap)
{
    writeParts(writeBoardHoles, newOf(local), model, state, region, floor, idMap);
}

void Service::localForceBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree, const QString &region,
                                const QString &floor, IdMap &idMap)
{
    writeBars(kForcedBars, newOf(local), service, boxTree, region, floor, idMap);
}

void Service::localStraddleForcedBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                         const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kStraddleForcedBars, newOf(local), service, boxTree, region, floor, idMap);
}

void Service::localRaftMainForceBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                        const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kRaftMainForcedBars, newOf(local), service, boxTree, region, floor, idMap);
}

void Service::localRaftStraddleMainForcedBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                                 const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kRaftMainStraddleForcedBars, newOf(local), service, boxTree, region, floor, idMap);
}

void Service::localNegativeForcedBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                         const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kNegativeForcedBars, newOf(local), service, boxTree, region, floor, idMap);
}

void Service::localRaftNegativeForcedBar2HBX(const Local *local, IHBXService *service, BoxTree *boxTree,
                                             const QString &region, const QString &floor, IdMap &idMap)
{
    writeBars(kRaftNegativeForcedBars, newOf(local), service, boxTree, region, floor, idMap);
}
