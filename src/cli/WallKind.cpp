#include "cli/WallKind.h"

#include "IdentifyInputModel/Wall/JsonWall2HBX.h"
#include "IdentifyInputModel/Wall/WallHostKeys.h"
#include "IdentifyInputModel/Wall/WallKeys.h"

#include <algorithm>

namespace orvcad {

const std::vector<WallKind> &wallKinds()
{
    static const std::vector<WallKind> kinds{
        {"brick", wall::type::brickWall, wall::reply::brickWalls, wall::document::brickReply, jsonBrickWall2HBX},
        {"force", wall::type::forceWall, wall::reply::forceWalls, wall::document::forceReply, jsonForceWall2HBX}};
    return kinds;
}

const WallKind &wallKindOf(const QString &word)
{
    return *std::find_if(wallKinds().begin(), wallKinds().end(),
                         [&word](const WallKind &kind) { return word == QLatin1String(kind.word); });
}

} // namespace orvcad
