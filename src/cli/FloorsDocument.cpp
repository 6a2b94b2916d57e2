#include "cli/FloorsDocument.h"

#include "cli/Command.h"
#include "cli/Files.h"
#include "drawing/DrawingKeys.h"
#include "drawing/ORVCADFloor.h"
#include "drawing/ORVCADFloors.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXRegion.h"

#include <QJsonArray>
#include <QJsonObject>

namespace orvcad {

namespace {

std::unique_ptr<ORVCADFloor> floorOfHost(const IHBXFloor &source)
{
    auto floor = std::make_unique<ORVCADFloor>(source.name(), source.bottomElev(), source.height(),
                                               source.standardFloorCount(), source.remark());
    QString code;
    floor->setCode(source.code(code));
    return floor;
}

/** Why the reader would skip this member; empty when it would not. */
QString reasonToSkip(const QJsonValue &member)
{
    if (!member.isObject())
        return QStringLiteral("is no object");
    const std::unique_ptr<ORVCADFloor> floor(ORVCADFloor::fromJson(member.toObject()));
    return floor ? QString() : QStringLiteral("lacks one of Name, BottomElev, Height, StdCount, Remark");
}

} // namespace

std::unique_ptr<ORVCADFloors> floorsOfRegion(IHBXRegion &region)
{
    auto floors = std::make_unique<ORVCADFloors>();
    floors->setAreaName(region.name());
    for (int i = 0; i < region.floors()->count(); ++i)
        floors->addFloor(floorOfHost(*region.floors()->at(i)).release());
    return floors;
}

FloorsDocument readFloorsDocument(const QString &path)
{
    const QJsonObject json = readJsonObject(path, QStringLiteral("floors document"));
    FloorsDocument document;
    document.floors.reset(ORVCADFloors::fromJson(json));
    if (!document.floors)
        throw CommandFailure(kBadInput, path, {}, QStringLiteral("no floors document: AreaName or Floors is missing"));
    const QJsonValue members = json[drawing::key::floors];
    if (!members.isArray())
        throw CommandFailure(kBadInput, path, drawing::key::floors, QStringLiteral("is no array"));
    int index = 0;
    for (const QJsonValue &member : members.toArray()) {
        const QString reason = reasonToSkip(member);
        if (!reason.isEmpty())
            document.leftOut.append(QStringLiteral("%1[%2]: %3").arg(drawing::key::floors).arg(index).arg(reason));
        ++index;
    }
    return document;
}

} // namespace orvcad
