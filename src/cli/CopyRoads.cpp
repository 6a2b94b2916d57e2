#include "cli/CopyRoads.h"

#include "cli/BeamSeats.h"
#include "cli/Beams.h"
#include "cli/OpeningTypes.h"
#include "cli/Openings.h"
#include "cli/SeatReplyCheck.h"
#include "cli/SlabExport.h"
#include "cli/SlabNewIdentities.h"
#include "cli/Slabs.h"
#include "cli/WallReply.h"
#include "cli/Walls.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXService.h"

#include <iterator>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

using Document = CopyRoad::Document;
using Outcome = CopyRoad::Outcome;

/** Numbers and what was left out; the lists of what was made are for machines. */
template <typename RoadOutcome> Outcome told(const RoadOutcome &outcome, int doubled)
{
    return {outcome.headline() + leftOutLines(outcome.leftOut) + doubledLine(doubled), outcome.toJson(),
            outcome.leftOut.empty()};
}

template <int kind> Document writeWalls(HBXProject &project, IHBXFloor &floor)
{
    const WallReply reply(project, wallKinds().at(kind), {&floor});
    return {reply.document(), reply.leftOut()};
}
template <int kind>
Outcome applyWallReply(HBXProject &project, IHBXFloor & /*floor*/, const QJsonObject &reply, const QString &file)
{
    const WallOutcome outcome = applyWalls(project, wallKinds().at(kind), reply, file);
    return told(outcome, outcome.doubled());
}

Document writeOpenings(HBXProject &project, IHBXFloor &floor)
{
    OpeningCounts counts;
    return {openingReply(*project.service()->model(), {&floor}, counts), {}};
}
Outcome applyOpeningReply(HBXProject &project, IHBXFloor & /*floor*/, const QJsonObject &reply, const QString &file)
{
    const OpeningOutcome outcome = applyOpenings(project, openingMembers(reply, file));
    return {outcome.text(), outcome.toJson(), outcome.leftOut.empty()};
}

Document writeSeats(HBXProject &project, IHBXFloor &floor)
{
    std::vector<SeatOutcome::Kind> counts;
    return {seatDocument(project, {&floor}, counts), {}};
}
Outcome applySeatReply(HBXProject &project, IHBXFloor & /*floor*/, const QJsonObject &reply, const QString &file)
{
    const SeatOutcome outcome = applySeats(project, reply, file);
    return {outcome.text(), outcome.toJson(), outcome.leftOut.empty()};
}

Document writeBeams(HBXProject &project, IHBXFloor &floor)
{
    BeamCounts counts;
    return {beamDocument(project, {&floor}, counts), {}};
}
Outcome applyBeamReply(HBXProject &project, IHBXFloor & /*floor*/, const QJsonObject &reply, const QString &file)
{
    const BeamOutcome outcome = applyBeams(project, reply, file);
    return told(outcome, outcome.doubled);
}

Document writeSlabs(HBXProject &project, IHBXFloor &floor)
{
    return {withNewIdentities(slabDocument(project, floor, SlabParts())), {}};
}
Outcome applySlabReply(HBXProject &project, IHBXFloor &floor, const QJsonObject &reply, const QString &file)
{
    const SlabOutcome outcome = applySlabs(project, floor, reply, file);
    return told(outcome, outcome.doubled);
}

/** Foundations and pile caps stand with their units. */
QSet<qint64> seatTypes()
{
    QSet<qint64> types{hbx::type::isolatedFoundationUnit, hbx::type::pileCapUnit};
    for (const ReplyArray &array : seatArrays())
        types.insert(array.elementType);
    return types;
}

} // namespace

const std::vector<CopyRoad> &copyRoads()
{
    static const std::vector<CopyRoad> roads{
        {"wall", {wallKinds().at(0).elementType}, writeWalls<0>, applyWallReply<0>},
        {"wall", {wallKinds().at(1).elementType}, writeWalls<1>, applyWallReply<1>},
        {"opening", {std::begin(kOpeningTypes), std::end(kOpeningTypes)}, writeOpenings, applyOpeningReply},
        {"seat", seatTypes(), writeSeats, applySeatReply},
        {"beam", beamTypes(), writeBeams, applyBeamReply},
        {"slab", slabTypes(), writeSlabs, applySlabReply},
    };
    return roads;
}

std::vector<std::string> copyRoadWords()
{
    std::vector<std::string> words;
    for (const CopyRoad &road : copyRoads())
        if (words.empty() || words.back() != road.word)
            words.emplace_back(road.word);
    return words;
}

} // namespace orvcad
