#include "cli/FloorLookup.h"

#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Message.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

#include <QStringList>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

IHBXRegions &regionsOf(const HBXProject &project) { return *project.service()->model()->regions(); }

QString quotedList(const QStringList &names)
{
    return names.isEmpty() ? Message::tr("none") : '"' + names.join(QStringLiteral("\", \"")) + '"';
}

QString knownFloors(IHBXRegion &region)
{
    QStringList names;
    for (int i = 0; i < region.floors()->count(); ++i)
        names.append(region.floors()->at(i)->name());
    return quotedList(names);
}

void appendFloors(IHBXRegion &region, std::vector<IHBXFloor *> &floors)
{
    for (int i = 0; i < region.floors()->count(); ++i)
        floors.push_back(region.floors()->at(i));
}

/** How a member names its floor. */
struct FloorKey
{
    IHBXFloor *(IHBXFloors::*find)(const QString &);
    const char *word; ///< in English
};

IHBXFloor *floorIn(IHBXModel &model, const QString &regionName, const FloorKey &key, const QString &value,
                   QString &reason)
{
    IHBXRegion *region = model.regions()->find(regionName);
    IHBXFloor *floor = region ? (region->floors()->*key.find)(value) : nullptr;
    if (!region)
        reason = Message::tr("unknown region \"%1\"").arg(regionName);
    else if (!floor)
        reason = Message::tr("unknown %1 \"%2\" in region \"%3\"").arg(Message::tr(key.word), value, regionName);
    return floor;
}

} // namespace

QStringList regionNames(const HBXProject &project)
{
    QStringList names;
    for (int i = 0; i < regionsOf(project).count(); ++i)
        names.append(regionsOf(project).at(i)->name());
    return names;
}

IHBXRegion &requireRegion(const HBXProject &project, const QString &name)
{
    IHBXRegion *region =
        name.isEmpty() && regionsOf(project).count() == 1 ? regionsOf(project).at(0) : regionsOf(project).find(name);
    if (!region) {
        const QString known = quotedList(regionNames(project));
        throw CommandFailure(kBadInput, project.path(), {},
                             name.isEmpty() ? Message::tr("no --region is given; known regions: %1").arg(known)
                                            : Message::tr("no region \"%1\"; known regions: %2").arg(name, known));
    }
    return *region;
}

IHBXFloor &requireFloor(const HBXProject &project, IHBXRegion &region, const QString &name)
{
    IHBXFloor *floor = region.floors()->find(name);
    if (!floor)
        floor = region.floors()->findByCode(name);
    if (!floor)
        throw CommandFailure(kBadInput, project.path(), {},
                             Message::tr("no floor \"%1\" in region \"%2\"; known floors: %3")
                                 .arg(name, region.name(), knownFloors(region)));
    return *floor;
}

std::vector<IHBXFloor *> pickFloors(const HBXProject &project, const QString &region, const QString &floor)
{
    std::vector<IHBXFloor *> floors;
    if (!floor.isEmpty()) {
        floors.push_back(&requireFloor(project, requireRegion(project, region), floor));
    } else if (!region.isEmpty()) {
        appendFloors(requireRegion(project, region), floors);
    } else {
        for (int i = 0; i < regionsOf(project).count(); ++i)
            appendFloors(*regionsOf(project).at(i), floors);
    }
    return floors;
}

std::vector<IHBXFloor *> pickFloors(const HBXProject &project, const Arguments &arguments)
{
    return pickFloors(project, Arguments::text(arguments.region), Arguments::text(arguments.floor));
}

IHBXFloor &pickFloor(const HBXProject &project, const Arguments &arguments)
{
    return requireFloor(project, requireRegion(project, Arguments::text(arguments.region)),
                        Arguments::text(arguments.floor));
}

QSet<qint64> idsOf(const std::vector<IHBXFloor *> &floors)
{
    QSet<qint64> ids;
    for (const IHBXFloor *floor : floors)
        ids.insert(floor->id());
    return ids;
}

IHBXFloor *floorOfNames(IHBXModel &model, const QString &regionName, const QString &floorName, QString &reason)
{
    return floorIn(model, regionName, {&IHBXFloors::find, QT_TRANSLATE_NOOP("orvcad", "floor")}, floorName, reason);
}

IHBXFloor *floorOfCode(IHBXModel &model, const QString &regionName, const QString &floorCode, QString &reason)
{
    return floorIn(model, regionName, {&IHBXFloors::findByCode, QT_TRANSLATE_NOOP("orvcad", "floor code")}, floorCode,
                   reason);
}

} // namespace orvcad
