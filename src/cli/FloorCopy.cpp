#include "cli/FloorCopy.h"

#include "cli/Counted.h"
#include "cli/Files.h"
#include "cli/Message.h"
#include "cli/ProjectInfo.h"
#include "cli/TypeTitles.h"
#include "platform/embedded/HBXProject.h"
#include "platform/host/IHBXFloor.h"
#include "platform/host/IHBXRegion.h"

#include <QJsonDocument>

#include <algorithm>

using hbx::embedded::HBXProject;

namespace orvcad {

namespace {

bool isAsked(const CopyRoad &road, const std::vector<std::string> &words)
{
    return std::find(words.begin(), words.end(), road.word) != words.end();
}

} // namespace

FloorCopy::FloorCopy(HBXProject &project, IHBXFloor &floor, const std::vector<std::string> &roads)
    : m_source(project.path()), m_from(placeOf(floor))
{
    for (const CopyRoad &road : copyRoads())
        if (isAsked(road, roads)) {
            CopyRoad::Document document = road.write(project, floor);
            m_loads.push_back({&road, QJsonDocument(document.reply).toJson(), std::move(document.leftOut)});
        }
    noteNotCarried(project, floor);
}

void FloorCopy::noteNotCarried(const HBXProject &project, const IHBXFloor &floor)
{
    QSet<qint64> carried;
    for (const Load &load : m_loads)
        carried += load.road->types;
    const auto types = projectInfo(project).typesOn(m_from.region, floor.name());
    for (auto type = types.cbegin(); type != types.cend(); ++type)
        if (!carried.contains(type.key())) {
            m_notCarriedTitles.append(counted(type->drawObjects, shownTypeTitle(type.key())));
            m_notCarried.append(typeToJson(type.key(), *type));
        }
}

void FloorCopy::put(HBXProject &project, IHBXFloor &floor)
{
    m_to = placeOf(floor);
    project.makeCurrent();
    project.setCurrent(m_to.region, m_to.name);
    const FloorMove move(m_from, m_to);
    for (const Load &load : m_loads) {
        const QString name = QStringLiteral("%1 (%2)").arg(m_source, QLatin1String(load.road->word));
        note(load, load.road->apply(project, floor, move.moved(parseJson(load.text, name).object()), name));
    }
}

void FloorCopy::note(const Load &load, const CopyRoad::Outcome &outcome)
{
    QJsonObject json = outcome.json;
    json["road"] = load.road->word;
    json["notWritten"] = orvcad::toJson(load.leftOut);
    m_roads.append(json);
    m_lines.append(QStringLiteral("%1: %2%3").arg(load.road->word, outcome.text, leftOutLines(load.leftOut)));
    m_isComplete = m_isComplete && outcome.isComplete && load.leftOut.empty();
}

QString FloorCopy::text() const
{
    QStringList lines{Message::tr("Copied %1 to %2").arg(m_from.text(), m_to.text())};
    lines += m_lines;
    if (!m_notCarriedTitles.isEmpty())
        lines.append(Message::tr("not carried: %1").arg(m_notCarriedTitles.join(QStringLiteral(", "))));
    return lines.join('\n');
}

QJsonObject FloorCopy::toJson() const
{
    return {{"from", m_from.toJson()}, {"to", m_to.toJson()}, {"roads", m_roads}, {"notCarried", m_notCarried}};
}

} // namespace orvcad
