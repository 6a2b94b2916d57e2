#include "cli/FloorsDocument.h"

#include "cli/Command.h"
#include "cli/ExpectedValue.h"
#include "cli/Files.h"
#include "cli/Message.h"
#include "cli/UnreadKeys.h"
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
        return Message::tr("is no object");
    const std::unique_ptr<ORVCADFloor> floor(ORVCADFloor::fromJson(member.toObject()));
    return floor ? QString() : Message::tr("lacks one of Name, BottomElev, Height, StdCount, Remark");
}

constexpr KeyKind kFloorKeys[] = {{drawing::key::name, Expected::Text},
                                  {drawing::key::bottomElev, Expected::Number},
                                  {drawing::key::height, Expected::Number},
                                  {drawing::key::stdCount, Expected::Integer},
                                  {drawing::key::remark, Expected::Text}};

/** What of a floor that is read is not read as it stands. */
QStringList changedIn(const QJsonObject &floor)
{
    QStringList known{drawing::key::code}; // never read, whatever it is
    QStringList changed;
    for (const KeyKind &expected : kFloorKeys) {
        known.append(expected.key);
        if (!fits(floor.value(expected.key), expected.kind))
            changed.append(Message::tr("%1: is not %2, and reads as %3")
                               .arg(expected.key, wordFor(expected.kind),
                                    expected.kind == Expected::Text ? Message::tr("nothing") : QStringLiteral("0")));
    }
    return changed + unreadIn(floor, known);
}

/** The same of the document around the floors. */
QStringList changedAround(const QJsonObject &document)
{
    QStringList changed;
    if (!document.value(drawing::key::areaName).isString())
        changed.append(Message::tr("%1: is not text, and reads as nothing").arg(drawing::key::areaName));
    return changed + unreadIn(document, {drawing::key::areaName, drawing::key::floors});
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
    const QJsonObject json = readJsonObject(path, Message::tr("floors document"));
    FloorsDocument document;
    document.floors.reset(ORVCADFloors::fromJson(json));
    if (!document.floors)
        throw CommandFailure(kBadInput, path, {}, Message::tr("no floors document: AreaName or Floors is missing"));
    const QJsonValue members = json[drawing::key::floors];
    if (!members.isArray())
        throw CommandFailure(kBadInput, path, drawing::key::floors, Message::tr("is no array"));
    document.leftOut = changedAround(json);
    int index = 0;
    for (const QJsonValue &member : members.toArray()) {
        const QString place = QStringLiteral("%1[%2]").arg(drawing::key::floors).arg(index++);
        const QString reason = reasonToSkip(member);
        if (!reason.isEmpty())
            document.leftOut.append(place + QStringLiteral(": ") + reason);
        else
            for (const QString &changed : changedIn(member.toObject()))
                document.leftOut.append(place + u'.' + changed);
    }
    return document;
}

} // namespace orvcad
