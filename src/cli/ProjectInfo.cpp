#include "cli/ProjectInfo.h"

#include "cli/Counted.h"
#include "cli/Message.h"
#include "cli/TextTable.h"
#include "cli/TypeTitles.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXDrawObjs.h"
#include "platform/host/IHBXElement.h"
#include "platform/host/IHBXElementDrawObj.h"
#include "platform/host/IHBXElements.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXFloors.h"
#include "platform/host/IHBXModel.h"
#include "platform/host/IHBXRegion.h"
#include "platform/host/IHBXRegions.h"
#include "platform/host/IHBXService.h"

#include <QHash>
#include <QJsonArray>
#include <QStringList>

#include <algorithm>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

using FloorTypes = QHash<int, QMap<qint64, ProjectInfo::TypeCount>>;

FloorTypes countByFloor(IHBXModel &model)
{
    FloorTypes types;
    for (int i = 0; i < model.elements()->count(); ++i) {
        const IHBXElement *element = model.elements()->at(i);
        ++types[element->floor()->id()][element->type()].elements;
    }
    for (int i = 0; i < model.drawObjects()->count(); ++i) {
        const IHBXElementDrawObj *object = model.drawObjects()->at(i);
        ++types[object->floor()->id()][object->type()].drawObjects;
    }
    return types;
}

ProjectInfo::Floor floorInfo(const IHBXFloor &floor, const FloorTypes &types)
{
    ProjectInfo::Floor info;
    info.name = floor.name();
    floor.code(info.code);
    info.bottomElev = floor.bottomElev();
    info.height = floor.height();
    info.types = types.value(floor.id());
    return info;
}

ProjectInfo::Region regionInfo(IHBXRegion &region, const FloorTypes &types)
{
    ProjectInfo::Region info;
    info.name = region.name();
    for (int i = 0; i < region.floors()->count(); ++i)
        info.floors.push_back(floorInfo(*region.floors()->at(i), types));
    std::stable_sort(info.floors.begin(), info.floors.end(),
                     [](const auto &a, const auto &b) { return a.bottomElev < b.bottomElev; });
    return info;
}

QJsonArray typesToJson(const QMap<qint64, ProjectInfo::TypeCount> &types)
{
    QJsonArray json;
    for (auto type = types.cbegin(); type != types.cend(); ++type)
        json.append(typeToJson(type.key(), *type));
    return json;
}

QJsonObject floorToJson(const ProjectInfo::Floor &floor)
{
    return {{"name", floor.name},
            {"code", floor.code},
            {"bottomElev", floor.bottomElev},
            {"height", floor.height},
            {"types", typesToJson(floor.types)}};
}

void appendFloorLines(const ProjectInfo::Floor &floor, QStringList &lines)
{
    lines.append(Message::tr("  %1 (code %2): bottom %3 m, height %4 m")
                     .arg(floor.name, floor.code, QString::number(floor.bottomElev), QString::number(floor.height)));
    for (auto type = floor.types.cbegin(); type != floor.types.cend(); ++type)
        lines.append(
            (type->elements == 1 ? Message::tr("    %1 %2 element  %3 placed")
                                 : Message::tr("    %1 %2 elements %3 placed"))
                .arg(TextTable::padded(QStringLiteral("%1 (%2)").arg(shownTypeTitle(type.key())).arg(type.key()), 26,
                                       TextTable::Align::Left))
                .arg(type->elements, 5)
                .arg(type->drawObjects, 6));
}

} // namespace

int ProjectInfo::floorCount() const
{
    int count = 0;
    for (const Region &region : regions)
        count += static_cast<int>(region.floors.size());
    return count;
}

ProjectInfo::TypeCount ProjectInfo::total() const
{
    TypeCount sum;
    for (const Region &region : regions)
        for (const Floor &floor : region.floors)
            for (const TypeCount &count : floor.types) {
                sum.elements += count.elements;
                sum.drawObjects += count.drawObjects;
            }
    return sum;
}

QMap<qint64, ProjectInfo::TypeCount> ProjectInfo::typesOn(const QString &region, const QString &floor) const
{
    for (const Region &known : regions)
        for (const Floor &candidate : known.floors)
            if (known.name == region && candidate.name == floor)
                return candidate.types;
    return {};
}

QString ProjectInfo::counts() const
{
    const TypeCount sum = total();
    return QStringList{counted(static_cast<int>(regions.size()), Message::tr("region")),
                       counted(floorCount(), Message::tr("floor")), counted(sum.elements, Message::tr("element")),
                       counted(sum.drawObjects, Message::tr("placed object"))}
        .join(QStringLiteral(", "));
}

QString ProjectInfo::table() const
{
    QStringList lines{QStringLiteral("%1: %2").arg(name, counts())};
    if (!source.isEmpty())
        lines.append(Message::tr("Source: %1").arg(source));
    for (const Region &region : regions) {
        lines.append(Message::tr("Region %1").arg(region.name));
        for (const Floor &floor : region.floors)
            appendFloorLines(floor, lines);
    }
    return lines.join('\n');
}

QJsonObject ProjectInfo::toJson() const
{
    QJsonArray regionArray;
    for (const Region &region : regions) {
        QJsonArray floors;
        for (const Floor &floor : region.floors)
            floors.append(floorToJson(floor));
        regionArray.append(QJsonObject{{"name", region.name}, {"floors", floors}});
    }
    return {{"name", name},
            {"source", source},
            {"elements", total().elements},
            {"drawObjects", total().drawObjects},
            {"regions", regionArray}};
}

QJsonObject typeToJson(qint64 type, const ProjectInfo::TypeCount &count)
{
    return {
        {"type", type}, {"title", typeTitle(type)}, {"elements", count.elements}, {"drawObjects", count.drawObjects}};
}

ProjectInfo projectInfo(const HBXProject &project)
{
    IHBXModel &model = *project.service()->model();
    const FloorTypes types = countByFloor(model);
    ProjectInfo info;
    info.name = project.name();
    info.source = project.source();
    for (int i = 0; i < model.regions()->count(); ++i)
        info.regions.push_back(regionInfo(*model.regions()->at(i), types));
    return info;
}

} // namespace orvcad
