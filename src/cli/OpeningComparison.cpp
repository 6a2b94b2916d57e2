#include "cli/OpeningComparison.h"

#include "cli/Counted.h"
#include "cli/FloorLookup.h"
#include "cli/Message.h"
#include "cli/Openings.h"
#include "doorwindow/DoorWindowKeys.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXService.h"

#include <QJsonArray>
#include <QList>

#include <algorithm>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

QJsonArray membersWithoutIds(const HBXProject &project)
{
    OpeningCounts counts;
    const QJsonObject reply =
        openingReply(*project.service()->model(), pickFloors(project, QString(), QString()), counts);
    QJsonArray members = openingMembers(reply, project.path());
    for (QJsonValueRef member : members) {
        QJsonObject object = member.toObject();
        if (object.contains(doorwindow::key::elementId))
            object[doorwindow::key::elementId] = 0;
        member = object;
    }
    return members;
}

/** Name and place among its element's objects of the wall that an opening stands in. */
QString wallOf(const IHBXElementDrawObj &opening)
{
    IHBXElementDrawObj *wall = opening.parent();
    if (!wall)
        return Message::tr("no wall");
    QString name;
    wall->element()->name(name);
    QList<IHBXElementDrawObj *> pieces;
    wall->element()->drawObjs(pieces, 0);
    return Message::tr("wall %1, piece %2").arg(name, QString::number(pieces.indexOf(wall)));
}

std::vector<IHBXElementDrawObj *> allOpenings(const HBXProject &project)
{
    std::vector<IHBXElementDrawObj *> openings;
    for (IHBXFloor *floor : pickFloors(project, QString(), QString())) {
        const auto placed = placedOpenings(*floor);
        openings.insert(openings.end(), placed.begin(), placed.end());
    }
    return openings;
}

QString nameOf(const IHBXElementDrawObj &opening)
{
    QString name;
    return Message::tr("%1 on %2").arg(opening.element()->name(name), opening.floor()->name());
}

} // namespace

QString OpeningComparison::text() const
{
    return textOf(QStringLiteral("%1, %2; %3")
                      .arg(counted(compared, Message::tr("opening")),
                           sameDocument ? Message::tr("the payload written again is the same but for ids")
                                        : Message::tr("the payload written again DIFFERS"),
                           deviations.isEmpty() ? Message::tr("each in the wall it came from")
                                                : counted(deviations.size(), Message::tr("deviation"))));
}

QJsonObject OpeningComparison::toJson() const
{
    QJsonObject json = Comparison::toJson();
    json["sameDocument"] = sameDocument;
    return json;
}

OpeningComparison compareOpenings(const HBXProject &expected, const HBXProject &found)
{
    const auto before = allOpenings(expected);
    const auto after = allOpenings(found);
    OpeningComparison comparison;
    comparison.compared = static_cast<int>(before.size());
    comparison.sameDocument = membersWithoutIds(expected) == membersWithoutIds(found);
    if (before.size() != after.size())
        comparison.deviations.append(
            Message::tr("%1 openings where there were %2").arg(after.size()).arg(before.size()));
    for (std::size_t i = 0; i < std::min(before.size(), after.size()); ++i)
        if (wallOf(*before[i]) != wallOf(*after[i]))
            comparison.deviations.append(
                Message::tr("%1: in %2, was in %3").arg(nameOf(*before[i]), wallOf(*after[i]), wallOf(*before[i])));
    return comparison;
}

} // namespace orvcad
