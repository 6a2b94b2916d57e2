#include "cli/WallKind.h"

#include "IdentifyInputModel/Wall/JsonWall2HBX.h"
#include "IdentifyInputModel/Wall/WallKeys.h"
#include "platform/services/HBXElementTypes.h"

#include <algorithm>

namespace orvcad {

bool WallKind::isBrick() const { return elementType == hbx::type::brickWall; }

QJsonObject WallKind::replyOf(const QJsonObject &map) const
{
    return {{reply, QJsonObject{{wall::reply::elementsAndEdos, QJsonObject{{document, map}}}}}};
}

QJsonObject WallKind::mapIn(const QJsonObject &walls) const
{
    const QJsonValue inReply = walls[reply].toObject()[wall::reply::elementsAndEdos];
    return inReply.toObject()[document].toObject();
}

QString wallElementKey(int number) { return QStringLiteral("key_%1").arg(number); }
QString wallPiecesKey(int number) { return QStringLiteral("value_%1").arg(number); }
int wallCount(const QJsonObject &map) { return map.size() / 2; }

const std::vector<WallKind> &wallKinds()
{
    static const std::vector<WallKind> kinds{
        {"brick", QT_TRANSLATE_NOOP("orvcad", "brick wall"), QT_TRANSLATE_NOOP("orvcad", "brick walls"),
         EORVCADIdentifyType(1), hbx::type::brickWall, wall::reply::brickWalls, wall::document::brickReply,
         jsonBrickWall2HBX},
        {"force", QT_TRANSLATE_NOOP("orvcad", "force wall"), QT_TRANSLATE_NOOP("orvcad", "force walls"),
         EORVCADIdentifyType(2), hbx::type::forceWall, wall::reply::forceWalls, wall::document::forceReply,
         jsonForceWall2HBX}};
    return kinds;
}

const WallKind &wallKindOf(const QString &word)
{
    return *std::find_if(wallKinds().begin(), wallKinds().end(),
                         [&word](const WallKind &kind) { return word == QLatin1String(kind.word); });
}

} // namespace orvcad
