#include "ReplyRoads.h"

#include "RoadParts.h"

#include <ostream>

namespace honestytest {

const std::vector<ReplyRoad> &replyRoads()
{
    static const std::vector<ReplyRoad> roads = [] {
        std::vector<ReplyRoad> all;
        for (const auto &some : {openingRoads(), slabRoads(), beamRoads(), seatRoads(), wallRoads()})
            all.insert(all.end(), some.begin(), some.end());
        return all;
    }();
    return roads;
}

void PrintTo(const ReplyRoad &road, std::ostream *out) { *out << road.name; }

} // namespace honestytest
