#include "cli/WallComparison.h"

#include "IdentifyInputModel/Wall/WallKeys.h"
#include "cli/Counted.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/WallReply.h"
#include "platform/embedded/HBXProject.h"

#include <QJsonArray>
#include <QMap>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

/** Element and pieces by floor and name; the number of an entry, and the ids in it, are each project's own. */
using Walls = QMap<QString, QJsonArray>;

Walls wallsOf(const WallReply &reply, const WallKind &kind)
{
    const QJsonObject map = kind.mapIn(reply.document());
    Walls walls;
    for (int i = 0; i < wallCount(map); ++i) {
        QJsonObject element = map[wallElementKey(i)].toObject();
        element.remove(wall::key::edoId);
        const auto text = [&element](QLatin1String key) { return element[key].toString(); };
        const QString name = Message::tr("%1 on floor %2 of %3")
                                 .arg(text(wall::key::entName), text(wall::key::floorCode), text(wall::key::region));
        walls[name] = {element, map[wallPiecesKey(i)]};
    }
    return walls;
}

} // namespace

QString WallComparison::text() const
{
    return textOf(Message::tr("%1 of %2, %3")
                      .arg(counted(compared, Message::tr("piece")), walls,
                           isSame() ? Message::tr("the reply written again is the same but for ids")
                                    : Message::tr("the reply written again DIFFERS")));
}

QJsonObject WallComparison::toJson() const
{
    QJsonObject json = Comparison::toJson();
    json["kind"] = kind;
    return json;
}

WallComparison compareWalls(const HBXProject &expected, const HBXProject &found, const WallKind &kind,
                            const QString &floor)
{
    const WallReply before(expected, kind, pickFloors(expected, QString(), floor));
    const WallReply after(found, kind, pickFloors(found, QString(), floor));
    WallComparison comparison;
    comparison.kind = QString::fromLatin1(kind.word);
    comparison.walls = Message::tr(kind.titles);
    comparison.compared = before.pieces();
    const Walls wanted = wallsOf(before, kind);
    Walls there = wallsOf(after, kind);
    for (auto wall = wanted.begin(); wall != wanted.end(); ++wall)
        if (there.take(wall.key()) != *wall)
            comparison.deviations.append(wall.key());
    for (auto wall = there.begin(); wall != there.end(); ++wall)
        comparison.deviations.append(Message::tr("%1, which the original lacks").arg(wall.key()));
    return comparison;
}

} // namespace orvcad
